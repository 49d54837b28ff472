"""The players' cards: generic figures on the ice for players without a picture of their own."""

from canvas import Canvas, Pen

SIZE = 200
WALL, WALL_LIGHT, BOARD, ICE, SHADE = "#17385a", "#1f4a74", "#f2c14e", "#e4f1f8", "#bcd6e6"
SWEATER, BAND, DARK, STEEL, STICK, SKIN = "#f4f8fb", "#d9434a", "#0d2238", "#8fa5b8", "#e0b36a", "#e3b48c"
SLEEVE, LEATHER, MESH, VISOR = "#dbe7ef", "#8d5a34", "#6f93b0", "#bfe3f7"


def _between(start, end, part):
    return start[0] + (end[0] - start[0]) * part, start[1] + (end[1] - start[1]) * part


def _banded(pen, colour, width, start, end, first, last):
    """A limb with a band of colour across it, between two parts of its length."""
    pen.limb(colour, width, start, end)
    pen.line(BAND, width, _between(start, end, first), _between(start, end, last))


def _arena(pen):
    pen.rect(WALL, 0, 0, SIZE, SIZE)
    for x in (-70, 10, 90, 170):
        pen.poly(WALL_LIGHT, (x, 150), (x + 54, 0), (x + 88, 0), (x + 34, 150))
    pen.rect(ICE, 0, 150, SIZE, 50)
    pen.rect("#ffffff", 0, 134, SIZE, 16)
    pen.rect(BOARD, 0, 146, SIZE, 4)


def _skate(pen, heel, toe):
    pen.limb(DARK, 12, heel, toe)
    for x, y in (heel, toe):
        pen.line(STEEL, 4, (x, y + 3), (x, y + 10))
    pen.line(STEEL, 3.5, (heel[0] - 6, heel[1] + 9.5), (toe[0] + 6, toe[1] + 9.5))


def _leg(pen, hip, knee, ankle):
    _banded(pen, SWEATER, 19, knee, ankle, 0.45, 0.75)
    pen.limb(DARK, 28, hip, knee)


def _arm(pen, shoulder, elbow, hand, colour):
    pen.limb(colour, 19, shoulder, elbow)
    _banded(pen, colour, 19, elbow, hand, 0.15, 0.4)
    pen.limb(DARK, 20, _between(elbow, hand, 0.75), hand)


def _head(pen, x, y):
    pen.disc(SKIN, x + 2, y + 4, 13)
    pen.disc(BAND, x, y, 16, 170, 360)
    pen.poly(BAND, (x - 16, y - 1), (x - 3, y - 1), (x - 3, y + 12), (x - 12, y + 11))
    pen.poly(VISOR, (x + 2, y - 0.5), (x + 18, y - 0.5), (x + 17, y + 8), (x + 2, y + 6))


def _stick(pen, butt, heel, toe):
    pen.line(STICK, 5, butt, heel)
    pen.limb(DARK, 7, heel, toe)


def _skater_in_stride(pen):
    _arena(pen)
    pen.poly(SHADE, (22, 184), (182, 184), (170, 190), (34, 190))
    _leg(pen, (80, 112), (58, 138), (36, 158))
    _skate(pen, (28, 165), (44, 173))
    _leg(pen, (86, 114), (120, 132), (110, 164))
    _skate(pen, (106, 174), (124, 174))
    _stick(pen, (106, 82), (168, 176), (188, 177))
    _arm(pen, (112, 78), (140, 100), (148, 146), SLEEVE)
    _banded(pen, SWEATER, 42, (108, 76), (82, 106), 0.62, 0.98)
    _arm(pen, (104, 74), (98, 106), (122, 112), SWEATER)
    _head(pen, 126, 48)
    pen.rect(DARK, 180, 182, 14, 5)


def _skater_shooting(pen):
    _arena(pen)
    pen.poly(SHADE, (30, 186), (176, 186), (166, 192), (42, 192))
    _stick(pen, (122, 118), (34, 34), (22, 44))
    _arm(pen, (92, 72), (66, 82), (62, 64), SLEEVE)
    _leg(pen, (92, 114), (74, 142), (64, 164))
    _skate(pen, (58, 175), (76, 175))
    _leg(pen, (98, 114), (126, 138), (130, 164))
    _skate(pen, (128, 175), (146, 175))
    _banded(pen, SWEATER, 44, (102, 72), (96, 108), 0.62, 0.98)
    _arm(pen, (106, 72), (124, 94), (112, 108), SWEATER)
    _head(pen, 112, 40)
    pen.rect(DARK, 162, 182, 14, 5)


def _goal(pen):
    for x in range(36, 170, 12):
        pen.line(MESH, 1.2, (x, 44), (x, 158))
    for y in range(54, 158, 12):
        pen.line(MESH, 1.2, (30, y), (170, y))
    pen.line(BAND, 7, (27, 160), (27, 41), (173, 41), (173, 160))


def _goalie_pad(pen, side):
    """One leg pad; `side` is -1 left of the middle and 1 right of it."""
    def x(offset):
        return 100 + side * offset
    outline = ((x(12), 120), (x(44), 126), (x(60), 178), (x(52), 188), (x(24), 188), (x(18), 180))
    pen.line(DARK, 6, *outline, closed=True)
    pen.poly(SWEATER, *outline)
    pen.poly(BAND, (x(14.6), 146), (x(49.5), 144), (x(52.5), 154), (x(15.6), 156))
    pen.poly(BAND, (x(16.2), 163), (x(55), 161), (x(57.5), 169), (x(17.2), 171))


def _goalie(pen):
    _arena(pen)
    _goal(pen)
    pen.poly(SHADE, (28, 186), (172, 186), (160, 193), (40, 193))
    pen.poly(DARK, (70, 118), (130, 118), (122, 148), (78, 148))
    for side in (-1, 1):
        _goalie_pad(pen, side)
    pen.poly(SWEATER, (70, 62), (130, 62), (144, 84), (136, 130), (64, 130), (56, 84))
    pen.poly(BAND, (61, 108), (139, 108), (137, 120), (63, 120))
    _banded(pen, SWEATER, 26, (68, 78), (44, 100), 0.5, 0.8)
    _banded(pen, SWEATER, 26, (132, 78), (152, 102), 0.5, 0.8)
    pen.disc(LEATHER, 36, 110, 21)
    pen.disc(DARK, 34, 108, 11)
    pen.line(STICK, 6, (150, 92), (136, 150), (118, 186))
    pen.line(STICK, 11, (134, 148), (119, 184))
    pen.limb(DARK, 10, (118, 185), (88, 187))
    pen.poly(LEATHER, (140, 92), (168, 98), (162, 134), (134, 128))
    _mask(pen)


def _mask(pen):
    pen.disc(BAND, 100, 42, 21)
    pen.poly(BAND, (80, 46), (120, 46), (112, 66), (88, 66))
    pen.poly(DARK, (87, 36), (113, 36), (112, 56), (106, 61), (94, 61), (88, 56))
    for y in (43, 50):
        pen.line(STEEL, 1.8, (87, y), (113, y))
    for x in (94, 100, 106):
        pen.line(STEEL, 1.8, (x, 36), (x, 61))


FIGURES = {"Skater1": _skater_in_stride, "Skater2": _skater_shooting, "Goalie1": _goalie}


def card(name, density=1):
    """The card of one of FIGURES, with no transparent part."""
    canvas = Canvas(SIZE, SIZE, density)
    FIGURES[name](Pen(canvas.context))
    return canvas.image()

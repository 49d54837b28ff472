"""The pictures of a team and the league's section headers: a plate, an emblem, the league's lettering."""

import emblems
from canvas import Canvas, Pen
from lettering import SLANT, write

NAVY, DEEP, ICE, RED, WHITE, GREY = "#14304d", "#0b2036", "#8fd3f7", "#e5484d", "#ffffff", "#8a94a3"

# How much of a plate's side is cut off at its upper and at its lower corners.
PLATES = {"octagon": (0.2, 0.2), "tablet": (0.08, 0.26), "keystone": (0.26, 0.08), "shield": (0.06, 0.34)}


def cut_corners(x, y, width, height, top, foot):
    """A rectangle whose upper corners are cut by `top` pixels and lower ones by `foot`, at 45 degrees."""
    right, bottom = x + width, y + height
    return ((x + top, y), (right - top, y), (right, y + top), (right, bottom - foot), (right - foot, bottom),
            (x + foot, bottom), (x, bottom - foot), (x, y + top))


def bordered(pen, border_colour, colour, width, height, cuts, border):
    """A plate over the whole picture with a border of one width along sides and cut corners."""
    inner_cuts = (max(0, cut - border * 0.586) for cut in cuts)
    pen.poly(border_colour, *cut_corners(0, 0, width, height, *cuts))
    inner = cut_corners(border, border, width - 2 * border, height - 2 * border, *inner_cuts)
    pen.poly(colour, *inner)
    return inner


def _emblem(pen, team, x, y, half):
    with pen.at(x, y, half) as at:
        getattr(emblems, team["emblem"])(at, team["mark"], team["trim"], team["base"])


def logo(team, size, density=1):
    """The emblem on the team's plate, with the abbreviation at its foot."""
    canvas = Canvas(size, size, density)
    pen = Pen(canvas.context)
    cuts = [round(size * part) for part in PLATES[team["plate"]]]
    bordered(pen, team["trim"], team["base"], size, size, cuts, size / 32)
    _emblem(pen, team, size / 2, size * 0.4, size * 0.31)
    write(pen, team["abbr"], team["mark"], (0, size * 0.76, size, size * 0.15), size * 0.15)
    return canvas.image()


def mini_logo(team):
    """24 pixels: the emblem above, the abbreviation below, no border."""
    canvas = Canvas(24, 24)
    pen = Pen(canvas.context)
    pen.poly(team["base"], *cut_corners(0, 0, 24, 24, 3, 3))
    _emblem(pen, team, 12, 7.5, 6.5)
    write(pen, team["abbr"], team["mark"], (1, 15, 22, 7), 7)
    return canvas.image()


def _slash(pen, colour, x, width, height):
    """A slanted stripe over the whole height whose foot starts at x."""
    lean = height * SLANT * 2
    pen.poly(colour, (x, height), (x + lean, 0), (x + lean + width, 0), (x + width, height))


def big_banner(team, density=1):
    width, height = 360, 64
    canvas = Canvas(width, height, density)
    pen = Pen(canvas.context)
    inner = bordered(pen, team["trim"], team["base"], width, height, (10, 10), 2)
    with pen.at(0, 0) as inside:
        inside.clip(*inner)
        _slash(inside, team["trim"], 66, 5, height)
        _slash(inside, team["mark"], 74, 3, height)
    _emblem(pen, team, 37, 32, 22)
    write(pen, team["city"].upper(), team["trim"], (98, 9, 252, 11), 11, gap=2.2)
    write(pen, team["name"].upper(), team["mark"], (92, 26, 258, 28), 28, slant=SLANT)
    return canvas.image()



def mini_banner(team, density=1):
    width, height = 120, 24
    canvas = Canvas(width, height, density)
    pen = Pen(canvas.context)
    inner = bordered(pen, team["trim"], team["base"], width, height, (4, 4), 1)
    with pen.at(0, 0) as inside:
        inside.clip(*inner)
        _slash(inside, team["trim"], 23, 2, height)
    _emblem(pen, team, 13, 12, 9)
    write(pen, team.get("short", team["city"]).upper(), team["mark"], (35, 7, 81, 10), 10)
    return canvas.image()


def blank_banner(density=1):
    """The place of a team not yet known: a broken outline that shows on light and dark pages alike."""
    canvas = Canvas(120, 24, density)
    pen = Pen(canvas.context)
    canvas.context.set_dash([4, 3])
    pen.line(GREY, 1, *cut_corners(0.5, 0.5, 119, 23, 4, 4), closed=True)
    return canvas.image()


def header(title):
    """The head of a page: its title between the lines of a rink."""
    width, height = 480, 56
    canvas = Canvas(width, height)
    pen = Pen(canvas.context)
    inner = bordered(pen, ICE, NAVY, width, height, (12, 12), 2)
    with pen.at(0, 0) as inside:
        inside.clip(*inner)
        for x in (9, width - 52):
            for offset, colour in ((0, ICE), (9, RED), (18, ICE)):
                _slash(inside, colour, x + offset, 5, height)
    write(pen, title.upper(), WHITE, (58, 17, width - 116, 22), 22, slant=SLANT)
    return canvas.image()


def league_logo(density=1):
    width, height = 300, 200
    canvas = Canvas(width, height, density)
    pen = Pen(canvas.context)
    bordered(pen, ICE, NAVY, width, height, (20, 76), 5)
    with pen.at(150, 45, 32) as at:
        emblems.sticks(at, ICE, RED, NAVY)
    write(pen, "ICELINE", WHITE, (20, 84, 260, 50), 50, slant=SLANT, edge=DEEP, edge_width=3)
    pen.poly(RED, (55, 143), (247, 143), (245, 149), (53, 149))
    write(pen, "HOCKEY LEAGUE", ICE, (60, 160, 180, 14), 14, gap=1.8)
    return canvas.image()


def preview():
    """What a message that links to the site shows: the league's logo on the ground of its section headers."""
    width, height = 1200, 630
    canvas = Canvas(width, height)
    pen = Pen(canvas.context)
    pen.rect(DEEP, 0, 0, width, height)
    for x in (40, width - 250):
        for offset, colour in ((0, ICE), (45, RED), (90, ICE)):
            _slash(pen, colour, x + offset - 120, 24, height)
    logo_width, logo_height = 900, 600
    picture = league_logo(density=3).resize((logo_width, logo_height))
    ground = canvas.image()
    ground.alpha_composite(picture, ((width - logo_width) // 2, (height - logo_height) // 2))
    return ground

"""The program's icon: a page of the score book whose ruling is the lines of a rink."""

from canvas import Canvas, Pen
from pictures import ICE, NAVY, RED, WHITE, cut_corners

SIZE = 64
BLUE = "#2f7fc1"


def _bar(colour, top):
    return "poly", colour, ((10, top), (54, top), (54, top + 4), (10, top + 4))


SHAPES = (
    ("poly", NAVY, cut_corners(0, 0, SIZE, SIZE, 10, 10)),
    ("poly", WHITE, ((10, 6), (44, 6), (54, 16), (54, 58), (10, 58))),
    ("poly", ICE, ((44, 6), (54, 16), (44, 16))),
    _bar(BLUE, 18),
    _bar(BLUE, 46),
    ("disc", BLUE, (32, 34, 10)),
    ("disc", WHITE, (32, 34, 6.8)),
    _bar(RED, 32),
    ("disc", RED, (32, 34, 4)),
)


def png(size):
    """The icon `size` pixels wide and high."""
    canvas = Canvas(size, size)
    with Pen(canvas.context).at(0, 0, size / SIZE) as pen:
        for kind, colour, where in SHAPES:
            getattr(pen, kind)(colour, *where)
    return canvas.image()


def svg():
    """The icon as the text of an SVG file."""
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {SIZE} {SIZE}">']
    for kind, colour, where in SHAPES:
        if kind == "poly":
            points = " ".join(f"{x},{y}" for x, y in where)
            lines.append(f'  <polygon fill="{colour}" points="{points}"/>')
        else:
            lines.append('  <circle fill="{}" cx="{}" cy="{}" r="{}"/>'.format(colour, *where))
    return "\n".join(lines) + "\n</svg>\n"

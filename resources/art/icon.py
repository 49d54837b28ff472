"""The program's icon: a page of the score book whose ruling is the lines of a rink."""

from canvas import Canvas, Pen
from pictures import ICE, NAVY, RED, WHITE, cut_corners

SIZE = 64
BLUE = "#2f7fc1"


def _bar(colour, top):
    return "poly", colour, ((8, top), (56, top), (56, top + 4), (8, top + 4))


# Straight edges lie on multiples of 4, which are whole pixels in the icon of 16 pixels.
SHAPES = (
    ("poly", NAVY, cut_corners(0, 0, SIZE, SIZE, 10, 10)),
    ("poly", WHITE, ((8, 4), (46, 4), (56, 14), (56, 60), (8, 60))),
    ("poly", ICE, ((46, 4), (56, 14), (46, 14))),
    _bar(BLUE, 16),
    _bar(BLUE, 48),
    ("disc", BLUE, (32, 34, 11)),
    ("disc", WHITE, (32, 34, 7.4)),
    _bar(RED, 32),
    ("disc", RED, (32, 34, 4.4)),
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

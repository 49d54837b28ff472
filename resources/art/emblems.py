"""The teams' emblems: one function a sign, drawn in the square from (-1, -1) to (1, 1).

Each takes the pen and the team's three colours: `mark` for the sign, `trim` for its second part, and `base`,
the colour of the plate underneath, for what is cut out of it.
"""

from math import cos, radians, sin


def polar(radius, degrees):
    """The point at `radius` from the centre; 0 degrees is up, and the angle grows clockwise."""
    return radius * sin(radians(degrees)), -radius * cos(radians(degrees))


def sails(pen, mark, trim, base):
    pen.poly(mark, (-0.06, -0.95), (-0.06, 0.38), (-0.82, 0.38))
    pen.poly(trim, (0.1, -0.62), (0.1, 0.38), (0.74, 0.38))
    pen.poly(mark, (-0.95, 0.52), (0.95, 0.52), (0.6, 0.92), (-0.6, 0.92))


def falls(pen, mark, trim, base):
    for radius, colour, foot in ((0.96, mark, 0.5), (0.62, trim, 0.62), (0.28, mark, 0.5)):
        pen.rect(colour, -0.9, 0.16 - radius, 0.66, 0.23)
        pen.ring(colour, -0.25, 0.16, radius - 0.115, 0.23, 270, 360)
        pen.rect(colour, radius - 0.48, 0.15, 0.23, foot - 0.15)
    pen.line(mark, 0.2, (-0.5, 0.86), (-0.2, 0.7), (0.12, 0.86), (0.44, 0.7), (0.76, 0.86), (1, 0.74))


def horseshoe(pen, mark, trim, base):
    pen.curve(mark, 0.4, (-0.36, 0.92), ((-1, 0.1), (-0.78, -0.74), (0, -0.74)),
              ((0.78, -0.74), (1, 0.1), (0.36, 0.92)))
    for x, y in ((-0.58, 0.3), (-0.57, -0.3), (0, -0.74), (0.57, -0.3), (0.58, 0.3)):
        pen.disc(base, x, y, 0.1)


def gusts(pen, mark, trim, base):
    pen.line(mark, 0.26, (-0.92, -0.36), (0.43, -0.36))
    pen.ring(mark, 0.42, -0.64, 0.28, 0.26, 180, 450)
    pen.line(trim, 0.2, (-0.66, 0.02), (0.92, 0.02))
    pen.line(mark, 0.26, (-0.62, 0.36), (0.31, 0.36))
    pen.ring(mark, 0.3, 0.64, 0.28, 0.26, 270, 540)


def gear(pen, mark, trim, base):
    for angle in range(0, 360, 45):
        pen.line(mark, 0.34, polar(0.5, angle), polar(0.95, angle))
    pen.disc(mark, 0, 0, 0.7)
    pen.disc(base, 0, 0, 0.42)
    pen.disc(trim, 0, 0, 0.22)


def aurora(pen, mark, trim, base):
    bars = ((-0.78, -0.1, 0.62), (-0.4, -0.62, 0.4), (-0.02, -0.9, 0.3), (0.36, -0.66, 0.46),
            (0.74, -0.2, 0.7))
    for number, (x, top, foot) in enumerate(bars):
        pen.poly(trim if number % 2 else mark, (x - 0.14, top + 0.1), (x + 0.14, top - 0.1),
                 (x + 0.14, foot - 0.1), (x - 0.14, foot + 0.1))
    pen.line(mark, 0.16, (-0.92, 0.88), (0.92, 0.88))


def acorn(pen, mark, trim, base):
    pen.line(trim, 0.2, (0, -0.6), (0.16, -0.98))
    pen.disc(trim, 0, -0.12, 0.72, 180, 360)
    pen.blob(mark, (-0.58, 0.02), ((-0.58, 0.5), (-0.3, 0.72), (0, 0.98)),
             ((0.3, 0.72), (0.58, 0.5), (0.58, 0.02)))


def compass(pen, mark, trim, base):
    for angle in (45, 135, 225, 315):
        pen.poly(trim, (0, 0), polar(0.28, angle - 45), polar(0.68, angle), polar(0.28, angle + 45))
    for angle in (0, 90, 180, 270):
        pen.poly(mark, (0, 0), polar(0.3, angle - 45), polar(1, angle), polar(0.3, angle + 45))
    pen.disc(base, 0, 0, 0.15)


def sunset(pen, mark, trim, base):
    pen.disc(mark, 0, 0.1, 0.92, 180, 360)
    pen.rect(mark, -0.92, 0.09, 1.84, 0.14)
    for y, height in ((-0.34, 0.1), (-0.08, 0.14)):
        pen.rect(base, -1, y, 2, height)
    pen.rect(trim, -0.72, 0.38, 1.44, 0.18)
    pen.rect(mark, -0.44, 0.7, 0.88, 0.16)


def _pine(pen, colour, x, top, foot, half):
    for part in (0, 1, 2):
        height = (foot - top) / 3
        upper = top + part * height * 0.86
        wide = half * (0.6 + 0.2 * part)
        pen.poly(colour, (x, upper), (x + wide, upper + height * 1.25), (x - wide, upper + height * 1.25))
    pen.rect(colour, x - half * 0.14, foot - 0.1, half * 0.28, 0.3)


def pines(pen, mark, trim, base):
    for x in (-0.6, 0.6):
        _pine(pen, trim, x, -0.5, 0.6, 0.4)
    _pine(pen, base, 0, -1.05, 0.66, 0.76)
    _pine(pen, mark, 0, -0.95, 0.72, 0.56)


def snowflake(pen, mark, trim, base):
    for angle in range(0, 360, 60):
        pen.line(mark, 0.2, (0, 0), polar(0.98, angle))
        x, y = polar(0.46, angle)
        for branch in (angle - 50, angle + 50):
            tip = polar(0.36, branch)
            pen.line(trim, 0.15, (x, y), (x + tip[0], y + tip[1]))
    pen.disc(mark, 0, 0, 0.26)


def road(pen, mark, trim, base):
    pen.poly(mark, (-0.26, -0.9), (0.26, -0.9), (0.95, 0.9), (-0.95, 0.9))
    for top, foot in ((-0.72, -0.42), (-0.22, 0.18), (0.42, 0.9)):
        pen.poly(trim, (-0.06 - (top + 1) * 0.04, top), (0.06 + (top + 1) * 0.04, top),
                 (0.06 + (foot + 1) * 0.05, foot), (-0.06 - (foot + 1) * 0.05, foot))


def skyline(pen, mark, trim, base):
    towers = ((-0.95, -0.05, 0.42), (-0.47, -0.5, 0.4), (0.0, -0.3, 0.36), (0.42, -0.02, 0.53))
    for number, (x, top, width) in enumerate(towers):
        pen.rect(trim if number % 2 else mark, x, top, width - 0.06, 0.88 - top)
    pen.poly(trim, (-0.47, -0.5), (-0.30, -0.98), (-0.13, -0.5))
    for x, y in ((-0.8, 0.16), (-0.8, 0.46), (0.12, -0.06), (0.12, 0.24), (0.12, 0.54)):
        pen.rect(base, x, y, 0.1, 0.16)


def tulip(pen, mark, trim, base):
    pen.line(trim, 0.17, (0, 0), (0, 0.98))
    for side in (-1, 1):
        pen.poly(trim, (0, 0.9), (side * 0.62, 0.34), (side * 0.5, 0.8), (0, 0.98))
    pen.poly(mark, (-0.6, -0.82), (-0.28, -0.44), (0, -0.96), (0.28, -0.44), (0.6, -0.82), (0.6, -0.14),
             (0.3, 0.26), (-0.3, 0.26), (-0.6, -0.14))


def bell(pen, mark, trim, base):
    pen.rect(trim, -0.56, -0.96, 1.12, 0.2)
    pen.blob(mark, (-0.34, -0.68), ((-0.1, -0.68), (0.1, -0.68), (0.34, -0.68)),
             ((0.5, -0.1), (0.5, 0.2), (0.86, 0.5)), ((0.4, 0.5), (-0.4, 0.5), (-0.86, 0.5)),
             ((-0.5, 0.2), (-0.5, -0.1), (-0.34, -0.68)))
    pen.rect(base, -0.7, 0.2, 1.4, 0.1)
    pen.disc(trim, 0, 0.74, 0.2)


def bridge(pen, mark, trim, base):
    for x in (-0.56, 0.56):
        pen.rect(trim, x - 0.11, -0.82, 0.22, 1.7)
    for x in (-0.28, 0, 0.28):
        pen.rect(mark, x - 0.05, -0.1 if x else 0.04, 0.1, 0.5)
    pen.curve(mark, 0.15, (-0.56, -0.7), ((-0.3, 0.3), (0.3, 0.3), (0.56, -0.7)))
    for side in (-1, 1):
        pen.line(mark, 0.15, (side * 0.56, -0.7), (side * 0.98, 0.3))
    pen.rect(mark, -0.98, 0.28, 1.96, 0.26)


def castle(pen, mark, trim, base):
    pen.rect(mark, -0.8, -0.42, 1.6, 1.3)
    for x in (-0.8, -0.2, 0.4):
        pen.rect(mark, x, -0.82, 0.4, 0.5)
    pen.rect(trim, -0.8, -0.26, 1.6, 0.17)
    pen.rect(base, -0.24, 0.3, 0.48, 0.6)
    pen.disc(base, 0, 0.32, 0.24, 180, 360)


def lattice(pen, mark, trim, base):
    centres = [(0, 0)] + [polar(0.62, angle) for angle in range(30, 390, 60)]
    for x, y in centres:
        corners = [(x + polar(0.3, angle)[0], y + polar(0.3, angle)[1]) for angle in range(0, 360, 60)]
        pen.poly(mark if (x, y) != (0, 0) else trim, *corners)


def arch(pen, mark, trim, base):
    pen.blob(mark, (-0.84, 0.56), ((-0.7, -1.4), (0.7, -1.4), (0.84, 0.56)),
             ((0.8, 0.56), (0.6, 0.56), (0.54, 0.56)), ((0.4, -0.98), (-0.4, -0.98), (-0.54, 0.56)))
    pen.line(trim, 0.18, (-0.95, 0.82), (-0.5, 0.66), (0, 0.82), (0.5, 0.66), (0.95, 0.82))


def waves(pen, mark, trim, base):
    for y, colour in ((-0.52, trim), (0.04, mark), (0.6, mark)):
        pen.curve(colour, 0.3, (-0.98, y + 0.14), ((-0.66, y + 0.14), (-0.66, y - 0.2), (-0.33, y - 0.2)),
                  ((0, y - 0.2), (0, y + 0.14), (0.33, y + 0.14)),
                  ((0.66, y + 0.14), (0.66, y - 0.2), (0.98, y - 0.2)))


def spire(pen, mark, trim, base):
    pen.poly(mark, (0, -1), (0.09, -0.4), (-0.09, -0.4))
    pen.poly(trim, (-0.42, -0.36), (0.42, -0.36), (0.3, -0.08), (-0.3, -0.08))
    pen.poly(mark, (-0.14, -0.1), (0.14, -0.1), (0.34, 0.92), (-0.34, 0.92))
    for side in (-1, 1):
        pen.rect(mark, side * 0.66 - 0.14, 0.34, 0.28, 0.58)


def peaks(pen, mark, trim, base):
    pen.poly(trim, (0.4, -0.5), (1, 0.62), (0, 0.62))
    pen.poly(base, (-0.26, -1.1), (0.76, 0.62), (-1.3, 0.62))
    pen.poly(mark, (-0.26, -0.9), (0.62, 0.62), (-1, 0.62))
    pen.poly(trim, (-0.26, -0.9), (0.06, -0.34), (-0.12, -0.16), (-0.26, -0.34), (-0.42, -0.16),
             (-0.58, -0.34))
    pen.rect(mark, -1, 0.74, 2, 0.16)


def columns(pen, mark, trim, base):
    pen.poly(mark, (0, -0.95), (0.95, -0.44), (-0.95, -0.44))
    pen.rect(trim, -0.82, -0.34, 1.64, 0.14)
    for x in (-0.6, 0, 0.6):
        pen.rect(mark, x - 0.15, -0.14, 0.3, 0.72)
    pen.rect(mark, -0.95, 0.66, 1.9, 0.24)


def wheat(pen, mark, trim, base):
    pen.line(trim, 0.14, (0, -0.3), (0, 0.98))
    pen.poly(mark, (0, -1), (0.19, -0.68), (0, -0.34), (-0.19, -0.68))
    for y in (-0.2, 0.18, 0.56):
        for side in (-1, 1):
            pen.poly(mark, (side * 0.09, y), (side * 0.16, y - 0.38), (side * 0.62, y - 0.62),
                     (side * 0.56, y - 0.22))


def _star(pen, colour, x, y, radius):
    pen.poly(colour, *((x + polar(radius * size, angle)[0], y + polar(radius * size, angle)[1])
                       for angle, size in ((36 * i, 0.45 if i % 2 else 1) for i in range(10))))


def sunrise_star(pen, mark, trim, base):
    _star(pen, mark, -0.22, -0.02, 0.76)
    pen.line(trim, 0.22, (0.36, -0.7), (0.86, 0), (0.36, 0.7))


def sunset_star(pen, mark, trim, base):
    _star(pen, mark, 0.22, -0.02, 0.76)
    pen.line(trim, 0.22, (-0.36, -0.7), (-0.86, 0), (-0.36, 0.7))


def rings(pen, mark, trim, base):
    """A face-off circle on the centre line: the league as a whole."""
    pen.line(trim, 0.2, (-1, 0), (1, 0))
    pen.disc(base, 0, 0, 0.8)
    pen.ring(mark, 0, 0, 0.64, 0.24)
    pen.disc(trim, 0, 0, 0.26)


def sticks(pen, mark, trim, base):
    """Two crossed sticks over a puck: the sign of the league."""
    for side in (1, -1):
        butt, heel = (side * -1.15, -0.95), (side * 0.62, 0.66)
        pen.line(base, 0.34, butt, heel)
        pen.line(mark, 0.17, butt, heel, (side * 1.22, 0.66))
        pen.line(trim, 0.17, (side * 0.86, 0.66), (side * 1.02, 0.66))
        pen.line(trim, 0.18, butt, (side * -0.89, -0.713))
    pen.rect(trim, -0.3, 0.62, 0.6, 0.22)

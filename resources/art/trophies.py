"""The league's trophies: seven forms of our own, each in gold and in silver, on a wooden foot.

A form is drawn above the foot, in the coordinates of the picture; `metal` is its colour and `shade` the darker
one of its parts that lie in the shadow.
"""

from canvas import Canvas, Pen

WIDTH, HEIGHT = 40, 56
WOOD, LABEL = "#5b3a24", "#e9d9a6"
METALS = {"gold": ("#d9a400", "#a87b00"), "silver": ("#b4c0cc", "#84919e")}


def stem(pen, shade, top):
    pen.rect(shade, 18, top, 4, 46 - top)
    pen.rect(shade, 13, 43, 14, 3)


def bowl(pen, metal, shade):
    stem(pen, shade, 26)
    pen.disc(metal, 20, 16, 14, 0, 180)
    pen.rect(shade, 5, 13, 30, 3)


def goblet(pen, metal, shade):
    stem(pen, shade, 28)
    pen.ring(shade, 10, 14, 5, 2)
    pen.ring(shade, 30, 14, 5, 2)
    pen.poly(metal, (10, 6), (30, 6), (27, 24), (22, 30), (18, 30), (13, 24))


def peak(pen, metal, shade):
    pen.rect(shade, 6, 43, 28, 3)
    pen.poly(metal, (8, 43), (17, 4), (26, 43))
    pen.poly(shade, (20, 43), (27, 18), (34, 43))
    pen.poly(LABEL, (14.7, 14), (17, 4), (19.3, 14), (17, 17))


def plaque(pen, metal, shade):
    pen.poly(shade, (6, 4), (34, 4), (34, 28), (20, 46), (6, 28))
    pen.poly(metal, (9, 7), (31, 7), (31, 27), (20, 41), (9, 27))
    pen.disc(shade, 20, 20, 6)


def puck(pen, metal, shade):
    stem(pen, shade, 30)
    pen.disc(metal, 20, 18, 14)
    pen.disc(shade, 20, 18, 10)
    pen.disc(metal, 20, 18, 7)


def sticks(pen, metal, shade):
    for side, colour in ((1, shade), (-1, metal)):
        pen.limb(colour, 3, (20 + side * 13, 5), (20 - side * 9, 40), (20 - side * 15, 40))
    pen.rect(shade, 13, 43, 14, 3)


def star(pen, metal, shade):
    stem(pen, shade, 30)
    pen.poly(metal, (20, 3), (24, 14), (35, 14), (26, 21), (30, 32), (20, 25), (10, 32), (14, 21), (5, 14),
             (16, 14))


FORMS = (bowl, goblet, peak, plaque, puck, sticks, star)


def trophy(form, metal, density=1):
    canvas = Canvas(WIDTH, HEIGHT, density)
    pen = Pen(canvas.context)
    form(pen, *METALS[metal])
    pen.rect(WOOD, 8, 46, 24, 9)
    pen.rect(LABEL, 14, 48, 12, 4)
    return canvas.image()


def trophies():
    """Pairs of a number from 0 and the function that draws that trophy at a density."""
    kinds = [(form, metal) for metal in METALS for form in FORMS]
    return enumerate(lambda density, kind=kind: trophy(*kind, density) for kind in kinds)

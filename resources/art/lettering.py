"""The league's own lettering: capitals as strokes with corners cut at 45 degrees, like figures on a sweater.

A letter is its width and the lines that its stroke follows. The lines lie in a box `width` units wide and
LINE_HEIGHT high; the stroke, STROKE wide, reaches half its width beyond the box on every side.
"""

import cairo

STROKE = 2.2
LINE_HEIGHT = 8.0
CAP_HEIGHT = LINE_HEIGHT + STROKE
GAP = 1.15
BLANK = 2.7
SLANT = 0.18

_TOP, _FOOT = -STROKE / 2, LINE_HEIGHT + STROKE / 2
_BOWL = [(5, 1.7), (5, 1.5), (3.5, 0), (1.5, 0), (0, 1.5), (0, 6.5), (1.5, 8), (3.5, 8), (5, 6.5)]
_ROUND = [(1.5, 0), (3.5, 0), (5, 1.5), (5, 6.5), (3.5, 8), (1.5, 8), (0, 6.5), (0, 1.5), (1.5, 0), (3.5, 0)]
_LOOP = [(0, 8), (0, 0), (3.5, 0), (5, 1.5), (5, 3.2), (3.6, 4.6), (0, 4.6)]

LETTERS = {
    "A": (5, [[(0, 8), (0, 1.9), (1.9, 0), (3.1, 0), (5, 1.9), (5, 8)], [(0, 5.1), (5, 5.1)]]),
    "B": (5, [[(3.6, 4), (5, 2.7), (5, 1.4), (3.6, 0), (0, 0), (0, 8), (3.6, 8), (5, 6.6), (5, 5.3), (3.6, 4),
               (0, 4)]]),
    "C": (5, [_BOWL + [(5, 6.3)]]),
    "D": (5, [[(0, 4), (0, 0), (3.4, 0), (5, 1.6), (5, 6.4), (3.4, 8), (0, 8), (0, 4)]]),
    "E": (4.2, [[(4.2, 0), (0, 0), (0, 8), (4.2, 8)], [(0, 4), (3.4, 4)]]),
    "F": (4.2, [[(4.2, 0), (0, 0), (0, 8)], [(0, 4.2), (3.3, 4.2)]]),
    "G": (5, [_BOWL + [(5, 4.5), (3.6, 4.5)]]),
    "H": (5, [[(0, 0), (0, 8)], [(5, 0), (5, 8)], [(0, 4), (5, 4)]]),
    "I": (0, [[(0, 0), (0, 8)]]),
    "J": (4.4, [[(4.4, 0), (4.4, 6.5), (2.9, 8), (1.5, 8), (0, 6.5), (0, 6.1)]]),
    "K": (4.9, [[(0, 0), (0, 8)], [(4.6, _TOP), (0.9, 4), (4.6, _FOOT)]]),
    "L": (4.2, [[(0, 0), (0, 8), (4.2, 8)]]),
    "M": (6.6, [[(0, 0), (0, 8)], [(6.6, 0), (6.6, 8)], [(0.5, _TOP), (3.3, 4.6), (6.1, _TOP)]]),
    "N": (5.2, [[(0, 0), (0, 8)], [(5.2, 0), (5.2, 8)], [(0.2, _TOP), (5, _FOOT)]]),
    "O": (5, [_ROUND]),
    "P": (5, [_LOOP]),
    "Q": (5, [_ROUND, [(2.9, 5.0), (5.1, _FOOT)]]),
    "R": (5, [_LOOP, [(2.6, 4.6), (4.9, _FOOT)]]),
    "S": (5, [[(5, 1.7), (5, 1.5), (3.5, 0), (1.5, 0), (0, 1.5), (0, 2.6), (1.4, 4), (3.6, 4), (5, 5.4),
               (5, 6.5), (3.5, 8), (1.5, 8), (0, 6.5), (0, 6.3)]]),
    "T": (5, [[(0, 0), (5, 0)], [(2.5, 0), (2.5, 8)]]),
    "U": (5, [[(0, 0), (0, 6.5), (1.5, 8), (3.5, 8), (5, 6.5), (5, 0)]]),
    "V": (5.2, [[(0, _TOP), (2.6, 7.6), (5.2, _TOP)]]),
    "W": (7.6, [[(0, _TOP), (1.9, 7.6), (3.8, 0.8), (5.7, 7.6), (7.6, _TOP)]]),
    "X": (5, [[(0.1, _TOP), (4.9, _FOOT)], [(4.9, _TOP), (0.1, _FOOT)]]),
    "Y": (5, [[(0, _TOP), (2.5, 4.2), (5, _TOP)], [(2.5, 4.2), (2.5, 8)]]),
    "Z": (5, [[(0, 0), (5, 0)], [(0, 8), (5, 8)], [(4.6, 0), (0.4, 8)]]),
    "-": (2.4, [[(0, 4), (2.4, 4)]]),
    ".": (0, [[(0, 7.9), (0, 8)]]),
    "/": (4, [[(0, _FOOT), (4, _TOP)]]),
}

KERNING = {"LY": -1.6, "LT": -1.6, "TA": -0.4, "AT": -0.4, "AV": -0.5, "VA": -0.5, "AY": -0.6, "RT": -0.3,
           "P.": -0.8, "T.": -0.6, "TJ": -0.6, "PA": -0.4, "FA": -0.4, "KA": -0.3, "LO": -0.3}


def _places(text, gap):
    """Pairs of each letter and the left end of its ink, in units, and the width of the whole text's ink."""
    places, x, last = [], 0.0, ""
    for letter in text:
        if letter == " ":
            x += BLANK
        else:
            x += KERNING.get(last + letter, 0)
            places.append((letter, x))
            x += LETTERS[letter][0] + STROKE + gap
        last = letter
    return places, x - gap


def write(pen, text, colour, box, cap_height, align="centre", slant=0.0, edge=None, edge_width=0.0, gap=GAP):
    """Sets `text` in `box` (x, y, width, height) by its ink, in capitals `cap_height` high.

    Text too wide for the box is made narrower, never lower. `edge` is the colour of a border of `edge_width`
    pixels around the letters, which lies outside the cap height.
    """
    x, y, width, height = box
    unit = cap_height / CAP_HEIGHT
    places, units = _places(text, gap)
    lean = slant * cap_height
    narrow = min(1.0, (width - lean) / (units * unit))
    ink = units * unit * narrow + lean
    left = {"left": x, "centre": x + (width - ink) / 2, "right": x + width - ink}[align]
    top = y + (height - cap_height) / 2
    context = pen.context
    for layer, extra in ((edge, 2 * edge_width / unit), (colour, 0.0)):
        if layer is None:
            continue
        context.save()
        context.transform(cairo.Matrix(unit * narrow, 0, -slant * unit, unit, left + lean, top))
        context.rectangle(-1000, -extra / 2, 10000, CAP_HEIGHT + extra)
        context.clip()
        for letter, place in places:
            with pen.at(place + STROKE / 2, STROKE / 2) as at:
                for points in LETTERS[letter][1]:
                    at.line(layer, STROKE + extra, *points, cap=cairo.LINE_CAP_SQUARE)
        context.restore()

"""The drawing surface: flat shapes on a pixel grid, written as GIF and PNG files.

Coordinates are pixels of the picture at its normal size. Everything is drawn OVERSAMPLE times larger and
averaged down, so that edges inside a picture are smooth. GIF knows no half-transparent pixel: what lies under
a picture must meet its outline on whole pixels or at 45 degrees, which all plates do.
"""

from math import radians
from pathlib import Path

import cairo
from PIL import Image

OVERSAMPLE = 4
GIF_COLOURS = 127


def rgb(colour):
    """The three parts, 0 to 1, of a colour written "#rrggbb"."""
    return tuple(int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5))


class Canvas:
    """A transparent picture of width x height pixels, kept at `density` device pixels a pixel."""

    def __init__(self, width, height, density=1):
        factor = OVERSAMPLE * density
        self.surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, round(width * factor), round(height * factor))
        self.context = cairo.Context(self.surface)
        self.context.scale(factor, factor)

    def image(self):
        """The picture averaged down to its own size, as a Pillow image with straight alpha."""
        self.surface.flush()
        size = (self.surface.get_width(), self.surface.get_height())
        large = Image.frombuffer("RGBA", size, bytes(self.surface.get_data()), "raw", "BGRa",
                                 self.surface.get_stride(), 1)
        return large.convert("RGBa").reduce(OVERSAMPLE).convert("RGBA")


class Pen:
    """Draws filled and stroked shapes on a context, in the coordinates that the context has at the time."""

    def __init__(self, context):
        self.context = context

    def at(self, x, y, scale=1.0):
        """A pen for a `with` block, whose origin is (x, y) and whose unit is `scale`."""
        return _Placed(self.context, cairo.Matrix(scale, 0, 0, scale, x, y))

    def poly(self, colour, *points):
        self._trace(points)
        self.context.close_path()
        self._fill(colour)

    def rect(self, colour, x, y, width, height):
        self.context.rectangle(x, y, width, height)
        self._fill(colour)

    def disc(self, colour, x, y, radius, start=0.0, end=360.0):
        """A disc, or the part of it between two angles in degrees, cut off by the straight chord."""
        self._arc(x, y, radius, start, end)
        self.context.close_path()
        self._fill(colour)

    def ring(self, colour, x, y, radius, width, start=0.0, end=360.0):
        self._arc(x, y, radius, start, end)
        self._stroke(colour, width, cairo.LINE_CAP_BUTT, cairo.LINE_JOIN_MITER)

    def line(self, colour, width, *points, cap=cairo.LINE_CAP_BUTT, join=cairo.LINE_JOIN_MITER, closed=False):
        self._trace(points)
        if closed:
            self.context.close_path()
        self._stroke(colour, width, cap, join)

    def limb(self, colour, width, *points):
        """A line with round ends and corners."""
        self.line(colour, width, *points, cap=cairo.LINE_CAP_ROUND, join=cairo.LINE_JOIN_ROUND)

    def curve(self, colour, width, start, *bends):
        """A line along Bezier curves; each bend is two control points and an end point."""
        self._bend(start, bends)
        self._stroke(colour, width, cairo.LINE_CAP_BUTT, cairo.LINE_JOIN_MITER)

    def blob(self, colour, start, *bends):
        """The area inside Bezier curves."""
        self._bend(start, bends)
        self.context.close_path()
        self._fill(colour)

    def clip(self, *points):
        """Limits what is drawn to the area between the points, until this pen's `with` block ends."""
        self._trace(points)
        self.context.close_path()
        self.context.clip()

    def _trace(self, points):
        self.context.move_to(*points[0])
        for point in points[1:]:
            self.context.line_to(*point)

    def _bend(self, start, bends):
        self.context.move_to(*start)
        for first, second, end in bends:
            self.context.curve_to(*first, *second, *end)

    def _arc(self, x, y, radius, start, end):
        self.context.new_sub_path()
        self.context.arc(x, y, radius, radians(start), radians(end))

    def _fill(self, colour):
        self.context.set_source_rgb(*rgb(colour))
        self.context.fill()

    def _stroke(self, colour, width, cap, join):
        self.context.set_source_rgb(*rgb(colour))
        self.context.set_line_width(width)
        self.context.set_line_cap(cap)
        self.context.set_line_join(join)
        self.context.stroke()


class _Placed(Pen):
    """A pen in a coordinate system of its own."""

    def __init__(self, context, matrix):
        super().__init__(context)
        self.matrix = matrix

    def __enter__(self):
        self.context.save()
        self.context.transform(self.matrix)
        return self

    def __exit__(self, *failure):
        self.context.restore()


def write_png(image, path):
    _make_folder(path)
    image.save(path, "PNG", optimize=True)


def write_gif(image, path):
    """Writes a GIF whose pixels are either whole or transparent, whichever each is nearer to."""
    _make_folder(path)
    colours = image.convert("RGB").quantize(GIF_COLOURS, Image.Quantize.MEDIANCUT, dither=Image.Dither.NONE)
    clear = image.getchannel("A").point(lambda alpha: 255 if alpha < 128 else 0)
    if not clear.getbbox():
        colours.save(path, "GIF", optimize=True)
        return
    colours.paste(GIF_COLOURS, mask=clear)
    colours.save(path, "GIF", transparency=GIF_COLOURS, optimize=True)


def write_ico(images, path):
    """Writes an icon file of square images, the largest last."""
    _make_folder(path)
    images[-1].save(path, "ICO", sizes=[image.size for image in images], append_images=images[:-1])


def _make_folder(path):
    Path(path).parent.mkdir(parents=True, exist_ok=True)

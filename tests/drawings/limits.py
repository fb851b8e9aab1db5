"""A drawing of what the library answers by the directions of the axes: figures that it takes for something else in some
orientations, and that xsec prepares before it asks.

The figures stand on a grid; no two of a kind have the same size or lie in the same direction. How many faces each must
give, and their area together, follows from its kind and its size alone. Where a figure is drawn off by less than the
tolerance, its areas may be off by that along its outline.
"""

import math
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "samples"))

from dxf import Drawing, Turned, polar  # noqa: E402

from awkward import At, PITCH, SMALLEST, LARGEST  # noqa: E402

COUNT = 16        # figures of a kind, in a row
TOLERANCE = 1e-3  # mm
OFF = 3e-4        # mm, by which figures are drawn off


class Leaning:
    """Draws a figure leaning: turned about its own middle."""

    def __init__(self, out, angle):
        self.out, self.angle = out, angle

    def place(self, where):
        c, s = polar(1, self.angle)
        return c * where[0] - s * where[1], s * where[0] + c * where[1]

    def line(self, start, end):
        self.out.line(self.place(start), self.place(end))

    def lines(self, points):
        for start, end in zip(points, points[1:] + points[:1]):
            self.line(start, end)

    def arc(self, centre, radius, start_angle, end_angle):
        self.out.arc(self.place(centre), radius, start_angle + self.angle, end_angle + self.angle)

    def circle(self, centre, radius):
        self.out.out.circle(self.out.layer, (self.out.x + self.place(centre)[0], self.out.y + self.place(centre)[1]),
                            radius)


def lens(a, b, distance):
    """What two discs have in common."""
    u = (distance**2 + a**2 - b**2) / (2 * distance * a)
    v = (distance**2 + b**2 - a**2) / (2 * distance * b)
    edge = (-distance + a + b) * (distance + a - b) * (distance - a + b) * (distance + a + b)
    return a**2 * math.acos(u) + b**2 * math.acos(v) - math.sqrt(edge) / 2


def one_height(out, size):
    """Two circles that cross, their centres side by side."""
    out.circle((0, 0), size)
    out.circle((size, 0), 0.8 * size)


def touching_inside(out, size):
    """A circle that touches another from inside."""
    out.circle((0, 0), size)
    out.circle((0.4 * size, 0), 0.6 * size)


def touching_outside(out, size):
    """Two circles side by side that touch."""
    out.circle((-0.5 * size, 0), 0.5 * size)
    out.circle((0.4 * size, 0), 0.4 * size)


def one_circle(out, size):
    """A circle that two arcs give together, drawn off a little against each other."""
    out.arc((0, 0), size, -10, 190)
    out.arc((OFF / 2, OFF / 3), size + OFF / 2, 170, 370)


def shared_edge(out, size):
    """Two rectangles side by side, the touching edges of different length and drawn off a little."""
    out.lines([(-size, -size), (0, -size), (0, size / 2), (-size, size / 2)])
    out.lines([(OFF, -size / 2), (size, -size / 2), (size, size), (0, size)])


def rounded_end(out, size):
    """A slot with a round end that is split down its middle by a line, and a circle that touches the end from inside."""
    out.line((-size, -size / 2), (0, -size / 2))
    out.arc((0, 0), size / 2, -90, 90)
    out.line((0, size / 2), (-size, size / 2))
    out.line((-size, size / 2), (-size, -size / 2))
    out.circle((0.2 * size, 0), 0.3 * size)


def shallow_crossing(out, size):
    """A small circle that a line cuts close to its edge."""
    radius = size / 6
    out.lines([(-size, -size), (size, -size), (size, 0.97 * radius), (-size, 0.97 * radius)])
    out.circle((0, 0), radius)


def comb(out, size):
    """A square cut by a row of lines, with steep edges: their ends differ by little more than the tolerance in x."""
    out.lines([(-size, -size), (size, -size), (size - 3 * TOLERANCE, size), (-size - 3 * TOLERANCE, size)])
    for level in (-0.6, -0.2, 0.1, 0.5, 0.8):
        out.line((-1.1 * size, level * size), (1.1 * size, level * size))


def all_of_lens(size):
    return math.pi * size**2 * (1 + 0.64) - lens(size, 0.8 * size, size)


# name, how it is drawn, how far the figures of the row lean from one to the next, faces, area of all faces for size 1
KINDS = [
    ("one_height", one_height, 0, 3, all_of_lens(1)),
    ("inside", touching_inside, 13, 2, math.pi),
    ("outside", touching_outside, 13, 2, 0.41 * math.pi),
    ("one_circle", one_circle, 13, 1, math.pi),
    ("shared_edge", shared_edge, 13, 2, 3),
    ("rounded", rounded_end, 13, 2, 1 + math.pi / 8),
    ("shallow", shallow_crossing, 13, 3, None),
    ("comb", comb, 0, 6, 4),
]


def area_of(figure, area, size):
    if figure is not shallow_crossing:
        return area * size**2
    radius = size / 6
    half = math.acos(0.97)
    return 2 * size * (size + 0.97 * radius) + radius**2 * (half - 0.97 * math.sin(half))


def figures():
    """Every figure: kind, how it is drawn, place, size, lean, and what it must give."""
    for row, (name, figure, lean, faces, area) in enumerate(KINDS):
        for number in range(COUNT):
            size = SMALLEST + (LARGEST - SMALLEST) * number / (COUNT - 1)
            yield {"kind": name, "figure": figure, "x": (number + 0.5) * PITCH, "y": (row + 0.5) * PITCH, "size": size,
                   "lean": number * lean, "faces": faces, "area": area_of(figure, area, size),
                   "area_error": 8 * size * OFF if figure in (one_circle, shared_edge) else 0}


def drawing(turn):
    """The drawing of all figures, turned about the origin by an angle in degrees."""
    out = Drawing(f"Figures at the limits, turned by {turn} degrees, millimetres",
                  {kind[0]: number + 1 for number, kind in enumerate(KINDS)})
    turned = Turned(out, turn)
    for one in figures():
        one["figure"](Leaning(At(turned, one["kind"], one["x"], one["y"]), one["lean"]), one["size"])
    return out


def expected():
    """The tolerance to read the drawing at, the width of a figure's field, and what each figure must give."""
    return {"tolerance": TOLERANCE, "width": PITCH, "figures": list(figures())}

"""Awkward drawings: six kinds of figures, a hundred of each, as drawings in the field have them.

The figures stand on a grid; no two of a kind have the same size. The drawing may be turned as a whole. How many faces
each figure must give, and their area together, follows from its kind and its size alone.
"""

import math
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "samples"))

from dxf import Drawing, Turned, polar  # noqa: E402

PITCH = 20.0    # mm between the middles of two figures
SIDE = 10       # figures in a row, and rows of a kind
SMALLEST = 1.5  # mm, about half the width of a figure
LARGEST = 6.0
GAP = 1e-4      # mm; a tenth of the linear tolerance at which the drawing is to be read
TOLERANCE = 10 * GAP


class At:
    """Draws a figure about a place of its own."""

    def __init__(self, out, layer, x, y):
        self.out, self.layer, self.x, self.y = out, layer, x, y

    def line(self, start, end):
        self.out.line(self.layer, (self.x + start[0], self.y + start[1]), (self.x + end[0], self.y + end[1]))

    def lines(self, points):
        for start, end in zip(points, points[1:] + points[:1]):
            self.line(start, end)

    def arc(self, centre, radius, start_angle, end_angle):
        self.out.arc(self.layer, (self.x + centre[0], self.y + centre[1]), radius, start_angle, end_angle)

    def circle(self, radius):
        self.out.circle(self.layer, (self.x, self.y), radius)


def everything_twice(out, size):
    """A half round of three lines and an arc, each drawn twice, the lines the other way the second time."""
    path = [(0.0, size), (-size, size), (-size, -size), (0.0, -size)]
    for points in (path, path[::-1]):
        for start, end in zip(points, points[1:]):
            out.line(start, end)
        out.arc((0, 0), size, 270, 450)


def line_ending_in_arcs(out, size):
    """A circle of two half arcs, cut by the diameter that ends in the middle of both."""
    out.arc((0, 0), size, 0, 180)
    out.arc((0, 0), size, 180, 360)
    out.line((0, -size), (0, size))


def overlapping_edges(out, size):
    """Two rectangles side by side; their touching edges are of different length and overlap in part."""
    out.lines([(-size, -size), (0, -size), (0, size / 2), (-size, size / 2)])
    out.lines([(0, -size / 2), (size, -size / 2), (size, size), (0, size)])


def overlapping_arcs(out, size):
    """A circle that two arcs give together, each longer than a half."""
    out.arc((0, 0), size, -10, 190)
    out.arc((0, 0), size, 170, 370)


def inscribed_circle(out, size):
    """A square that stands on a corner, and the circle that touches its sides."""
    out.lines([polar(size * 2**0.5, angle) for angle in (0, 90, 180, 270)])
    out.circle(size)


def small_gaps(out, size):
    """A square each of whose sides ends short of the next one's begin."""
    corners = [(-size, -size), (size, -size), (size, size), (-size, size)]
    ways = [(1, 0), (0, 1), (-1, 0), (0, -1)]
    for number, (x, y) in enumerate(ways):
        end = corners[(number + 1) % 4]
        out.line(corners[number], (end[0] - GAP * x, end[1] - GAP * y))


# name, how it is drawn, faces of each, their area together for size 1
KINDS = [
    ("twice", everything_twice, 1, 2 + math.pi / 2),
    ("cut", line_ending_in_arcs, 2, math.pi),
    ("overlap", overlapping_edges, 2, 3),
    ("two_arcs", overlapping_arcs, 1, math.pi),
    ("inscribed", inscribed_circle, 5, 4),
    ("gap", small_gaps, 1, 4),
]


def places(number):
    """The middles and sizes of the figures of a kind. Kinds stand in blocks, three in a row."""
    width = SIDE * PITCH
    for place in range(SIDE * SIDE):
        yield (number % 3 * width + (place % SIDE + 0.5) * PITCH, number // 3 * width + (place // SIDE + 0.5) * PITCH,
               SMALLEST + (LARGEST - SMALLEST) * place / (SIDE * SIDE - 1))


def drawing(turn):
    """The drawing of all figures, turned about the origin by an angle in degrees."""
    whole = Drawing(f"Awkward figures, turned by {turn} degrees, millimetres",
                    {kind[0]: number + 1 for number, kind in enumerate(KINDS)})
    out = Turned(whole, turn)
    for number, (name, figure, _, _) in enumerate(KINDS):
        for x, y, size in places(number):
            figure(At(out, name, x, y), size)
    return whole


def expected():
    """The tolerance to read the drawing at, the width of a figure's field, and what each figure must give."""
    # The gaps move each corner of a figure by no more than the gap.
    figures = [{"kind": name, "x": x, "y": y, "faces": faces, "area": area * size**2,
                "area_error": 8 * size * GAP if figure is small_gaps else 0}
               for number, (name, figure, faces, area) in enumerate(KINDS) for x, y, size in places(number)]
    return {"tolerance": TOLERANCE, "width": PITCH, "figures": figures}

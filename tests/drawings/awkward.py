#!/usr/bin/env python3
"""Writes awkward drawings: six kinds of figures, a hundred of each, as drawings in the field have them.

usage: awkward.py FOLDER

awkward_0.dxf has its grid of figures parallel to the axes, awkward_17.dxf is the same turned by 17 degrees.
expected.json has where the figures of each kind stand and how many faces each must give.
"""

import json
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "samples"))

from dxf import Drawing, Turned, polar  # noqa: E402

PITCH = 20.0   # mm between the middles of two figures
SIDE = 10      # figures in a row, and rows of a kind
SIZE = 6.0     # mm, about half the width of a figure
GAP = 1e-4     # mm; a tenth of the linear tolerance at which the drawing is to be read
TOLERANCE = 10 * GAP
TURNS = (0, 17)


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


def everything_twice(out):
    """A half round of three lines and an arc, each drawn twice, the lines the other way the second time."""
    path = [(0.0, SIZE), (-SIZE, SIZE), (-SIZE, -SIZE), (0.0, -SIZE)]
    for points in (path, path[::-1]):
        for start, end in zip(points, points[1:]):
            out.line(start, end)
        out.arc((0, 0), SIZE, 270, 450)


def line_ending_in_arcs(out):
    """A circle of two half arcs, cut by the diameter that ends in the middle of both."""
    out.arc((0, 0), SIZE, 0, 180)
    out.arc((0, 0), SIZE, 180, 360)
    out.line((0, -SIZE), (0, SIZE))


def overlapping_edges(out):
    """Two rectangles side by side; their touching edges are of different length and overlap in part."""
    out.lines([(-SIZE, -SIZE), (0, -SIZE), (0, SIZE / 2), (-SIZE, SIZE / 2)])
    out.lines([(0, -SIZE / 2), (SIZE, -SIZE / 2), (SIZE, SIZE), (0, SIZE)])


def overlapping_arcs(out):
    """A circle that two arcs give together, each longer than a half."""
    out.arc((0, 0), SIZE, -10, 190)
    out.arc((0, 0), SIZE, 170, 370)


def inscribed_circle(out):
    """A square that stands on a corner, and the circle that touches its sides."""
    out.lines([polar(SIZE * 2**0.5, angle) for angle in (0, 90, 180, 270)])
    out.circle(SIZE)


def small_gaps(out):
    """A square each of whose sides ends short of the next one's begin."""
    corners = [(-SIZE, -SIZE), (SIZE, -SIZE), (SIZE, SIZE), (-SIZE, SIZE)]
    ways = [(1, 0), (0, 1), (-1, 0), (0, -1)]
    for number, (x, y) in enumerate(ways):
        end = corners[(number + 1) % 4]
        out.line(corners[number], (end[0] - GAP * x, end[1] - GAP * y))


# name, how it is drawn, faces of each
KINDS = [
    ("twice", everything_twice, 1),
    ("cut", line_ending_in_arcs, 2),
    ("overlap", overlapping_edges, 2),
    ("two_arcs", overlapping_arcs, 1),
    ("inscribed", inscribed_circle, 5),
    ("gap", small_gaps, 1),
]


def block_of(number):
    """The lower left corner of the block of figures of a kind; blocks stand three in a row."""
    width = SIDE * PITCH
    return number % 3 * width, number // 3 * width


def awkward(turn):
    drawing = Drawing(f"Awkward figures, turned by {turn} degrees, millimetres",
                      {name: number + 1 for number, (name, _, _) in enumerate(KINDS)})
    out = Turned(drawing, turn)
    for number, (name, figure, _) in enumerate(KINDS):
        left, bottom = block_of(number)
        for place in range(SIDE * SIDE):
            figure(At(out, name, left + (place % SIDE + 0.5) * PITCH, bottom + (place // SIDE + 0.5) * PITCH))
    return drawing


def expected():
    return {
        "tolerance": TOLERANCE,
        "block": SIDE * PITCH,
        "kinds": [{"kind": name, "left_bottom": block_of(number), "figures": SIDE**2, "faces": SIDE**2 * faces}
                  for number, (name, _, faces) in enumerate(KINDS)],
    }


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for turn in TURNS:
        (folder / f"awkward_{turn}.dxf").write_text(awkward(turn).text(), encoding="ascii", newline="\n")
    (folder / "expected.json").write_text(json.dumps(expected(), indent=1) + "\n", encoding="ascii", newline="\n")


if __name__ == "__main__":
    main()

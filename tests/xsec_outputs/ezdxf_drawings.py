"""Drawings that ezdxf writes are read by xsec with the areas that their dimensions give: releases R12, R2000 and R2018;
bulges, ellipses, splines, extrusions, and blocks that are nested, turned, mirrored and stretched.

usage: ezdxf_drawings.py XSEC SAMPLES FOLDER
"""

import math

from outputs import arguments, finish, needs, regions_of

ezdxf = needs("ezdxf")

CURVE_ERROR = 1e-3  # of an area that flattened curves bound
EXACT = 1e-9


def bulges(space, _):
    """A slot with round ends, 20 by 10, on a layer of its own."""
    points = [(0, 0, 0), (10, 0, 1), (10, 10, 0), (0, 10, 1)]
    if space.doc.dxfversion == "AC1009":
        space.add_polyline2d([(x, y, bulge) for x, y, bulge in points], format="xyb", close=True)
    else:
        space.add_lwpolyline(points, format="xyb", close=True)
    return [(100 + math.pi * 25, EXACT)]


def arcs(space, _):
    space.add_circle((0, 0), 7)
    space.add_arc((30, 0), 5, 300, 60)
    ends = [(30 + 5 * math.cos(math.radians(a)), 5 * math.sin(math.radians(a))) for a in (300, 60)]
    space.add_line(*ends)
    return [(math.pi * 49, EXACT), (12.5 * (math.radians(120) - math.sin(math.radians(120))), EXACT)]


def mirrored_inserts(space, drawing):
    """A quarter disc in a block in a block, mirrored by a negative scale inside a turned one."""
    inner = drawing.blocks.new("quarter")
    inner.add_arc((0, 0), 4, 0, 90)
    inner.add_line((0, 0), (4, 0))
    inner.add_line((0, 0), (0, 4))
    outer = drawing.blocks.new("pair", base_point=(1, 1))
    outer.add_blockref("quarter", (1, 1))
    outer.add_blockref("quarter", (-9, 1), dxfattribs={"xscale": -2, "yscale": 2})
    space.add_blockref("pair", (50, 20), dxfattribs={"rotation": 33})
    space.add_blockref("pair", (50, -20), dxfattribs={"rotation": 33, "xscale": 1, "yscale": -1})
    return 2 * [(4 * math.pi, EXACT), (16 * math.pi, EXACT)]


def array_of_inserts(space, drawing):
    block = drawing.blocks.new("hole")
    block.add_circle((0, 0), 1)
    space.add_blockref("hole", (0, 0), dxfattribs={"row_count": 2, "column_count": 3, "row_spacing": 5, "column_spacing": 4})
    return 6 * [(math.pi, EXACT)]


def stretched_insert(space, drawing):
    """A circle in a block that is stretched becomes an ellipse."""
    block = drawing.blocks.new("round")
    block.add_circle((0, 0), 3)
    space.add_blockref("round", (0, 0), dxfattribs={"xscale": 2, "yscale": 1})
    return [(math.pi * 18, CURVE_ERROR)]


def extrusions(space, _):
    """Drawn looking along z from below: what stands at x = 10 in its own axes lies at -10."""
    space.add_circle((10, 0), 2, dxfattribs={"extrusion": (0, 0, -1)})
    space.add_line((-10, 2), (-10, -2))
    return 2 * [(math.pi * 2, EXACT)]


def ellipses(space, _):
    space.add_ellipse((0, 0), major_axis=(6, 2), ratio=0.5)
    return [(math.pi * 40 * 0.5, CURVE_ERROR)]


def splines(space, _):
    """A closed cubic through the control points of a uniform spline; its area comes from its points."""
    spline = space.add_spline()
    spline.closed = False
    spline.dxf.degree = 3
    spline.control_points = [(0, 0), (10, 0), (10, 10), (0, 10), (0, 0)]
    spline.knots = [0, 0, 0, 0, 1, 2, 2, 2, 2]
    points = [(p.x, p.y) for p in spline.construction_tool().approximate(20000)]
    area = sum(a[0] * b[1] - b[0] * a[1] for a, b in zip(points, points[1:])) / 2
    return [(abs(area), CURVE_ERROR)]


def fit_points(space, _):
    """A closed spline given by nothing but points on a circle, in a block that is mirrored, and one left open."""
    block = space.doc.blocks.new("ring")
    angles = [math.radians(15 * i) for i in range(24)]
    ring = block.add_spline(fit_points=[(10 * math.cos(a), 10 * math.sin(a)) for a in angles])
    ring.closed = True
    space.add_blockref("ring", (0, 0), dxfattribs={"xscale": -1})
    space.add_spline(fit_points=[(20, 0), (25, 3), (30, 0)])
    space.add_line((20, 0), (30, 0))
    # Through (0, 0), (h, y), (2 h, 0), straight at its ends, a cubic spline bounds 5 / 4 h y.
    return [(math.pi * 100, CURVE_ERROR), (5 / 4 * 5 * 3, CURVE_ERROR)]


OLD = [bulges, arcs, mirrored_inserts, array_of_inserts, stretched_insert, extrusions]
RELEASES = {"R12": OLD, "R2000": OLD + [ellipses, splines, fit_points],
            "R2018": OLD + [ellipses, splines, fit_points]}


def faults_of(areas, wanted):
    areas, wanted = sorted(areas), sorted(wanted)
    if len(areas) != len(wanted):
        return [f"{len(areas)} regions, expected {len(wanted)}"]
    return [f"{found} mm2, expected {area}" for found, (area, error) in zip(areas, wanted)
            if abs(found - area) > error * area]


def main():
    xsec, _, folder = arguments(["XSEC", "SAMPLES", "FOLDER"])
    folder.mkdir(parents=True, exist_ok=True)
    faults, checked = [], 0
    for release, figures in RELEASES.items():
        for figure in figures:
            drawing = ezdxf.new(release)
            if release != "R12":
                drawing.header["$INSUNITS"] = 4
            wanted = figure(drawing.modelspace(), drawing)
            path = folder / f"{figure.__name__}_{release}.dxf"
            drawing.saveas(path)
            found = regions_of(xsec, path, folder)
            faults += [f"{release}, {figure.__name__}: {fault}"
                       for fault in faults_of([region["netArea"] for region in found["regions"]], wanted)]
            faults += [f"{release}, {figure.__name__}: skipped {kind}" for kind in found["diagnostics"]["skipped"]]
            checked += 1
    finish(faults, checked)


main()

"""The DXF that xsec writes has nothing to mend for ezdxf, holds a closed polyline with the area of each region on the
layer of its name, and gives the same areas when xsec reads it again. (Not always the same names: where two outlines run
along each other, one of the two lines goes, and with it its layer.)

usage: dxf_is_read_back.py XSEC SAMPLES FOLDER
"""

import collections
import math

from outputs import SAMPLES, arguments, finish, needs, regions_of, run_xsec

ezdxf = needs("ezdxf")


def area_of(polyline):
    """Of a closed polyline with bulges."""
    points = list(polyline.get_points("xyb"))
    area = 0.0
    for (x1, y1, bulge), (x2, y2, _) in zip(points, points[1:] + points[:1]):
        area += (x1 * y2 - x2 * y1) / 2
        if bulge:
            sweep, chord = 4 * math.atan(bulge), math.hypot(x2 - x1, y2 - y1)
            radius = chord / 2 / math.sin(sweep / 2)
            area += radius * radius / 2 * (sweep - math.sin(sweep))
    return area


def outlines_of(regions, key="baseArea"):
    return sorted((region["name"], region[key]) for region in regions)


def differences(found, wanted):
    if [name for name, _ in found] != [name for name, _ in wanted]:
        counts = collections.Counter(name for name, _ in found), collections.Counter(name for name, _ in wanted)
        return [f"{counts[0]} instead of {counts[1]}"]
    return [f"{a} instead of {b}" for a, b in zip(found, wanted) if abs(a[1] - b[1]) > 1e-6 * (1 + abs(b[1]))]


def main():
    xsec, samples, folder = arguments(["XSEC", "SAMPLES", "FOLDER"])
    faults = []
    for sample in SAMPLES:
        regions = regions_of(xsec, samples / f"{sample}.dxf", folder)["regions"]
        written = folder / f"{sample}.outlines.dxf"
        run_xsec(xsec, samples / f"{sample}.dxf", "-o", written)
        drawing = ezdxf.readfile(written)
        audit = drawing.audit()
        faults += [f"{sample}: {error.message}" for error in [*audit.errors, *audit.fixes]]
        polylines = list(drawing.modelspace())
        if any(line.dxftype() != "LWPOLYLINE" or not line.closed for line in polylines):
            faults.append(f"{sample}: something is no closed polyline")
        outlines = sorted((line.dxf.layer, area_of(line)) for line in polylines)
        faults += [f"{sample}, ezdxf: {fault}" for fault in differences(outlines, outlines_of(regions))]
        again = regions_of(xsec, written, folder)
        if again["drawing"]["units"]["source"] != "file":
            faults.append(f"{sample}: the unit is not in the file")
        for key in ("baseArea", "netArea", "depth"):
            found, wanted = ([("", value) for _, value in sorted(outlines_of(some, key), key=lambda pair: pair[1])]
                             for some in (again["regions"], regions))
            faults += [f"{sample}, xsec, {key}: {fault}" for fault in differences(found, wanted)]
    finish(faults, len(SAMPLES))


main()

"""gmsh meshes the .geo file, and the elements of every region, and of every physical group, have together the net area of
that region or name, to the last digits: arcs are chords in a mesh, so what lies between the chords that the mesh has and
their arcs is added to what it lacks. Coarse meshes show that as well as fine ones.

usage: mesh_areas.py SAMPLE XSEC SAMPLES FOLDER

SAMPLE is a sample, or `touching`: regions that touch in points, share arcs, and are linked by a bridge.
"""

import collections
import math
import re
import shutil
import subprocess
import sys

from outputs import SKIPPED, arguments, finish, regions_of, run_xsec

COARSENESS = "6"  # times as large elements as the file asks for
EXACT = 1e-9      # of an area
ON_ARC = 1e-9     # of a radius

TOUCHING = """0 SECTION 2 HEADER 9 $INSUNITS 70 4 0 ENDSEC 0 SECTION 2 ENTITIES
0 LWPOLYLINE 8 Plate 90 4 70 1 10 0 20 0 10 40 20 0 10 40 20 40 10 0 20 40
0 LWPOLYLINE 8 Corner 90 3 70 1 10 0 20 20 10 5 20 15 10 5 20 25
0 CIRCLE 8 Ring 10 20 20 20 40 10
0 CIRCLE 8 Disc 10 20 20 20 40 5
0 LINE 8 Bridge 10 20 20 30 11 20 21 35
0 CIRCLE 8 Island 10 20 20 36 40 1
0 LINE 8 Half 10 20 20 10 11 20 21 15
0 LINE 8 Half 10 20 20 25 11 20 21 30
0 ENDSEC 0 EOF"""


def drawing_of(sample, samples, folder):
    if sample != "touching":
        return samples / f"{sample}.dxf"
    folder.mkdir(parents=True, exist_ok=True)
    drawing = folder / "touching.dxf"
    drawing.write_text("\n".join(TOUCHING.split()) + "\n", encoding="ascii")
    return drawing


def mesh(geo):
    msh = geo.with_suffix(".msh")
    msh.unlink(missing_ok=True)
    done = subprocess.run(["gmsh", "-2", "-format", "msh22", "-clscale", COARSENESS, geo, "-o", msh], capture_output=True, text=True, check=False)
    complaints = [line for line in (done.stdout + done.stderr).splitlines() if "Error" in line or "Warning" in line]
    if done.returncode != 0 or not msh.exists():
        sys.exit("gmsh failed:\n" + done.stdout[-2000:] + done.stderr[-2000:])
    return msh.read_text(encoding="utf-8").splitlines(), complaints


def section(lines, name):
    start = lines.index(name)
    return lines[start + 2:start + 2 + int(lines[start + 1])]


def triangles_of(lines):
    """The corners of the elements of each surface."""
    nodes = {int(n): (float(x), float(y)) for n, x, y, _ in map(str.split, section(lines, "$Nodes"))}
    triangles = collections.defaultdict(list)
    for line in section(lines, "$Elements"):
        fields = [int(field) for field in line.split()]
        if fields[1] == 2:
            triangles[fields[4]].append([nodes[node] for node in fields[-3:]])
    return triangles


def groups_of(lines, geo):
    """The surfaces of each physical group, as the .geo file lists them; the mesh has to know all their names."""
    known = {line.split(" ", 2)[2].strip('"') for line in section(lines, "$PhysicalNames")}
    found = re.findall(r'^Physical Surface\("(.*)", \d+\) = \{(.*)\};$', geo.read_text(encoding="utf-8"), re.MULTILINE)
    return {name: [int(surface) for surface in surfaces.split(",")] for name, surfaces in found if name in known}


def area_of(triangles):
    return sum(abs((bx - ax) * (cy - ay) - (cx - ax) * (by - ay)) / 2
               for (ax, ay), (bx, by), (cx, cy) in triangles)


def boundary_of(triangles):
    """The sides that no two elements share."""
    sides = collections.Counter(tuple(sorted((corners[i], corners[i - 1]))) for corners in triangles for i in range(3))
    return [side for side, count in sides.items() if count == 1]


def beyond_chord(piece, side):
    """The area between a side of the mesh and the arc that it is a chord of, 0 when it is none of this arc; positive
    where the region reaches beyond the chord."""
    angles = []
    for x, y in side:
        dx, dy = x - piece["centre"][0], y - piece["centre"][1]
        if abs(math.hypot(dx, dy) - piece["radius"]) > ON_ARC * piece["radius"]:
            return 0.0
        angles.append(math.atan2(dy, dx))
    step = abs(math.remainder(angles[1] - angles[0], 2 * math.pi))
    isOutwards = piece["direction"] == "anticlockwise"
    start, end = (piece["startAngle"], piece["endAngle"]) if isOutwards else (piece["endAngle"], piece["startAngle"])
    middle = math.degrees(angles[0] + math.remainder(angles[1] - angles[0], 2 * math.pi) / 2)
    if (middle - start) % 360 > (end - start) % 360:
        return 0.0
    return (1 if isOutwards else -1) * piece["radius"] ** 2 / 2 * (step - math.sin(step))


def chord_area(region, sides):
    """What chords leave out of a region, less what they add to it."""
    arcs = [piece for loop in [region["outline"], *region["holes"]] for piece in loop if piece["type"] == "arc"]
    return sum(beyond_chord(piece, side) for side in sides for piece in arcs)


def main():
    sample, xsec, samples, folder = arguments(["sample", "XSEC", "SAMPLES", "FOLDER"])
    if not shutil.which("gmsh"):
        print("skipped: there is no gmsh")
        sys.exit(SKIPPED)
    drawing = drawing_of(sample, samples, folder)
    regions = regions_of(xsec, drawing, folder)["regions"]
    geo = folder / f"{sample}.geo"
    run_xsec(xsec, drawing, "-o", geo)
    lines, faults = mesh(geo)
    triangles = triangles_of(lines)
    found, chords = {}, 0.0
    for region in regions:
        corners = triangles[region["id"]]
        beyond = chord_area(region, boundary_of(corners))
        chords += abs(beyond)
        found[region["id"]] = area_of(corners) + beyond
        if not abs(found[region["id"]] - region["netArea"]) <= EXACT * (1 + region["baseArea"]):
            faults.append(f"{region['uniqueName']}: {found[region['id']]} mm2, expected {region['netArea']}")
    groups = groups_of(lines, geo)
    for name in sorted({region["name"] for region in regions} | set(groups)):
        wanted = sum(region["netArea"] for region in regions if region["name"] == name)
        area = sum(found[surface] for surface in groups.get(name, []))
        print(f"{name}: {area:.9f} mm2 of {wanted:.9f}")
        if not abs(area - wanted) <= EXACT * (1 + wanted):
            faults.append(f"group {name}: {area} mm2, expected {wanted}")
    print(f"{sum(map(len, triangles.values()))} elements, {chords:.6f} mm2 between their sides and arcs")
    finish(faults, len(regions) + len(groups))


main()

"""gmsh meshes the .geo file, and the elements of every physical group have together the net area of the regions of that
name: to the last digits where all sides are straight, and within what the chords of arcs can leave out elsewhere.

usage: mesh_areas.py SAMPLE XSEC SAMPLES FOLDER

SAMPLE is a sample, or `touching`: regions that touch in points, share arcs, and are linked by a bridge.
"""

import collections
import math
import shutil
import subprocess
import sys

from outputs import SKIPPED, arguments, finish, regions_of, run_xsec

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
    done = subprocess.run(["gmsh", "-2", "-format", "msh22", geo, "-o", msh], capture_output=True, text=True, check=False)
    complaints = [line for line in (done.stdout + done.stderr).splitlines() if "Error" in line or "Warning" in line]
    if done.returncode != 0 or not msh.exists():
        sys.exit("gmsh failed:\n" + done.stdout[-2000:] + done.stderr[-2000:])
    return msh.read_text(encoding="utf-8").splitlines(), complaints


def section(lines, name):
    start = lines.index(name)
    return lines[start + 2:start + 2 + int(lines[start + 1])]


def areas_of(lines):
    """Area and number of triangles of each physical surface."""
    names = {}
    for line in section(lines, "$PhysicalNames"):
        dimension, number, name = line.split(" ", 2)
        names[int(dimension), int(number)] = name.strip('"')
    nodes = {int(n): (float(x), float(y)) for n, x, y, _ in map(str.split, section(lines, "$Nodes"))}
    areas = collections.Counter()
    for line in section(lines, "$Elements"):
        fields = [int(field) for field in line.split()]
        if fields[1] != 2:
            continue
        (ax, ay), (bx, by), (cx, cy) = (nodes[node] for node in fields[-3:])
        areas[names[2, fields[3]]] += abs((bx - ax) * (cy - ay) - (cx - ax) * (by - ay)) / 2
    return areas


def chord_error(region):
    """The most that chords of 12 degrees leave out along the arcs of a region; the mesher is asked for 10."""
    error = 0.0
    for loop in [region["outline"], *region["holes"]]:
        for piece in loop:
            if piece["type"] == "arc":
                sweep = math.radians(abs(piece["endAngle"] - piece["startAngle"]) % 360)
                step = math.radians(12)
                error += piece["radius"] ** 2 / 2 * sweep * (1 - math.sin(step) / step)
    return error


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
    areas = areas_of(lines)
    wanted, allowed = collections.Counter(), collections.Counter()
    for region in regions:
        wanted[region["name"]] += region["netArea"]
        allowed[region["name"]] += chord_error(region) + 1e-9 * (1 + region["netArea"])
    for name in wanted:
        print(f"{name}: {areas[name]:.6f} mm2 of {wanted[name]:.6f}, within {allowed[name]:.6f}")
        if not abs(areas[name] - wanted[name]) <= allowed[name]:
            faults.append(f"{name}: {areas[name]} mm2, expected {wanted[name]}")
    faults += [f"a group {name} that no region bears" for name in areas if name not in wanted]
    finish(faults, len(wanted))


main()

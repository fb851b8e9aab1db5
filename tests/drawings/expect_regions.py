#!/usr/bin/env python3
"""Runs xsec on a drawing and holds the regions it finds against those that are known beforehand.

usage: expect_regions.py sample XSEC SAMPLES-FOLDER NAME.dxf FOLDER
       expect_regions.py awkward|limits XSEC TURN FOLDER

`sample`: each kind of region of samples/expected.json occurs as often as it says, with that net area, within a region of
the kind that it says, and nothing else occurs. `awkward`, `limits`: the figures of awkward.py and limits.py, turned by
TURN degrees; each must give its number of faces and its area. FOLDER takes what is written on the way.
"""

import collections
import json
import math
import pathlib
import subprocess
import sys

import awkward
import limits

AREA_ERROR = 1e-9  # of the size of the area, and as many mm2


def run_xsec(xsec, drawing, folder, *options):
    """What xsec writes about a drawing as JSON, and its table."""
    folder.mkdir(parents=True, exist_ok=True)
    output = folder / (drawing.stem + ".json")
    output.unlink(missing_ok=True)
    done = subprocess.run([xsec, "regions", drawing, "-o", output, *options], capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"xsec gave {done.returncode} for {drawing}:\n{done.stderr}")
    return json.loads(output.read_text(encoding="utf-8"))


def same(area, expected, error=0.0):
    return abs(area - expected) <= AREA_ERROR * (1 + abs(expected)) + error


# --- samples --------------------------------------------------------------------------------------------------------

def kind_of(region, kinds):
    """The kind with the region's net area, or None."""
    found = [kind for kind in kinds if same(region["netArea"], kind["net_area"])]
    return found[0]["kind"] if len(found) == 1 else None


def sample_faults(regions, expected, quiet=False):
    kinds = expected["kinds"]
    named = {region["id"]: kind_of(region, kinds) for region in regions}
    faults = [f"region {region['uniqueName']} of {region['netArea']} mm2 is of no kind that belongs here"
              for region in regions if named[region["id"]] is None]
    counts = collections.Counter(named.values())
    for kind in kinds:
        if not quiet:
            print(f"{kind['kind']}: {counts[kind['kind']]} of {kind['net_area']} mm2")
        if counts[kind["kind"]] != kind["count"]:
            faults.append(f"{counts[kind['kind']]} regions of the kind {kind['kind']}, expected {kind['count']}")
    inside = {kind["kind"]: kind["inside"] for kind in kinds}
    for region in regions:
        kind, parent = named[region["id"]], named.get(region["parent"])
        if kind is not None and parent != inside[kind]:
            faults.append(f"{kind} {region['uniqueName']} lies in {parent}, expected in {inside[kind]}")
    if len(regions) != expected["regions"]:
        faults.append(f"{len(regions)} regions, expected {expected['regions']}")
    return faults


def check_sample(xsec, samples, name, folder):
    samples = pathlib.Path(samples)
    expected = json.loads((samples / "expected.json").read_text(encoding="ascii"))[name]
    found = run_xsec(xsec, samples / name, pathlib.Path(folder))
    return sample_faults(found["regions"], expected)


# --- figures ------------------------------------------------------------------------------------------------------

def figure_at(figures, width, turn, label):
    """The figure whose field on the grid holds a label point of the turned drawing."""
    c, s = math.cos(math.radians(-turn)), math.sin(math.radians(-turn))
    x, y = c * label[0] - s * label[1], s * label[0] + c * label[1]
    found = [figure for figure in figures if max(abs(x - figure["x"]), abs(y - figure["y"])) < width / 2]
    return found[0] if found else None


def check_awkward(xsec, turn, folder):
    return check_figures(awkward, xsec, int(turn), pathlib.Path(folder))


def check_limits(xsec, turn, folder):
    return check_figures(limits, xsec, int(turn), pathlib.Path(folder))


def check_figures(module, xsec, turn, folder, *options, quiet=False):
    drawing = folder / f"{module.__name__}_{turn}.dxf"
    folder.mkdir(parents=True, exist_ok=True)
    drawing.write_text(module.drawing(turn).text(), encoding="ascii", newline="\n")
    expected = module.expected()
    found = run_xsec(xsec, drawing, folder, "--tol", str(expected["tolerance"]), *options)
    return figure_faults(found, expected, turn, quiet)


def figure_faults(found, expected, turn, quiet):
    faces, areas, faults = collections.Counter(), collections.Counter(), []
    for region in found["regions"]:
        figure = figure_at(expected["figures"], expected["width"], turn, region["label"])
        if figure is None:
            faults.append(f"a region at {region['label']}, where no figure stands")
            continue
        place = figure["kind"], figure["x"], figure["y"]
        faces[place] += 1
        areas[place] += region["netArea"]
    found_of, wanted_of = collections.Counter(), collections.Counter()
    for figure in expected["figures"]:
        place = figure["kind"], figure["x"], figure["y"]
        found_of[figure["kind"]] += faces[place]
        wanted_of[figure["kind"]] += figure["faces"]
        if faces[place] != figure["faces"]:
            faults.append(f"{place}: {faces[place]} faces, expected {figure['faces']}")
        elif not same(areas[place], figure["area"], figure["area_error"]):
            faults.append(f"{place}: {areas[place]} mm2, expected {figure['area']}")
    for kind, wanted in wanted_of.items() if not quiet else []:
        print(f"{kind}: {found_of[kind]} faces of {wanted}")
    return faults


def main():
    checks = {"sample": (check_sample, 6), "awkward": (check_awkward, 5), "limits": (check_limits, 5)}
    check, arguments = checks.get(sys.argv[1] if len(sys.argv) > 1 else "", (None, 0))
    if len(sys.argv) != arguments:
        sys.exit(__doc__)
    faults = check(*sys.argv[2:])
    for fault in faults[:20]:
        print(fault)
    print(f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

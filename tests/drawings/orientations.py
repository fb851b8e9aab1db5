#!/usr/bin/env python3
"""Holds the regions of drawings against what is known beforehand, in many orientations, with and without preparation.

usage: orientations.py XSEC SAMPLES-FOLDER FOLDER COUNT [AWKWARD-COUNT]

The samples and the figures of limits.py are turned COUNT times about the origin, by equal steps from 0 on, those of
awkward.py, which take longer, AWKWARD-COUNT times. Prepared, each must give every region in every orientation. The
figures at the limits must not without preparation: otherwise they would show nothing. At last COUNT copies of each
sample, 49 at most, stand in one drawing, each turned by another angle, so that no orientation suits all of them.
"""

import json
import math
import pathlib
import sys

import awkward
import limits
from expect_regions import check_figures, run_xsec, sample_faults

SAMPLES = ["stator_sector", "rotor_pole", "full_machine"]
SPACING = 400  # millimetres from copy to copy, more than any sample is wide
MOST_COPIES = 49  # beyond 3 m from the origin the library's areas differ from the expected ones in the ninth digit


def placed(text, places):
    """A drawing at some places, each with x, y and a turn: all it holds becomes a block, which is placed there."""
    lines = text.splitlines()
    pairs = list(zip(lines[0::2], lines[1::2]))
    begin = section(pairs, "ENTITIES")
    end = pairs.index(("0", "ENDSEC"), begin)
    block = [("0", "BLOCK"), ("8", "0"), ("2", "TURNED"), ("70", "0"), ("10", "0"), ("20", "0"),
             *pairs[begin + 2:end], ("0", "ENDBLK"), ("8", "0")]
    inserts = [pair for x, y, turn in places for pair in
               [("0", "INSERT"), ("8", "0"), ("2", "TURNED"), ("10", str(x)), ("20", str(y)), ("50", str(turn))]]
    blocks = pairs.index(("0", "ENDSEC"), section(pairs, "BLOCKS"))
    pairs = pairs[:blocks] + block + pairs[blocks:begin + 2] + inserts + pairs[end:]
    return "".join(f"{code}\n{value}\n" for code, value in pairs)


def section(pairs, name):
    return next(i for i in range(len(pairs)) if pairs[i:i + 2] == [("0", "SECTION"), ("2", name)])


def read_sample(name, samples):
    expected = json.loads((samples / "expected.json").read_text(encoding="ascii"))
    return (samples / f"{name}.dxf").read_text(encoding="ascii"), expected[f"{name}.dxf"]


def sample_check(name, samples):
    text, expected = read_sample(name, samples)

    def check(xsec, turn, folder, *options):
        drawing = folder / f"{name}_{turn:g}.dxf"
        drawing.write_text(placed(text, [(0, 0, turn)]), encoding="ascii", newline="\n")
        found = run_xsec(xsec, drawing, folder, *options)
        drawing.unlink()
        return sample_faults(found["regions"], expected, quiet=True)

    return check


def copies_faults(name, samples, xsec, folder, count):
    """What is wrong with so many copies of a sample in one drawing, in rows."""
    text, expected = read_sample(name, samples)
    side = math.ceil(math.sqrt(count))
    golden = 180 * (3 - math.sqrt(5))  # degrees: however many, no two turns are much closer than need be
    places = [(SPACING * (i % side), SPACING * (i // side), i * golden % 360) for i in range(count)]
    drawing = folder / f"{name}_copies.dxf"
    drawing.write_text(placed(text, places), encoding="ascii", newline="\n")
    found = run_xsec(xsec, drawing, folder)
    drawing.unlink()
    kinds = [dict(kind, count=count * kind["count"]) for kind in expected["kinds"]]
    faults = sample_faults(found["regions"], {"regions": count * expected["regions"], "kinds": kinds}, quiet=True)
    lost = found["diagnostics"]["lostSides"]
    return faults + ([f"{lost} sides without a loop"] if lost else [])


def figures_check(module):
    def check(xsec, turn, folder, *options):
        return check_figures(module, xsec, turn, folder, *options, quiet=True)

    return check


def bad_orientations(check, xsec, folder, count, *options):
    """The orientations in which there are faults, each with its first."""
    found = {}
    for step in range(count):
        turn = step * 360 / count
        faults = check(xsec, turn, folder, *options)
        if faults:
            found[turn] = faults[0]
    return found


def main():
    if len(sys.argv) not in (5, 6):
        sys.exit(__doc__)
    xsec, samples, folder, count = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3]), int(sys.argv[4])
    folder.mkdir(parents=True, exist_ok=True)
    checks = [(name, sample_check(name, samples), count) for name in SAMPLES]
    checks += [("limits", figures_check(limits), count)]
    checks += [("awkward", figures_check(awkward), int(sys.argv[5]))] if len(sys.argv) == 6 else []
    failed = False
    for name, check, turns in checks:
        with_it = bad_orientations(check, xsec, folder, turns)
        without = bad_orientations(check, xsec, folder, turns, "--no-prepare")
        print(f"{name}: of {turns} orientations {len(with_it)} with faults, without preparation {len(without)}")
        for turn, fault in list(with_it.items())[:5]:
            print(f"  turned by {turn:g}: {fault}")
        failed = failed or bool(with_it) or (name == "limits" and not without)
    for name in SAMPLES:
        copies = min(count, MOST_COPIES)
        faults = copies_faults(name, samples, xsec, folder, copies)
        print(f"{name}: {len(faults)} faults in {copies} copies{''.join(f', {fault}' for fault in faults[:5])}")
        failed = failed or bool(faults)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())

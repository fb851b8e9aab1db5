"""What the tests of xsec's outputs share."""

import json
import pathlib
import subprocess
import sys

SKIPPED = 77  # the exit code by which a test says that it could not run
SAMPLES = ["stator_sector", "rotor_pole", "full_machine"]


def needs(module):
    """The module, or the end of a test that cannot run without it."""
    try:
        return __import__(module)
    except ImportError:
        print(f"skipped: there is no Python package {module}")
        sys.exit(SKIPPED)


def arguments(names):
    if len(sys.argv) != len(names) + 1:
        sys.exit(f"usage: {sys.argv[0]} {' '.join(names)}")
    return [pathlib.Path(argument) if name.isupper() else argument for name, argument in zip(names, sys.argv[1:])]


def run_xsec(xsec, drawing, *options):
    done = subprocess.run([xsec, "regions", drawing, *options], capture_output=True, text=True, check=False)
    if done.returncode != 0:
        sys.exit(f"xsec gave {done.returncode} for {drawing}:\n{done.stderr}")


def regions_of(xsec, drawing, folder, *options):
    """The JSON that xsec writes about a drawing."""
    folder.mkdir(parents=True, exist_ok=True)
    output = folder / (drawing.stem + ".regions.json")
    run_xsec(xsec, drawing, "-o", output, *options)
    return json.loads(output.read_text(encoding="utf-8"))


def finish(faults, checked):
    for fault in faults:
        print(fault)
    print(f"{checked} checked, {len(faults)} faults")
    sys.exit(1 if faults or not checked else 0)

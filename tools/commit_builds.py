"""Commits of this repository, built side by side, for tools that compare two of them."""

import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent


def commit_of(name):
    """The short hash that a name stands for."""
    return subprocess.run(["git", "-C", ROOT, "rev-parse", "--verify", "--short", name + "^{commit}"], check=True,
                          capture_output=True, text=True).stdout.strip()


def build(commit, folder, target, **settings):
    """Builds a target of a commit in folders of its own below the given one; answers the folder of the build. Of the
    project nothing is built but the library and what the settings, variables of CMake, ask for."""
    source, binary = folder / commit / "source", folder / commit / "build"
    if not source.exists():
        source.mkdir(parents=True)
        archive = subprocess.run(["git", "-C", ROOT, "archive", commit], check=True, capture_output=True).stdout
        subprocess.run(["tar", "-x", "-C", source], check=True, input=archive)
    parts = {f"GEOMETRYENGINE_BUILD_{part}": "OFF" for part in ("XSEC", "EXAMPLES", "TESTS", "BENCHMARKS")}
    options = [f"-D{name}={value}" for name, value in (parts | settings).items()]
    subprocess.run(["cmake", "-S", source, "-B", binary, "-G", "Ninja", *options], check=True, stdout=sys.stderr)
    subprocess.run(["cmake", "--build", binary, "--target", target], check=True, stdout=sys.stderr)
    return binary

#!/usr/bin/env python3
"""Checks what the sources of the library and of xsec promise each other.

- No source is longer than 400 lines.
- Every header has its include guard.
- Each KEPT: comment has its test: the tests of a module have at least as many tests whose name ends in Kept as the
  module has such comments.

usage: check_sources.py
"""

import collections
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LONGEST = 400
KEPT_COMMENT = re.compile(r"^\s*(?://+|/?\*+).*\bKEPT:", re.MULTILINE)
KEPT_TEST = re.compile(r"^\s*(?:TEST|TEST_F|TEST_P|RC_GTEST_PROP)\(\s*(\w+),\s*(\w+Kept)\b", re.MULTILINE)


def sources(folder):
    return sorted(path for path in (ROOT / folder).rglob("*") if path.suffix in (".h", ".cpp"))


def text(path):
    return path.read_text(encoding="utf-8")


def shape_faults(paths):
    faults = []
    for path in paths:
        lines = text(path).count("\n")
        if lines > LONGEST:
            faults.append(f"{path.relative_to(ROOT)}: {lines} lines, {LONGEST} is the most")
        if path.suffix == ".h" and "#pragma once" not in text(path):
            faults.append(f"{path.relative_to(ROOT)}: no #pragma once")
    return faults


def module(path):
    """The folder of a module: GeometryEngine/<Module>, tests/<Module> and tests/counting_host/<Module> give the same."""
    parts = [part for part in path.relative_to(ROOT).parts if part != "counting_host"]
    return parts[0] if parts[0] == "xsec" else parts[1]


def kept_faults(paths, tests):
    comments = collections.Counter()
    names = collections.Counter()
    for path in paths:
        comments[module(path)] += len(KEPT_COMMENT.findall(text(path)))
    for path in tests:
        names[module(path)] += len(KEPT_TEST.findall(text(path)))
    faults = [f"{name}: {comments[name]} KEPT: comments, but {names[name]} tests whose name ends in Kept"
              for name in sorted(comments) if comments[name] > names[name]]
    return faults, sum(comments.values()), sum(names.values())


def main():
    paths = sources("GeometryEngine") + sources("xsec")
    if not paths:
        sys.exit("no source was found")
    faults, comments, tests = kept_faults(paths, sources("tests"))
    faults += shape_faults(paths)
    for fault in faults:
        print(fault)
    print(f"{len(paths)} sources, {comments} KEPT: comments, {tests} tests of what is kept, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

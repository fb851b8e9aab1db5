#!/usr/bin/env python3
"""Checks what the sources of the library and of xsec promise each other.

- No source is longer than 400 lines, and every header has its include guard.
- What is kept on purpose is known: each KEPT: comment in a source, and each test whose name ends in Kept, has its row
  in docs/kept.md, and each row names a file with such a comment and tests that exist. The public headers of a module
  speak of no more oddities than the page has rows for it.

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


def kept_rows():
    """The rows of docs/kept.md: the file's path below GeometryEngine/, and the tests."""
    for line in text(ROOT / "docs/kept.md").splitlines():
        cells = line.split("|")
        if len(cells) == 5 and "`" in cells[2]:
            yield cells[2].strip(" `"), re.findall(r"`([^`]+)`", cells[3])


def is_public(path):
    return path.suffix == ".h" and "detail" not in path.parts


def kept_faults():
    faults = []
    rows = list(kept_rows())
    rows_of = collections.Counter(file for file, _ in rows)
    rows_of_module = collections.Counter(file.split("/")[0] for file, _ in rows)
    comments_of_module = collections.Counter()
    comments = 0
    for path in sources("GeometryEngine"):
        name = str(path.relative_to(ROOT / "GeometryEngine"))
        count = len(KEPT_COMMENT.findall(text(path)))
        if is_public(path):
            comments_of_module[name.split("/")[0]] += count
        else:
            comments += count
        if rows_of[name] < count and not is_public(path):
            faults.append(f"{name}: {count} KEPT: comments, but {rows_of[name]} rows in docs/kept.md")
        if rows_of.pop(name, 0) and not count:
            faults.append(f"docs/kept.md: {name} has no KEPT: comment")
    faults += [f"docs/kept.md: there is no {name}" for name in sorted(rows_of)]
    faults += [f"{name}: its headers have {count} KEPT: comments, but docs/kept.md {rows_of_module[name]} rows"
               for name, count in sorted(comments_of_module.items()) if count > rows_of_module[name]]

    tests = {f"{suite}.{test}" for path in sources("tests") for suite, test in KEPT_TEST.findall(text(path))}
    listed = [test for _, names in rows for test in names]
    faults += [f"docs/kept.md: does not list {test}" for test in sorted(tests - set(listed))]
    faults += [f"docs/kept.md: there is no test {test}" for test in sorted(set(listed) - tests)]
    faults += [f"docs/kept.md: {file} has a row without a test" for file, names in rows if not names]
    return faults, len(rows), comments, len(tests)


def main():
    paths = sources("GeometryEngine") + sources("xsec")
    if not paths:
        sys.exit("no source was found")
    faults, rows, comments, tests = kept_faults()
    faults += shape_faults(paths)
    for fault in faults:
        print(fault)
    print(f"{len(paths)} sources; {rows} oddities kept, {comments} KEPT: comments in sources, {tests} tests of them; "
          f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Checks what the sources of the library and of xsec promise each other.

- No source is longer than 400 lines, and every header has its include guard.
- What is kept on purpose is known: each KEPT: comment in a source, and each test whose name ends in Kept, has its row
  in docs/kept.md, and each row names a file with such a comment and tests that exist. The public headers of a module
  speak of no more oddities than the page has rows for it. Each row gives a reason.
- The limits of docs/kept.md name files and tests that exist.
- Each row of tests/mutants.txt is about a line that its file has.

usage: check_sources.py
"""

import collections
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LONGEST = 400
KEPT_COMMENT = re.compile(r"^\s*(?://+|/?\*+).*\bKEPT:", re.MULTILINE)
ANY_TEST = re.compile(r"^\s*(?:TEST|TEST_F|TEST_P|RC_GTEST_PROP)\(\s*(\w+),\s*(\w+)", re.MULTILINE)


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


def rows_of_section(section):
    """The rows below a heading of docs/kept.md: what holds, why or how much, the file below GeometryEngine/, tests."""
    heading = ""
    for line in text(ROOT / "docs/kept.md").splitlines():
        if line.startswith("#"):
            heading = line.strip("# ")
        cells = [cell.strip() for cell in line.split("|")[1:-1]]
        if heading == section and len(cells) == 4 and "`" in cells[2]:
            yield cells[0], cells[1], cells[2].strip("`"), re.findall(r"`([^`]+)`", cells[3])


def limit_faults(tests):
    faults = []
    for what, _, file, names in rows_of_section("Limits"):
        if not (ROOT / "GeometryEngine" / file).exists():
            faults.append(f"docs/kept.md: there is no {file}")
        faults += [f"docs/kept.md: there is no test {name}" for name in names if name not in tests]
        faults += [f"docs/kept.md: no test of the limit: {what}"] if not names else []
    return faults


def is_public(path):
    return path.suffix == ".h" and "detail" not in path.parts


def kept_faults(all_tests):
    described = list(rows_of_section("Kept on purpose"))
    faults = [f"docs/kept.md: no reason for: {what}" for what, why, _, _ in described if not why]
    rows = [(file, names) for _, _, file, names in described]
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

    tests = {test for test in all_tests if test.endswith("Kept")}
    listed = [test for _, names in rows for test in names]
    faults += [f"docs/kept.md: does not list {test}" for test in sorted(tests - set(listed))]
    faults += [f"docs/kept.md: there is no test {test}" for test in sorted(set(listed) - tests)]
    faults += [f"docs/kept.md: {file} has a row without a test" for file, names in rows if not names]
    return faults, len(rows), comments, len(tests)


def mutant_faults():
    """Rows that tools/mutate would not find any more: "FILE | line as it is | ..."."""
    rows = ROOT / "tests/mutants.txt"
    for row in text(rows).splitlines() if rows.exists() else []:
        if row.startswith("#") or " | " not in row:
            continue
        file, mistake = row.split(" | ", 1)
        path = ROOT / file
        lines = text(path).splitlines() if path.exists() else []
        if not any(line.strip() and mistake.startswith(line.strip() + " | ") for line in lines):
            yield f"tests/mutants.txt: {file} has no line {mistake.split(' | ')[0]}"


def main():
    paths = sources("GeometryEngine") + sources("xsec")
    if not paths:
        sys.exit("no source was found")
    all_tests = {f"{suite}.{test}" for path in sources("tests") for suite, test in ANY_TEST.findall(text(path))}
    faults, rows, comments, tests = kept_faults(all_tests)
    faults += limit_faults(all_tests) + shape_faults(paths) + list(mutant_faults())
    for fault in faults:
        print(fault)
    print(f"{len(paths)} sources; {rows} oddities kept, {comments} KEPT: comments in sources, {tests} tests of them; "
          f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

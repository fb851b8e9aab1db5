#!/usr/bin/env python3
"""Checks that the pages are about what is there.

- Every link from one file of the project to another leads somewhere.
- ARCHITECTURE.md names each header of the library, public or private, and each header of xsec.
- The tests that docs/reliability.md names are there.

usage: check_docs.py
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LINK = re.compile(r"\]\(([^)#]+)(?:#[^)]*)?\)|<img src=\"([^\"]+)\"")


def pages():
    return sorted(path for path in [*ROOT.glob("*.md"), *(ROOT / "docs").rglob("*.md"), *ROOT.glob("samples/*.md")])


def headers():
    library = [path for path in (ROOT / "GeometryEngine").glob("*/**/*.h")]
    return sorted(path.stem for path in [*library, *(ROOT / "xsec").rglob("*.h")])


def tests():
    """Suites and tests, as Suite.Test."""
    macro = re.compile(r"^\s*(?:TEST|TEST_F|TEST_P|RC_GTEST_PROP)\(\s*(\w+),\s*(\w+)", re.MULTILINE)
    found = {f"Fuzz.{name}" for name in re.findall(r"\b[A-Z]\w+", re.search(
        r"set\(targets ([^)]*)\)", (ROOT / "tests/fuzz/CMakeLists.txt").read_text(encoding="utf-8")).group(1))}
    found.add("Fuzz.Dxf")
    for path in (ROOT / "tests").rglob("*.cpp"):
        found |= {".".join(pair) for pair in macro.findall(path.read_text(encoding="utf-8"))}
    return found


def missing_tests():
    if not (ROOT / "docs/reliability.md").exists():
        return []
    known = tests()
    names = re.findall(r"`([A-Za-z]\w+\.(?:\*|[A-Z]\w+))`", (ROOT / "docs/reliability.md").read_text(encoding="utf-8"))
    return [f"docs/reliability.md: there is no test {name}" for name in names
            if name not in known and not (name.endswith("*") and any(test.startswith(name[:-1]) for test in known))]


def main():
    faults = missing_tests()
    links = 0
    for page in pages():
        for match in LINK.finditer(page.read_text(encoding="utf-8")):
            target = match.group(1) or match.group(2)
            if "://" in target:
                continue
            links += 1
            if not (page.parent / target).exists():
                faults.append(f"{page.relative_to(ROOT)}: nothing at {target}")
    architecture = (ROOT / "ARCHITECTURE.md").read_text(encoding="utf-8")
    faults += [f"ARCHITECTURE.md: does not name {name}" for name in headers() if f"`{name}`" not in architecture]
    for fault in faults:
        print(fault)
    print(f"{len(pages())} pages, {links} links, {len(headers())} headers, {len(faults)} faults")
    return 1 if faults or not links else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Fails when the shared library shows a symbol from outside its own namespaces.

usage: check_exports.py LIBRARY.so
"""

import collections
import re
import subprocess
import sys

NAMESPACES = ("GeometryEngine", "Kelvaralinks", "Maindataenum")
OWN = re.compile(r"(?:(?:typeinfo(?: name)?|vtable|VTT|guard variable) for |(?:non-virtual|virtual) thunk to )?"
                 r"(" + "|".join(NAMESPACES) + r")::(?!detail::)")


def exported(library):
    """The demangled names of the symbols that the library defines and shows."""
    text = subprocess.run(["nm", "--dynamic", "--defined-only", "--demangle", "--format=posix", library],
                          check=True, capture_output=True, text=True).stdout
    return [re.sub(r" [A-Za-z] [0-9a-f]+(?: [0-9a-f]+)?\s*$", "", line) for line in text.splitlines()]


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    counts = collections.Counter()
    strangers = []
    for name in exported(sys.argv[1]):
        own = OWN.match(name)
        if own:
            counts[own.group(1)] += 1
        else:
            strangers.append(name)
    for name in strangers:
        print(f"exported, but none of ours: {name}")
    print("exported symbols: " + ", ".join(f"{counts[n]} of {n}" for n in NAMESPACES) + f", {len(strangers)} others")
    if not counts:
        print("nothing is exported at all")
    return 1 if strangers or not counts else 0


if __name__ == "__main__":
    sys.exit(main())

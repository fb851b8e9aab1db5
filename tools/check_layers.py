#!/usr/bin/env python3
"""Checks who includes whom.

- The includes of the library make no circle, neither file by file nor with a header and its sources taken as one.
- Each file of the library belongs to a layer and includes only files of its own layer and those below.
- Besides, the library includes standard headers only, and never GeometryEngine.h, which in turn lists every public header.
- Nobody outside the library includes what is private to it (detail/); xsec's includes make no circle either.

usage: check_layers.py [--table]     (--table prints each file with its layer)
"""

import fnmatch
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LIBRARY = "GeometryEngine"
UMBRELLA = f"{LIBRARY}/GeometryEngine.h"
GENERATED = f"{LIBRARY}/Export.h"

# Which files make a layer, as patterns of the path below GeometryEngine/ without its suffix. A folder that is not
# listed as a whole holds files of several layers, and each has its row. A file in no row, or in two layers, is an error.
LAYERS = [
    ("host", ["host/*"]),
    ("values", [
        "DXF_Entity_Types/*",
        "FloatingPoint/*",
        "GeometryEngine_Data_Constants/*",
        "GeometryEngine_Definitions/*",
        "GeometryEngine_Plane/*",
    ]),
    ("one or two entities", [
        "DXF_EntityStorage/AngularDuplication",
        "DXF_EntityStorage/EntityEnds",
        "DXF_EntityStorage/detail/IsEntityEnd",
        "DXF_EntityStorage/detail/OtherEnd",
        "DXF_EntityStorage/detail/PointOnEntity",
        "DXF_Regions_Utilities/DuplicationNumber",
        "DXF_Regions_Utilities/EntityTerms",
        "DXF_Regions_Utilities/RegionPoints",
        "DXF_Regions_Utilities/RegionPredicates",
        "DXF_SweepLine_Utilities/*",
        "GeometryCreation_Drawing/*",
        "GeometryEngine_Entity_Operations/*",
        "GeometryEngine_PointInPolygon/*",
        "GeometryFuncts/*",
        "GetFunctions_GeometryOperations/*",
    ]),
    ("arrays and chains", [
        "DXF_EntityStorage/TEntityStorage*",
        "DXF_EntityStorage/detail/ChainSums",
        "DXF_EntityStorage/detail/ClosedLoops",
        "DXF_EntityStorage/detail/LomutoSort",
        "DXF_EntityStorage/detail/SurfaceSegments",
        "DXF_EntityStorage/detail/VertexWalk",
        "DXF_Regions_Utilities/SectionBoundaries",
        "GeometryEngine_Arrays/*",
    ]),
    ("detection", [
        "DXF_Regions_Detection/*",
        "DXF_Regions_TreeClasses/*",
        "DXF_Regions_Utilities/EntitySplitting",
        "DXF_Regions_Utilities/detail/EntityPieces",
        "DXF_Regions_Utilities/TreeNodeArrays",
    ]),
    ("regions", [
        "GeometryEngine_MachineElements/*",
        "GeometryEngine_Tree_Geometry/*",
        "GeometryEngine_Tree_MotorProperties/*",
        "Pole_Inaccessibility/*",
    ]),
    ("driver", ["DXF_Regions_BaseClasses/*"]),
]

STANDARD = set("""
algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint
cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream
functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore
set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view strstream
syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
variant vector version
""".split())

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)


def sources(folder):
    """The C++ files below a folder, as paths from the root."""
    return sorted(str(path.relative_to(ROOT)) for path in (ROOT / folder).rglob("*") if path.suffix in (".h", ".cpp"))


def includes(path):
    """The includes of a file: pairs of bracket and name."""
    return INCLUDE.findall((ROOT / path).read_text(encoding="utf-8"))


def unit(path, files):
    """A header and its sources as one: X of X.h, X.cpp and X_Part.cpp."""
    stem = re.sub(r"\.(h|cpp)$", "", path)
    while stem + ".h" not in files:
        shorter = re.sub(r"_[^_/]*$", "", stem)
        if shorter == stem:
            return re.sub(r"\.(h|cpp)$", "", path)
        stem = shorter
    return stem


def layer(path):
    """The numbers of the layers that claim a file; one when all is well."""
    name = re.sub(r"\.(h|cpp)$", "", path.removeprefix(LIBRARY + "/"))
    return [number for number, (_, patterns) in enumerate(LAYERS)
            if any(fnmatch.fnmatchcase(name, pattern) for pattern in patterns)]


def circle(graph):
    """Some circle of a graph as the list of its nodes, or None."""
    finished = set()
    for start in sorted(graph):
        path, places = [start], {start: 0}
        pending = [iter(sorted(graph[start]))] if start not in finished else []
        while pending:
            following = next(pending[-1], None)
            if following is None:
                pending.pop()
                node = path.pop()
                del places[node]
                finished.add(node)
            elif following in places:
                return path[places[following]:] + [following]
            elif following not in finished:
                places[following] = len(path)
                path.append(following)
                pending.append(iter(sorted(graph.get(following, ()))))
    return None


def quoted_graph(files):
    """Which file includes which, by the quoted includes that name one of the files (beside it or from the root)."""
    graph = {}
    for path in files:
        beside = str(pathlib.PurePosixPath(path).parent)
        names = [name for bracket, name in includes(path) if bracket == '"']
        graph[path] = {found for name in names for found in (name, f"{beside}/{name}") if found in files}
    return graph


def circle_faults(graph, files):
    units = {}
    for path, others in graph.items():
        own = unit(path, files)
        units.setdefault(own, set()).update(unit(other, files) for other in others if unit(other, files) != own)
    found = circle(graph)
    if found:
        return ["circle of includes: " + " -> ".join(found)]
    found = circle(units)
    return ["circle of headers and sources: " + " -> ".join(found)] if found else []


def library_faults(files):
    faults = []
    layers = {}
    for path in files:
        if path == UMBRELLA:
            continue
        claims = layer(path)
        if len(claims) != 1:
            faults.append(f"{path}: in {len(claims)} layers, must be in one (see LAYERS in tools/check_layers.py)")
        layers[path] = claims[0] if claims else len(LAYERS)
    for path in layers:
        for bracket, name in includes(path):
            if bracket == "<":
                if name not in STANDARD:
                    faults.append(f"{path}: <{name}> is no header of the C++ standard library")
            elif name == UMBRELLA:
                faults.append(f"{path}: {UMBRELLA} is for hosts, the library names what it needs")
            elif name not in layers and name != GENERATED:
                faults.append(f'{path}: "{name}" is no file of the library')
            elif layers.get(name, 0) > layers[path]:
                faults.append(f"{path} (layer {layers[path]}) includes {name} (layer {layers[name]})")
    return faults


def umbrella_faults(files):
    public = {path for path in files if path.endswith(".h") and "/detail/" not in path} - {UMBRELLA} | {GENERATED}
    listed = [name for _, name in includes(UMBRELLA)]
    return ([f"{UMBRELLA}: does not list {path}" for path in sorted(public - set(listed))] +
            [f"{UMBRELLA}: lists {path}, which is no public header" for path in sorted(set(listed) - public)] +
            [f"{UMBRELLA}: lists {path} twice" for path in sorted(set(listed)) if listed.count(path) > 1])


def outsider_faults():
    return [f"{path}: {name} is private to the library"
            for folder in ("xsec", "examples", "tests/package") for path in sources(folder)
            for _, name in includes(path) if name.startswith(LIBRARY) and "/detail/" in name]


def main():
    files = sources(LIBRARY)
    if not files:
        sys.exit("no source of the library was found")
    if "--table" in sys.argv[1:]:
        for path in sorted(files, key=lambda path: (layer(path), path)):
            print(*layer(path), path)
        return 0
    graph = quoted_graph(set(files))
    xsec = quoted_graph(set(sources("xsec")))
    faults = (library_faults(files) + umbrella_faults(files) + outsider_faults() +
              circle_faults(graph, set(files)) + circle_faults(xsec, set(xsec)))
    for fault in faults:
        print(fault)
    print(f"{len(files)} files of the library in {len(LAYERS)} layers, {sum(map(len, graph.values()))} includes among "
          f"them, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())

#include <algorithm>
#include <array>

#include "benchmarks/drawings/Drawing.h"

namespace drawings {

namespace {

constexpr auto kKinds = std::to_array<Kind>({
    {"machine", "machines side by side", Machines},
    {"one_machine", "one machine, its slots as many as it takes", OneMachine},
    {"nested", "nested loops", Nested},
    {"random", "random short lines and arcs", Random},
    {"crossing", "long crossing lines", Crossing},
    {"circles_rays", "circles crossed by rays", CirclesAndRays},
    {"doubled", "every entity twice", Doubled},
    {"line_between_arcs", "a line ending in the middle of two arcs", LineBetweenArcs},
    {"overlapping_edges", "partly overlapping collinear edges", OverlappingEdges},
    {"overlapping_arcs", "a circle as two overlapping arcs", OverlappingArcs},
    {"circle_in_square", "a circle inscribed in a turned square", CircleInSquare},
    {"gaps", "gaps of 1e-5 mm", Gaps},
    {"open_polyline", "one open polyline", OpenPolyline},
    {"comb", "a comb", Comb},
    {"horizontal_lines", "long horizontal lines", HorizontalLines},
    {"polygon", "one closed outline", Polygon},
});

}  // namespace

std::span<const Kind> Kinds() {
  return kKinds;
}

const Kind* FindKind(std::string_view aName) {
  const auto found = std::ranges::find(kKinds, aName, &Kind::name);
  return found == kKinds.end() ? nullptr : &*found;
}

}  // namespace drawings

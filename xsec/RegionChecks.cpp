#include "xsec/RegionChecks.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "xsec/InnerPoint.h"
#include "xsec/PieceGraph.h"
#include "xsec/RegionSpaces.h"
#include "xsec/prepare/Slivers.h"

namespace xsec {

namespace {

using GeometryEngine::TEntityTree;

constexpr std::size_t kHeightsForLabel = 31;
constexpr std::size_t kSides = 2;               // of a piece
constexpr double kClearancePerHalfWidth = 0.1;  // that a label keeps
constexpr double kAreaAgreement = 1e-6;         // of the larger of two areas

/// For each loop of the region tree the face whose list of sub-regions it stands in.
std::vector<std::size_t> ClaimedParents(const TEntityTree& regionTree, std::span<const TracedLoop> faces) {
  std::vector<std::size_t> claimed(regionTree.RootNode()->Children().size(), kNone);
  for (std::size_t face = 0; face < faces.size(); ++face) {
    const auto* node = regionTree.RootNode()->GetNode(GeometryEngine::ToIndex(faces[face].index));
    for (const std::int32_t inner : node->SubRegions()) claimed[static_cast<std::size_t>(inner)] = face;
  }
  return claimed;
}

RegionSpace SpaceOf(const Region& region, const std::vector<Region>& regions) {
  RegionSpace space = SpaceOf(region);
  for (const std::size_t child : region.children) space.holes.push_back(&regions[child].outline);
  return space;
}

/// The library sums up chords about the origin: the farther from there, the farther its centroid is off. A label that
/// is the centroid goes with it.
void SettleCentroid(Region& region) {
  const bool isLabelled = region.label.x == region.centroid.x && region.label.y == region.centroid.y;
  region.centroid = Centroid(region.outline);
  if (isLabelled) region.label = region.centroid;
}

void SettleLabel(std::size_t index, Detection& detection, double tolerance) {
  Region& region = detection.regions[index];
  const RegionSpace space = SpaceOf(region, detection.regions);
  const bool inside = IsInside(space, region.label);
  region.clearance = inside ? Clearance(space, region.label) : 0;
  const double wanted = std::max(tolerance, kClearancePerHalfWidth * HalfWidth(region));
  if (region.clearance >= wanted) return;
  const auto better = FindInnerPoint(space, kHeightsForLabel);
  if (!better || better->clearance <= region.clearance) {
    if (!inside) detection.diagnostics.doubts.push_back({index, "no point inside was found"});
    return;
  }
  detection.diagnostics.corrections.push_back({Correction::Kind::Label, index, kNone, region.label, inside});
  region.label = better->point;
  region.clearance = better->clearance;
}

/// The children have to fill the holes: the net area that the library takes from the one and the area without the other
/// are the same. The outline's area is compared as well, but known no better than a tolerance along its length.
void CompareAreas(std::size_t index, Detection& detection, double tolerance) {
  const Region& region = detection.regions[index];
  auto& doubts = detection.diagnostics.doubts;
  const double known = kAreaAgreement * std::abs(region.baseArea);
  const double withoutHoles = region.baseArea - region.holeArea;
  if (std::abs(withoutHoles - region.netArea) > known) {
    doubts.push_back({index, fmt::format("{:.9g} mm2 without its children, but {:.9g} mm2 without its holes",
                                         region.netArea, withoutHoles)});
  }
  const double ofOutline = SignedArea(region.outline);
  if (std::abs(ofOutline - region.baseArea) > std::max(known, tolerance * Length(region.outline))) {
    doubts.push_back(
        {index, fmt::format("its outline holds {:.9g} mm2, but {:.9g} mm2 were measured", ofOutline, region.baseArea)});
  }
}

/// Whether the chain that begins at a loose end leads to a vertex where more than one piece goes on.
bool LeadsToOthers(const PieceGraph& graph, std::size_t vertex, std::size_t piece) {
  while (true) {
    const auto& [a, b] = graph.pieces[piece];
    vertex = a == vertex ? b : a;
    const auto& pieces = graph.vertices[vertex];
    if (pieces.size() != 2) return pieces.size() > 2;
    piece = pieces[0] == piece ? pieces[1] : pieces[0];
  }
}

/// How many loops travel each piece.
std::vector<std::size_t> CountTravels(const TEntityTree& regionTree, std::size_t pieces) {
  std::vector<std::size_t> travels(pieces, 0);
  for (const auto* loop : regionTree.RootNode()->Children()) {
    for (const auto* piece : loop->Children()) ++travels[static_cast<std::size_t>(piece->EntityIndex())];
  }
  return travels;
}

}  // namespace

void CompareNesting(const TEntityTree& aRegionTree, std::span<const TracedLoop> aFaces,
                    std::span<const Region> aRegions, Diagnostics& aDiagnostics) {
  const std::vector<std::size_t> claimed = ClaimedParents(aRegionTree, aFaces);
  for (std::size_t i = 0; i < aFaces.size(); ++i) {
    const std::size_t parent = aRegions[i].parent;
    const std::size_t claim = claimed[aFaces[i].index];
    if (claim == parent) continue;
    aDiagnostics.corrections.push_back({Correction::Kind::Nesting, i, claim, {}, false});
  }
}

void CheckRegions(Detection& aDetection, const Settings& aSettings) {
  for (std::size_t i = 0; i < aDetection.regions.size(); ++i) {
    aDetection.regions[i].sliver = IsSliver(aDetection.regions[i], aSettings.sliverArea, aSettings.tolerance);
    SettleCentroid(aDetection.regions[i]);
    SettleLabel(i, aDetection, aSettings.tolerance);
    CompareAreas(i, aDetection, aSettings.tolerance);
  }
}

void CheckPieces(const TEntityTree& aCoordinateTree, const TEntityTree& aRegionTree,
                 std::span<const std::size_t> aSources, Diagnostics& aDiagnostics) {
  const PieceGraph graph = ReadPieceGraph(aCoordinateTree);
  const std::vector<bool> isBridge = FindBridges(graph);
  const std::vector<std::size_t> travels = CountTravels(aRegionTree, graph.pieces.size());
  const auto dangles = [&](std::size_t vertex) { return graph.vertices[vertex].size() == 1; };
  const auto travelled = [&](std::size_t i) {
    TravelledPiece piece = Travel(aCoordinateTree.pEntityStorage()->EntityArray()[i], true);
    piece.index = i;
    piece.source = aSources[i];
    return piece;
  };
  for (std::size_t i = 0; i < graph.pieces.size(); ++i) {
    const auto& [from, to] = graph.pieces[i];
    if (!isBridge[i]) {
      const std::size_t lost = from == to ? 0 : kSides - std::min(travels[i], kSides);
      aDiagnostics.lostSides.insert(aDiagnostics.lostSides.end(), lost, travelled(i));
      continue;
    }
    OpenPiece open{travelled(i), dangles(from), dangles(to)};
    open.touches =
        (open.fromDangles && LeadsToOthers(graph, from, i)) || (open.toDangles && LeadsToOthers(graph, to, i));
    aDiagnostics.openPieces.push_back(open);
  }
}

void CountCollapsed(const Drawing& aDrawing, Diagnostics& aDiagnostics) {
  aDiagnostics.collapsed = static_cast<std::size_t>(std::count_if(
      aDrawing.entities.begin(), aDrawing.entities.end(),
      [](const DrawingEntity& entity) { return entity.geometry.StartCoords == entity.geometry.EndCoords; }));
}

}  // namespace xsec

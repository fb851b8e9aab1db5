#include "xsec/RegionDetection.h"

#include <algorithm>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "xsec/InnerPoint.h"
#include "xsec/Nesting.h"
#include "xsec/PieceGraph.h"
#include "xsec/RegionChecks.h"
#include "xsec/RegionTree.h"
#include "xsec/SourceLookup.h"

namespace xsec {

namespace {

using GeometryEngine::TEntityBaseClass;
using GeometryEngine::TEntityStorage;
using GeometryEngine::TTreeNode;

constexpr std::int32_t kAllClosedLoops = 0;
constexpr std::size_t kHeightsForInnerPoint = 5;
constexpr double kTolerancesToHelper = 8;

/// The sweep records the ends of an entity when something begins beyond it. A short line to the right of everything
/// else makes it do so for every entity of the drawing; the line itself meets nothing and never becomes a piece.
GeometryEngine::TDXFEntity HelperLine(const Drawing& drawing, double tolerance) {
  Extents box = EmptyExtents();
  for (const DrawingEntity& entity : drawing.entities) {
    const auto& [x, y] = entity.geometry.CentreCoords;
    const double r = entity.geometry.radius;
    Widen(box, Bounds(Travel(entity.geometry, true)));
    if (entity.geometry.EntityType == GeometryEngine::DXFArc) Widen(box, {x - r, y - r, x + r, y + r});
  }
  const double gap = Diagonal(box) + kTolerancesToHelper * tolerance;
  return GeometryEngine::TDXFEntity::Line({box.maxX + gap, box.minY}, {box.maxX + 2 * gap, box.minY});
}

void FillStorage(TEntityStorage& storage, const Drawing& drawing, double tolerance) {
  for (const DrawingEntity& entity : drawing.entities) storage.AddEntity(entity.geometry);
  if (!drawing.entities.empty()) storage.AddEntity(HelperLine(drawing, tolerance));
}

void RunDriver(TEntityBaseClass& driver, TEntityStorage& storage) {
  driver.DetermineInterceptions(&storage);
  driver.DetermineRegions(driver.CoordinateTree(), kAllClosedLoops);
  driver.IdentifySubRegions(driver.CoordinateTree());
  driver.RemoveDuplicatedSubRegions();
}

double SquaredDistance(const Point& a, const Point& b) {
  return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

/// The pieces of a traced loop as it travels them. Each piece has an end that is the very point where the loop stands.
TracedLoop ReadLoop(const TTreeNode& node, const TEntityStorage& pieces) {
  TracedLoop traced;
  traced.index = static_cast<std::size_t>(node.RelativeIndex());
  traced.area = node.GaussArea();
  Point current = node.Coordinates();
  for (const TTreeNode* child : node.Children()) {
    const GeometryEngine::TDXFEntity& entity = *pieces.GetEntityFromIndex_Pointer(child->EntityIndex());
    const bool forward = SquaredDistance(entity.StartCoords, current) <= SquaredDistance(entity.EndCoords, current);
    traced.pieces.push_back(Travel(entity, forward));
    traced.pieces.back().index = static_cast<std::size_t>(child->EntityIndex());
    current = traced.pieces.back().to;
  }
  traced.box = Bounds(traced.pieces);
  const auto inner = FindInnerPoint({&traced.pieces, {}}, kHeightsForInnerPoint);
  traced.inner = inner ? inner->point : MidPoint(traced.pieces.front());
  return traced;
}

struct TracedLoops {
  std::vector<TracedLoop> faces;
  std::vector<TracedLoop> outerBoundaries;
};

TracedLoops ReadLoops(const TEntityBaseClass& driver) {
  TracedLoops loops;
  const TEntityStorage& pieces = *driver.RegionTree().pEntityStorage();
  for (const TTreeNode* node : driver.RegionTree().RootNode()->Children()) {
    const bool isFace = node->TravelDirection() == GeometryEngine::Travel_AntiClockwise;
    (isFace ? loops.faces : loops.outerBoundaries).push_back(ReadLoop(*node, pieces));
  }
  return loops;
}

void SetSources(Loop& loop, const std::vector<std::size_t>& sources) {
  for (TravelledPiece& piece : loop) piece.source = sources[piece.index];
}

std::vector<Region> NestedRegions(const TracedLoops& loops, const Nesting& nesting) {
  std::vector<Region> regions(loops.faces.size());
  for (std::size_t i = 0; i < regions.size(); ++i) {
    regions[i].outline = loops.faces[i].pieces;
    regions[i].parent = nesting.parents[i];
    if (nesting.parents[i] != kNone) regions[nesting.parents[i]].children.push_back(i);
    for (std::size_t p = regions[i].parent; p != kNone; p = nesting.parents[p]) ++regions[i].depth;
  }
  for (std::size_t i = 0; i < loops.outerBoundaries.size(); ++i) {
    const std::size_t owner = nesting.holeOwners[i];
    if (owner == kNone) continue;
    regions[owner].holes.push_back(loops.outerBoundaries[i].pieces);
    regions[owner].holeArea -= loops.outerBoundaries[i].area;
  }
  return regions;
}

/// For each piece the entity of the drawing that it was cut from.
std::vector<std::size_t> FindSources(const TEntityStorage& pieces, const Drawing& drawing, double tolerance) {
  const SourceLookup lookup(drawing);
  std::vector<std::size_t> sources;
  for (const auto& piece : pieces.EntityArray()) sources.push_back(lookup.Find(Travel(piece, true), tolerance));
  return sources;
}

}  // namespace

Detection DetectRegions(const Drawing& aDrawing, const Settings& aSettings, const NamingRequest& aNaming) {
  TEntityStorage storage;
  FillStorage(storage, aDrawing, aSettings.tolerance);
  TEntityBaseClass driver;
  RunDriver(driver, storage);

  const TEntityStorage& pieces = *driver.CoordinateTree().pEntityStorage();
  const std::vector<std::size_t> sources = FindSources(pieces, aDrawing, aSettings.tolerance);
  TracedLoops loops = ReadLoops(driver);
  for (TracedLoop& face : loops.faces) SetSources(face.pieces, sources);
  for (TracedLoop& boundary : loops.outerBoundaries) SetSources(boundary.pieces, sources);
  const Nesting nesting = DetermineNesting(loops.faces, loops.outerBoundaries);

  Detection detection;
  detection.regions = NestedRegions(loops, nesting);
  NameRegions(detection.regions, aDrawing, aNaming, detection.diagnostics.warnings);
  FillFromGeometryTree(driver, loops.faces, detection.regions);
  CompareNesting(driver.RegionTree(), loops.faces, detection);
  CheckRegions(detection, aSettings.tolerance);
  CheckPieces(driver.CoordinateTree(), driver.RegionTree(), sources, detection.diagnostics);
  CountCollapsed(aDrawing, detection.diagnostics);
  return detection;
}

}  // namespace xsec

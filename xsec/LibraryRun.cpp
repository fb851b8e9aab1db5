#include "xsec/LibraryRun.h"

#include <utility>

#include "xsec/InnerPoint.h"
#include "xsec/RegionChecks.h"
#include "xsec/SourceLookup.h"
#include "xsec/prepare/Slivers.h"
#include "xsec/prepare/VertexPlaces.h"

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
GeometryEngine::TDXFEntity HelperLine(const std::vector<PreparedPiece>& prepared, double tolerance) {
  Extents box = EmptyExtents();
  for (const PreparedPiece& entity : prepared) {
    const auto& [x, y] = entity.geometry.CentreCoords;
    const double r = entity.geometry.radius;
    Widen(box, Bounds(Travel(entity.geometry, true)));
    if (entity.geometry.EntityType == GeometryEngine::DXFArc) Widen(box, {x - r, y - r, x + r, y + r});
  }
  const double gap = Diagonal(box) + kTolerancesToHelper * tolerance;
  return GeometryEngine::TDXFEntity::Line({box.maxX + gap, box.minY}, {box.maxX + 2 * gap, box.minY});
}

void FillStorage(TEntityStorage& storage, const std::vector<PreparedPiece>& prepared, double tolerance) {
  for (const PreparedPiece& piece : prepared) storage.AddEntity(piece.geometry);
  if (!prepared.empty()) storage.AddEntity(HelperLine(prepared, tolerance));
}

/// What was moved on the way.
std::vector<Cure> RunDriver(TEntityBaseClass& driver, TEntityStorage& storage, const std::vector<Point>& places,
                            double tolerance) {
  driver.DetermineInterceptions(&storage);
  std::vector<Cure> cures = PutVerticesBack(driver.CoordinateTree(), places, tolerance);
  driver.DetermineRegions(driver.CoordinateTree(), kAllClosedLoops);
  driver.IdentifySubRegions(driver.CoordinateTree());
  driver.RemoveDuplicatedSubRegions();
  return cures;
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

std::vector<Region> NestedRegions(const std::vector<TracedLoop>& faces, const std::vector<TracedLoop>& outerBoundaries,
                                  const Nesting& nesting) {
  std::vector<Region> regions(faces.size());
  for (std::size_t i = 0; i < regions.size(); ++i) {
    Region& region = regions[i];
    region.outline = faces[i].pieces;
    region.baseArea = region.netArea = faces[i].area;
    region.label = faces[i].inner;
    region.parent = nesting.parents[i];
    if (nesting.parents[i] != kNone) regions[nesting.parents[i]].children.push_back(i);
    for (std::size_t p = region.parent; p != kNone; p = nesting.parents[p]) ++region.depth;
  }
  for (std::size_t i = 0; i < outerBoundaries.size(); ++i) {
    const std::size_t owner = nesting.holeOwners[i];
    if (owner == kNone) continue;
    regions[owner].holes.push_back(outerBoundaries[i].pieces);
    regions[owner].holeArea -= outerBoundaries[i].area;
  }
  return regions;
}

}  // namespace

LibraryRun::LibraryRun(const PreparedGroup& aPrepared, const Settings& aSettings) : fBack(aPrepared.motion.Back()) {
  const ToleranceScope scope(aPrepared.tolerance);
  FillStorage(fStorage, aPrepared.pieces, aPrepared.tolerance);
  fNotes.cures = RunDriver(fDriver, fStorage, aPrepared.places, aPrepared.tolerance);
  FindSources(aPrepared.pieces, aPrepared.tolerance);
  const std::vector<TracedLoop> outerBoundaries = ReadLoops();
  fRegions = NestedRegions(fFaces, outerBoundaries, DetermineNesting(fFaces, outerBoundaries));
  CompareNesting(fDriver.RegionTree(), fFaces, fRegions, fNotes);
  CheckPieces(fDriver.CoordinateTree(), fDriver.RegionTree(), fSources, fNotes);
  for (Region& region : fRegions) {
    fBack.ApplyToLoops(region);
    fBack.ApplyToPoints(region);
    region.sliver = IsSliver(region, aSettings.sliverArea, aSettings.tolerance);
  }
  fBack.ApplyToDiagnostics(fNotes);
}

std::vector<PreparedPiece> LibraryRun::PiecesWithout(const std::vector<std::size_t>& aDropped) const {
  std::vector<bool> isDropped(fSources.size());
  for (const std::size_t piece : aDropped) isDropped[piece] = true;
  std::vector<PreparedPiece> rest;
  for (std::size_t i = 0; i < fSources.size(); ++i) {
    if (!isDropped[i] && fSources[i] != kNone) rest.push_back({Pieces().EntityArray()[i], fSources[i]});
  }
  return rest;
}

void LibraryRun::AddTo(RegionTree& aTree) {
  aTree.Add(fDriver, fFaces, fBack);
}

/// Keeps the faces, and gives back the outer boundaries.
std::vector<TracedLoop> LibraryRun::ReadLoops() {
  std::vector<TracedLoop> outerBoundaries;
  for (const TTreeNode* node : fDriver.RegionTree().RootNode()->Children()) {
    TracedLoop loop = ReadLoop(*node, Pieces());
    for (TravelledPiece& piece : loop.pieces) piece.source = fSources[piece.index];
    const bool isFace = node->TravelDirection() == GeometryEngine::Travel_AntiClockwise;
    (isFace ? fFaces : outerBoundaries).push_back(std::move(loop));
  }
  return outerBoundaries;
}

void LibraryRun::FindSources(const std::vector<PreparedPiece>& aPrepared, double aTolerance) {
  std::vector<TravelledPiece> origins;
  for (const PreparedPiece& piece : aPrepared) origins.push_back(Travel(piece.geometry, true));
  const SourceLookup lookup(std::move(origins));
  for (const auto& piece : Pieces().EntityArray()) {
    const std::size_t origin = lookup.Find(Travel(piece, true), aTolerance);
    fSources.push_back(origin == kNone ? kNone : aPrepared[origin].source);
  }
}

}  // namespace xsec

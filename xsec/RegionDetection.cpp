#include "xsec/RegionDetection.h"

#include <algorithm>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "xsec/InnerPoint.h"
#include "xsec/Nesting.h"
#include "xsec/PieceGraph.h"
#include "xsec/RegionChecks.h"
#include "xsec/RegionTree.h"
#include "xsec/SourceLookup.h"
#include "xsec/prepare/MergedLoops.h"
#include "xsec/prepare/Motion.h"
#include "xsec/prepare/Prepare.h"
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
constexpr std::size_t kMostRounds = 16;  // of dropping slivers; each takes at least one of those that lie side by side

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

/// For each piece of the library the entity of the drawing that it was cut from.
std::vector<std::size_t> FindSources(const TEntityStorage& pieces, const std::vector<PreparedPiece>& prepared,
                                     double tolerance) {
  std::vector<TravelledPiece> origins;
  for (const PreparedPiece& piece : prepared) origins.push_back(Travel(piece.geometry, true));
  const SourceLookup lookup(std::move(origins));
  std::vector<std::size_t> sources;
  for (const auto& piece : pieces.EntityArray()) {
    const std::size_t origin = lookup.Find(Travel(piece, true), tolerance);
    sources.push_back(origin == kNone ? kNone : prepared[origin].source);
  }
  return sources;
}

/// One run of the library over the prepared pieces.
class Run {
 public:
  Run(const Drawing& drawing, const Settings& settings, const PreparedDrawing& prepared)
      : fDrawing(drawing), fSettings(settings), fBack(prepared.motion.Back()) {
    FillStorage(fStorage, prepared.pieces, settings.tolerance);
    fCures = RunDriver(fDriver, fStorage, prepared.places, settings.tolerance);
    fSources = FindSources(Pieces(), prepared.pieces, settings.tolerance);
  }

  /// Outlines are of the library's pieces still.
  Detection Detect(const NamingRequest& naming) {
    TracedLoops loops = ReadLoops(fDriver);
    for (TracedLoop& face : loops.faces) SetSources(face.pieces, fSources);
    for (TracedLoop& boundary : loops.outerBoundaries) SetSources(boundary.pieces, fSources);
    const Nesting nesting = DetermineNesting(loops.faces, loops.outerBoundaries);
    Detection detection;
    detection.diagnostics.cures = fCures;
    detection.regions = NestedRegions(loops, nesting);
    for (Region& region : detection.regions) fBack.ApplyToLoops(region);
    NameRegions(detection.regions, fDrawing, naming, detection.diagnostics.warnings);
    FillFromGeometryTree(fDriver, loops.faces, detection.regions);
    for (Region& region : detection.regions) fBack.ApplyToPoints(region);
    CompareNesting(fDriver.RegionTree(), loops.faces, detection);
    CheckPieces(fDriver.CoordinateTree(), fDriver.RegionTree(), fSources, detection.diagnostics);
    fBack.ApplyToDiagnostics(detection.diagnostics);
    CheckRegions(detection, fSettings);
    CountCollapsed(fDrawing, detection.diagnostics);
    return detection;
  }

  std::vector<PreparedPiece> PiecesWithout(const std::vector<std::size_t>& dropped) const {
    std::vector<bool> isDropped(fSources.size());
    for (const std::size_t piece : dropped) isDropped[piece] = true;
    std::vector<PreparedPiece> rest;
    for (std::size_t i = 0; i < fSources.size(); ++i) {
      if (!isDropped[i] && fSources[i] != kNone) rest.push_back({Pieces().EntityArray()[i], fSources[i]});
    }
    return rest;
  }

 private:
  const TEntityStorage& Pieces() const { return *fDriver.CoordinateTree().pEntityStorage(); }

  const Drawing& fDrawing;
  const Settings& fSettings;
  Motion fBack;  ///< from how the library has the drawing to how it was drawn
  TEntityStorage fStorage;
  TEntityBaseClass fDriver;
  std::vector<Cure> fCures;
  std::vector<std::size_t> fSources;  ///< of the library's pieces
};

void Append(std::vector<Cure>& cures, const std::vector<Cure>& more) {
  cures.insert(cures.end(), more.begin(), more.end());
}

/// Detects, and as long as slivers are to be dropped and there are some, again without what parts them from neighbours.
Detection DetectAmong(PreparedDrawing prepared, const Drawing& drawing, const Settings& settings,
                      const NamingRequest& naming) {
  for (std::size_t round = 0;; ++round) {
    Run run(drawing, settings, prepared);
    Detection detection = run.Detect(naming);
    std::vector<std::size_t> dropped;
    if (settings.dropsSlivers && round < kMostRounds) dropped = PiecesRoundSlivers(detection.regions, prepared.cures);
    if (dropped.empty()) {
      MergePieces(detection);
      Append(detection.diagnostics.cures, prepared.cures);
      return detection;
    }
    prepared.pieces = run.PiecesWithout(dropped);
  }
}

}  // namespace

Detection DetectRegions(const Drawing& aDrawing, const Settings& aSettings, const NamingRequest& aNaming) {
  return DetectAmong(aSettings.prepares ? Prepare(aDrawing, aSettings.tolerance) : AsDrawn(aDrawing), aDrawing,
                     aSettings, aNaming);
}

}  // namespace xsec

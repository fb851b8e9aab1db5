#include "xsec/transform/TransformDrawing.h"

#include <fmt/format.h>

#include <algorithm>

#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "GeometryEngine/host/Numerics.h"
#include "xsec/BoxIndex.h"
#include "xsec/DrawingExtents.h"
#include "xsec/InnerPoint.h"
#include "xsec/RegionDetection.h"
#include "xsec/RegionSearch.h"
#include "xsec/output/Topology.h"
#include "xsec/transform/OffsetOutline.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;

constexpr double kLongestArc = 90;  // degrees
constexpr std::size_t kHeightsForInnerPoint = 5;

/// What is not geometry stays; counts of what was skipped are those of the file.
Drawing WithoutGeometry(const Drawing& drawing) {
  Drawing empty = drawing;
  empty.entities.clear();
  empty.texts.clear();
  return empty;
}

Loop PiecesOf(const CurveLoop& loop, const std::vector<Curve>& curves) {
  Loop pieces;
  for (const CurveUse& use : loop) {
    pieces.push_back(use.forward ? curves[use.curve].piece : Reversed(curves[use.curve].piece));
  }
  return pieces;
}

void AddPieces(const Loop& pieces, const std::string& layer, Drawing& drawing) {
  for (const TravelledPiece& piece : pieces) {
    DrawingEntity entity;
    entity.geometry = EntityOf(piece);
    entity.layer = layer;
    entity.type = "OUTLINE";
    drawing.entities.push_back(entity);
  }
}

std::string NameOf(const std::vector<Region>& regions, std::size_t region) {
  return fmt::format("region {} ({})", RegionId(region), regions[region].uniqueName);
}

/// Outlines that were moved each by itself, held against the nesting of the regions that they come from.
class MovedOutlines {
 public:
  MovedOutlines(const std::vector<Region>& regions, const std::vector<Loop>& moved)
      : fRegions(regions), fMoved(moved), fIndex(BoxesOf(moved)) {}

  /// Throws OffsetError when the point lies in a moved outline without lying in that of the region round it, or in two
  /// that do not contain each other.
  void Check(const Point& point) const {
    std::vector<std::size_t> holders = fIndex.Find(point);
    std::erase_if(holders, [&](std::size_t region) { return !IsInside(fMoved[region], point); });
    if (holders.empty()) return;
    const std::size_t deepest = *std::max_element(holders.begin(), holders.end(), [&](std::size_t a, std::size_t b) {
      return fRegions[a].depth < fRegions[b].depth;
    });
    for (std::size_t region = deepest; region != kNone; region = fRegions[region].parent) {
      if (std::erase(holders, region) == 0) Refuse(deepest, "reaches out of", region, point);
    }
    if (!holders.empty()) Refuse(deepest, "overlaps", holders.front(), point);
  }

 private:
  static std::vector<Extents> BoxesOf(const std::vector<Loop>& loops) {
    std::vector<Extents> boxes;
    for (const Loop& loop : loops) boxes.push_back(Bounds(loop));
    return boxes;
  }

  [[noreturn]] void Refuse(std::size_t region, const char* does, std::size_t other, const Point& point) const {
    throw OffsetError(
        fmt::format("{} {} {} at ({:.6g}, {:.6g}) once both are offset; offset them one by one, with --layer",
                    NameOf(fRegions, region), does, NameOf(fRegions, other), point.x, point.y));
  }

  const std::vector<Region>& fRegions;
  const std::vector<Loop>& fMoved;
  BoxIndex fIndex;
};

/// Outlines that overlap much meet so often that the faces between them take long to find: first a point within each.
void RefuseOverlaps(const std::vector<Region>& regions, const std::vector<Loop>& moved, const Drawing& result,
                    const Settings& settings) {
  const MovedOutlines outlines(regions, moved);
  for (const Loop& loop : moved) {
    const auto inner = FindInnerPoint({&loop, {}}, kHeightsForInnerPoint);
    if (inner && inner->clearance > settings.tolerance) outlines.Check(inner->point);
  }
  for (const Region& face : DetectRegions(result, settings).regions) {
    if (!face.sliver) outlines.Check(face.label);
  }
}

}  // namespace

Drawing Mirrored(const Drawing& aDrawing, const Point& aFrom, const Point& aTo) {
  const auto line = GeometryEngine::TDXFEntity::Line(aFrom, aTo);
  Drawing mirrored = aDrawing;
  for (DrawingEntity& entity : mirrored.entities) {
    entity.geometry = GeometryEngine::MirrorEntity_AboutLine(entity.geometry, line);
  }
  for (DrawingText& text : mirrored.texts) {
    const Point place = GeometryEngine::MirrorPoint_AboutLine({text.x, text.y}, line);
    text.x = place.x;
    text.y = place.y;
  }
  mirrored.extents = ExtentsOf(mirrored.entities);
  return mirrored;
}

Drawing CopiedRound(const Drawing& aDrawing, std::size_t aCopies) {
  Drawing copied = aDrawing;
  for (std::size_t copy = 1; copy < aCopies; ++copy) {
    const Drawing turned = Turned(aDrawing, kFullTurn * static_cast<double>(copy) / static_cast<double>(aCopies));
    copied.entities.insert(copied.entities.end(), turned.entities.begin(), turned.entities.end());
    copied.texts.insert(copied.texts.end(), turned.texts.begin(), turned.texts.end());
  }
  copied.extents = ExtentsOf(copied.entities);
  return copied;
}

Drawing Offset(const Drawing& aDrawing, const std::vector<Region>& aRegions, double aDistance,
               const Settings& aSettings) {
  const Topology topology = BuildTopology(aRegions, aSettings.tolerance, kLongestArc);
  Drawing drawing = WithoutGeometry(aDrawing);
  std::vector<Loop> moved;
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    const std::string name = NameOf(aRegions, i);
    try {
      const Loop outline = PiecesOf(topology.regions[i].outline, topology.curves);
      moved.push_back(OffsetOutline(outline, aDistance, aSettings));
      AddPieces(moved.back(), aRegions[i].name, drawing);
      if (moved.back().empty())
        drawing.warnings.push_back(name + " vanishes: it is nowhere wide enough for the offset");
    } catch (const OffsetError& error) {
      throw OffsetError(fmt::format("{} cannot be offset: {}", name, error.what()));
    }
  }
  drawing.extents = ExtentsOf(drawing.entities);
  RefuseOverlaps(aRegions, moved, drawing, aSettings);
  return drawing;
}

}  // namespace xsec

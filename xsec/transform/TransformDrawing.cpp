#include "xsec/transform/TransformDrawing.h"

#include <fmt/format.h>

#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "xsec/DrawingExtents.h"
#include "xsec/RegionSearch.h"
#include "xsec/output/Topology.h"
#include "xsec/transform/OffsetOutline.h"

namespace xsec {

namespace {

constexpr double kLongestArc = 90;  // degrees

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
    const Drawing turned = Turned(aDrawing, 360.0 * static_cast<double>(copy) / static_cast<double>(aCopies));
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
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    const std::string name = fmt::format("region {} ({})", RegionId(i), aRegions[i].uniqueName);
    try {
      const Loop outline = PiecesOf(topology.regions[i].outline, topology.curves);
      const Loop pieces = OffsetOutline(outline, aDistance, aSettings);
      AddPieces(pieces, aRegions[i].name, drawing);
      if (pieces.empty()) drawing.warnings.push_back(name + " vanishes: it is nowhere wide enough for the offset");
    } catch (const OffsetError& error) {
      throw OffsetError(fmt::format("{} cannot be offset: {}", name, error.what()));
    }
  }
  drawing.extents = ExtentsOf(drawing.entities);
  return drawing;
}

}  // namespace xsec

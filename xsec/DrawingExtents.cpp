#include "xsec/DrawingExtents.h"

#include <array>

#include "GeometryEngine/host/Numerics.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;
using GeometryEngine::TDXFEntity;

struct Quadrant {
  double angle;  // degrees
  double x;      // direction
  double y;
};

constexpr std::array kQuadrants = {Quadrant{0, 1, 0}, Quadrant{90, 0, 1}, Quadrant{180, -1, 0}, Quadrant{270, 0, -1}};

void WidenByArc(Extents& box, const TDXFEntity& arc) {
  for (const auto& [angle, x, y] : kQuadrants) {
    if (GeometryEngine::GetAngleInRange(angle - arc.startAngle, 0, kFullTurn) < arc.ArcSweep()) {
      Widen(box, arc.CentreCoords + arc.radius * Point{x, y});
    }
  }
}

}  // namespace

Extents ExtentsOf(const std::vector<DrawingEntity>& aEntities) {
  if (aEntities.empty()) {
    return {};
  }
  Extents box = EmptyExtents();
  for (const DrawingEntity& entity : aEntities) {
    Widen(box, entity.geometry.StartCoords);
    Widen(box, entity.geometry.EndCoords);
    if (entity.geometry.EntityType == GeometryEngine::DXFArc) {
      WidenByArc(box, entity.geometry);
    }
  }
  return box;
}

}  // namespace xsec

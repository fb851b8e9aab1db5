#include "xsec/DrawingExtents.h"

#include <algorithm>
#include <array>
#include <limits>

#include "GeometryEngine/host/Numerics.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

struct Quadrant {
  double angle;  // degrees
  double x;      // direction
  double y;
};

constexpr std::array kQuadrants = {Quadrant{0, 1, 0}, Quadrant{90, 0, 1}, Quadrant{180, -1, 0}, Quadrant{270, 0, -1}};

void Widen(Extents& box, double x, double y) {
  box = {std::min(box.minX, x), std::min(box.minY, y), std::max(box.maxX, x), std::max(box.maxY, y)};
}

void WidenByArc(Extents& box, const TDXFEntity& arc) {
  for (const auto& [angle, x, y] : kQuadrants) {
    if (GeometryEngine::GetAngleInRange(angle - arc.startAngle, 0, 360) < arc.ArcSweep()) {
      Widen(box, arc.CentreCoords.x + x * arc.radius, arc.CentreCoords.y + y * arc.radius);
    }
  }
}

}  // namespace

Extents ExtentsOf(const std::vector<DrawingEntity>& aEntities) {
  if (aEntities.empty()) {
    return {};
  }
  constexpr double kFar = std::numeric_limits<double>::infinity();
  Extents box{kFar, kFar, -kFar, -kFar};
  for (const DrawingEntity& entity : aEntities) {
    Widen(box, entity.geometry.StartCoords.x, entity.geometry.StartCoords.y);
    Widen(box, entity.geometry.EndCoords.x, entity.geometry.EndCoords.y);
    if (entity.geometry.EntityType == GeometryEngine::DXFArc) {
      WidenByArc(box, entity.geometry);
    }
  }
  return box;
}

}  // namespace xsec

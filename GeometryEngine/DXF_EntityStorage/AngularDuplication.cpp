#include "GeometryEngine/DXF_EntityStorage/AngularDuplication.h"

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

/// Where a ray through the entity's two ends points, as far as there is one: an end at the origin has no direction of
/// its own and takes the other end's.
struct TEndAngles {
  double fStart;
  double fEnd;
};

TEndAngles GetEndAngles(const TDXFEntity& aEntity) {
  const TEntityCoordinate origin;
  const double start = GetTheta(aEntity.StartCoords.x, aEntity.StartCoords.y);
  const double end = GetTheta(aEntity.EndCoords.x, aEntity.EndCoords.y);
  if (aEntity.StartCoords == origin) return {end, end};
  if (aEntity.EndCoords == origin) return {start, start};
  return {start, end};
}

/// The angle of the copy's far edge.
double GetFarEdge(double aCopyAngle, double aAngle) {
  const double edge = GetAngleInRange(aAngle + aCopyAngle, 0, kFullTurn);
  return ValuesSame_DXFAngle(edge, kFullTurn) ? 0 : edge;
}

}  // namespace

bool IncludeDuplicatedEntity(std::int32_t aDuplications, std::int32_t aDuplications_Full, std::int32_t aIndex,
                             double aCopyAngle, double aAngle, const TDXFEntity& aEntity) {
  const auto [start, end] = GetEndAngles(aEntity);
  const bool radial = aEntity.EntityType == DXFLine && ValuesSame_DXFAngle(start, end);
  if (!radial) return true;
  const bool on_near_edge = ValuesSame_DXFAngle(start, aCopyAngle);
  const bool on_far_edge = ValuesSame_DXFAngle(start, GetFarEdge(aCopyAngle, aAngle));
  if (aDuplications == aDuplications_Full) return !on_near_edge && !on_far_edge;
  if (aCopyAngle != 0 && on_near_edge) return false;
  const bool last_copy = aIndex == std::int64_t{aDuplications} - 1;
  return last_copy || !on_far_edge;
}

double GetTheta(double x, double y) {
  // A negative zero would turn the angle by half a turn.
  const double positive_x = x == 0 ? 0 : x;
  const double positive_y = y == 0 ? 0 : y;
  const double angle = ArcTan2(positive_y, positive_x) * kDegreesPerRadian;
  return GetAngleInRange(ValuesSame_DXFAngle(angle, kFullTurn) ? kFullTurn : angle, 0, kFullTurn);
}

}  // namespace GeometryEngine

#include "GeometryEngine/GeometryFuncts/ArcEndPoints.h"

#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"

namespace GeometryEngine {

TArcEndPoints GetArc_EndPoints(const TDXFEntity& aEntity, double aAngle) {
  const TEntityCoordinate centre = RotateByAngle(aAngle, aEntity.CentreCoords.x, aEntity.CentreCoords.y);
  const TEntityCoordinate start = detail::GetCirclePoint(centre, aEntity.radius, aEntity.startAngle + aAngle);
  const TEntityCoordinate end = detail::GetCirclePoint(centre, aEntity.radius, aEntity.endAngle + aAngle);
  return {start.x, start.y, end.x, end.y};
}

}  // namespace GeometryEngine

#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"

#include <algorithm>
#include <cmath>

#include "GeometryEngine/DXF_EntityStorage/detail/IsEntityEnd.h"
#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Entity_Types/detail/PointSameness.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/detail/SegmentDistance.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/detail/SideOfLine.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"
#include "GeometryEngine/GeometryFuncts/detail/CoordinateDistance.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ArcAngles.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

/// Inclusive, the two bounds in either order.
bool IsBetween(double aValue, double aBound_A, double aBound_B) {
  return (aBound_A <= aValue && aValue <= aBound_B) || (aBound_B <= aValue && aValue <= aBound_A);
}

/// True when the value lies outside both bounds by more than the tolerance: neither between them nor the same as one.
bool IsBeyond(double aValue, double aBound_A, double aBound_B, double aTolerance) {
  return aValue < std::min(aBound_A, aBound_B) - aTolerance || aValue > std::max(aBound_A, aBound_B) + aTolerance;
}

}  // namespace

double IsPointLeft_Line(const TEntityCoordinate& aPoint, const TEntityCoordinate& aLineStart,
                        const TEntityCoordinate& aLineEnd) {
  return detail::GetSideOfLine(aPoint, aLineStart, aLineEnd);
}

bool IsPointInside_Arc(const TEntityCoordinate& aPoint, const TDXFEntity& aEntity) {
  const TEntityCoordinate offset = aPoint - aEntity.CentreCoords;
  if (!(std::abs(XY_To_RT(offset.x, offset.y).r) < aEntity.radius)) return false;
  if (!(aEntity.ArcSweep() > kHalfTurn) && !(IsPointLeft_Line(aPoint, aEntity.StartCoords, aEntity.EndCoords) <= 0))
    return false;
  return PointWithinArcSweep(aPoint, aEntity);
}

bool PointTouchingArc(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint) {
  if (!ValuesSame_DXFTolerance(detail::GetDistance(aPoint, aEntity.CentreCoords), aEntity.radius)) return false;
  return detail::IsEntityEnd(aEntity, aPoint) || PointWithinArcSweep(aPoint, aEntity);
}

bool PointOnLine(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint) {
  const double tolerance = detail::ReadLinearTolerance();
  const TEntityCoordinate& start = aEntity.StartCoords;
  const TEntityCoordinate& end = aEntity.EndCoords;
  if (IsBeyond(aPoint.x, start.x, end.x, tolerance)) return false;
  if (detail::AreSame(aPoint, start, tolerance) || detail::AreSame(aPoint, end, tolerance)) return true;
  if (detail::AreSame(start.x, end.x, tolerance))
    return detail::AreSame(aPoint.x, start.x, tolerance) && IsBetween(aPoint.y, start.y, end.y);
  // KEPT: the extent is compared without tolerance; a point a hair beyond an end is either that end or off the line.
  if (!IsBetween(aPoint.x, start.x, end.x)) return false;
  const auto [slope, intercept] = GetLinearEquation(start.x, start.y, end.x, end.y);
  return detail::AreSame(aPoint.y, slope * aPoint.x + intercept, tolerance);
}

bool PointWithinArcSweep(const TEntityCoordinate& aPoint, const TDXFEntity& aEntity) {
  const double angle = std::atan2(aPoint.y - aEntity.CentreCoords.y, aPoint.x - aEntity.CentreCoords.x);
  return AngleWithinArcSweep(angle * kDegreesPerRadian, aEntity);
}

bool AngleWithinArcSweep(double aAngle, const TDXFEntity& aEntity) {
  const double a = GetAngleInRange(aAngle, 0, kFullTurn);
  const auto [s, e] = detail::GetArcAngles(aEntity);
  if (s > e)
    return (ValuesMoreThanOrEqual_DXFAngle(a, s) && a < kFullTurn) || (ValuesLessThanOrEqual_DXFAngle(a, e) && a >= 0);
  return ValuesLessThanOrEqual_DXFAngle(s, a) && ValuesMoreThanOrEqual_DXFAngle(e, a);
}

TEntityCoordinate GetEntityMidPoint(const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFLine) return (aEntity.StartCoords + aEntity.EndCoords) / 2;
  if (aEntity.EntityType != DXFArc) return {};
  if (aEntity.radius == 0) return aEntity.StartCoords;
  return detail::GetCirclePoint(aEntity.CentreCoords, aEntity.radius, aEntity.startAngle + aEntity.ArcSweep() / 2);
}

double PointToSegmentDistance(const TEntityCoordinate& aPoint, const TEntityCoordinate& aSegStart,
                              const TEntityCoordinate& aSegEnd) {
  return std::sqrt(detail::GetSquaredSegmentDistance(aPoint, detail::TMeasuredSegment::Of(aSegStart, aSegEnd)));
}

}  // namespace GeometryEngine

#include "tests/reference/plain/OneEntity.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "GeometryEngine/host/Numerics.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

namespace {

struct TAngles {
  double start;
  double end;
};

TAngles GetAngles(const TDXFEntity& aArc) {
  return {GetAngleInRange(aArc.startAngle, 0, 360), GetAngleInRange(aArc.endAngle, 0, 360)};
}

/// An end on the positive x axis counts as 360.
TAngles GetAngles_Extremes(const TDXFEntity& aArc) {
  TAngles angles = GetAngles(aArc);
  if (angles.end == 0) angles.end = 360;
  return angles;
}

TEntityCoordinate LeftEnd(const TDXFEntity& aEntity) {
  const auto& [start, end] = std::tie(aEntity.StartCoords, aEntity.EndCoords);
  if (end.x > start.x) return start;
  if (start.x > end.x) return end;
  return ValuesSame_DXFTolerance(start.x, end.x) ? start : TEntityCoordinate{};
}

TEntityCoordinate RightEnd(const TDXFEntity& aEntity) {
  const auto& [start, end] = std::tie(aEntity.StartCoords, aEntity.EndCoords);
  if (end.x > start.x) return end;
  if (start.x > end.x) return start;
  return ValuesSame_DXFTolerance(start.x, end.x) ? start : TEntityCoordinate{};
}

TEntityCoordinate UpperEnd(const TDXFEntity& aEntity) {
  const auto& [start, end] = std::tie(aEntity.StartCoords, aEntity.EndCoords);
  if (ValuesSame_DXFTolerance(start.y, end.y)) return start;
  if (end.y > start.y) return end;
  return start.y > end.y ? start : TEntityCoordinate{};
}

TEntityCoordinate LowerEnd(const TDXFEntity& aEntity) {
  const auto& [start, end] = std::tie(aEntity.StartCoords, aEntity.EndCoords);
  if (ValuesSame_DXFTolerance(start.y, end.y)) return start;
  if (end.y > start.y) return start;
  return start.y > end.y ? end : TEntityCoordinate{};
}

bool IsBetween(double aValue, double aBound_A, double aBound_B) {
  return (aBound_A <= aValue && aValue <= aBound_B) || (aBound_B <= aValue && aValue <= aBound_A);
}

double Distance(const TEntityCoordinate& aPoint_A, const TEntityCoordinate& aPoint_B) {
  const double dx = aPoint_B.x - aPoint_A.x;
  const double dy = aPoint_B.y - aPoint_A.y;
  return std::sqrt(dx * dx + dy * dy);
}

bool IsWithinSweep(const TDXFEntity& aArc, const TEntityCoordinate& aPoint) {
  const double direction = std::atan2(aPoint.y - aArc.CentreCoords.y, aPoint.x - aArc.CentreCoords.x);
  const double a = GetAngleInRange(direction * kDegreesPerRadian, 0, 360);
  const auto [s, e] = GetAngles(aArc);
  const bool isFromStart = ValuesSame_DXFAngle(a, s) || a > s;
  const bool isToEnd = ValuesSame_DXFAngle(a, e) || a < e;
  return s > e ? (isFromStart && a < 360) || (isToEnd && a >= 0) : isFromStart && isToEnd;
}

}  // namespace

bool IsEntityEnd(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint) {
  return Same(aPoint, aEntity.StartCoords) || Same(aPoint, aEntity.EndCoords);
}

TEntityCoordinate GetEntityEndCoordinate(const TEntityCoordinate& aCoordinate, const TDXFEntity& aEntity) {
  if (Same(aEntity.StartCoords, aCoordinate)) return aEntity.EndCoords;
  if (Same(aEntity.EndCoords, aCoordinate)) return aEntity.StartCoords;
  return {};
}

TEntityCoordinate GetLeftMostCoordinate(const TDXFEntity& aEntity) {
  if (aEntity.EntityType != DXFArc) return aEntity.EntityType == DXFLine ? LeftEnd(aEntity) : aEntity.CentreCoords;
  const auto [start, end] = GetAngles_Extremes(aEntity);
  if (start < 180 && end > 180) return {aEntity.CentreCoords.x - aEntity.radius, aEntity.CentreCoords.y};
  return LeftEnd(aEntity);
}

TEntityCoordinate GetRightMostCoordinate(const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFLine) return Plain::GetEntityEndCoordinate(LeftEnd(aEntity), aEntity);
  if (aEntity.EntityType != DXFArc) return aEntity.CentreCoords;
  const auto [start, end] = GetAngles_Extremes(aEntity);
  if (start > end) return {aEntity.CentreCoords.x + aEntity.radius, aEntity.CentreCoords.y};
  return RightEnd(aEntity);
}

TEntityCoordinate GetUpperMostCoordinate(const TDXFEntity& aEntity) {
  if (aEntity.EntityType != DXFArc) return aEntity.EntityType == DXFLine ? UpperEnd(aEntity) : aEntity.CentreCoords;
  const auto [start, end] = GetAngles_Extremes(aEntity);
  const bool isPassed = start > end ? start > 90 && end > 90 : start < 90 && end > 90;
  if (isPassed) return {aEntity.CentreCoords.x, aEntity.CentreCoords.y + aEntity.radius};
  return UpperEnd(aEntity);
}

TEntityCoordinate GetLowerMostCoordinate(const TDXFEntity& aEntity) {
  if (aEntity.EntityType != DXFArc) return aEntity.EntityType == DXFLine ? LowerEnd(aEntity) : aEntity.CentreCoords;
  const auto [start, end] = GetAngles_Extremes(aEntity);
  const bool isPassed = start > end ? start > 270 && end > 270 : start < 270 && end > 270;
  if (isPassed) return {aEntity.CentreCoords.x, aEntity.CentreCoords.y - aEntity.radius};
  return start > end ? UpperEnd(aEntity) : LowerEnd(aEntity);
}

double IsPointLeft_Line(const TEntityCoordinate& aPoint, const TEntityCoordinate& aLineStart,
                        const TEntityCoordinate& aLineEnd) {
  const double c =
      (aLineEnd.x - aLineStart.x) * (aPoint.y - aLineStart.y) - (aPoint.x - aLineStart.x) * (aLineEnd.y - aLineStart.y);
  return -1e-5 < c && c < 1e-5 ? 0 : c;
}

bool PointOnLine(const TDXFEntity& aLine, const TEntityCoordinate& aPoint) {
  if (Plain::IsEntityEnd(aLine, aPoint)) return true;
  const TEntityCoordinate& start = aLine.StartCoords;
  const TEntityCoordinate& end = aLine.EndCoords;
  if (ValuesSame_DXFTolerance(start.x, end.x))
    return ValuesSame_DXFTolerance(aPoint.x, start.x) && IsBetween(aPoint.y, start.y, end.y);
  const auto [slope, intercept] = GetLinearEquation(start.x, start.y, end.x, end.y);
  return IsBetween(aPoint.x, start.x, end.x) && ValuesSame_DXFTolerance(aPoint.y, slope * aPoint.x + intercept);
}

bool PointTouchingArc(const TDXFEntity& aArc, const TEntityCoordinate& aPoint) {
  return ValuesSame_DXFTolerance(Distance(aPoint, aArc.CentreCoords), aArc.radius) &&
         (Plain::IsEntityEnd(aArc, aPoint) || IsWithinSweep(aArc, aPoint));
}

double PointToSegmentDistance(const TEntityCoordinate& aPoint, const TEntityCoordinate& aSegStart,
                              const TEntityCoordinate& aSegEnd) {
  const TEntityCoordinate segment{aSegEnd.x - aSegStart.x, aSegEnd.y - aSegStart.y};
  const TEntityCoordinate offset{aPoint.x - aSegStart.x, aPoint.y - aSegStart.y};
  const double lengthSquared = segment.x * segment.x + segment.y * segment.y;
  if (lengthSquared == 0) return Distance(aPoint, aSegStart);
  const double t = std::clamp((offset.x * segment.x + offset.y * segment.y) / lengthSquared, 0.0, 1.0);
  return Distance(aPoint, {aSegStart.x + t * segment.x, aSegStart.y + t * segment.y});
}

}  // namespace GeometryEngine::Plain

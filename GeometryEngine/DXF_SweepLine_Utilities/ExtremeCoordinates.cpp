#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ArcAngles.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

constexpr double kUp = 90;      // degrees
constexpr double kLeft = 180;   // degrees
constexpr double kDown = 270;   // degrees
constexpr double kRight = 360;  // degrees, as the end of an arc; its start there is 0

/// The arc's angles in range, an end on the +x axis read as 360; a start above the end means that the arc passes 0.
detail::TArcAngles GetAngles(const TDXFEntity& aArc) {
  detail::TArcAngles angles = detail::GetArcAngles(aArc);
  if (angles.end == 0) angles.end = kRight;
  return angles;
}

bool AreBothAbove(const detail::TArcAngles& aAngles, double aAxis) {
  return aAngles.start > aAxis && aAngles.end > aAxis;
}

bool IsAxisBetween(const detail::TArcAngles& aAngles, double aAxis) {
  return aAngles.start < aAxis && aAngles.end > aAxis;
}

}  // namespace

TEntityCoordinate GetLeftMostCoordinate(const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFArc) return GetLeftMostCoordinate_Arc(aEntity);
  if (aEntity.EntityType == DXFLine) return GetLeftMostCoordinate_Line(aEntity);
  return aEntity.CentreCoords;
}

TEntityCoordinate GetRightMostCoordinate(const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFArc) return GetRightMostCoordinate_Arc(aEntity);
  if (aEntity.EntityType == DXFLine) return GetEntityEndCoordinate(GetLeftMostCoordinate_Line(aEntity), aEntity);
  return aEntity.CentreCoords;
}

TEntityCoordinate GetUpperMostCoordinate(const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFArc) return GetUpperMostCoordinate_Arc(aEntity);
  if (aEntity.EntityType == DXFLine) return GetUpperMostCoordinate_Line(aEntity);
  return aEntity.CentreCoords;
}

TEntityCoordinate GetLowerMostCoordinate(const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFArc) return GetLowerMostCoordinate_Arc(aEntity);
  if (aEntity.EntityType == DXFLine) return GetLowerMostCoordinate_Line(aEntity);
  return aEntity.CentreCoords;
}

// KEPT: left and right compare x exactly and then fall back on the tolerance, up and down ask the tolerance first. The
// sweep needs an exact order along x; heights only matter where they differ. In a tie the start answers, whatever the
// other axis says.
TEntityCoordinate GetLeftMostCoordinate_Line(const TDXFEntity& aEntity) {
  const TEntityCoordinate& start = aEntity.StartCoords;
  const TEntityCoordinate& end = aEntity.EndCoords;
  if (end.x > start.x) return start;
  if (start.x > end.x) return end;
  return ValuesSame_DXFTolerance(start.x, end.x) ? start : TEntityCoordinate{};
}

TEntityCoordinate GetRightMostCoordinate_Line(const TDXFEntity& aEntity) {
  const TEntityCoordinate& start = aEntity.StartCoords;
  const TEntityCoordinate& end = aEntity.EndCoords;
  if (end.x > start.x) return end;
  if (start.x > end.x) return start;
  return ValuesSame_DXFTolerance(start.x, end.x) ? start : TEntityCoordinate{};
}

TEntityCoordinate GetUpperMostCoordinate_Line(const TDXFEntity& aEntity) {
  const TEntityCoordinate& start = aEntity.StartCoords;
  const TEntityCoordinate& end = aEntity.EndCoords;
  if (ValuesSame_DXFTolerance(start.y, end.y)) return start;
  if (end.y > start.y) return end;
  return start.y > end.y ? start : TEntityCoordinate{};
}

TEntityCoordinate GetLowerMostCoordinate_Line(const TDXFEntity& aEntity) {
  const TEntityCoordinate& start = aEntity.StartCoords;
  const TEntityCoordinate& end = aEntity.EndCoords;
  if (ValuesSame_DXFTolerance(start.y, end.y)) return start;
  if (end.y > start.y) return start;
  return start.y > end.y ? end : TEntityCoordinate{};
}

TEntityCoordinate GetRightMostCoordinate_Arc(const TDXFEntity& aEntity) {
  const TEntityCoordinate& centre = aEntity.CentreCoords;
  const detail::TArcAngles angles = GetAngles(aEntity);
  if (angles.start > angles.end) return {centre.x + aEntity.radius, centre.y};
  return GetRightMostCoordinate_Line(aEntity);
}

TEntityCoordinate GetLeftMostCoordinate_Arc(const TDXFEntity& aEntity) {
  const TEntityCoordinate& centre = aEntity.CentreCoords;
  // KEPT: one test for arcs that pass 0 degrees and for those that don't; an arc that passes both 0 and 180 is answered
  // by its left-most end. The sweep sorts by this answer, so every user of it must get the same one.
  if (IsAxisBetween(GetAngles(aEntity), kLeft)) return {centre.x - aEntity.radius, centre.y};
  return GetLeftMostCoordinate_Line(aEntity);
}

TEntityCoordinate GetUpperMostCoordinate_Arc(const TDXFEntity& aEntity) {
  const TEntityCoordinate& centre = aEntity.CentreCoords;
  const detail::TArcAngles angles = GetAngles(aEntity);
  const bool isPassed = angles.start > angles.end ? AreBothAbove(angles, kUp) : IsAxisBetween(angles, kUp);
  if (isPassed) return {centre.x, centre.y + aEntity.radius};
  return GetUpperMostCoordinate_Line(aEntity);
}

TEntityCoordinate GetLowerMostCoordinate_Arc(const TDXFEntity& aEntity) {
  const TEntityCoordinate& centre = aEntity.CentreCoords;
  const detail::TArcAngles angles = GetAngles(aEntity);
  const bool isWrapping = angles.start > angles.end;
  const bool isPassed = isWrapping ? AreBothAbove(angles, kDown) : IsAxisBetween(angles, kDown);
  if (isPassed) return {centre.x, centre.y - aEntity.radius};
  // KEPT: an arc that passes 0 but not 270 degrees answers its upper end, not the lower one.
  return isWrapping ? GetUpperMostCoordinate_Line(aEntity) : GetLowerMostCoordinate_Line(aEntity);
}

double GetAngleFromCoordinate(const TEntityCoordinate& aPoint, const TEntityCoordinate& aOrigin) {
  const double angle = ArcTan2(aPoint.y - aOrigin.y, aPoint.x - aOrigin.x) * kDegreesPerRadian;
  return ValuesSame_DXFAngle(angle, 0) ? 0 : angle;
}

}  // namespace GeometryEngine

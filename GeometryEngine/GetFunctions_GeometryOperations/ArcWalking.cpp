#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"

#include <cmath>

#include "GeometryEngine/DXF_Entity_Types/detail/PointSameness.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordCount.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordPoint.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

double GetEntityStartAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aEntity) {
  const double tolerance = detail::ReadLinearTolerance();
  if (detail::AreSame(aCoordinate, aEntity.StartCoords, tolerance)) return aEntity.startAngle;
  if (detail::AreSame(aCoordinate, aEntity.EndCoords, tolerance)) return aEntity.endAngle;
  return 0;
}

double GetEntityEndAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aEntity) {
  if (aCoordinate == aEntity.StartCoords) return aEntity.endAngle;
  if (aCoordinate == aEntity.EndCoords) return aEntity.startAngle;
  return 0;
}

TTravelDirection GetArcTravelDirection(double aAngle, const TDXFEntity& aEntity) {
  return aAngle == aEntity.startAngle ? Travel_AntiClockwise : Travel_Clockwise;
}

TArcSegments GetArcSegmentPoints_Surf(const TDXFEntity& aEntity, double aTolerance) {
  const double sweep = aEntity.ArcSweep();
  const double chordAngle = std::acos(1 - aTolerance / aEntity.radius) * kDegreesPerRadian;
  const std::int32_t count = detail::GetChordCount(chordAngle == 0 ? 0 : sweep / chordAngle);
  return {count, sweep / count};
}

TEntityCoordinate GetArc_LineSegmentCoord(const TDXFEntity& aEntity, std::int32_t aIndex, TTravelDirection aDirection,
                                          double aStartAngle, double aStep) {
  const double radians = detail::GetWalkedAngles(aDirection, aStartAngle, aStep).GetRadians(aIndex);
  return detail::GetCirclePoint(aEntity.CentreCoords, aEntity.radius, detail::GetSineCosine(radians));
}

}  // namespace GeometryEngine

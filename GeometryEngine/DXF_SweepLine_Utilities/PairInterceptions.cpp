#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

/// 0 within the linear tolerance, so that a point on an axis of the arc gets the axis's own direction.
double SnapOffset(double aOffset) {
  return ValuesSame_DXFTolerance(aOffset, 0) ? 0 : aOffset;
}

}  // namespace

bool CheckIntercepts(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TInterceptionPoints& aPoints) {
  const DXFEntityType type_A = aEntity_A.EntityType;
  const DXFEntityType type_B = aEntity_B.EntityType;
  if (type_A == DXFLine && type_B == DXFLine) return CheckLineLineInterceptions(aEntity_A, aEntity_B, aPoints);
  if (type_A == DXFArc && type_B == DXFArc) return CheckArcArcInterceptions(aEntity_A, aEntity_B, aPoints);
  if ((type_A == DXFLine && type_B == DXFArc) || (type_A == DXFArc && type_B == DXFLine))
    return CheckLineArcInterceptions(aEntity_A, aEntity_B, aPoints);
  return false;
}

double GetArcInterceptAngle(const TEntityCoordinate& aPoint, const TDXFEntity& aArc, double aStartValue,
                            double aEndValue) {
  if (aPoint == aArc.StartCoords) return aStartValue;
  if (aPoint == aArc.EndCoords) return aEndValue;
  const double dy = SnapOffset(aPoint.y - aArc.CentreCoords.y);
  const double dx = SnapOffset(aPoint.x - aArc.CentreCoords.x);
  return GetAngleInRange(ArcTan2(dy, dx) * kDegreesPerRadian, 0, kFullTurn);
}

}  // namespace GeometryEngine

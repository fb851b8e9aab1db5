#include "GeometryEngine/GeometryFuncts/CoordinateAngles.h"

#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

TEntityCoordinate RT_To_XY_Coordinate(double r, double t) {
  const TCartesian point = RT_To_XY(r, t);
  return {point.x, point.y};
}

double GetCoordinateAngle(const TEntityCoordinate& aCoordinate) {
  const double angle = ArcTan2(aCoordinate.y, aCoordinate.x) * kDegreesPerRadian;
  return angle > kHalfTurn ? -(kFullTurn - angle) : angle;
}

double GetCoordinateAngle_AboutPoint(const TEntityCoordinate& aCoordinate, const TEntityCoordinate& aPoint) {
  return GetCoordinateAngle(aCoordinate - aPoint);
}

TEntityCoordinate GetLinesIntersection_Coordinate(double a, double b, double c, double d) {
  const TCartesian point = GetLinesIntersection(a, b, c, d);
  return {point.x, point.y};
}

}  // namespace GeometryEngine

#pragma once

#include <cstdint>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

inline constexpr double kRadiansPerDegree = 0.017453292519943295;
inline constexpr double kDegreesPerRadian = 57.29577951308232;

struct TLinearEquation {
  double aSlope = 0;
  double aIntercept = 0;
};
struct TPolar {
  double r = 0;
  double angle = 0;  ///< degrees
};
struct TCartesian {
  double x = 0;
  double y = 0;
};

GEOMETRYENGINE_API double GetAngleInRange(double aValue, double aLow, double aHigh);
/// Direction of (x, y) in radians, -pi to pi.
GEOMETRYENGINE_API double ArcTan2(double y, double x);
GEOMETRYENGINE_API TLinearEquation GetLinearEquation(double x1, double y1, double x2, double y2);
GEOMETRYENGINE_API TLinearEquation GetLinearEquation_DXFTolerance(double x1, double y1, double x2, double y2);
/// Where y = a x + b and y = c x + d meet.
GEOMETRYENGINE_API TCartesian GetLinesIntersection(double a, double b, double c, double d);
GEOMETRYENGINE_API TCartesian RT_To_XY(double r, double t);
GEOMETRYENGINE_API TPolar XY_To_RT(double x, double y);
GEOMETRYENGINE_API double GetDistanceBetweenCoords(double x1, double y1, double x2, double y2);
/// Standard closeness test with a zero epsilon: |a - b| <= max(min(|a|, |b|) 1e-12, 1e-12).
GEOMETRYENGINE_API bool ValuesClose_Standard(double a, double b);
/// The one conversion of a real number to an integer: truncates, saturates, not-a-number gives 0.
GEOMETRYENGINE_API std::int32_t ToInteger_Saturated(double aValue);

}  // namespace GeometryEngine

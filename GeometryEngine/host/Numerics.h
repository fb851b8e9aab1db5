#pragma once

// Plain numeric helpers on real numbers: angle ranges, straight lines given by slope and intercept, polar coordinates,
// closeness. Comparisons under the drawing's tolerances are in DXF_Entity_Types/Tolerances.h.
//
// Nothing here fails: divisions by zero and not-a-number arguments give infinities and not-a-numbers as the arithmetic
// does.

#include <cstdint>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

inline constexpr double kRadiansPerDegree = 0.017453292519943295;
inline constexpr double kDegreesPerRadian = 57.29577951308232;

inline constexpr double kQuarterTurn = 90;  ///< degrees, as the next two
inline constexpr double kHalfTurn = 180;
inline constexpr double kFullTurn = 360;

/// The line y = aSlope x + aIntercept.
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

/// `aValue` moved by whole multiples of (aHigh - aLow) into the range; a value that lies in it already is returned as
/// it is. RANGE: aLow inclusive to aHigh exclusive. Rounding never reaches aHigh: what would round to it comes back as
/// aLow. DEGENERATE: not-a-number when the value is infinite or not a number, or when the range is empty. COST: the
/// same for values of any size.
GEOMETRYENGINE_API double GetAngleInRange(double aValue, double aLow, double aHigh);

/// The direction of (x, y). UNITS: radians. RANGE: -pi to pi; 0 for (0, 0).
GEOMETRYENGINE_API double ArcTan2(double y, double x);

/// The line through two points. DEGENERATE: an infinite or not-a-number slope when x1 = x2.
GEOMETRYENGINE_API TLinearEquation GetLinearEquation(double x1, double y1, double x2, double y2);

/// The same, but slope 0 and intercept 0 when x1 and x2 differ by no more than the linear tolerance, so that the answer
/// for an upright line is finite. Callers tell upright lines apart before they ask.
GEOMETRYENGINE_API TLinearEquation GetLinearEquation_DXFTolerance(double x1, double y1, double x2, double y2);

/// The point where y = a x + b and y = c x + d meet. DEGENERATE: infinite or not a number for parallel lines.
GEOMETRYENGINE_API TCartesian GetLinesIntersection(double a, double b, double c, double d);

/// The point at distance `r` from the origin in direction `t`. UNITS: `t` in degrees.
GEOMETRYENGINE_API TCartesian RT_To_XY(double r, double t);

/// Distance from the origin and direction of (x, y). RANGE: the angle is above -180 and at most 180 degrees; 0 for (0,
/// 0).
GEOMETRYENGINE_API TPolar XY_To_RT(double x, double y);

GEOMETRYENGINE_API double GetDistanceBetweenCoords(double x1, double y1, double x2, double y2);

/// The standard closeness test: true when |a - b| is not above 1e-12 of the smaller magnitude, or not above 1e-12
/// itself. DEGENERATE: false when a value is infinite or not a number.
GEOMETRYENGINE_API bool ValuesClose_Standard(double a, double b);

/// The one conversion of a real number to an integer: towards zero, to the nearest end of the range when `aValue` lies
/// outside it. DEGENERATE: 0 for not-a-number.
GEOMETRYENGINE_API std::int32_t ToInteger_Saturated(double aValue);

}  // namespace GeometryEngine

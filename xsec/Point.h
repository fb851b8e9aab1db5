#pragma once

#include <cmath>

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

namespace xsec {

/// A point or vector of the drawing's plane. Its == is the library's sameness under the tolerance.
using Point = GeometryEngine::TEntityCoordinate;

/// Of coordinates that are read or made: products of three such numbers are finite. UNITS: millimetres.
inline constexpr double kLargestCoordinate = 1e100;

/// False for what is not a number, too.
inline bool IsInRange(const Point& aPoint) {
  return std::abs(aPoint.x) <= kLargestCoordinate && std::abs(aPoint.y) <= kLargestCoordinate;
}

inline double Distance(const Point& aFirst, const Point& aSecond) {
  return std::hypot(aFirst.x - aSecond.x, aFirst.y - aSecond.y);
}

/// Whether two points are one, where points that are merely close are two.
inline bool IsSameBits(const Point& aFirst, const Point& aSecond) {
  return aFirst.x == aSecond.x && aFirst.y == aSecond.y;
}

}  // namespace xsec

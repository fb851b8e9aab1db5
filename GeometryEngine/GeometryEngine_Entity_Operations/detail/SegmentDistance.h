#pragma once

// The distance of a point from a segment, squared, for loops that look for the least of many. Private.

#include <algorithm>

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

namespace GeometryEngine::detail {

/// The square whose root PointToSegmentDistance is. The root of the least square is the least of the roots, to the bit,
/// since roots are rounded to the nearest.
inline double GetSquaredSegmentDistance(const TEntityCoordinate& aPoint, const TEntityCoordinate& aSegStart,
                                        const TEntityCoordinate& aSegEnd) {
  const auto square = [&aPoint](double x, double y) {
    const double dx = x - aPoint.x;
    const double dy = y - aPoint.y;
    return dx * dx + dy * dy;
  };
  const TEntityCoordinate segment{aSegEnd.x - aSegStart.x, aSegEnd.y - aSegStart.y};
  const TEntityCoordinate offset{aPoint.x - aSegStart.x, aPoint.y - aSegStart.y};
  const double lengthSquared = segment.x * segment.x + segment.y * segment.y;
  if (lengthSquared == 0) return square(aSegStart.x, aSegStart.y);
  const double t = std::clamp((offset.x * segment.x + offset.y * segment.y) / lengthSquared, 0.0, 1.0);
  return square(aSegStart.x + t * segment.x, aSegStart.y + t * segment.y);
}

}  // namespace GeometryEngine::detail

#pragma once

// The distance of a point from a segment, squared, for loops that look for the least of many. Private.

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

namespace GeometryEngine::detail {

/// What distances from a segment need to know of it.
struct TMeasuredSegment {
  TEntityCoordinate fStart;
  TEntityCoordinate fAlong;  ///< from its start to its end
  double fSquaredLength;

  static TMeasuredSegment Of(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd) {
    const TEntityCoordinate along{aEnd.x - aStart.x, aEnd.y - aStart.y};
    return {aStart, along, along.x * along.x + along.y * along.y};
  }
};

/// The square whose root PointToSegmentDistance is. The root of the least square is the least of the roots, to the bit,
/// since roots are rounded to the nearest. No branch depends on the numbers: a loop takes several segments at once.
inline double GetSquaredSegmentDistance(const TEntityCoordinate& aPoint, const TMeasuredSegment& aSegment) {
  const auto& [start, along, squaredLength] = aSegment;
  const double projection = (aPoint.x - start.x) * along.x + (aPoint.y - start.y) * along.y;
  const double quotient = projection / squaredLength;
  const double share = squaredLength == 0 ? 0 : quotient;
  const double notBefore = share < 0 ? 0 : share;
  const double t = notBefore > 1 ? 1 : notBefore;
  const double dx = start.x + t * along.x - aPoint.x;
  const double dy = start.y + t * along.y - aPoint.y;
  return dx * dx + dy * dy;
}

}  // namespace GeometryEngine::detail

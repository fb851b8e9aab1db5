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

/// How far along the segment the place closest to the point lies, from 0 at its start to 1 at its end.
/// REQUIRES: a segment of some length.
inline double GetShareOfClosest(const TEntityCoordinate& aPoint, const TMeasuredSegment& aSegment) {
  const auto& [start, along, squaredLength] = aSegment;
  const double share = ((aPoint.x - start.x) * along.x + (aPoint.y - start.y) * along.y) / squaredLength;
  const double notBefore = share < 0 ? 0 : share;
  return notBefore > 1 ? 1 : notBefore;
}

/// The square of the distance to the place at this share of the segment's way.
inline double GetSquaredDistance_AtShare(const TEntityCoordinate& aPoint, const TMeasuredSegment& aSegment,
                                         double aShare) {
  const double dx = aSegment.fStart.x + aShare * aSegment.fAlong.x - aPoint.x;
  const double dy = aSegment.fStart.y + aShare * aSegment.fAlong.y - aPoint.y;
  return dx * dx + dy * dy;
}

/// The square whose root PointToSegmentDistance is. The root of the least square is the least of the roots, to the bit,
/// since roots are rounded to the nearest.
inline double GetSquaredSegmentDistance(const TEntityCoordinate& aPoint, const TMeasuredSegment& aSegment) {
  const double share = aSegment.fSquaredLength == 0 ? 0 : GetShareOfClosest(aPoint, aSegment);
  return GetSquaredDistance_AtShare(aPoint, aSegment, share);
}

}  // namespace GeometryEngine::detail

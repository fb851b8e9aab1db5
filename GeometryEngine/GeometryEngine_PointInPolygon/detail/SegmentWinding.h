#pragma once

// What a straight segment adds to a winding number, under a tolerance that has been read already. Private.

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"

namespace GeometryEngine::detail {

/// A height that counts as below the point: less than the point's own or the same as it.
inline bool IsBelowOrLevel(double aHeight, double aPointHeight, double aTolerance) {
  return aPointHeight > aHeight || AreSame(aHeight, aPointHeight, aTolerance);
}

inline bool IsClearlyAbove(double aHeight, double aPointHeight, double aTolerance) {
  return aHeight > aPointHeight && !AreSame(aHeight, aPointHeight, aTolerance);
}

// KEPT: going up, only a point strictly to the left counts; going down, a point on the segment's line counts like one
// to the right. A point on an edge is so outside an anticlockwise chain and inside a clockwise one, on either side of
// it.
inline std::int32_t GetSegmentWinding(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                      const TEntityCoordinate& aPoint, double aTolerance) {
  if (IsBelowOrLevel(aStart.y, aPoint.y, aTolerance) && IsClearlyAbove(aEnd.y, aPoint.y, aTolerance))
    return IsPointLeft_Line(aPoint, aStart, aEnd) > 0 ? 1 : 0;
  if (IsClearlyAbove(aStart.y, aPoint.y, aTolerance) && IsBelowOrLevel(aEnd.y, aPoint.y, aTolerance))
    return IsPointLeft_Line(aPoint, aStart, aEnd) <= 0 ? -1 : 0;
  return 0;
}

}  // namespace GeometryEngine::detail

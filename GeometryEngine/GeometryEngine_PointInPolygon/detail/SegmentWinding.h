#pragma once

// What a straight segment adds to a winding number, under a tolerance that has been read already. Private.

#include <cstddef>
#include <cstdint>
#include <span>

#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/detail/SideOfLine.h"

namespace GeometryEngine::detail {

/// A height that counts as below the point: less than the point's own or the same as it.
inline bool IsBelowOrLevel(double aHeight, double aPointHeight, double aTolerance) {
  return aPointHeight > aHeight || AreSame(aHeight, aPointHeight, aTolerance);
}

inline bool IsClearlyAbove(double aHeight, double aPointHeight, double aTolerance) {
  return aHeight > aPointHeight && !AreSame(aHeight, aPointHeight, aTolerance);
}

/// On which side of a point's height a height lies; on neither when it is no number.
struct TLevel {
  TLevel(double aHeight, double aPointHeight, double aTolerance)
      : fIsBelow(IsBelowOrLevel(aHeight, aPointHeight, aTolerance)),
        fIsAbove(IsClearlyAbove(aHeight, aPointHeight, aTolerance)) {}

  bool fIsBelow;
  bool fIsAbove;
};

// KEPT: going up, only a point strictly to the left counts; going down, a point on the segment's line counts like one
// to the right. A point on an edge is so outside an anticlockwise chain and inside a clockwise one, on either side of
// it.
inline std::int32_t GetSegmentWinding(const TEntityCoordinate& aStart, const TLevel& aStartLevel,
                                      const TEntityCoordinate& aEnd, const TLevel& aEndLevel,
                                      const TEntityCoordinate& aPoint) {
  if (aStartLevel.fIsBelow && aEndLevel.fIsAbove) return GetSideOfLine(aPoint, aStart, aEnd) > 0 ? 1 : 0;
  if (aStartLevel.fIsAbove && aEndLevel.fIsBelow) return GetSideOfLine(aPoint, aStart, aEnd) <= 0 ? -1 : 0;
  return 0;
}

inline std::int32_t GetSegmentWinding(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                      const TEntityCoordinate& aPoint, double aTolerance) {
  return GetSegmentWinding(aStart, TLevel(aStart.y, aPoint.y, aTolerance), aEnd, TLevel(aEnd.y, aPoint.y, aTolerance),
                           aPoint);
}

/// The sum along a polyline. REQUIRES: a vertex at least.
inline std::int32_t GetPolylineWinding(std::span<const TEntityCoordinate> aVertices, const TEntityCoordinate& aPoint,
                                       double aTolerance) {
  std::int32_t winding = 0;
  TLevel before(aVertices.front().y, aPoint.y, aTolerance);
  for (std::size_t k = 1; k < aVertices.size(); ++k) {
    const TLevel level(aVertices[k].y, aPoint.y, aTolerance);
    winding += GetSegmentWinding(aVertices[k - 1], before, aVertices[k], level, aPoint);
    before = level;
  }
  return winding;
}

}  // namespace GeometryEngine::detail

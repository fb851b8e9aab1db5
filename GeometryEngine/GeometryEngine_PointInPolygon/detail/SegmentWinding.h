#pragma once

// What a straight segment adds to a winding number, under a tolerance that has been read already. Private.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/detail/SideOfLine.h"

namespace GeometryEngine::detail {

/// On which side of a point's height other heights lie, told by their rise over it: below it counts what is less or the
/// same as it, above it what is clearly more. A rise that is no number is on neither side; without a tolerance, nor is
/// one of 0.
class TLevels {
 public:
  explicit TLevels(double aTolerance)
      : fBelow(aTolerance > 0 ? aTolerance : 0),
        fAbove(aTolerance > 0 ? aTolerance : std::numeric_limits<double>::denorm_min()) {}

  bool IsBelow(double aRise) const { return aRise < fBelow; }
  bool IsAbove(double aRise) const { return aRise >= fAbove; }

 private:
  double fBelow;
  double fAbove;
};

// KEPT: going up, only a point strictly to the left counts; going down, a point on the segment's line counts like one
// to the right. A point on an edge is so outside an anticlockwise chain and inside a clockwise one, on either side of
// it.
inline std::int32_t GetCrossingWinding(bool aGoesUp, const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                       const TEntityCoordinate& aPoint) {
  const double side = GetSideOfLine(aPoint, aStart, aEnd);
  if (aGoesUp) return side > 0 ? 1 : 0;
  return side <= 0 ? -1 : 0;
}

inline std::int32_t GetSegmentWinding(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                      const TEntityCoordinate& aPoint, double aTolerance) {
  const TLevels levels(aTolerance);
  const double startRise = aStart.y - aPoint.y;
  const double endRise = aEnd.y - aPoint.y;
  const bool goesUp = levels.IsBelow(startRise) && levels.IsAbove(endRise);
  const bool goesDown = levels.IsAbove(startRise) && levels.IsBelow(endRise);
  return goesUp || goesDown ? GetCrossingWinding(goesUp, aStart, aEnd, aPoint) : 0;
}

inline constexpr std::size_t kMostVerticesAtOnce = 32;

/// The sum along a polyline. Which segments pass the point's height is found out for all of them first, without a
/// branch for each. REQUIRES: no more than kMostVerticesAtOnce vertices.
inline std::int32_t GetPolylineWinding(std::span<const TEntityCoordinate> aVertices, const TEntityCoordinate& aPoint,
                                       double aTolerance) {
  const TLevels levels(aTolerance);
  std::uint32_t below = 0;  // a bit for each vertex
  std::uint32_t above = 0;
  for (std::size_t k = 0; k < aVertices.size(); ++k) {
    const double rise = aVertices[k].y - aPoint.y;
    below |= static_cast<std::uint32_t>(levels.IsBelow(rise)) << k;
    above |= static_cast<std::uint32_t>(levels.IsAbove(rise)) << k;
  }
  const std::uint32_t upwards = below & (above >> 1U);  // a bit for each segment, that of its start
  const std::uint32_t downwards = above & (below >> 1U);
  std::int32_t winding = 0;
  for (std::uint32_t crossing = upwards | downwards; crossing != 0; crossing &= crossing - 1) {
    const auto k = static_cast<std::size_t>(std::countr_zero(crossing));
    const bool goesUp = (upwards >> k & 1U) != 0;
    winding += GetCrossingWinding(goesUp, aVertices[k], aVertices[k + 1], aPoint);
  }
  return winding;
}

}  // namespace GeometryEngine::detail

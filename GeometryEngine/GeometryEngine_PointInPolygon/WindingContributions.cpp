#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"

namespace GeometryEngine {

namespace {

constexpr double kChordTolerance = 0.01;  // drawing length units between chord and arc

/// A height that counts as below the point: less than the point's own or the same as it.
bool IsBelowOrLevel(double aHeight, double aPointHeight) {
  return aPointHeight > aHeight || ValuesSame_DXFTolerance(aHeight, aPointHeight);
}

bool IsClearlyAbove(double aHeight, double aPointHeight) {
  return aHeight > aPointHeight && !ValuesSame_DXFTolerance(aHeight, aPointHeight);
}

std::int32_t GetWindingNumber_Arc(const TDXFEntity& aArc, const TEntityCoordinate& aStart,
                                  const TEntityCoordinate& aPoint) {
  const double startAngle = GetEntityStartAngle_Arc(aStart, aArc);
  const TTravelDirection direction = GetArcTravelDirection(startAngle, aArc);
  const auto [count, step] = GetArcSegmentPoints_Surf(aArc, kChordTolerance);
  std::int32_t sum = 0;
  TEntityCoordinate from = GetArc_LineSegmentCoord(aArc, 0, direction, startAngle, step);
  for (std::int32_t i = 0; i < count; ++i) {
    const TEntityCoordinate to = GetArc_LineSegmentCoord(aArc, i + 1, direction, startAngle, step);
    sum += DetermineInterceptResult(from, to, aPoint);
    from = to;
  }
  return sum;
}

}  // namespace

std::int32_t GetWindingNumber_Entity_Addition(const TDXFEntity& aEntity, const TEntityCoordinate& aStart,
                                              const TEntityCoordinate& aEnd, const TEntityCoordinate& aPoint) {
  if (aEntity.EntityType == DXFLine) return DetermineInterceptResult(aStart, aEnd, aPoint);
  if (aEntity.EntityType == DXFArc) return GetWindingNumber_Arc(aEntity, aStart, aPoint);
  return 0;
}

// KEPT: going up, only a point strictly to the left counts; going down, a point on the segment's line counts like one
// to the right. A point on an edge is so outside an anticlockwise chain and inside a clockwise one, on either side of
// it.
std::int32_t DetermineInterceptResult(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                      const TEntityCoordinate& aPoint) {
  if (IsBelowOrLevel(aStart.y, aPoint.y) && IsClearlyAbove(aEnd.y, aPoint.y))
    return IsPointLeft_Line(aPoint, aStart, aEnd) > 0 ? 1 : 0;
  if (IsClearlyAbove(aStart.y, aPoint.y) && IsBelowOrLevel(aEnd.y, aPoint.y))
    return IsPointLeft_Line(aPoint, aStart, aEnd) <= 0 ? -1 : 0;
  return 0;
}

}  // namespace GeometryEngine

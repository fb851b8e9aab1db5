// Where two entities meet: every point lies on both, whatever the order and the direction of the pair.

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "tests/properties/RandomChains.h"
#include "tests/support/Settings.h"

namespace GeometryEngine::properties {
namespace {

constexpr double kTolerance = 1e-4;  // the starting value of the linear tolerance

TDXFEntity AnyLine() {
  return CreateEntity_Line(*Between(-10, 10), *Between(-10, 10), *Between(-10, 10), *Between(-10, 10));
}

TDXFEntity AnyArc() {
  const double start = *Between(0, 360);
  return CreateEntity_Arc(*Between(-10, 10), *Between(-10, 10), *Between(0.5, 15), start, start + *Between(1, 180));
}

TDXFEntity ReversedLine(const TDXFEntity& aLine) {
  return TDXFEntity::Line(aLine.EndCoords, aLine.StartCoords);
}

double DistanceTo(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint) {
  if (aEntity.EntityType == DXFLine) return PointToSegmentDistance(aPoint, aEntity.StartCoords, aEntity.EndCoords);
  const TEntityCoordinate d = aPoint - aEntity.CentreCoords;
  return std::abs(std::hypot(d.x, d.y) - aEntity.radius);
}

/// Sorted by x, then y, so that two answers can be compared whatever their order.
TCoordinateArray Meetings(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B) {
  TInterceptionPoints points;
  const bool met = CheckIntercepts(aEntity_A, aEntity_B, points);
  RC_ASSERT(met == !points.IsEmpty());
  TCoordinateArray sorted = points.Points();
  std::sort(sorted.begin(), sorted.end(), [](const TEntityCoordinate& a, const TEntityCoordinate& b) {
    return a.x < b.x || (a.x == b.x && a.y < b.y);
  });
  return sorted;
}

void AssertOnBoth(const TCoordinateArray& aPoints, const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B) {
  for (const TEntityCoordinate& point : aPoints) {
    RC_ASSERT(DistanceTo(aEntity_A, point) <= 2 * kTolerance);
    RC_ASSERT(DistanceTo(aEntity_B, point) <= 2 * kTolerance);
  }
}

void AssertSame(const TCoordinateArray& aLeft, const TCoordinateArray& aRight) {
  RC_ASSERT(aLeft.size() == aRight.size());
  for (std::size_t i = 0; i < aLeft.size(); ++i) {
    RC_ASSERT(std::abs(aLeft[i].x - aRight[i].x) <= 2 * kTolerance);
    RC_ASSERT(std::abs(aLeft[i].y - aRight[i].y) <= 2 * kTolerance);
  }
}

// A vertical line is held against its own extent alone (see CheckLineLineInterceptions), and only a second line beyond
// the right end of the first is turned away: pairs here are neither vertical nor apart in x, as the sweep hands them.
bool OverlapInX(const TDXFEntity& aLine_A, const TDXFEntity& aLine_B) {
  const auto [lowA, highA] = std::minmax(aLine_A.StartCoords.x, aLine_A.EndCoords.x);
  const auto [lowB, highB] = std::minmax(aLine_B.StartCoords.x, aLine_B.EndCoords.x);
  return highA - lowA > 0.01 && highB - lowB > 0.01 && lowA <= highB && lowB <= highA;
}

RC_GTEST_PROP(Meetings, OfTwoLinesLieOnBothInEveryOrderAndDirection, ()) {
  const support::TSettingsGuard settings;
  const TDXFEntity a = AnyLine();
  const TDXFEntity b = AnyLine();
  RC_PRE(OverlapInX(a, b));
  const TCoordinateArray points = Meetings(a, b);
  AssertOnBoth(points, a, b);
  AssertSame(points, Meetings(b, a));
  AssertSame(points, Meetings(ReversedLine(a), b));
  AssertSame(points, Meetings(b, ReversedLine(a)));
}

RC_GTEST_PROP(Meetings, OfALineAndAnArcLieOnBothInEveryOrderAndDirection, ()) {
  const support::TSettingsGuard settings;
  const TDXFEntity line = AnyLine();
  const TDXFEntity arc = AnyArc();
  RC_PRE(std::abs(line.EndCoords.x - line.StartCoords.x) > 0.01);
  const TCoordinateArray points = Meetings(line, arc);
  AssertOnBoth(points, line, arc);
  AssertSame(points, Meetings(arc, line));
  AssertSame(points, Meetings(ReversedLine(line), arc));
}

// Crossings of arcs whose centres are at one height are not found, by design: see
// CheckArcArcInterceptions.CentresAtEqualHeight... for that limit; random centres are never at one height.
RC_GTEST_PROP(Meetings, OfTwoArcsLieOnBothInEveryOrder, ()) {
  const support::TSettingsGuard settings;
  const TDXFEntity a = AnyArc();
  const TDXFEntity b = AnyArc();
  RC_PRE(std::abs(a.CentreCoords.y - b.CentreCoords.y) > 0.01);
  const TCoordinateArray points = Meetings(a, b);
  AssertOnBoth(points, a, b);
  AssertSame(points, Meetings(b, a));
}

}  // namespace
}  // namespace GeometryEngine::properties

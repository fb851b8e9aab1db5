#include <algorithm>
#include <cmath>

#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/Candidates.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/CircleTouching.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "GeometryEngine/GeometryFuncts/detail/CoordinateDistance.h"

namespace GeometryEngine {

namespace {

constexpr double kDiscriminantTolerance = 1e-9;  // drawing length units squared, inclusive

bool AddIfTouchingBoth(const TDXFEntity& A, const TDXFEntity& B, const TEntityCoordinate& aPoint,
                       TInterceptionPoints& aPoints) {
  return detail::AddIfAccepted(PointTouchingArc(A, aPoint) && PointTouchingArc(B, aPoint), aPoint, aPoints);
}

/// Crossings of two circles with centres at one height. The centres agree here within the tolerance: when they agree
/// to the bit, the division by zero leaves nothing that touches an arc.
bool AddCrossings_EqualHeight(const TDXFEntity& A, const TDXFEntity& B, TInterceptionPoints& aPoints) {
  const auto [xA, yA] = A.CentreCoords;
  const auto [xB, yB] = B.CentreCoords;
  const double x = (xA * xA - xB * xB - A.radius * A.radius + B.radius * B.radius) / (2 * (xA - xB));
  const double root = std::sqrt(A.radius * A.radius - (x - xA) * (x - xA));
  const bool isFirst = AddIfTouchingBoth(A, B, {x, yB + root}, aPoints);
  if (yB + root == 0) return isFirst;
  const bool isSecond = AddIfTouchingBoth(A, B, {x, yB - root}, aPoints);
  return isFirst || isSecond;
}

bool AddTouchings(const TDXFEntity& A, const TDXFEntity& B, const TEntityCoordinate& aFrom,
                  const TEntityCoordinate& aTo, TInterceptionPoints& aPoints) {
  CheckLineArcInterceptions(A, CreateEntity_Line(aFrom, aTo), aPoints);
  // KEPT: the filter and the answer take in the whole list, points of earlier calls included; a caller clears it first.
  aPoints.RemoveNotTouching(B);
  return !aPoints.IsEmpty();
}

bool AddTouchings_Outer(const TDXFEntity& A, const TDXFEntity& B, TInterceptionPoints& aPoints) {
  return AddTouchings(A, B, A.CentreCoords, B.CentreCoords, aPoints);
}

bool AddTouchings_Inner(const TDXFEntity& A, const TDXFEntity& B, double aDistance, TInterceptionPoints& aPoints) {
  const TEntityCoordinate direction = (B.CentreCoords - A.CentreCoords) / aDistance;
  const TEntityCoordinate reach = std::max(A.radius, B.radius) * direction;
  return AddTouchings(A, B, A.CentreCoords - reach, B.CentreCoords + reach, aPoints);
}

/// The common chord y = m x + y0 put into A's circle.
// KEPT: centres at one height are not treated apart: the chord is upright, the division by zero leaves no candidate,
// and a caller may rely on such a pair meeting only where the circles touch or share an end.
bool AddCrossings(const TDXFEntity& A, const TDXFEntity& B, TInterceptionPoints& aPoints) {
  const auto [x1, y1] = A.CentreCoords;
  const auto [x2, y2] = B.CentreCoords;
  const double rA = A.radius;
  const double rB = B.radius;
  const double m = (x1 - x2) / (y2 - y1);
  const double y0 = (rA * rA - rB * rB - x1 * x1 + x2 * x2 - y1 * y1 + y2 * y2) / (2 * (y2 - y1));
  const double b = 2 * (m * y0 - x1 - m * y1);
  const double q = x1 * x1 + y0 * y0 - 2 * y0 * y1 + y1 * y1 - rA * rA;
  const detail::TQuadratic quadratic(m * m + 1, b, q);
  const auto add = [&](double x) { return AddIfTouchingBoth(A, B, {x, m * x + y0}, aPoints); };
  if (quadratic.D < -kDiscriminantTolerance) return false;
  if (quadratic.HasDoubleRoot(kDiscriminantTolerance)) return add(quadratic.DoubleRoot());
  const bool isFirst = add(quadratic.FirstRoot());
  const bool isSecond = add(quadratic.SecondRoot());
  return isFirst || isSecond;
}

bool AddMeetings(const TDXFEntity& A, const TDXFEntity& B, TInterceptionPoints& aPoints) {
  const TEntityCoordinate& centre_A = A.CentreCoords;
  const TEntityCoordinate& centre_B = B.CentreCoords;
  if (centre_A == centre_B)
    return A.radius == B.radius ? detail::AddOverlapEnds(A, B, PointTouchingArc, aPoints)
                                : AddCrossings_EqualHeight(A, B, aPoints);
  const double distance = detail::GetDistance(centre_A, centre_B);
  switch (detail::GetCircleTouching(A, B, distance)) {
    case detail::TCircleTouching::kOuter:
      return AddTouchings_Outer(A, B, aPoints);
    case detail::TCircleTouching::kInner:
      return AddTouchings_Inner(A, B, distance, aPoints);
    case detail::TCircleTouching::kNone:
      break;
  }
  return AddCrossings(A, B, aPoints);
}

}  // namespace

bool CheckArcArcInterceptions(const TDXFEntity& aArc_A, const TDXFEntity& aArc_B, TInterceptionPoints& aPoints) {
  const bool isMet = AddMeetings(aArc_A, aArc_B, aPoints);
  const bool areEndsShared = detail::AddSharedEnds(aArc_A, aArc_B, aPoints);
  return isMet || areEndsShared;
}

}  // namespace GeometryEngine

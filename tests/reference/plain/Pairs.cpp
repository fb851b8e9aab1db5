#include "tests/reference/plain/Pairs.h"

#include <algorithm>
#include <cmath>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/host/Numerics.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

namespace {

using TPointTest = bool (*)(const TDXFEntity&, const TEntityCoordinate&);

bool AddIf(bool aIsAccepted, const TEntityCoordinate& aPoint, TCoordinateArray& aPoints) {
  const auto isSame = [&](const TEntityCoordinate& aListed) { return Same(aListed, aPoint); };
  if (aIsAccepted && std::ranges::none_of(aPoints, isSame)) aPoints.push_back(aPoint);
  return aIsAccepted;
}

bool AddEndsOn(const TDXFEntity& aEnds, const TDXFEntity& aOther, TPointTest aIsOn, TCoordinateArray& aPoints) {
  const bool isStartOn = AddIf(aIsOn(aOther, aEnds.StartCoords), aEnds.StartCoords, aPoints);
  const bool isEndOn = AddIf(aIsOn(aOther, aEnds.EndCoords), aEnds.EndCoords, aPoints);
  return isStartOn || isEndOn;
}

bool AddOverlapEnds(const TDXFEntity& A, const TDXFEntity& B, TPointTest aIsOn, TCoordinateArray& aPoints) {
  const bool areEndsOfB = AddEndsOn(B, A, aIsOn, aPoints);
  const bool areEndsOfA = AddEndsOn(A, B, aIsOn, aPoints);
  return areEndsOfB || areEndsOfA;
}

bool IsVertical(const TDXFEntity& aLine) {
  return std::abs(aLine.StartCoords.x - aLine.EndCoords.x) <= Plain::GetLinearTolerance();
}

TLinearEquation Equation(const TDXFEntity& aLine) {
  if (IsVertical(aLine)) return {};
  return GetLinearEquation(aLine.StartCoords.x, aLine.StartCoords.y, aLine.EndCoords.x, aLine.EndCoords.y);
}

double Left(const TDXFEntity& aLine) {
  return std::min(aLine.StartCoords.x, aLine.EndCoords.x);
}

double Right(const TDXFEntity& aLine) {
  return std::max(aLine.StartCoords.x, aLine.EndCoords.x);
}

// Two lines ----------------------------------------------------------------------------------------------------------

bool AddCrossing_Vertical(const TDXFEntity& aVertical, const TDXFEntity& aSloped, TCoordinateArray& aPoints) {
  const auto [slope, intercept] = Equation(aSloped);
  const double x = aVertical.StartCoords.x;
  const TEntityCoordinate point{x, slope * x + intercept};
  return AddIf(Plain::PointOnLine(aVertical, point), point, aPoints);
}

bool AddCrossing_Sloped(const TDXFEntity& A, const TDXFEntity& B, TCoordinateArray& aPoints) {
  const TLinearEquation a = Equation(A);
  const TLinearEquation b = Equation(B);
  const double x = (b.aIntercept - a.aIntercept) / (a.aSlope - b.aSlope);
  if (ValueLessThan_DXFTolerance(x, std::max(Left(A), Left(B)))) return false;
  if (ValueMoreThan_DXFTolerance(x, std::min(Right(A), Right(B)))) return false;
  const TEntityCoordinate point{x, a.aSlope * x + a.aIntercept};
  return AddIf(Plain::PointOnLine(A, point) && Plain::PointOnLine(B, point), point, aPoints);
}

bool CheckLines(const TDXFEntity& A, const TDXFEntity& B, TCoordinateArray& aPoints) {
  if (Left(B) > Right(A)) return false;
  if (IsVertical(A) != IsVertical(B))
    return IsVertical(A) ? AddCrossing_Vertical(A, B, aPoints) : AddCrossing_Vertical(B, A, aPoints);
  if (std::abs(Equation(A).aSlope - Equation(B).aSlope) > 1e-6) return AddCrossing_Sloped(A, B, aPoints);
  return AddOverlapEnds(A, B, Plain::PointOnLine, aPoints);
}

// A line and an arc --------------------------------------------------------------------------------------------------

/// a x^2 + b x + q = 0, the root with the added square root first; one root twice when the discriminant is 0 within the
/// tolerance.
struct TQuadratic {
  double a, b, q;
  double D() const { return b * b - 4 * a * q; }
  bool IsDouble(double aTolerance) const { return std::abs(D()) <= aTolerance; }
  double Root(double aSign) const {
    return aSign > 0 ? (-b + std::sqrt(D())) / (2 * a) : (-b - std::sqrt(D())) / (2 * a);
  }
  double Root(double aSign, double aTolerance) const { return IsDouble(aTolerance) ? -b / (2 * a) : Root(aSign); }
};

TEntityCoordinate CircleCandidate(const TDXFEntity& aLine, const TDXFEntity& aArc, double aSign) {
  constexpr double kTangentDiscriminant = 0.001;
  const auto [xc, yc] = aArc.CentreCoords;
  const double r = aArc.radius;
  if (IsVertical(aLine)) {
    const double x = Left(aLine);
    return {x,
            TQuadratic{1, -2 * yc, yc * yc - r * r + xc * xc - 2 * x * xc + x * x}.Root(aSign, kTangentDiscriminant)};
  }
  const auto [m, c] = Equation(aLine);
  const TQuadratic crossing{m * m + 1, 2 * (m * c - m * yc - xc), yc * yc - r * r + xc * xc - 2 * c * yc + c * c};
  const double x = crossing.Root(aSign, kTangentDiscriminant);
  return {x, m * x + c};
}

bool IsDirectionOnArc(double a, const TDXFEntity& aArc) {
  const double s = GetAngleInRange(aArc.startAngle, 0, 360);
  const double e = GetAngleInRange(aArc.endAngle, 0, 360);
  const bool isFromStart = a > s || ValuesSame_DXFAngle(a, s);
  if (!(s > e)) return isFromStart && (!(a > e) || ValuesSame_DXFAngle(a, e));
  if (isFromStart && (a < 360 || ValuesSame_DXFAngle(s, 360))) return true;
  return (a > 0 || ValuesSame_DXFAngle(a, 0)) && (a < e || ValuesSame_DXFAngle(a, e));
}

bool IsOnLineAndArc(const TEntityCoordinate& aPoint, const TDXFEntity& aLine, const TDXFEntity& aArc) {
  if (ValueLessThan_DXFTolerance(aPoint.x, Left(aLine)) || ValueMoreThan_DXFTolerance(aPoint.x, Right(aLine)))
    return false;
  if (!Plain::PointOnLine(aLine, aPoint)) return false;
  const TEntityCoordinate offset = aPoint - aArc.CentreCoords;
  return IsDirectionOnArc(GetAngleInRange(ArcTan2(offset.y, offset.x) * kDegreesPerRadian, 0, 360), aArc);
}

bool CheckLineAndArc(const TDXFEntity& A, const TDXFEntity& B, TCoordinateArray& aPoints) {
  bool isMet = AddEndsOn(A, B, Plain::IsEntityEnd, aPoints);
  const bool isLineFirst = A.EntityType == DXFLine && B.EntityType == DXFArc;
  const TDXFEntity& line = isLineFirst ? A : B;
  const TDXFEntity& arc = isLineFirst ? B : A;
  for (const double sign : {1.0, -1.0}) {
    const TEntityCoordinate point = CircleCandidate(line, arc, sign);
    if (AddIf(IsOnLineAndArc(point, line, arc), point, aPoints)) isMet = true;
  }
  return isMet;
}

// Two arcs -----------------------------------------------------------------------------------------------------------

bool AddIfTouchingBoth(const TDXFEntity& A, const TDXFEntity& B, const TEntityCoordinate& aPoint,
                       TCoordinateArray& aPoints) {
  return AddIf(Plain::PointTouchingArc(A, aPoint) && Plain::PointTouchingArc(B, aPoint), aPoint, aPoints);
}

bool AddCrossings_SameCentre(const TDXFEntity& A, const TDXFEntity& B, TCoordinateArray& aPoints) {
  const double xA = A.CentreCoords.x;
  const double xB = B.CentreCoords.x;
  const double yB = B.CentreCoords.y;
  const double x = (xA * xA - xB * xB - A.radius * A.radius + B.radius * B.radius) / (2 * (xA - xB));
  const double root = std::sqrt(A.radius * A.radius - (x - xA) * (x - xA));
  const bool isFirst = AddIfTouchingBoth(A, B, {x, yB + root}, aPoints);
  if (yB + root == 0) return isFirst;
  const bool isSecond = AddIfTouchingBoth(A, B, {x, yB - root}, aPoints);
  return isFirst || isSecond;
}

bool AddTouchings(const TDXFEntity& A, const TDXFEntity& B, const TEntityCoordinate& aFrom,
                  const TEntityCoordinate& aTo, TCoordinateArray& aPoints) {
  CheckLineAndArc(A, CreateEntity_Line(aFrom, aTo), aPoints);
  std::erase_if(aPoints, [&](const TEntityCoordinate& aPoint) { return !Plain::PointTouchingArc(B, aPoint); });
  return !aPoints.empty();
}

bool AddCrossings(const TDXFEntity& A, const TDXFEntity& B, TCoordinateArray& aPoints) {
  constexpr double kDiscriminantTolerance = 1e-9;
  const auto [x1, y1] = A.CentreCoords;
  const auto [x2, y2] = B.CentreCoords;
  const double rA = A.radius;
  const double rB = B.radius;
  const double m = (x1 - x2) / (y2 - y1);
  const double y0 = (rA * rA - rB * rB - x1 * x1 + x2 * x2 - y1 * y1 + y2 * y2) / (2 * (y2 - y1));
  const TQuadratic crossing{m * m + 1, 2 * (m * y0 - x1 - m * y1), x1 * x1 + y0 * y0 - 2 * y0 * y1 + y1 * y1 - rA * rA};
  if (crossing.D() < -kDiscriminantTolerance) return false;
  const auto add = [&](double x) { return AddIfTouchingBoth(A, B, {x, m * x + y0}, aPoints); };
  const bool isFirst = add(crossing.Root(1, kDiscriminantTolerance));
  if (crossing.IsDouble(kDiscriminantTolerance)) return isFirst;
  const bool isSecond = add(crossing.Root(-1));
  return isFirst || isSecond;
}

bool AddMeetings(const TDXFEntity& A, const TDXFEntity& B, TCoordinateArray& aPoints) {
  const TEntityCoordinate& from = A.CentreCoords;
  const TEntityCoordinate& to = B.CentreCoords;
  if (Same(from, to))
    return A.radius == B.radius ? AddOverlapEnds(A, B, Plain::PointTouchingArc, aPoints)
                                : AddCrossings_SameCentre(A, B, aPoints);
  const double distance = GetDistanceBetweenCoords(from.x, from.y, to.x, to.y);
  const double tolerance = Plain::GetLinearTolerance();
  if (std::abs(A.radius + B.radius - distance) <= tolerance) return AddTouchings(A, B, from, to, aPoints);
  if (!(std::abs(std::abs(A.radius - B.radius) - distance) <= tolerance)) return AddCrossings(A, B, aPoints);
  const TEntityCoordinate reach = std::max(A.radius, B.radius) * ((to - from) / distance);
  return AddTouchings(A, B, from - reach, to + reach, aPoints);
}

bool CheckArcs(const TDXFEntity& A, const TDXFEntity& B, TCoordinateArray& aPoints) {
  const bool isMet = AddMeetings(A, B, aPoints);
  const bool areEndsShared = AddEndsOn(A, B, Plain::IsEntityEnd, aPoints);
  return isMet || areEndsShared;
}

double SnapOffset(double aOffset) {
  return ValuesSame_DXFTolerance(aOffset, 0) ? 0 : aOffset;
}

}  // namespace

bool CheckIntercepts(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TCoordinateArray& aPoints) {
  const auto isLineOrArc = [](const TDXFEntity& aEntity) {
    return aEntity.EntityType == DXFLine || aEntity.EntityType == DXFArc;
  };
  if (!isLineOrArc(aEntity_A) || !isLineOrArc(aEntity_B)) return false;
  if (aEntity_A.EntityType != aEntity_B.EntityType) return CheckLineAndArc(aEntity_A, aEntity_B, aPoints);
  return aEntity_A.EntityType == DXFLine ? CheckLines(aEntity_A, aEntity_B, aPoints)
                                         : CheckArcs(aEntity_A, aEntity_B, aPoints);
}

double GetArcInterceptAngle(const TEntityCoordinate& aPoint, const TDXFEntity& aArc, double aStartValue,
                            double aEndValue) {
  if (Same(aPoint, aArc.StartCoords)) return aStartValue;
  if (Same(aPoint, aArc.EndCoords)) return aEndValue;
  const double dy = SnapOffset(aPoint.y - aArc.CentreCoords.y);
  const double dx = SnapOffset(aPoint.x - aArc.CentreCoords.x);
  return GetAngleInRange(ArcTan2(dy, dx) * kDegreesPerRadian, 0, 360);
}

}  // namespace GeometryEngine::Plain

#include <algorithm>
#include <cmath>
#include <limits>

#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/VerticalLine.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/AngleOnArc.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/Candidates.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

// KEPT: one bound for lines of every slope m, though the discriminant grows with m * m + 1: whether a line that passes
// an arc at less than the tolerance touches it depends on its direction. Drawings are settled by this number.
constexpr double kTangentDiscriminant = 0.001;  // drawing length units squared, inclusive

struct TRootPair {
  double first = 0;
  double second = 0;
};

struct TCandidatePair {
  TEntityCoordinate first;
  TEntityCoordinate second;
};

/// A line that misses the circle has roots that are not numbers; the acceptance tests turn them away.
TRootPair GetRoots(const detail::TQuadratic& aQuadratic) {
  constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
  if (aQuadratic.HasDoubleRoot(kTangentDiscriminant)) return {aQuadratic.DoubleRoot(), aQuadratic.DoubleRoot()};
  if (aQuadratic.D < 0) return {kNotANumber, kNotANumber};
  return {aQuadratic.FirstRoot(), aQuadratic.SecondRoot()};
}

TCandidatePair GetCandidates_Sloped(const TDXFEntity& aLine, const TDXFEntity& aArc) {
  const auto [m, c] =
      GetLinearEquation_DXFTolerance(aLine.StartCoords.x, aLine.StartCoords.y, aLine.EndCoords.x, aLine.EndCoords.y);
  const auto [xc, yc] = aArc.CentreCoords;
  const double r = aArc.radius;
  const double b = 2 * (m * c - m * yc - xc);
  const double q = yc * yc - r * r + xc * xc - 2 * c * yc + c * c;
  const TRootPair x = GetRoots({m * m + 1, b, q});
  return {{x.first, m * x.first + c}, {x.second, m * x.second + c}};
}

TCandidatePair GetCandidates_Vertical(double x, const TDXFEntity& aArc) {
  const auto [xc, yc] = aArc.CentreCoords;
  const double r = aArc.radius;
  const double q = yc * yc - r * r + xc * xc - 2 * x * xc + x * x;
  const TRootPair y = GetRoots({1, -2 * yc, q});
  return {{x, y.first}, {x, y.second}};
}

bool IsOnLineAndArc(const TEntityCoordinate& aPoint, const TDXFEntity& aLine, const TDXFEntity& aArc) {
  if (std::isnan(aPoint.y)) return false;  // the line misses the circle
  const double tolerance = detail::ReadLinearTolerance();
  const auto [minX, maxX] = std::minmax(aLine.StartCoords.x, aLine.EndCoords.x);
  if (aPoint.x < minX && !detail::AreSame(aPoint.x, minX, tolerance)) return false;
  if (aPoint.x > maxX && !detail::AreSame(aPoint.x, maxX, tolerance)) return false;
  if (!PointOnLine(aLine, aPoint)) return false;
  const TEntityCoordinate offset = aPoint - aArc.CentreCoords;
  const double angle = GetAngleInRange(ArcTan2(offset.y, offset.x) * kDegreesPerRadian, 0, kFullTurn);
  return detail::IsAngleOnArc(angle, detail::GetArcAngles(aArc));
}

bool AddCrossings(const TDXFEntity& aLine, const TDXFEntity& aArc, TInterceptionPoints& aPoints) {
  const auto [first, second] = GetIfVerticalLine(aLine)
                                   ? GetCandidates_Vertical(std::min(aLine.StartCoords.x, aLine.EndCoords.x), aArc)
                                   : GetCandidates_Sloped(aLine, aArc);
  const bool isFirst = detail::AddIfAccepted(IsOnLineAndArc(first, aLine, aArc), first, aPoints);
  const bool isSame = second.x == first.x && second.y == first.y;  // a line that touches the circle
  const bool isSecondOn = isSame ? isFirst : IsOnLineAndArc(second, aLine, aArc);
  const bool isSecond = detail::AddIfAccepted(isSecondOn, second, aPoints);
  return isFirst || isSecond;
}

}  // namespace

bool CheckLineArcInterceptions(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TInterceptionPoints& aPoints) {
  const bool areEndsShared = detail::AddSharedEnds(aEntity_A, aEntity_B, aPoints);
  const bool isLineFirst = aEntity_A.EntityType == DXFLine && aEntity_B.EntityType == DXFArc;
  const bool isCrossed =
      isLineFirst ? AddCrossings(aEntity_A, aEntity_B, aPoints) : AddCrossings(aEntity_B, aEntity_A, aPoints);
  return areEndsShared || isCrossed;
}

}  // namespace GeometryEngine

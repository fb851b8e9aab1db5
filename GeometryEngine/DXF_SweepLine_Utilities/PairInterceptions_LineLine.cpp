#include <algorithm>
#include <cmath>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/VerticalLine.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/Candidates.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

constexpr double kSlopeTolerance = 1e-6;  // slopes that differ by no more are parallel, a plain number

/// A line as the crossing sees it: its extent along x and y = m x + c, with m = c = 0 for a vertical one.
struct TLineForm {
  explicit TLineForm(const TDXFEntity& aLine)
      : line(aLine),
        isVertical(GetIfVerticalLine(aLine)),
        minX(std::min(aLine.StartCoords.x, aLine.EndCoords.x)),
        maxX(std::max(aLine.StartCoords.x, aLine.EndCoords.x)) {
    if (!isVertical)
      equation = GetLinearEquation_DXFTolerance(aLine.StartCoords.x, aLine.StartCoords.y, aLine.EndCoords.x,
                                                aLine.EndCoords.y);
  }
  TEntityCoordinate GetPoint(double x) const { return {x, equation.aSlope * x + equation.aIntercept}; }

  const TDXFEntity& line;
  bool isVertical;
  double minX;
  double maxX;
  TLinearEquation equation;
};

bool IsBeyondRightEnd(const TDXFEntity& A, const TDXFEntity& B) {
  return std::min(B.StartCoords.x, B.EndCoords.x) > std::max(A.StartCoords.x, A.EndCoords.x);
}

bool AddCrossing_Vertical(const TLineForm& aVertical, const TLineForm& aSloped, TInterceptionPoints& aPoints) {
  const TEntityCoordinate point = aSloped.GetPoint(aVertical.line.StartCoords.x);
  // KEPT: the point is held against the vertical line's extent alone; the sweep has bounded it by the other's already.
  return detail::AddIfAccepted(PointOnLine(aVertical.line, point), point, aPoints);
}

bool AddCrossing_Sloped(const TLineForm& A, const TLineForm& B, TInterceptionPoints& aPoints) {
  const double x = (B.equation.aIntercept - A.equation.aIntercept) / (A.equation.aSlope - B.equation.aSlope);
  if (ValueLessThan_DXFTolerance(x, std::max(A.minX, B.minX))) return false;
  if (ValueMoreThan_DXFTolerance(x, std::min(A.maxX, B.maxX))) return false;
  const TEntityCoordinate point = A.GetPoint(x);
  return detail::AddIfAccepted(PointOnLine(A.line, point) && PointOnLine(B.line, point), point, aPoints);
}

}  // namespace

bool CheckLineLineInterceptions(const TDXFEntity& aLine_A, const TDXFEntity& aLine_B, TInterceptionPoints& aPoints) {
  // KEPT: only a B beyond the right end of A is turned away here; the sweep sees to the other side.
  if (IsBeyondRightEnd(aLine_A, aLine_B)) return false;
  const TLineForm A(aLine_A);
  const TLineForm B(aLine_B);
  if (A.isVertical != B.isVertical)
    return A.isVertical ? AddCrossing_Vertical(A, B, aPoints) : AddCrossing_Vertical(B, A, aPoints);
  if (std::abs(A.equation.aSlope - B.equation.aSlope) > kSlopeTolerance) return AddCrossing_Sloped(A, B, aPoints);
  return detail::AddOverlapEnds(aLine_A, aLine_B, PointOnLine, aPoints);
}

}  // namespace GeometryEngine

#include "GeometryEngine/DXF_Regions_Detection/detail/PointOrder.h"

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

namespace {

double GetSortAngle(double aAngle) {
  return ValuesSame_DXFAngle(aAngle, 0) ? 0 : GetAngleInRange(aAngle, 0, kFullTurn);
}

}  // namespace

// KEPT: on a steep line that falls the points within a tolerance of one another in x stand in the wrong order; the
// order of all points is settled by x, the direction in which hosts read them.
bool ComesBefore_Line(const TEntityCoordinate& aPoint, const TEntityCoordinate& aListed) {
  return ValueMoreThan_DXFTolerance(aPoint.x, aListed.x) ||
         (ValuesSame_DXFTolerance(aPoint.x, aListed.x) && aPoint.y > aListed.y);
}

TArcOrder::TArcOrder(const TDXFEntity& aArc)
    : fArc(aArc), fStart(GetSortAngle(aArc.startAngle)), fEnd(GetSortAngle(aArc.endAngle)) {}

double TArcOrder::GetAngle(const TEntityCoordinate& aPoint) const {
  const double angle = GetArcInterceptAngle(aPoint, fArc, fStart, fEnd);
  const bool beyondZero = fStart > fEnd && (fEnd > angle || ValuesSame_DXFAngle(angle, fEnd));
  return beyondZero ? angle + kFullTurn : angle;
}

}  // namespace GeometryEngine::detail

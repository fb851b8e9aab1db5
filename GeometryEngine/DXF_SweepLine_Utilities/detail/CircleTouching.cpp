#include "GeometryEngine/DXF_SweepLine_Utilities/detail/CircleTouching.h"

#include <cmath>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/GeometryFuncts/detail/CoordinateDistance.h"

namespace GeometryEngine::detail {

TCircleTouching GetCircleTouching(const TDXFEntity& aArc_A, const TDXFEntity& aArc_B, double aDistance) {
  const double tolerance = GetLinearTolerance();
  if (std::abs(aArc_A.radius + aArc_B.radius - aDistance) <= tolerance) return TCircleTouching::kOuter;
  if (std::abs(std::abs(aArc_A.radius - aArc_B.radius) - aDistance) <= tolerance) return TCircleTouching::kInner;
  return TCircleTouching::kNone;
}

bool AreCirclesTouching(const TDXFEntity& aArc_A, const TDXFEntity& aArc_B) {
  if (aArc_A.CentreCoords == aArc_B.CentreCoords) return false;
  const double distance = GetDistance(aArc_A.CentreCoords, aArc_B.CentreCoords);
  return GetCircleTouching(aArc_A, aArc_B, distance) != TCircleTouching::kNone;
}

}  // namespace GeometryEngine::detail

#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"

#include <cmath>

#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

TEntityCoordinate GetCirclePoint(const TEntityCoordinate& aCentre, double aRadius, double aAngle) {
  const double radians = aAngle * kRadiansPerDegree;
  return {aCentre.x + aRadius * std::cos(radians), aCentre.y + aRadius * std::sin(radians)};
}

}  // namespace GeometryEngine::detail

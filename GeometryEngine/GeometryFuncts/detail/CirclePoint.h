#pragma once

#include <cmath>

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

/// The point of a circle in the direction `aAngle` (degrees) from its centre.
inline TEntityCoordinate GetCirclePoint(const TEntityCoordinate& aCentre, double aRadius, double aAngle) {
  const double radians = aAngle * kRadiansPerDegree;
  return {aCentre.x + aRadius * std::cos(radians), aCentre.y + aRadius * std::sin(radians)};
}

}  // namespace GeometryEngine::detail

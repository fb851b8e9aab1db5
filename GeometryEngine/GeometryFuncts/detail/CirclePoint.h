#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

/// The point of a circle in a direction from its centre.
inline TEntityCoordinate GetCirclePoint(const TEntityCoordinate& aCentre, double aRadius,
                                        const TSineCosine& aDirection) {
  return {aCentre.x + aRadius * aDirection.fCosine, aCentre.y + aRadius * aDirection.fSine};
}

/// The same in the direction `aAngle` (degrees).
inline TEntityCoordinate GetCirclePoint(const TEntityCoordinate& aCentre, double aRadius, double aAngle) {
  return GetCirclePoint(aCentre, aRadius, GetSineCosine(aAngle * kRadiansPerDegree));
}

}  // namespace GeometryEngine::detail

#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

namespace GeometryEngine::detail {

/// The point of a circle in the direction `aAngle` (degrees) from its centre.
TEntityCoordinate GetCirclePoint(const TEntityCoordinate& aCentre, double aRadius, double aAngle);

}  // namespace GeometryEngine::detail

#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

namespace GeometryEngine::detail {

/// Distance of two coordinates.
double GetDistance(const TEntityCoordinate& aCoordinate_A, const TEntityCoordinate& aCoordinate_B);

}  // namespace GeometryEngine::detail

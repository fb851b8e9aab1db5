#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::detail {

/// Whether the point is the start or the end of the entity within the linear tolerance.
bool IsEntityEnd(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint);

}  // namespace GeometryEngine::detail

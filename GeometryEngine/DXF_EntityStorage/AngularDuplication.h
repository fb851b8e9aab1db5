#pragma once

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API bool IncludeDuplicatedEntity(std::int32_t aDuplications, std::int32_t aDuplications_Full,
                                                std::int32_t aIndex, double aCopyAngle, double aAngle,
                                                const TDXFEntity& aEntity);
/// Polar angle in degrees, at least 0 and less than 360.
GEOMETRYENGINE_API double GetTheta(double x, double y);

}  // namespace GeometryEngine

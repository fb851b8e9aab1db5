#pragma once

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API std::int32_t GetWindingNumber_Entity_Addition(const TDXFEntity& aEntity,
                                                                 const TEntityCoordinate& aStart,
                                                                 const TEntityCoordinate& aEnd,
                                                                 const TEntityCoordinate& aPoint);
GEOMETRYENGINE_API std::int32_t DetermineInterceptResult(const TEntityCoordinate& aStart,
                                                         const TEntityCoordinate& aEnd,
                                                         const TEntityCoordinate& aPoint);

}  // namespace GeometryEngine

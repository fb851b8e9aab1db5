#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TEntityCoordinate GetRegionPoint(const TEntityCoordinate& aCoordinate_A,
                                                    const TEntityCoordinate& aCoordinate_B,
                                                    const TEntityCoordinate& aCoordinate_C);

}  // namespace GeometryEngine

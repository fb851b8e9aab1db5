#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API bool GetIfVerticalLine(const TDXFEntity& aEntity);
GEOMETRYENGINE_API bool GetIfVerticalLine(double a, double b);

}  // namespace GeometryEngine

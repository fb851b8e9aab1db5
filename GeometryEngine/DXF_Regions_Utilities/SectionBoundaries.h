#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TEntityArray GetDXFDivisionBoundaries(double r1, double r2, double a1, double a2);
GEOMETRYENGINE_API TEntityArray GetBlankRegionEntities(double r1, double r2, double a1, double a2);
GEOMETRYENGINE_API TEntityArray GenerateDXFClosureEntities(double r, double dr, double a1, double a2);

}  // namespace GeometryEngine

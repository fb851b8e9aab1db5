#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API double CheckCoordinateValue(double aValue);
GEOMETRYENGINE_API TEntityCoordinate CheckCoordinate(const TEntityCoordinate& aCoordinate);

}  // namespace GeometryEngine

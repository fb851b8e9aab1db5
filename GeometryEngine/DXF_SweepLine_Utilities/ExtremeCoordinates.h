#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TEntityCoordinate GetLeftMostCoordinate(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetRightMostCoordinate(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetUpperMostCoordinate(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetLowerMostCoordinate(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetLeftMostCoordinate_Line(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetRightMostCoordinate_Line(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetUpperMostCoordinate_Line(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetLowerMostCoordinate_Line(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetLeftMostCoordinate_Arc(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetRightMostCoordinate_Arc(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetUpperMostCoordinate_Arc(const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetLowerMostCoordinate_Arc(const TDXFEntity& aEntity);
/// Direction from `aOrigin` to `aPoint`, degrees, -180 to 180.
GEOMETRYENGINE_API double GetAngleFromCoordinate(const TEntityCoordinate& aPoint, const TEntityCoordinate& aOrigin);

}  // namespace GeometryEngine

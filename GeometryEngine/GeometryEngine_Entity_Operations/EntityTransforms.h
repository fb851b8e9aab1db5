#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TRotationMatrix.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TEntityCoordinate MirrorPoint_AboutLine(const TEntityCoordinate& aPoint, const TDXFEntity& aLine);
GEOMETRYENGINE_API TDXFEntity MirrorEntity_AboutLine(const TDXFEntity& aEntity, const TDXFEntity& aLine);
GEOMETRYENGINE_API TDXFEntity TranslateEntity(const TDXFEntity& aEntity, double dx, double dy);
GEOMETRYENGINE_API TDXFEntity RotateEntity_AroundAxis(const TDXFEntity& aEntity, const TRotationMatrix& aMatrix);
GEOMETRYENGINE_API TDXFEntity RotateEntity_AroundPoint(const TDXFEntity& aEntity, const TRotationMatrix& aMatrix,
                                                       const TEntityCoordinate& aPoint);

}  // namespace GeometryEngine

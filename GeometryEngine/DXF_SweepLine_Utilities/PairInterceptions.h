#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/TInterceptionPoints.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API bool CheckIntercepts(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B,
                                        TInterceptionPoints& aPoints);
GEOMETRYENGINE_API bool CheckLineLineInterceptions(const TDXFEntity& aLine_A, const TDXFEntity& aLine_B,
                                                   TInterceptionPoints& aPoints);
GEOMETRYENGINE_API bool CheckLineArcInterceptions(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B,
                                                  TInterceptionPoints& aPoints);
GEOMETRYENGINE_API bool CheckArcArcInterceptions(const TDXFEntity& aArc_A, const TDXFEntity& aArc_B,
                                                 TInterceptionPoints& aPoints);
GEOMETRYENGINE_API double GetArcInterceptAngle(const TEntityCoordinate& aPoint, const TDXFEntity& aArc,
                                               double aStartValue, double aEndValue);

}  // namespace GeometryEngine

#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API double IsPointLeft_Line(const TEntityCoordinate& aPoint, const TEntityCoordinate& aLineStart,
                                           const TEntityCoordinate& aLineEnd);
GEOMETRYENGINE_API bool IsPointInside_Arc(const TEntityCoordinate& aPoint, const TDXFEntity& aEntity);
GEOMETRYENGINE_API bool PointTouchingArc(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint);
GEOMETRYENGINE_API bool PointOnLine(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint);
GEOMETRYENGINE_API bool PointWithinArcSweep(const TEntityCoordinate& aPoint, const TDXFEntity& aEntity);
GEOMETRYENGINE_API bool AngleWithinArcSweep(double aAngle, const TDXFEntity& aEntity);
GEOMETRYENGINE_API TEntityCoordinate GetEntityMidPoint(const TDXFEntity& aEntity);
GEOMETRYENGINE_API double PointToSegmentDistance(const TEntityCoordinate& aPoint, const TEntityCoordinate& aSegStart,
                                                 const TEntityCoordinate& aSegEnd);

}  // namespace GeometryEngine

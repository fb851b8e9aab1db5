#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TDXFEntity CreateEntity_Line(double x1, double y1, double x2, double y2);
GEOMETRYENGINE_API TDXFEntity CreateEntity_Line(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd);
GEOMETRYENGINE_API TDXFEntity CreateEntity_Arc(double centreX, double centreY, double radius, double startAngle,
                                               double endAngle);
GEOMETRYENGINE_API TDXFEntity CreateEntity_Arc_StartEnd(double centreX, double centreY, double startX, double startY,
                                                        double endX, double endY);
GEOMETRYENGINE_API TDXFEntity CreateEntity_Arc_StartEnd_Radius(const TEntityCoordinate& aStart,
                                                               const TEntityCoordinate& aEnd, double aRadius);
GEOMETRYENGINE_API TEntityCoordinate GetArcCentre(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                                  double aRadius);

}  // namespace GeometryEngine

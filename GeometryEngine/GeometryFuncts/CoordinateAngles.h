#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TEntityCoordinate RT_To_XY_Coordinate(double r, double t);
GEOMETRYENGINE_API double GetCoordinateAngle(const TEntityCoordinate& aCoordinate);
GEOMETRYENGINE_API double GetCoordinateAngle_AboutPoint(const TEntityCoordinate& aCoordinate,
                                                        const TEntityCoordinate& aPoint);
GEOMETRYENGINE_API TEntityCoordinate GetLinesIntersection_Coordinate(double a, double b, double c, double d);

}  // namespace GeometryEngine

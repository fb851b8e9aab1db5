#pragma once

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TRotationMatrix.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TRotationMatrix GetRotationMatrix(double aAngle);
GEOMETRYENGINE_API TEntityCoordinate RotateByAngle_Matrix(const TRotationMatrix& aMatrix,
                                                          const TEntityCoordinate& aCoordinate);
GEOMETRYENGINE_API TEntityCoordinate RotateByAngle_AboutPoint_Matrix(const TRotationMatrix& aMatrix,
                                                                     const TEntityCoordinate& aPoint,
                                                                     const TEntityCoordinate& aCoordinate);
GEOMETRYENGINE_API TEntityCoordinate RotateByAngle(double aAngle, double x, double y);

}  // namespace GeometryEngine

#pragma once

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// The linear drawing tolerance as the host holds it now.
GEOMETRYENGINE_API double GetLinearTolerance();

GEOMETRYENGINE_API bool ValuesSame_DXFTolerance(double a, double b);
GEOMETRYENGINE_API bool ValueLessThan_DXFTolerance(double a, double b);
GEOMETRYENGINE_API bool ValueMoreThan_DXFTolerance(double a, double b);
GEOMETRYENGINE_API bool ValuesSame_DXFAngle(double a, double b);
GEOMETRYENGINE_API bool ValuesLessThanOrEqual_DXFAngle(double a, double b);
GEOMETRYENGINE_API bool ValuesMoreThanOrEqual_DXFAngle(double a, double b);

}  // namespace GeometryEngine

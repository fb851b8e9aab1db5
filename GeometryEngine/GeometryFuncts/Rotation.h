#pragma once

// Rotation of points. Whole entities are rotated by EntityTransforms.h.
//
// UNITS: degrees, anticlockwise. Rotated components are cleaned by CheckCoordinateValue: infinite and not-a-number ones
// become 0, in snapping mode 1 also those near zero.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TRotationMatrix.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TRotationMatrix GetRotationMatrix(double aAngle);

/// The coordinate rotated about the origin and cleaned.
/// On purpose: a matrix whose first element is exactly 1 counts as the identity, whatever its other elements: the
/// coordinate comes back to the bit, not even cleaned, so that a rotation by nothing changes nothing.
GEOMETRYENGINE_API TEntityCoordinate RotateByAngle_Matrix(const TRotationMatrix& aMatrix,
                                                          const TEntityCoordinate& aCoordinate);

/// The coordinate rotated about `aPoint`. Cleaned is its offset from that point, not the sum.
GEOMETRYENGINE_API TEntityCoordinate RotateByAngle_AboutPoint_Matrix(const TRotationMatrix& aMatrix,
                                                                     const TEntityCoordinate& aPoint,
                                                                     const TEntityCoordinate& aCoordinate);

/// (x, y) rotated about the origin by an angle.
GEOMETRYENGINE_API TEntityCoordinate RotateByAngle(double aAngle, double x, double y);

}  // namespace GeometryEngine

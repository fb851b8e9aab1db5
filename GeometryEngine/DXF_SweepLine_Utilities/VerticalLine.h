#pragma once

// When a line counts as vertical. PointOnLine has a rule of its own, which leaves the tolerance itself out.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// True when the x of the two ends differ by no more than the linear tolerance, the tolerance itself included. The kind
/// of entity is not looked at.
/// DEGENERATE: false when an x or the tolerance is not a number.
GEOMETRYENGINE_API bool GetIfVerticalLine(const TDXFEntity& aEntity);

/// True when the two numbers are close by the standard test (ValuesClose_Standard); no setting takes part.
GEOMETRYENGINE_API bool GetIfVerticalLine(double a, double b);

}  // namespace GeometryEngine

#pragma once

// Cleaning of raw numbers before they are stored as coordinates. Arcs and rotated points are cleaned this way; lines
// are not, see EntityConstruction.h.
//
// The snapping mode of the host's store decides what happens near zero: 1 snaps by the linear tolerance here, 0 snaps
// the centres of arcs in EntityConstruction.h by a fixed threshold, any other value does neither.

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// The value, or 0 when it is infinite, not a number, or, in snapping mode 1, near zero.
/// On purpose: near means up to the linear tolerance and including it, unlike ValuesSame_DXFTolerance; a coordinate
/// exactly one tolerance away lands on the axis.
/// DEGENERATE: a tolerance of exactly 0 snaps what the standard closeness test takes for 0 (1e-12); a negative or
/// not-a-number one snaps nothing. When the host's store throws, the value comes back as it is; this is the one
/// function that swallows such an exception.
GEOMETRYENGINE_API double CheckCoordinateValue(double aValue);

/// The coordinate with x and then y cleaned by CheckCoordinateValue.
GEOMETRYENGINE_API TEntityCoordinate CheckCoordinate(const TEntityCoordinate& aCoordinate);

}  // namespace GeometryEngine

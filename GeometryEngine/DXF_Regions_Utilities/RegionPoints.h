#pragma once

// A probe point beside an edge. For a point well inside a region, to put a label on, see PoleInaccessibility.h.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// A point just beside the middle of the edge from A to B, on the way from that middle to C: 100 linear tolerances to
/// the left of the middle in x if that is still on the way, else as far to the right if that is, else A itself.
/// DEGENERATE: A when C lies straight above or below the middle, when the way is shorter than the step, and when the
/// tolerance is 0 or not a number.
GEOMETRYENGINE_API TEntityCoordinate GetRegionPoint(const TEntityCoordinate& aCoordinate_A,
                                                    const TEntityCoordinate& aCoordinate_B,
                                                    const TEntityCoordinate& aCoordinate_C);

}  // namespace GeometryEngine

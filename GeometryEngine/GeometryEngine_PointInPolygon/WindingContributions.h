#pragma once

// Winding numbers, one entity at a time. The contributions along a closed chain, each entity walked the way the chain
// passes it, add up to the number of times that the chain winds round the point: 0 outside, 1 or -1 inside a simple
// chain travelled anticlockwise or clockwise.
//
// TEntityStorage sums them over a chain (PointInsideEntities).
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// The contribution of an entity that the walk enters at `aStart` and leaves at `aEnd`. An arc counts as chords within
/// 0.01 drawing units of it; its direction follows from `aStart` alone, and `aEnd` is not used.
/// DEGENERATE: an arc entered at neither of its ends is walked from angle 0; an arc of sweep 0 and entities that are
/// neither line nor arc contribute 0; an arc whose start angle is beyond a million degrees has a million chords at
/// most. COST: constant; for such start angles proportional to the number of chords.
GEOMETRYENGINE_API std::int32_t GetWindingNumber_Entity_Addition(const TDXFEntity& aEntity,
                                                                 const TEntityCoordinate& aStart,
                                                                 const TEntityCoordinate& aEnd,
                                                                 const TEntityCoordinate& aPoint);

/// 1 when the segment goes up past the point with the point on its left, -1 when it goes down past it with the point on
/// its right or on its line, else 0. An end at the point's height within the linear tolerance lies below the point.
/// On purpose: the two directions differ for a point on the segment's line, so that a point on an edge that isn't
/// horizontal is outside a chain travelled anticlockwise and inside one travelled clockwise.
GEOMETRYENGINE_API std::int32_t DetermineInterceptResult(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                                         const TEntityCoordinate& aPoint);

}  // namespace GeometryEngine

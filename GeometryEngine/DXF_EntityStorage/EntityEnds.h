#pragma once

// Ends of one or two entities, as a walk along a chain needs them. Coordinates are compared under the linear tolerance.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

struct TCommonCoordinate {
  TEntityCoordinate aCoordinate;
  TIndex aIndex = kNotFound;  ///< 0 when the two entities touch, else kNotFound
};

/// The end of A that is an end of B too, A's start preferred when both are. The coordinate is A's own.
/// DEGENERATE: (0, 0) and kNotFound when the two share no end.
GEOMETRYENGINE_API TCommonCoordinate GetCommonCoordinate(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B);

/// The other end of the entity. The start is tried first: for an entity whose ends coincide the answer is its end.
/// DEGENERATE: (0, 0) when the coordinate is neither end.
GEOMETRYENGINE_API TEntityCoordinate GetEntityEndCoordinate(const TEntityCoordinate& aCoordinate,
                                                            const TDXFEntity& aEntity);

}  // namespace GeometryEngine

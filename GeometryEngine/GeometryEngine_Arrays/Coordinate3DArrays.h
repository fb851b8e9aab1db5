#pragma once

// Arrays of points of space: appending, and searching by the equality of `TCoordinate_3D`. For points of the plane see
// CoordinateArrays.h.

#include <span>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TCoordinate_3D.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

inline namespace TCoordinate_3D_Array_Helper {

/// Appends a copy.
GEOMETRYENGINE_API void AddCoordinate_3D(TCoordinate_3D_Array& aCoordinates, const TCoordinate_3D& aCoordinate_3D);

/// Index of the first element that is the same point, else `kNotFound`. COST: linear.
GEOMETRYENGINE_API TIndex IndexOf(std::span<const TCoordinate_3D> aCoordinates, const TCoordinate_3D& aCoordinate);

/// True when some element is the same point.
GEOMETRYENGINE_API bool Contains(std::span<const TCoordinate_3D> aCoordinates, const TCoordinate_3D& aCoordinate);

}  // namespace TCoordinate_3D_Array_Helper

}  // namespace GeometryEngine

#pragma once

#include <span>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TCoordinate_3D.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

inline namespace TCoordinate_3D_Array_Helper {

GEOMETRYENGINE_API void AddCoordinate_3D(TCoordinate_3D_Array& aCoordinates, const TCoordinate_3D& aCoordinate_3D);
GEOMETRYENGINE_API TIndex IndexOf(std::span<const TCoordinate_3D> aCoordinates, const TCoordinate_3D& aCoordinate);
GEOMETRYENGINE_API bool Contains(std::span<const TCoordinate_3D> aCoordinates, const TCoordinate_3D& aCoordinate);

}  // namespace TCoordinate_3D_Array_Helper

}  // namespace GeometryEngine

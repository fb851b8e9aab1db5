#pragma once

#include <span>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TRotationMatrix.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

inline namespace TCoordinateArray_Helper {

GEOMETRYENGINE_API void AddCoordinate(TCoordinateArray& aCoordinates, const TEntityCoordinate& aCoordinate);
GEOMETRYENGINE_API TIndex IndexOf(std::span<const TEntityCoordinate> aCoordinates,
                                  const TEntityCoordinate& aCoordinate);
GEOMETRYENGINE_API bool Contains(std::span<const TEntityCoordinate> aCoordinates,
                                 const TEntityCoordinate& aCoordinate);
GEOMETRYENGINE_API TIndex GetCoordinateIndex_Next(std::span<const TEntityCoordinate> aCoordinates, TIndex aIndex);
GEOMETRYENGINE_API TEntityCoordinate GetCoordinate_Next(std::span<const TEntityCoordinate> aCoordinates,
                                                        TIndex aIndex);
GEOMETRYENGINE_API TEntityCoordinate GetCoordinate_Next(std::span<const TEntityCoordinate> aCoordinates,
                                                        const TEntityCoordinate& aCoordinate);
GEOMETRYENGINE_API TEntityCoordinate GetCoordinate_Previous(std::span<const TEntityCoordinate> aCoordinates,
                                                            const TEntityCoordinate& aCoordinate);
GEOMETRYENGINE_API void CopyArray(TCoordinateArray& aCoordinates, std::span<const TEntityCoordinate> aArray);
GEOMETRYENGINE_API void Rotate(TCoordinateArray& aCoordinates, const TRotationMatrix& aRotationMatrix);
GEOMETRYENGINE_API void Rotate_AboutPoint(TCoordinateArray& aCoordinates, const TRotationMatrix& aRotationMatrix,
                                          const TEntityCoordinate& aPoint);
GEOMETRYENGINE_API void Mirror(TCoordinateArray& aCoordinates, const TDXFEntity& aMirrorLine);
GEOMETRYENGINE_API void Translate(TCoordinateArray& aCoordinates, double xDistance, double yDistance);

}  // namespace TCoordinateArray_Helper

GEOMETRYENGINE_API void AddCoordinateToArray(TCoordinateArray& aArray, const TEntityCoordinate& aCoordinate);
GEOMETRYENGINE_API void RemoveCoordinateFromArray(TCoordinateArray& aArray, TIndex aIndex);
GEOMETRYENGINE_API bool IsCoordinateInArray(std::span<const TEntityCoordinate> aArray,
                                            const TEntityCoordinate& aCoordinate);

}  // namespace GeometryEngine

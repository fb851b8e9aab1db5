#pragma once

// Arrays of plane points: appending, searching under the drawing tolerance, walking as a closed ring, and transforming
// point by point. For arrays of entities see EntityArrays.h, for points of space Coordinate3DArrays.h; a chain with
// measures and bounds of its own is `TEntityStorage`.
//
// Two points are the same when `operator==` says so, that is within the linear tolerance in x and in y. Searches start
// at index 0 and the first match wins, so among near-duplicates the earliest one answers. Sameness is not transitive.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <span>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TRotationMatrix.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

inline namespace TCoordinateArray_Helper {

/// Appends a copy.
GEOMETRYENGINE_API void AddCoordinate(TCoordinateArray& aCoordinates, const TEntityCoordinate& aCoordinate);

/// Index of the first element that is the same point, else `kNotFound`. COST: linear.
GEOMETRYENGINE_API TIndex IndexOf(std::span<const TEntityCoordinate> aCoordinates,
                                  const TEntityCoordinate& aCoordinate);

/// True when some element is the same point.
GEOMETRYENGINE_API bool Contains(std::span<const TEntityCoordinate> aCoordinates, const TEntityCoordinate& aCoordinate);

/// The index after `aIndex`, where 0 follows the last one.
/// DEGENERATE: an index outside the array is stepped by one all the same; the largest index there is gives 0.
GEOMETRYENGINE_API TIndex GetCoordinateIndex_Next(std::span<const TEntityCoordinate> aCoordinates, TIndex aIndex);

/// The element at `GetCoordinateIndex_Next(aIndex)`; (0, 0) when that is outside the array.
GEOMETRYENGINE_API TEntityCoordinate GetCoordinate_Next(std::span<const TEntityCoordinate> aCoordinates, TIndex aIndex);

/// The element after the first match of `aCoordinate`; (0, 0) when there is no match.
GEOMETRYENGINE_API TEntityCoordinate GetCoordinate_Next(std::span<const TEntityCoordinate> aCoordinates,
                                                        const TEntityCoordinate& aCoordinate);

/// The element before the first match of `aCoordinate`, where the last one precedes the first; (0, 0) when there is no
/// match.
GEOMETRYENGINE_API TEntityCoordinate GetCoordinate_Previous(std::span<const TEntityCoordinate> aCoordinates,
                                                            const TEntityCoordinate& aCoordinate);

/// Makes the array a copy of `aArray`, which may be a view of the array itself.
GEOMETRYENGINE_API void CopyArray(TCoordinateArray& aCoordinates, std::span<const TEntityCoordinate> aArray);

/// Turns every element about the origin, see `RotateByAngle_Matrix`.
GEOMETRYENGINE_API void Rotate(TCoordinateArray& aCoordinates, const TRotationMatrix& aRotationMatrix);

/// Turns every element about `aPoint`, see `RotateByAngle_AboutPoint_Matrix`. `aPoint` may be one of the elements: all
/// turn about the place where it was when the call began.
GEOMETRYENGINE_API void Rotate_AboutPoint(TCoordinateArray& aCoordinates, const TRotationMatrix& aRotationMatrix,
                                          const TEntityCoordinate& aPoint);

/// Mirrors every element about a line entity; any other entity leaves the elements as they are.
GEOMETRYENGINE_API void Mirror(TCoordinateArray& aCoordinates, const TDXFEntity& aMirrorLine);

/// Adds (xDistance, yDistance) to every element.
GEOMETRYENGINE_API void Translate(TCoordinateArray& aCoordinates, double xDistance, double yDistance);

}  // namespace TCoordinateArray_Helper

/// Appends a copy; duplicates are welcome.
GEOMETRYENGINE_API void AddCoordinateToArray(TCoordinateArray& aArray, const TEntityCoordinate& aCoordinate);

/// Removes the element at `aIndex`, later ones move down; nothing for an index outside the array.
GEOMETRYENGINE_API void RemoveCoordinateFromArray(TCoordinateArray& aArray, TIndex aIndex);

/// True when some element is the same point. COST: looks at every element, found or not; `Contains` stops at the first.
GEOMETRYENGINE_API bool IsCoordinateInArray(std::span<const TEntityCoordinate> aArray,
                                            const TEntityCoordinate& aCoordinate);

}  // namespace GeometryEngine

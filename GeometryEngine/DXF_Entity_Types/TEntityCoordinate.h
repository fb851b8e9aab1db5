#pragma once

// Points of the drawing plane. Points in space are TCoordinate_3D; searches in arrays of points are in
// GeometryEngine_Arrays.

#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TCoordinate_3D.h"

namespace GeometryEngine {

class TPlane;

/// A point of the drawing plane, or the vector to it. UNITS: drawing length.
struct GEOMETRYENGINE_API TEntityCoordinate {
  double x = 0;
  double y = 0;

  static TEntityCoordinate New(double aX, double aY);
  /// The point of space that this point denotes on a plane: Origin + x Vector_X + y Vector_Y, in double precision.
  /// DEGENERATE: the basis vectors are taken as they stand; with zero vectors every point is the origin.
  TCoordinate_3D GetCoordinate_3D(const TPlane& aPlane) const;
};

/// Sameness under the linear tolerance: x first, and y only when x is the same. Not transitive, so never a key.
GEOMETRYENGINE_API bool operator==(const TEntityCoordinate& aEntityCoord_A, const TEntityCoordinate& aEntityCoord_B);
GEOMETRYENGINE_API bool operator!=(const TEntityCoordinate& aEntityCoord_A, const TEntityCoordinate& aEntityCoord_B);

// Vector arithmetic by components, without tolerance. DEGENERATE: a division by 0 gives infinities and not-a-numbers.
constexpr TEntityCoordinate operator+(const TEntityCoordinate& aEntityCoord_A,
                                      const TEntityCoordinate& aEntityCoord_B) {
  return {aEntityCoord_A.x + aEntityCoord_B.x, aEntityCoord_A.y + aEntityCoord_B.y};
}

constexpr TEntityCoordinate operator-(const TEntityCoordinate& aEntityCoord_A,
                                      const TEntityCoordinate& aEntityCoord_B) {
  return {aEntityCoord_A.x - aEntityCoord_B.x, aEntityCoord_A.y - aEntityCoord_B.y};
}

constexpr TEntityCoordinate operator*(double aNumber, const TEntityCoordinate& aEntityCoord) {
  return {aNumber * aEntityCoord.x, aNumber * aEntityCoord.y};
}

constexpr TEntityCoordinate operator/(const TEntityCoordinate& aEntityCoord, double aNumber) {
  return {aEntityCoord.x / aNumber, aEntityCoord.y / aNumber};
}

/// The projection of a point of space onto a plane: the dot products of (aCoordinate - Origin) with the basis vectors,
/// wholly in double precision. It inverts GetCoordinate_3D only for an orthonormal basis; nothing is normalised here.
GEOMETRYENGINE_API TEntityCoordinate GetCoordinate_2D(const TCoordinate_3D& aCoordinate, const TPlane& aPlane);

using TCoordinateArray = std::vector<TEntityCoordinate>;

}  // namespace GeometryEngine

#pragma once

// Points in space. TPlane maps between them and the points of the drawing plane (TEntityCoordinate).

#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TVector_Single.h"

namespace GeometryEngine {

/// A point in space. UNITS: drawing length.
struct GEOMETRYENGINE_API TCoordinate_3D {
  double x = 0;
  double y = 0;
  double z = 0;

  // Parameter names carry an underscore only because the fields own the plain ones.
  void SetValues(double x_, double y_, double z_);
  /// Moves the point by `aDistance` in the direction of `aVector`, whose length doesn't matter. The direction is
  /// normalised in single precision, the rest is double. DEGENERATE: stays where it is for a vector of length 0.
  void MoveAlongVector(const TVector_Single& aVector, double aDistance);
  TCoordinate_3D CopyCoordinate_3D() const;
};

/// Sameness under the linear tolerance on x, then y, then z, up to the first that differs.
GEOMETRYENGINE_API bool operator==(const TCoordinate_3D& aCoord_A, const TCoordinate_3D& aCoord_B);
GEOMETRYENGINE_API bool operator!=(const TCoordinate_3D& aCoord_A, const TCoordinate_3D& aCoord_B);

using TCoordinate_3D_Array = std::vector<TCoordinate_3D>;

}  // namespace GeometryEngine

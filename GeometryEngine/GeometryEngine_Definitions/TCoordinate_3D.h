#pragma once

#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TVector_Single.h"

namespace GeometryEngine {

struct GEOMETRYENGINE_API TCoordinate_3D {
  double x = 0;
  double y = 0;
  double z = 0;

  // Parameter names carry an underscore only because the fields own the plain ones.
  void SetValues(double x_, double y_, double z_);
  void MoveAlongVector(const TVector_Single& aVector, double aDistance);
  TCoordinate_3D CopyCoordinate_3D() const;
};

GEOMETRYENGINE_API bool operator==(const TCoordinate_3D& aCoord_A, const TCoordinate_3D& aCoord_B);
GEOMETRYENGINE_API bool operator!=(const TCoordinate_3D& aCoord_A, const TCoordinate_3D& aCoord_B);

using TCoordinate_3D_Array = std::vector<TCoordinate_3D>;

}  // namespace GeometryEngine

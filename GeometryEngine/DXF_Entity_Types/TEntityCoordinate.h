#pragma once

#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TCoordinate_3D.h"

namespace GeometryEngine {

class TPlane;

struct GEOMETRYENGINE_API TEntityCoordinate {
  double x = 0;
  double y = 0;

  static TEntityCoordinate New(double aX, double aY);
  TCoordinate_3D GetCoordinate_3D(const TPlane& aPlane) const;
};

GEOMETRYENGINE_API bool operator==(const TEntityCoordinate& aEntityCoord_A, const TEntityCoordinate& aEntityCoord_B);
GEOMETRYENGINE_API bool operator!=(const TEntityCoordinate& aEntityCoord_A, const TEntityCoordinate& aEntityCoord_B);
GEOMETRYENGINE_API TEntityCoordinate operator+(const TEntityCoordinate& aEntityCoord_A,
                                               const TEntityCoordinate& aEntityCoord_B);
GEOMETRYENGINE_API TEntityCoordinate operator-(const TEntityCoordinate& aEntityCoord_A,
                                               const TEntityCoordinate& aEntityCoord_B);
GEOMETRYENGINE_API TEntityCoordinate operator*(double aNumber, const TEntityCoordinate& aEntityCoord);
GEOMETRYENGINE_API TEntityCoordinate operator/(const TEntityCoordinate& aEntityCoord, double aNumber);

GEOMETRYENGINE_API TEntityCoordinate GetCoordinate_2D(const TCoordinate_3D& aCoordinate, const TPlane& aPlane);

using TCoordinateArray = std::vector<TEntityCoordinate>;

}  // namespace GeometryEngine

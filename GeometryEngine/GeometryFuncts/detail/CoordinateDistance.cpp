#include "GeometryEngine/GeometryFuncts/detail/CoordinateDistance.h"

#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

double GetDistance(const TEntityCoordinate& aCoordinate_A, const TEntityCoordinate& aCoordinate_B) {
  return GetDistanceBetweenCoords(aCoordinate_A.x, aCoordinate_A.y, aCoordinate_B.x, aCoordinate_B.y);
}

}  // namespace GeometryEngine::detail

#include "GeometryEngine/DXF_EntityStorage/detail/IsEntityEnd.h"

namespace GeometryEngine::detail {

bool IsEntityEnd(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint) {
  return aPoint == aEntity.StartCoords || aPoint == aEntity.EndCoords;
}

}  // namespace GeometryEngine::detail

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"

#include "GeometryEngine/DXF_EntityStorage/detail/IsEntityEnd.h"
#include "GeometryEngine/DXF_EntityStorage/detail/OtherEnd.h"

namespace GeometryEngine {

TCommonCoordinate GetCommonCoordinate(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B) {
  if (detail::IsEntityEnd(aEntity_B, aEntity_A.StartCoords)) return {aEntity_A.StartCoords, 0};
  if (detail::IsEntityEnd(aEntity_B, aEntity_A.EndCoords)) return {aEntity_A.EndCoords, 0};
  return {};
}

TEntityCoordinate GetEntityEndCoordinate(const TEntityCoordinate& aCoordinate, const TDXFEntity& aEntity) {
  return detail::GetOtherEnd(aCoordinate, aEntity, detail::ReadLinearTolerance());
}

}  // namespace GeometryEngine

#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/detail/PointSameness.h"

namespace GeometryEngine::detail {

/// What `GetEntityEndCoordinate` answers, for loops that have read the tolerance.
inline TEntityCoordinate GetOtherEnd(const TEntityCoordinate& aEnd, const TDXFEntity& aEntity, double aTolerance) {
  if (AreSame(aEntity.StartCoords, aEnd, aTolerance)) return aEntity.EndCoords;
  if (AreSame(aEntity.EndCoords, aEnd, aTolerance)) return aEntity.StartCoords;
  return {};
}

}  // namespace GeometryEngine::detail

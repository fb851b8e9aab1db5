#pragma once

#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"

namespace GeometryEngine::detail {

/// Whether the point lies on a line or touches an arc; false for other entities.
inline bool PointOnEntity(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint) {
  if (aEntity.EntityType == DXFLine) return PointOnLine(aEntity, aPoint);
  return aEntity.EntityType == DXFArc && PointTouchingArc(aEntity, aPoint);
}

}  // namespace GeometryEngine::detail

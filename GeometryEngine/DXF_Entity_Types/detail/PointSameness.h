#pragma once

// Sameness of points under a tolerance that has been read already, see Sameness.h. Private.

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"

namespace GeometryEngine::detail {

inline bool AreSame(const TEntityCoordinate& aPoint_A, const TEntityCoordinate& aPoint_B, double aTolerance) {
  return AreSame(aPoint_A.x, aPoint_B.x, aTolerance) && AreSame(aPoint_A.y, aPoint_B.y, aTolerance);
}

/// Equal numbers, without any tolerance.
inline bool AreEqual(const TEntityCoordinate& aPoint_A, const TEntityCoordinate& aPoint_B) {
  return aPoint_A.x == aPoint_B.x && aPoint_A.y == aPoint_B.y;
}

}  // namespace GeometryEngine::detail

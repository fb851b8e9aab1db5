#pragma once

// The plain twin of TEntityStorage::QuickSortArray: the same scheme, recursive, with each key computed anew for each
// comparison and no way out.

#include <cstddef>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"

namespace GeometryEngine::reference {

inline std::ptrdiff_t PartitionByLeftMost(TEntityArray& aEntities, std::ptrdiff_t aLow, std::ptrdiff_t aHigh) {
  const auto at = [&](std::ptrdiff_t aIndex) -> TDXFEntity& { return aEntities[static_cast<std::size_t>(aIndex)]; };
  std::ptrdiff_t i = aLow - 1;
  for (std::ptrdiff_t j = aLow; j < aHigh; ++j) {
    if (GetLeftMostCoordinate(at(aHigh)).x >= GetLeftMostCoordinate(at(j)).x) {
      ++i;
      std::swap(at(i), at(j));
    }
  }
  std::swap(at(i + 1), at(aHigh));
  return i + 1;
}

inline void SortByLeftMost(TEntityArray& aEntities, std::ptrdiff_t aLow, std::ptrdiff_t aHigh) {
  if (aLow >= aHigh) return;
  const std::ptrdiff_t pivot = PartitionByLeftMost(aEntities, aLow, aHigh);
  SortByLeftMost(aEntities, aLow, pivot - 1);
  SortByLeftMost(aEntities, pivot + 1, aHigh);
}

}  // namespace GeometryEngine::reference

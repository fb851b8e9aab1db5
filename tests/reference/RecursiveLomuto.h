#pragma once

// The plain twin of TEntityStorage::QuickSortArray: the same scheme, recursive, with each key computed anew for each
// comparison and no way out; and its worst input.

#include <cstddef>
#include <numeric>
#include <utility>
#include <vector>

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

/// Keys against which the scheme parts one item at a time from all others, since its pivots are the least key and the
/// greatest of a slice in turn; and no slice of more than two is in order.
inline std::vector<double> MakeKillerKeys(std::size_t aCount) {
  std::vector<std::size_t> slice(aCount);  // the places of those that are not parted yet, in the order of the scheme
  std::iota(slice.begin(), slice.end(), std::size_t{0});
  std::vector<double> keys(aCount, static_cast<double>(aCount) / 2);
  std::size_t first = 0;
  for (std::size_t last = aCount; last > first + 1;) {
    --last;
    keys[slice[last]] = static_cast<double>(last);  // the greatest stays where it is
    if (last > first + 1) {
      keys[slice[last - 1]] = static_cast<double>(first);  // the least changes places with the first
      std::swap(slice[first], slice[last - 1]);
      ++first;
    }
  }
  return keys;
}

}  // namespace GeometryEngine::reference

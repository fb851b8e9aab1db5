// The sort of a storage by left-most x.

#include <iterator>
#include <span>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_EntityStorage/detail/LomutoSort.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"

namespace GeometryEngine {

namespace {

std::vector<detail::TSortItem> GetKeys(std::span<const TDXFEntity> aEntities) {
  std::vector<detail::TSortItem> keys;
  keys.reserve(aEntities.size());
  for (const TDXFEntity& entity : aEntities) keys.push_back({GetLeftMostCoordinate(entity).x, keys.size()});
  return keys;
}

/// Moves every entity to its place, one ring of places after another; `aOrder` is used up.
void Rearrange(std::span<TDXFEntity> aEntities, std::span<detail::TSortItem> aOrder) {
  for (std::size_t first = 0; first < aOrder.size(); ++first) {
    if (aOrder[first].fPlace == first) continue;
    TDXFEntity held = std::move(aEntities[first]);
    std::size_t place = first;
    for (std::size_t next = aOrder[place].fPlace; next != first; next = aOrder[place].fPlace) {
      aEntities[place] = std::move(aEntities[next]);
      aOrder[place].fPlace = place;
      place = next;
    }
    aEntities[place] = std::move(held);
    aOrder[place].fPlace = place;
  }
}

}  // namespace

void TEntityStorage::QuickSortArray(TIndex aLow, TIndex aHigh) {
  if (!GetIsIndexValid(aLow) || !GetIsIndexValid(aHigh) || aLow >= aHigh) return;
  const std::span<TDXFEntity> slice(fEntityArray.begin() + aLow, fEntityArray.begin() + aHigh + 1);
  std::vector<detail::TSortItem> order = GetKeys(slice);
  detail::TLomutoSort(order).Sort();
  Rearrange(slice, order);
}

}  // namespace GeometryEngine

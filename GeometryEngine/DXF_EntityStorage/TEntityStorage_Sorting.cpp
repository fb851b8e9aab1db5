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

void Rearrange(std::span<TDXFEntity> aEntities, std::span<const detail::TSortItem> aOrder) {
  TEntityArray sorted;
  sorted.reserve(aEntities.size());
  for (const detail::TSortItem& item : aOrder) sorted.push_back(std::move(aEntities[item.fPlace]));
  std::move(sorted.begin(), sorted.end(), aEntities.begin());
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

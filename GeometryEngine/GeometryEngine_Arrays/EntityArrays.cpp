#include "GeometryEngine/GeometryEngine_Arrays/EntityArrays.h"

#include "GeometryEngine/GeometryEngine_Arrays/detail/DistinctEntities.h"
#include "GeometryEngine/GeometryEngine_Arrays/detail/RingOrder.h"

namespace GeometryEngine {

inline namespace TEntityArray_Helper {

TIndex IndexOfEntity(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity) {
  return detail::GetFirstEqual(aEntities, aEntity);
}

bool ContainsEntity(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity) {
  return IndexOfEntity(aEntities, aEntity) >= 0;
}

void AddEntity(TEntityArray& aEntities, const TDXFEntity& aEntity) {
  aEntities.push_back(aEntity);
}

void InsertEntity(TEntityArray& aEntities, const TDXFEntity& aEntity, TIndex aIndex) {
  const bool inside = IsIndexWithin(aIndex, aEntities.size());
  aEntities.insert(inside ? aEntities.begin() + aIndex : aEntities.end(), aEntity);
}

void RemoveEntity(TEntityArray& aEntities, TIndex aIndex) {
  if (IsIndexWithin(aIndex, aEntities.size())) aEntities.erase(aEntities.begin() + aIndex);
}

void RemoveEntity(TEntityArray& aEntities, const TDXFEntity& aEntity) {
  RemoveEntity(aEntities, IndexOfEntity(aEntities, aEntity));
}

void AddEntities_CheckDuplicate(TEntityArray& aEntities, std::span<const TDXFEntity> aArray) {
  // Copied first: aArray may be a view of aEntities itself.
  const TEntityArray candidates(aArray.begin(), aArray.end());
  const std::size_t before = aEntities.size();
  try {
    detail::TDistinctEntities(aEntities).Add(candidates);
  } catch (...) {
    aEntities.resize(before);  // memory ran out: none of them is added
    throw;
  }
}

TDXFEntity GetEntity_Next(std::span<const TDXFEntity> aEntities, TIndex aIndex) {
  if (!IsIndexWithin(aIndex, aEntities.size())) return {};
  return detail::GetElementOrEmpty(aEntities, detail::GetRingNext(aIndex, aEntities.size()));
}

TDXFEntity GetEntity_Next(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity) {
  return GetEntity_Next(aEntities, IndexOfEntity(aEntities, aEntity));
}

TDXFEntity GetEntity_Previous(std::span<const TDXFEntity> aEntities, TIndex aIndex) {
  return detail::GetElementOrEmpty(aEntities, detail::GetRingPrevious(aIndex, aEntities.size()));
}

TDXFEntity GetEntity_Previous(std::span<const TDXFEntity> aEntities, const TDXFEntity& aEntity) {
  return GetEntity_Previous(aEntities, IndexOfEntity(aEntities, aEntity));
}

}  // namespace TEntityArray_Helper

}  // namespace GeometryEngine

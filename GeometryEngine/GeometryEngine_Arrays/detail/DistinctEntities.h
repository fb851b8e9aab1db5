#pragma once

#include <cstddef>
#include <span>

#include "GeometryEngine/DXF_Entity_Types/detail/TEntityIndex.h"

namespace GeometryEngine::detail {

/// Appends entities to an array, but none that it holds already by the entities' own ==: what
/// `AddEntities_CheckDuplicate` does, with an index that lives as long as more may come.
///
/// REQUIRES: nobody else changes the array meanwhile. OWNS: nothing.
class TDistinctEntities {
 public:
  explicit TDistinctEntities(TEntityArray& aEntities) : fEntities(aEntities) {
    for (const TDXFEntity& entity : aEntities) fIndex.Add(entity);
  }

  /// REQUIRES: `aEntities` is no view of the array itself.
  void Add(std::span<const TDXFEntity> aEntities) {
    for (const TDXFEntity& entity : aEntities) {
      if (Holds(entity)) continue;
      fEntities.push_back(entity);
      fIndex.Add(entity);
    }
  }

 private:
  bool Holds(const TDXFEntity& aEntity) const {
    const auto entityAt = [this](TIndex i) -> const TDXFEntity& { return fEntities[static_cast<std::size_t>(i)]; };
    return fIndex.FindFirst(aEntity, entityAt) != kNotFound;
  }

  TEntityArray& fEntities;
  TEntityIndex fIndex;
};

}  // namespace GeometryEngine::detail

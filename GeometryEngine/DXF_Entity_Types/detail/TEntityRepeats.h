#pragma once

// Which of many entities equal no other one, found in one go. Private.

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TEntityIndex.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// Tells most entities of a drawing that equal no other from those that may. Counts the entities in each cell, cells of
/// one hash together; an entity that is alone in the cells around it equals no other.
///
/// REQUIRES: entities and tolerance that stay as they are.
/// COST: constant for an entity. A search in an index takes several times as long, since it waits for memory at every
/// step; the steps here don't wait for each other.
class TEntityRepeats {
 public:
  explicit TEntityRepeats(std::span<const TDXFEntity> aEntities)
      : fCounts(std::bit_ceil(kSlotsPerEntity * aEntities.size() + 1)), fMayRepeat(aEntities.size()) {
    for (const TDXFEntity& entity : aEntities) {
      if (fCells.CanMatch(entity)) Count(fCells.GetHash(entity));
    }
    std::transform(aEntities.begin(), aEntities.end(), fMayRepeat.begin(),
                   [this](const TDXFEntity& entity) { return !IsAlone(entity); });
  }

  /// False when no other entity equals this one.
  bool MayRepeat(TIndex aEntity) const { return fMayRepeat[static_cast<std::size_t>(aEntity)]; }

 private:
  static constexpr std::size_t kSlotsPerEntity = 8;
  static constexpr std::uint8_t kSeveral = 2;

  std::uint8_t& CountOf(std::uint64_t aHash) { return fCounts[aHash & (fCounts.size() - 1)]; }
  std::uint8_t CountOf(std::uint64_t aHash) const { return fCounts[aHash & (fCounts.size() - 1)]; }

  void Count(std::uint64_t aHash) {
    std::uint8_t& count = CountOf(aHash);
    count = count == 0 ? 1 : kSeveral;
  }

  bool IsAlone(const TDXFEntity& aEntity) const {
    if (!fCells.CanMatch(aEntity)) return true;
    unsigned int around = 0;
    fCells.ForEachHashAround(aEntity, [&](std::uint64_t hash) { around += CountOf(hash); });
    return around == 1;
  }

  TBoxCells fCells;
  std::vector<std::uint8_t> fCounts;  ///< by hash; 0, 1, or `kSeveral` for more
  std::vector<bool> fMayRepeat;
};

}  // namespace GeometryEngine::detail

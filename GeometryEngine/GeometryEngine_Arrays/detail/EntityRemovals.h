#pragma once

#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/detail/TEntityIndex.h"

namespace GeometryEngine::detail {

/// Places in an array, from the first to before the last.
struct TEntityRange {
  TIndex fFirst = 0;
  TIndex fPastLast = 0;
};

/// Removes entities from an array one after another, each time the first equal one that is left: marked at first, taken
/// out all at once by `Finish`.
///
/// REQUIRES: nobody else changes the array meanwhile. OWNS: nothing.
class TEntityRemovals {
 public:
  explicit TEntityRemovals(TEntityArray& aEntities) : fEntities(aEntities) { FollowArray(); }

  void RemoveFirst(const TDXFEntity& aEntity) {
    const TIndex first = FindFirstIf(aEntity, [this](TIndex i) { return !IsRemoved(i); });
    if (first != kNotFound) fIsRemoved[static_cast<std::size_t>(first)] = true;
  }

  /// True when an equal entity stands at these places, removed or not.
  bool HoldsWithin(const TEntityRange& aRange, const TDXFEntity& aEntity) const {
    return FindFirstIf(aEntity, [&](TIndex i) { return i >= aRange.fFirst && i < aRange.fPastLast; }) != kNotFound;
  }

  void Append(TEntityArray aEntities) {
    fEntities.insert(fEntities.end(), std::make_move_iterator(aEntities.begin()),
                     std::make_move_iterator(aEntities.end()));
    FollowArray();
  }

  void Finish() {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < fEntities.size(); ++i) {
      if (fIsRemoved[i]) continue;
      if (kept != i) fEntities[kept] = std::move(fEntities[i]);
      ++kept;
    }
    fEntities.resize(kept);
  }

 private:
  bool IsRemoved(TIndex aPlace) const { return fIsRemoved[static_cast<std::size_t>(aPlace)]; }

  void FollowArray() {
    for (std::size_t i = fIsRemoved.size(); i < fEntities.size(); ++i) fIndex.Add(fEntities[i]);
    fIsRemoved.resize(fEntities.size());
  }

  template <typename TAccepts>
  TIndex FindFirstIf(const TDXFEntity& aEntity, const TAccepts& aAccepts) const {
    TIndex first = kNotFound;
    fIndex.ForEachNear(aEntity, [&](TIndex i) {
      const bool earlier = first == kNotFound || i < first;
      if (earlier && aAccepts(i) && fEntities[static_cast<std::size_t>(i)] == aEntity) first = i;
    });
    return first;
  }

  TEntityArray& fEntities;
  TEntityIndex fIndex;
  std::vector<bool> fIsRemoved;
};

}  // namespace GeometryEngine::detail

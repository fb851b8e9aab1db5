#pragma once

// The hash table behind the searches under a tolerance. Private.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "GeometryEngine/host/TIndex.h"
#include "GeometryEngine/host/detail/FetchAhead.h"

namespace GeometryEngine::detail {

/// Mixes one more cell number into a hash.
constexpr std::uint64_t MixCell(std::uint64_t aHash, std::int64_t aCell) {
  constexpr std::uint64_t kOddMultiplier = 0x9E3779B97F4A7C15U;  // 2^64 over the golden ratio: spreads neighbours
  const std::uint64_t mixed = (aHash ^ static_cast<std::uint64_t>(aCell)) * kOddMultiplier;
  return mixed ^ (mixed >> 32U);
}

/// Items 0, 1, 2, ... by the hash of the cell that they lie in. The items of a chain stand in the order in which they
/// were added, and all items of one hash are in one chain; a chain may hold items of other hashes besides.
/// COST: constant for an item, on average over the hashes.
class TCellChains {
 public:
  void Reserve(std::size_t aCount) {
    fItems.reserve(aCount);
    if (aCount > fEnds.size()) GrowTo(aCount);
  }

  /// Adds the next item, to be found under its hash.
  void Add(std::uint64_t aHash) {
    if (fItems.size() >= fEnds.size()) GrowTo(fItems.size() + 1);
    fItems.push_back({aHash, kNotFound});
    Append(ToIndex(fItems.size() - 1));
  }

  /// Counts the next item, but lets nobody find it.
  void AddHidden() { fItems.push_back({0, kHidden}); }

  TIndex Count() const { return ToIndex(fItems.size()); }
  /// The first item of the chain; kNotFound for an empty one.
  TIndex First(std::uint64_t aHash) const { return fEnds.empty() ? kNotFound : fEnds[SlotOf(aHash)].fFirst; }
  /// Whether an item of a chain was added under this hash.
  bool HasHash(TIndex aItem, std::uint64_t aHash) const {
    return fItems[static_cast<std::size_t>(aItem)].fHash == aHash;
  }
  /// Has memory fetch what a search under this hash will look at first.
  [[gnu::always_inline]] void FetchAhead(std::uint64_t aHash) const {
    if (!fEnds.empty()) detail::FetchAhead(&fEnds[SlotOf(aHash)]);
  }
  /// The item after this one in its chain; kNotFound after the last.
  TIndex Next(TIndex aItem) const { return fItems[static_cast<std::size_t>(aItem)].fNext; }

 private:
  struct TItem {
    std::uint64_t fHash;
    TIndex fNext;
  };
  struct TChainEnds {
    TIndex fFirst = kNotFound;
    TIndex fLast = kNotFound;
  };

  std::size_t SlotOf(std::uint64_t aHash) const { return aHash & (fEnds.size() - 1); }

  void Append(TIndex aItem) {
    TChainEnds& ends = fEnds[SlotOf(fItems[static_cast<std::size_t>(aItem)].fHash)];
    (ends.fFirst == kNotFound ? ends.fFirst : fItems[static_cast<std::size_t>(ends.fLast)].fNext) = aItem;
    ends.fLast = aItem;
  }

  void GrowTo(std::size_t aCount) {
    std::size_t slots = std::max(fEnds.size(), kFewestSlots);
    while (slots < aCount) slots *= 2;
    fEnds.assign(slots, {});
    for (TIndex i = 0; i < Count(); ++i) {
      TIndex& next = fItems[static_cast<std::size_t>(i)].fNext;
      if (next == kHidden) continue;
      next = kNotFound;
      Append(i);
    }
  }

  static constexpr TIndex kHidden = -2;
  static constexpr std::size_t kFewestSlots = 16;  // a power of two

  std::vector<TItem> fItems;
  std::vector<TChainEnds> fEnds;  // a power of two of them
};

}  // namespace GeometryEngine::detail

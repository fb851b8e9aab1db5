#pragma once

// The sort behind `TEntityStorage::QuickSortArray`, on keys alone. Private.

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace GeometryEngine::detail {

/// A key and the place from which it came.
struct TSortItem {
  double fKey = 0;
  std::size_t fPlace = 0;
};

/// Ascending quicksort in the Lomuto scheme: the pivot is the last item of a slice, items not above it go to the left
/// part. Where equal keys end up is part of the result, since a sweep takes its entities in this order; so the swaps
/// are those of the scheme, one by one.
///
/// Two things are done otherwise, neither of which changes what the scheme gives within the limit:
/// - a slice that is already in order is left at once. The scheme would swap every item of it with itself;
/// - slices wait on a stack of our own, the smaller part of a partition on top, so that the stack never holds more than
///   about log2(n) of them, and no call nests.
/// When the next partition would take the comparisons above `Limit()`, the slices still open are sorted with a
/// guaranteed bound instead, equal keys in the order in which they then stand.
///
/// DEGENERATE: a not-a-number key compares as the scheme compares it, that is with nothing; beyond the limit it comes
/// last.
class TLomutoSort {
 public:
  explicit TLomutoSort(std::span<TSortItem> aItems)
      : fItems(aItems), fLimit(kComparisonsPerItemAndLevel * aItems.size() * std::bit_width(aItems.size())) {}

  void Sort() {
    fOpen.push_back({0, fItems.size()});
    while (!fOpen.empty()) {
      const TSlice slice = fOpen.back();
      fOpen.pop_back();
      if (IsInOrder(slice)) continue;
      if (fComparisons + slice.Size() > fLimit) {
        SortBounded(slice);
      } else {
        PushParts(slice, Partition(slice));
      }
    }
  }

  std::uint64_t Comparisons() const { return fComparisons; }
  std::uint64_t Limit() const { return fLimit; }
  /// Room that the stack has taken, in slices.
  std::size_t StackCapacity() const { return fOpen.capacity(); }

 private:
  /// The limit, as a multiple of n log2(n). Shuffled keys take about 1.4.
  static constexpr std::uint64_t kComparisonsPerItemAndLevel = 16;

  static constexpr std::size_t kBlock = 64;  // items compared before those among them that go to the left are swapped

  struct TSlice {
    std::size_t fFirst;
    std::size_t fPastLast;
    std::size_t Size() const { return fPastLast - fFirst; }
  };

  bool IsNotAbove(const TSortItem& aItem, const TSortItem& aOther) {
    ++fComparisons;
    return aItem.fKey <= aOther.fKey;
  }

  bool IsInOrder(const TSlice& aSlice) {
    for (std::size_t i = aSlice.fFirst + 1; i < aSlice.fPastLast; ++i) {
      if (!IsNotAbove(fItems[i - 1], fItems[i])) return false;
    }
    return true;
  }

  /// Where the pivot ends up.
  ///
  /// Which items go to the left is found for a block of them at a time, without a branch for each, half of which would
  /// be foreseen wrongly: the swaps before an item's turn don't touch it.
  std::size_t Partition(const TSlice& aSlice) {
    const std::size_t last = aSlice.fPastLast - 1;
    const double pivotKey = fItems[last].fKey;
    std::size_t pivot = aSlice.fFirst;
    for (std::size_t block = aSlice.fFirst; block < last; block += kBlock) {
      const std::span<TSortItem> items = fItems.subspan(block, std::min(kBlock, last - block));
      std::array<std::uint8_t, kBlock> places;
      std::size_t count = 0;
      for (std::size_t i = 0; i < items.size(); ++i) {
        places[count] = static_cast<std::uint8_t>(i);
        count += static_cast<std::size_t>(items[i].fKey <= pivotKey);
      }
      for (std::size_t i = 0; i < count; ++i) std::swap(fItems[pivot++], items[places[i]]);
    }
    fComparisons += last - aSlice.fFirst;
    std::swap(fItems[pivot], fItems[last]);
    return pivot;
  }

  void PushParts(const TSlice& aSlice, std::size_t aPivot) {
    TSlice smaller{aSlice.fFirst, aPivot};
    TSlice larger{aPivot + 1, aSlice.fPastLast};
    if (smaller.Size() > larger.Size()) std::swap(smaller, larger);
    if (larger.Size() > 1) fOpen.push_back(larger);
    if (smaller.Size() > 1) fOpen.push_back(smaller);
  }

  void SortBounded(const TSlice& aSlice) {
    const std::span<TSortItem> slice = fItems.subspan(aSlice.fFirst, aSlice.Size());
    std::stable_sort(slice.begin(), slice.end(), [this](const TSortItem& aItem, const TSortItem& aOther) {
      ++fComparisons;
      return aItem.fKey < aOther.fKey || (std::isnan(aOther.fKey) && !std::isnan(aItem.fKey));
    });
  }

  std::span<TSortItem> fItems;
  std::uint64_t fLimit;
  std::uint64_t fComparisons = 0;
  std::vector<TSlice> fOpen;
};

}  // namespace GeometryEngine::detail

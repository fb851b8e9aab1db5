#pragma once

// Which of many ranges of y meet another, found by bins. Private.

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TSweepHeights.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// A changing set of items with ranges of y.
///
/// The whole range of y is cut into 1, 2, 4, 8, ... equal bins, level by level. An item stands in the bin that holds
/// its lower end, at the finest level where it reaches no farther than into the next bin. A search looks at each level
/// into the bins that its range covers and the one below them, and passes over empty bins by bits. COST: constant for a
/// change. A search costs a few steps a level, besides the items it visits and those that it looks at in vain, which
/// overlap the first and the last bin only.
class TBinnedHeights {
 public:
  /// For items 0 to `aCount` - 1 that lie within the range; a range beyond it costs time, but no answer.
  TBinnedHeights(const THeights& aRange, std::size_t aCount)
      : fLow(aRange.fLow),
        fFinest(std::clamp(WidthOf(aCount) - 3, 1, kMostLevels - 1)),
        fItems(aCount),
        fFirst(std::size_t{2} << fFinest, kNotFound),
        fOccupied(fFirst.size() / kBitsPerWord + 1),
        fCounts(static_cast<std::size_t>(fFinest) + 1) {
    const double range = aRange.fHigh - aRange.fLow;
    if (range > 0) fScale = BinsAt(fFinest) / range;
  }

  std::size_t Count() const { return fCount; }

  void Add(TIndex aItem, const THeights& aHeights) {
    TItem& item = ItemAt(aItem);
    item = {aHeights, FindBin(aHeights), kNotFound, kNotFound};
    TIndex& first = fFirst[item.fBin];
    item.fNext = first;
    if (first != kNotFound) ItemAt(first).fPrevious = aItem;
    first = aItem;
    fOccupied[item.fBin / kBitsPerWord] |= BitOf(item.fBin);
    ++fCounts[LevelOf(item.fBin)];
    ++fCount;
  }

  /// REQUIRES: an item that was added.
  void Remove(TIndex aItem) {
    const TItem& item = ItemAt(aItem);
    (item.fPrevious == kNotFound ? fFirst[item.fBin] : ItemAt(item.fPrevious).fNext) = item.fNext;
    if (item.fNext != kNotFound) ItemAt(item.fNext).fPrevious = item.fPrevious;
    if (fFirst[item.fBin] == kNotFound) fOccupied[item.fBin / kBitsPerWord] &= ~BitOf(item.fBin);
    --fCounts[LevelOf(item.fBin)];
    --fCount;
  }

  /// Removes all items and calls `aVisit(item, heights)` for each, in ascending order.
  template <class TVisit>
  void TakeAll(const TVisit& aVisit) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    std::vector<TIndex> items;
    ForEachMeeting({-kInfinity, kInfinity}, [&](TIndex item) { items.push_back(item); });
    std::ranges::sort(items);
    for (const TIndex item : items) {
      Remove(item);
      aVisit(item, ItemAt(item).fHeights);
    }
  }

  /// Calls `aVisit(item)` for every item whose range meets this one, in no order.
  template <class TVisit>
  void ForEachMeeting(const THeights& aHeights, const TVisit& aVisit) const {
    const std::uint32_t low = GetFinestBin(aHeights.fLow);
    const std::uint32_t high = GetFinestBin(aHeights.fHigh);
    for (int level = 0; level <= fFinest; ++level) {
      if (fCounts[static_cast<std::size_t>(level)] == 0) continue;
      const int shift = fFinest - level;
      const std::uint32_t levelStart = std::uint32_t{1} << level;
      const std::uint32_t first = low >> shift;
      VisitBins(levelStart + (first == 0 ? 0 : first - 1), levelStart + (high >> shift), aHeights, aVisit);
    }
  }

 private:
  static constexpr int kMostLevels = 17;
  static constexpr std::uint32_t kBitsPerWord = 64;

  struct TItem {
    THeights fHeights;
    std::uint32_t fBin = 0;  ///< 2^level + the bin's number in its level
    TIndex fNext = kNotFound;
    TIndex fPrevious = kNotFound;
  };

  /// Number of bits, from the highest one that is set.
  static int WidthOf(std::uint64_t aValue) { return 64 - std::countl_zero(aValue); }
  static double BinsAt(int aLevel) { return static_cast<double>(std::uint32_t{1} << aLevel); }
  static std::uint64_t BitOf(std::uint32_t aBin) { return std::uint64_t{1} << (aBin % kBitsPerWord); }
  static std::size_t LevelOf(std::uint32_t aBin) { return static_cast<std::size_t>(WidthOf(aBin) - 1); }

  TItem& ItemAt(TIndex aItem) { return fItems[static_cast<std::size_t>(aItem)]; }
  const TItem& ItemAt(TIndex aItem) const { return fItems[static_cast<std::size_t>(aItem)]; }

  /// Never falls while y rises, which is all that the searches rest on.
  std::uint32_t GetFinestBin(double y) const {
    const double bin = (y - fLow) * fScale;
    const double last = BinsAt(fFinest) - 1;
    if (!(bin > 0)) return 0;
    return static_cast<std::uint32_t>(bin < last ? bin : last);
  }

  std::uint32_t FindBin(const THeights& aHeights) const {
    const std::uint32_t low = GetFinestBin(aHeights.fLow);
    const std::uint32_t bins = GetFinestBin(aHeights.fHigh) - low;
    const int shift = bins < 2 ? 0 : WidthOf(bins - 1);
    return (std::uint32_t{1} << (fFinest - shift)) + (low >> shift);
  }

  template <class TVisit>
  void VisitBins(std::uint32_t aFirst, std::uint32_t aLast, const THeights& aHeights, const TVisit& aVisit) const {
    for (std::uint32_t word = aFirst / kBitsPerWord; word <= aLast / kBitsPerWord; ++word) {
      std::uint64_t bits = fOccupied[word];
      if (word == aFirst / kBitsPerWord) bits &= ~std::uint64_t{0} << (aFirst % kBitsPerWord);
      if (word == aLast / kBitsPerWord) bits &= ~std::uint64_t{0} >> (kBitsPerWord - 1 - aLast % kBitsPerWord);
      for (; bits != 0; bits &= bits - 1) {
        VisitBin(word * kBitsPerWord + static_cast<std::uint32_t>(std::countr_zero(bits)), aHeights, aVisit);
      }
    }
  }

  template <class TVisit>
  void VisitBin(std::uint32_t aBin, const THeights& aHeights, const TVisit& aVisit) const {
    for (TIndex i = fFirst[aBin]; i != kNotFound; i = ItemAt(i).fNext) {
      if (ItemAt(i).fHeights.Meets(aHeights)) aVisit(i);
    }
  }

  double fLow;
  double fScale = 0;  ///< finest bins per unit of y
  int fFinest;        ///< the finest level; it has 2^fFinest bins
  std::vector<TItem> fItems;
  std::vector<TIndex> fFirst;  ///< by bin
  std::vector<std::uint64_t> fOccupied;
  std::vector<TIndex> fCounts;  ///< items by level
  std::size_t fCount = 0;
};

}  // namespace GeometryEngine::detail

#pragma once

// Which of some ranges of y meet another, found by looking at all of them. Private.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TSweepHeights.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// A changing list of items with ranges of y, in the order in which they were added.
///
/// A range stands in the list as two short numbers, rounded to some thousandths of a percent of the whole, so that
/// several are compared in one step; what they propose is compared as it is. An item that is removed leaves a gap,
/// which meets nothing; gaps are closed once they are the greater part. COST: constant for a change, on average. A
/// search looks at all items, some dozen in the time of a branch foreseen wrongly.
class TListedHeights {
 public:
  /// For at most `kMostItems` at a time, with numbers from 0 to `aCount` - 1, that lie within the range; a range beyond
  /// it costs time, but no answer.
  TListedHeights(const THeights& aRange, std::size_t aCount) : fLow(aRange.fLow), fPlaceOf(aCount) {
    const double range = aRange.fHigh - aRange.fLow;
    if (range > 0) fScale = kLastStep / range;
  }

  static constexpr std::size_t kMostItems = 1024;

  std::size_t Count() const { return fCount; }

  void Add(TIndex aItem, const THeights& aHeights) {
    fItems.push_back({aHeights, aItem});
    Enter(fItems.size() - 1);
    ++fCount;
  }

  /// REQUIRES: an item that was added.
  void Remove(TIndex aItem) {
    fItems[PlaceOf(aItem)].fItem = kNotFound;
    SetRounded(PlaceOf(aItem), {});
    --fCount;
    if (fItems.size() > 2 * fCount + kBlock) CloseGaps();
  }

  /// Calls `aVisit(item)` for every item whose range meets this one, the last that was added first.
  template <class TVisit>
  void ForEachMeeting(const THeights& aHeights, const TVisit& aVisit) const {
    std::array<std::uint16_t, kMostPlaces> places;
    for (std::size_t i = FindPlaces(GetRounded(aHeights), places); i-- > 0;) {
      const TItem& item = fItems[places[i]];
      if (item.fHeights.Meets(aHeights)) aVisit(item.fItem);
    }
  }

  /// Calls `aVisit(item, heights)` for every item, the first that was added first.
  template <class TVisit>
  void ForEach(const TVisit& aVisit) const {
    for (const TItem& item : fItems) {
      if (item.fItem != kNotFound) aVisit(item.fItem, item.fHeights);
    }
  }

  void Clear() {
    fItems.clear();
    fBlocks.clear();
    fCount = 0;
  }

 private:
  static constexpr std::size_t kBlock = 16;
  static constexpr std::size_t kMostPlaces = 2 * kMostItems + 2 * kBlock;
  static constexpr double kLastStep = 65533;
  static constexpr std::int16_t kLeast = std::numeric_limits<std::int16_t>::min();
  static constexpr std::int16_t kGreatest = std::numeric_limits<std::int16_t>::max();

  struct TItem {
    THeights fHeights;
    TIndex fItem;  ///< kNotFound for a gap
  };
  /// Between `kLeast` and `kGreatest`, but for what meets nothing.
  struct TRounded {
    std::int16_t fLow = kGreatest;
    std::int16_t fHigh = kLeast;
  };
  struct TBlock {
    TBlock() {
      fLows.fill(kGreatest);
      fHighs.fill(kLeast);
    }
    std::array<std::int16_t, kBlock> fLows;
    std::array<std::int16_t, kBlock> fHighs;
  };

  std::uint16_t& PlaceOf(TIndex aItem) { return fPlaceOf[static_cast<std::size_t>(aItem)]; }

  /// Puts the item of a place into the blocks. REQUIRES: the places before it there already.
  void Enter(std::size_t aPlace) {
    if (aPlace % kBlock == 0) fBlocks.emplace_back();
    PlaceOf(fItems[aPlace].fItem) = static_cast<std::uint16_t>(aPlace);
    SetRounded(aPlace, GetRounded(fItems[aPlace].fHeights));
  }

  void SetRounded(std::size_t aPlace, const TRounded& aRounded) {
    fBlocks[aPlace / kBlock].fLows[aPlace % kBlock] = aRounded.fLow;
    fBlocks[aPlace / kBlock].fHighs[aPlace % kBlock] = aRounded.fHigh;
  }

  /// Never falls while y rises, which is all that the searches rest on.
  std::int16_t GetRounded(double y) const {
    const double step = (y - fLow) * fScale;
    if (!(step > 0)) return kLeast + 1;
    return static_cast<std::int16_t>(static_cast<std::int32_t>(std::min(step, kLastStep)) + kLeast + 1);
  }

  TRounded GetRounded(const THeights& aHeights) const {
    return {GetRounded(aHeights.fLow), GetRounded(aHeights.fHigh)};
  }

  /// How many places there are whose rounded ranges meet this one; they go to `aPlaces`, in ascending order.
  std::size_t FindPlaces(const TRounded& aRounded, std::array<std::uint16_t, kMostPlaces>& aPlaces) const {
    const auto pastHigh = static_cast<std::int16_t>(aRounded.fHigh + 1);
    const auto beforeLow = static_cast<std::int16_t>(aRounded.fLow - 1);
    std::size_t count = 0;
    for (std::size_t block = 0; block < fBlocks.size(); ++block) {
      std::array<std::int16_t, kBlock> meets;
      for (std::size_t i = 0; i < kBlock; ++i) {
        const bool isLowEnough = fBlocks[block].fLows[i] < pastHigh;
        const bool isHighEnough = fBlocks[block].fHighs[i] > beforeLow;
        meets[i] = isLowEnough && isHighEnough ? -1 : 0;
      }
      const auto words = std::bit_cast<std::array<std::uint64_t, 4>>(meets);
      if ((words[0] | words[1] | words[2] | words[3]) == 0) continue;
      for (std::size_t i = 0; i < kBlock; ++i) {
        aPlaces[count] = static_cast<std::uint16_t>(block * kBlock + i);
        count -= static_cast<std::size_t>(static_cast<std::ptrdiff_t>(meets[i]));
      }
    }
    return count;
  }

  void CloseGaps() {
    std::erase_if(fItems, [](const TItem& item) { return item.fItem == kNotFound; });
    fBlocks.clear();
    for (std::size_t place = 0; place < fItems.size(); ++place) Enter(place);
  }

  double fLow;
  double fScale = 0;  ///< steps per unit of y
  std::size_t fCount = 0;
  std::vector<TItem> fItems;  ///< by place, gaps counted in
  std::vector<TBlock> fBlocks;
  std::vector<std::uint16_t> fPlaceOf;  ///< by item
};

}  // namespace GeometryEngine::detail

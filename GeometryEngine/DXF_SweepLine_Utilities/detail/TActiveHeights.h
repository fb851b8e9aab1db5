#pragma once

// Which of the entities that the sweep has reached lie at the height of another. Private.

#include <cstddef>
#include <optional>

#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TBinnedHeights.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TListedHeights.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TSweepHeights.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// A changing set of items with ranges of y: in a list as long as they are some hundred, which is all that most
/// drawings ever have at one place, and in bins as long as they are many.
class TActiveHeights {
 public:
  /// For items 0 to `aCount` - 1 that lie within the range; a range beyond it costs time, but no answer.
  TActiveHeights(const THeights& aRange, std::size_t aCount)
      : fRange(aRange), fTotal(aCount), fListed(aRange, aCount) {}

  void Add(TIndex aItem, const THeights& aHeights) {
    if (!fIsBinned && fListed.Count() == TListedHeights::kMostItems) MoveToBins();
    fIsBinned ? fBinned->Add(aItem, aHeights) : fListed.Add(aItem, aHeights);
  }

  /// REQUIRES: an item that was added.
  void Remove(TIndex aItem) {
    fIsBinned ? fBinned->Remove(aItem) : fListed.Remove(aItem);
    if (fIsBinned && fBinned->Count() < kFewestBinned) MoveToList();
  }

  /// Calls `aVisit(item)` for every item whose range meets this one, in no order that is certain; most often the last
  /// that was added comes first.
  template <class TVisit>
  void ForEachMeeting(const THeights& aHeights, const TVisit& aVisit) const {
    fIsBinned ? fBinned->ForEachMeeting(aHeights, aVisit) : fListed.ForEachMeeting(aHeights, aVisit);
  }

 private:
  static constexpr std::size_t kFewestBinned = TListedHeights::kMostItems / 2;  // so that a move pays

  void MoveToBins() {
    if (!fBinned) fBinned.emplace(fRange, fTotal);
    fListed.ForEach([this](TIndex item, const THeights& heights) { fBinned->Add(item, heights); });
    fListed.Clear();
    fIsBinned = true;
  }

  void MoveToList() {
    fBinned->TakeAll([this](TIndex item, const THeights& heights) { fListed.Add(item, heights); });
    fIsBinned = false;
  }

  THeights fRange;
  std::size_t fTotal;
  bool fIsBinned = false;
  TListedHeights fListed;
  std::optional<TBinnedHeights> fBinned;  ///< once it has been needed
};

}  // namespace GeometryEngine::detail

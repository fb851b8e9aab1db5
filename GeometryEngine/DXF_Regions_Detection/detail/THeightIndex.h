#pragma once

// Which of many heights lie within a range. Private.

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/THeightRange.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// Something at a height.
struct THeight {
  double fHeight = 0;
  TIndex fItem = kNotFound;
};

/// Heights in ascending order, and where each of as many equal shares of their whole range begins among them.
/// REQUIRES: finite heights.
/// COST: n log n to make at most; a search takes a logarithm of the heights in its share, few where they are spread.
class THeightIndex {
 public:
  explicit THeightIndex(std::vector<THeight> aHeights) : fHeights(std::move(aHeights)) {
    std::ranges::sort(fHeights, {}, &THeight::fHeight);
    if (fHeights.empty()) return;
    fLeast = fHeights.front().fHeight;
    fSharesPerHeight = static_cast<double>(fHeights.size()) / (fHeights.back().fHeight - fLeast);
    fFirst.assign(fHeights.size() + 2, fHeights.size());
    for (std::size_t i = fHeights.size(); i-- > 0;) fFirst[ShareOf(fHeights[i].fHeight)] = i;
    for (std::size_t share = fFirst.size() - 1; share-- > 0;) {
      fFirst[share] = std::min(fFirst[share], fFirst[share + 1]);
    }
  }

  /// Calls `aVisit(item)` for each height in the range, in ascending order.
  template <class TVisit>
  void ForEachWithin(const THeightRange& aRange, const TVisit& aVisit) const {
    if (fHeights.empty()) return;
    const std::size_t share = ShareOf(aRange.fLow);
    const auto candidates = std::span(fHeights).subspan(fFirst[share], fFirst[share + 1] - fFirst[share]);
    const auto below = std::ranges::lower_bound(candidates, aRange.fLow, {}, &THeight::fHeight) - candidates.begin();
    for (std::size_t i = fFirst[share] + static_cast<std::size_t>(below); i < fHeights.size(); ++i) {
      if (!(fHeights[i].fHeight <= aRange.fHigh)) return;
      aVisit(fHeights[i].fItem);
    }
  }

 private:
  /// Never less for a greater height.
  std::size_t ShareOf(double aHeight) const {
    const double share = (aHeight - fLeast) * fSharesPerHeight;
    if (!(share > 0)) return 0;
    const std::size_t last = fHeights.size();
    return share < static_cast<double>(last) ? static_cast<std::size_t>(share) : last;
  }

  std::vector<THeight> fHeights;
  std::vector<std::size_t> fFirst;  // by share, and one more
  double fLeast = 0;
  double fSharesPerHeight = 0;
};

}  // namespace GeometryEngine::detail

#pragma once

// Which of many intervals hold a value. Private.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <limits>
#include <vector>

#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// Values from the least to the greatest, both counted in; never not-a-number.
struct TInterval {
  double fLeast = 0;
  double fGreatest = 0;
  TIndex fItem = kNotFound;  ///< what the interval belongs to
};

/// Intervals in the order of their least values, with the greatest value of each half, quarter and so on of them.
/// COST: n log n to make; a search goes through a logarithm of them for each one that it finds.
class TIntervalIndex {
 public:
  explicit TIntervalIndex(std::vector<TInterval> aIntervals) : fIntervals(std::move(aIntervals)) {
    std::ranges::sort(fIntervals, {}, &TInterval::fLeast);
    fLeaves = std::bit_ceil(std::max(fIntervals.size(), std::size_t{1}));
    fGreatest.assign(2 * fLeaves, -std::numeric_limits<double>::infinity());
    for (std::size_t i = 0; i < fIntervals.size(); ++i) fGreatest[fLeaves + i] = fIntervals[i].fGreatest;
    for (std::size_t node = fLeaves; node-- > 1;) {
      fGreatest[node] = std::max(fGreatest[2 * node], fGreatest[2 * node + 1]);
    }
  }

  /// Calls `aVisit(item)` for each interval that holds the value.
  template <class TVisit>
  void ForEachHolding(double aValue, const TVisit& aVisit) const {
    const auto end = std::ranges::upper_bound(fIntervals, aValue, {}, &TInterval::fLeast);
    const auto candidates = static_cast<std::size_t>(end - fIntervals.begin());
    // Depth first, from left to right: what is pending never exceeds one node a level.
    std::array<std::size_t, 2 * std::numeric_limits<std::size_t>::digits> pending;
    std::size_t count = 0;
    if (candidates > 0) pending[count++] = 1;
    while (count > 0) {
      const std::size_t node = pending[--count];
      if (!(fGreatest[node] >= aValue) || FirstLeafBelow(node) >= candidates) continue;
      if (node >= fLeaves) {
        aVisit(fIntervals[node - fLeaves].fItem);
        continue;
      }
      pending[count++] = 2 * node + 1;
      pending[count++] = 2 * node;
    }
  }

 private:
  std::size_t FirstLeafBelow(std::size_t aNode) const {
    const int levels = std::countl_zero(aNode) - std::countl_zero(fLeaves);
    return (aNode << levels) - fLeaves;
  }

  std::vector<TInterval> fIntervals;
  std::size_t fLeaves;            // a power of two
  std::vector<double> fGreatest;  // of the intervals below each node; node 1 is the top, 2 n and 2 n + 1 stand below n
};

}  // namespace GeometryEngine::detail

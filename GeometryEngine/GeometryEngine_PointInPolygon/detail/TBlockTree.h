#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace GeometryEngine::detail {

/// Items in a row, with what the items of each block of eight extend over, blocks of eight such blocks, and so on.
/// Meant for rows in which neighbours lie close together, as along a chain.
///
/// An extent has `Unite(other)`, after which it covers the other one too.
template <typename TExtent>
class TBlockTree {
 public:
  static constexpr std::size_t kBlockSize = 8;

  explicit TBlockTree(std::vector<TExtent> aItems = {}) : fExtents(std::move(aItems)) {
    fStarts[1] = fExtents.size();
    fExtents.reserve(GetRoom(fExtents.size()));
    while (SizeOf(fTop) > kBlockSize) AddLevel();
  }

  /// Room for so many items and the blocks above them.
  static constexpr std::size_t GetRoom(std::size_t aItems) {
    std::size_t room = aItems;
    for (std::size_t level = aItems; level > kBlockSize; room += level) level = BlocksOf(level);
    return room;
  }

  /// Calls `aVisit(place)` for each item whose extent `aAccepts`, in their order. REQUIRES: an extent that is accepted
  /// lies in no extent that is not; what is accepted may shrink on the way.
  template <typename TAccepts, typename TVisit>
  void ForEach(const TAccepts& aAccepts, const TVisit& aVisit) const {
    ForEach(fTop, 0, SizeOf(fTop), aAccepts, aVisit);
  }

 private:
  static constexpr std::size_t kMostLevels = 11;  // of as many items as an index counts

  static constexpr std::size_t BlocksOf(std::size_t aItems) { return (aItems + kBlockSize - 1) / kBlockSize; }
  std::size_t SizeOf(std::size_t aLevel) const { return fStarts[aLevel + 1] - fStarts[aLevel]; }

  void AddLevel() {
    for (std::size_t i = fStarts[fTop]; i < fStarts[fTop + 1]; ++i) {
      if ((i - fStarts[fTop]) % kBlockSize == 0) fExtents.push_back(fExtents[i]);
      fExtents.back().Unite(fExtents[i]);
    }
    ++fTop;
    fStarts[fTop + 1] = fExtents.size();
  }

  /// Goes down no deeper than there are levels, which is a logarithm of the items.
  template <typename TAccepts, typename TVisit>
  void ForEach(std::size_t aLevel, std::size_t aBegin, std::size_t aEnd, const TAccepts& aAccepts,
               const TVisit& aVisit) const {
    const TExtent* const extents = fExtents.data() + fStarts[aLevel];
    for (std::size_t i = aBegin; i < aEnd; ++i) {
      if (!aAccepts(extents[i])) continue;
      if (aLevel == 0) {
        aVisit(i);
      } else {
        const std::size_t begin = i * kBlockSize;
        ForEach(aLevel - 1, begin, std::min(begin + kBlockSize, SizeOf(aLevel - 1)), aAccepts, aVisit);
      }
    }
  }

  std::vector<TExtent> fExtents;                       ///< the items, and behind them the blocks of each level
  std::array<std::size_t, kMostLevels + 1> fStarts{};  ///< of the levels, and where the last one ends
  std::size_t fTop = 0;
};

}  // namespace GeometryEngine::detail

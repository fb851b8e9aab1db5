#pragma once

#include <algorithm>
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
  explicit TBlockTree(std::vector<TExtent> aItems = {}) {
    fLevels.push_back(std::move(aItems));
    while (fLevels.back().size() > kBlockSize) fLevels.push_back(GetBlocks(fLevels.back()));
  }

  /// Calls `aVisit(place)` for each item whose extent `aAccepts`, in their order. REQUIRES: an extent that is accepted
  /// lies in no extent that is not; what is accepted may shrink on the way.
  template <typename TAccepts, typename TVisit>
  void ForEach(const TAccepts& aAccepts, const TVisit& aVisit) const {
    const std::size_t top = fLevels.size() - 1;
    ForEach(top, 0, fLevels[top].size(), aAccepts, aVisit);
  }

 private:
  static constexpr std::size_t kBlockSize = 8;

  static std::vector<TExtent> GetBlocks(const std::vector<TExtent>& aItems) {
    std::vector<TExtent> blocks;
    blocks.reserve(aItems.size() / kBlockSize + 1);
    for (std::size_t i = 0; i < aItems.size(); ++i) {
      if (i % kBlockSize == 0) blocks.push_back(aItems[i]);
      blocks.back().Unite(aItems[i]);
    }
    return blocks;
  }

  /// Goes down no deeper than there are levels, which is a logarithm of the items.
  template <typename TAccepts, typename TVisit>
  void ForEach(std::size_t aLevel, std::size_t aBegin, std::size_t aEnd, const TAccepts& aAccepts,
               const TVisit& aVisit) const {
    const std::vector<TExtent>& extents = fLevels[aLevel];
    for (std::size_t i = aBegin; i < aEnd; ++i) {
      if (!aAccepts(extents[i])) continue;
      if (aLevel == 0) {
        aVisit(i);
      } else {
        const std::size_t begin = i * kBlockSize;
        ForEach(aLevel - 1, begin, std::min(begin + kBlockSize, fLevels[aLevel - 1].size()), aAccepts, aVisit);
      }
    }
  }

  std::vector<std::vector<TExtent>> fLevels;  ///< the items, and above them the blocks of each level
};

}  // namespace GeometryEngine::detail

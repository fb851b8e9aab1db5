#pragma once

#include <algorithm>
#include <bit>
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
    while (fLevels.back().size() > 1) fLevels.push_back(GetBlocks(fLevels.back()));
  }

  /// Calls `aVisit(place)` for each item whose extent `aAccepts`, in their order. REQUIRES: an extent that is accepted
  /// lies in no extent that is not; what is accepted may shrink on the way.
  template <typename TAccepts, typename TVisit>
  void ForEach(const TAccepts& aAccepts, const TVisit& aVisit) const {
    std::size_t place = 0;
    while (place < fLevels.front().size()) {
      std::size_t level = GetLevelBeginningAt(place);
      while (level > 0 && aAccepts(fLevels[level][place >> (level * kBitsPerLevel)])) --level;
      if (level == 0 && aAccepts(fLevels.front()[place])) aVisit(place);
      place += std::size_t{1} << (level * kBitsPerLevel);
    }
  }

 private:
  static constexpr std::size_t kBitsPerLevel = 3;
  static constexpr std::size_t kBlockSize = std::size_t{1} << kBitsPerLevel;

  static std::vector<TExtent> GetBlocks(const std::vector<TExtent>& aItems) {
    std::vector<TExtent> blocks;
    blocks.reserve(aItems.size() / kBlockSize + 1);
    for (std::size_t i = 0; i < aItems.size(); ++i) {
      if (i % kBlockSize == 0) blocks.push_back(aItems[i]);
      blocks.back().Unite(aItems[i]);
    }
    return blocks;
  }

  /// The highest level on which a block begins there.
  std::size_t GetLevelBeginningAt(std::size_t aPlace) const {
    const auto level = static_cast<std::size_t>(std::countr_zero(aPlace)) / kBitsPerLevel;
    return std::min(level, fLevels.size() - 1);
  }

  std::vector<std::vector<TExtent>> fLevels;  ///< the items, and above them the blocks of each level
};

}  // namespace GeometryEngine::detail

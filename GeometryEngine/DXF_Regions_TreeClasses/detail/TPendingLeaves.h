#pragma once

// The lowest level of a tree, in an array instead of nodes. Private.

#include <cstddef>
#include <span>
#include <vector>

#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// The entities below the nodes of level 1, of which nodes of level 2 are made when somebody first looks at them.
/// Passes that know of it read on (TRegionEntities), and no node is made.
struct TPendingLeaves {
  std::vector<TIndex> fEntityIndexes;  ///< parent after parent, each in order
  std::vector<std::size_t> fFirst;     ///< by parent where its own begin, and at last where they all end

  /// Those below the parent at a place of level 1.
  std::span<const TIndex> Of(TIndex aPlace) const {
    const auto place = static_cast<std::size_t>(aPlace);
    return std::span(fEntityIndexes).subspan(fFirst[place], fFirst[place + 1] - fFirst[place]);
  }
};

}  // namespace GeometryEngine::detail

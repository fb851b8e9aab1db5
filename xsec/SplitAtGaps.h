#pragma once

// Parts of a drawing that lie side by side with nothing between them, such as the laminations on a sheet.

#include <cstddef>
#include <vector>

#include "xsec/Extents.h"

namespace xsec {

/// The indexes of some boxes, ascending.
using BoxGroup = std::vector<std::size_t>;

/// The box round a group of them.
Extents BoxOf(const BoxGroup& aGroup, const std::vector<Extents>& aBoxes);

/// Parts the boxes along straight cuts, level or upright, that are wider than the gap: right through all of them, then
/// on through each part. No part can lie within another, nor come closer to it than the gap.
/// DEGENERATE: none for no boxes.
///
/// COST: n log n for each of at most 32 cuts through cuts
std::vector<BoxGroup> SplitAtGaps(const std::vector<Extents>& aBoxes, double aGap);
/// Only the members of the group are parted.
std::vector<BoxGroup> SplitAtGaps(const std::vector<Extents>& aBoxes, const BoxGroup& aMembers, double aGap);

}  // namespace xsec

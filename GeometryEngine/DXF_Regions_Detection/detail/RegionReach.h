#pragma once

// Where points may lie that a region goes round at all, by the rules of WindingContributions.h. Private.
// docs/numerics.md has the proof.

#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TBoxIndex.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TIntervalIndex.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

namespace GeometryEngine::detail {

/// Outside the box of a region no point has a winding number of 1 or more, but for points to its left at one of the
/// heights `fOpenToTheLeft`, and points to its right at one of the heights `fOpenToTheRight`.
struct TRegionReaches {
  std::vector<TBox> fBoxes;                ///< of the regions, in their order
  std::vector<TInterval> fOpenToTheLeft;   ///< of heights; the item is the region
  std::vector<TInterval> fOpenToTheRight;  ///< the same
};

/// The reaches of all regions of the tree; the storage of `aCoordinateTree` holds their entities.
/// COST: proportional to the entities.
TRegionReaches GetRegionReaches(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree);

}  // namespace GeometryEngine::detail

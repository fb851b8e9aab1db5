#pragma once

// Which regions lie inside which, for all of them at once. Private; RegionContains_SubRegion answers for a pair.

#include <vector>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/host/IntegerArrays.h"

namespace GeometryEngine::detail {

/// For each region of the tree, in their order, the indexes of the other ones that lie inside it, ascending. The
/// storage of `aCoordinateTree` holds their entities.
/// COST: n log n for n entities, besides the search of each region that a region's box holds.
std::vector<TIntegerArray> FindNestedRegions(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree);

}  // namespace GeometryEngine::detail

#pragma once

// Where points may lie that a region goes round at all, by the rules of WindingContributions.h. Private.
// docs/numerics.md has the proof.

#include <cstddef>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TBoxIndex.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/THeightRange.h"

namespace GeometryEngine::detail {

/// The start points of a region's entities, which decide what it lies in, by their extremes.
struct TStartPoints {
  TBox fBox;
  double fHeight_LeftMost = 0;
  double fHeight_RightMost = 0;
  bool fLieNowhere = true;  ///< there is none, or one that is not a number: the region lies in no other
  bool fAreTame = true;     ///< numbers of no extreme size
};

/// Heights at which a region is open to one side.
struct TOpenHeights {
  THeightRange fHeights;
  TIndex fRegion;
};

/// Outside the box of a region no point has a winding number of 1 or more, but for points to its left at one of the
/// heights `fOpenToTheLeft`, and points to its right at one of the heights `fOpenToTheRight`; and none at all above the
/// box or below it.
struct TRegionReaches {
  std::vector<TBox> fBoxes;  ///< of the regions, in their order
  std::vector<TOpenHeights> fOpenToTheLeft;
  std::vector<TOpenHeights> fOpenToTheRight;
  std::vector<TStartPoints> fStartPoints;  ///< of the regions
  TCoordinateArray fPoints;                ///< the start points themselves, region after region,
  std::vector<std::size_t> fFirstPoints;   ///< by region where its own begin, and at last where they all end

  std::span<const TEntityCoordinate> PointsOf(TIndex aRegion) const {
    const auto region = static_cast<std::size_t>(aRegion);
    return std::span(fPoints).subspan(fFirstPoints[region], fFirstPoints[region + 1] - fFirstPoints[region]);
  }
};

/// The reaches of all regions of the tree; the storage of `aCoordinateTree` holds their entities.
/// COST: proportional to the entities.
TRegionReaches GetRegionReaches(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree);

}  // namespace GeometryEngine::detail

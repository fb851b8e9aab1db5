#pragma once

// A traced region, prepared for the winding numbers of many points. Private; CalculateWindingNumber is the same number
// without preparation.

#include <cstdint>
#include <vector>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TBlockTree.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TWalkedEntity.h"

namespace GeometryEngine::detail {

/// The entities of a region in the order of travel, each with the heights at which it may count.
///
/// REQUIRES: tree, storage and settings stay as they are while the outline is used.
/// COST: for a point, a logarithm of the entities for each one at its height.
class TRegionOutline {
 public:
  TRegionOutline(const TEntityTree& aTree, const TTreeNode& aRegion);

  /// As CalculateWindingNumber has it.
  std::int32_t GetWindingNumber(const TEntityCoordinate& aPoint);

 private:
  std::vector<TWalkedEntity> GetEntities(const TEntityTree& aTree, const TTreeNode& aRegion) const;
  std::vector<THeightRange> GetHeights() const;

  double fTolerance;
  std::vector<TWalkedEntity> fEntities;
  TBlockTree<THeightRange> fTree;
};

}  // namespace GeometryEngine::detail

#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TRegionEntities.h"

#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingLeaves.h"
#include "GeometryEngine/host/detail/FetchAhead.h"

namespace GeometryEngine::detail {

TRegionEntities::TRegionEntities(const TEntityTree& aTree, const TTreeNode& aRegion) {
  if (const TEntityStorage* storage = aTree.pEntityStorage()) fEntities = storage->EntityArray();
  if (const TPendingLeaves* leaves = TEntityTree::PendingLeavesOf(aRegion)) {
    fIndexes = leaves->Of(aRegion.RelativeIndex());
  } else {
    fChildren = aRegion.Children();
  }
}

const TDXFEntity& TRegionEntities::Empty() {
  static const TDXFEntity empty;
  return empty;
}

void TRegionEntities::FetchAhead() const {
  for (std::size_t i = 0; i < size(); ++i) {
    const TDXFEntity& entity = (*this)[i];
    detail::FetchAhead(&entity.EntityType);
    detail::FetchAhead(&entity.endAngle);
  }
}

}  // namespace GeometryEngine::detail

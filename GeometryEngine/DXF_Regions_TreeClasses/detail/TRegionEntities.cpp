#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TRegionEntities.h"

#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingLeaves.h"

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
#ifdef __GNUC__
  for (std::size_t i = 0; i < size(); ++i) {
    const TDXFEntity& entity = (*this)[i];
    __builtin_prefetch(&entity.EntityType);
    __builtin_prefetch(&entity.endAngle);
  }
#endif
}

}  // namespace GeometryEngine::detail

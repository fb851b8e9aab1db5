#pragma once

// Reading ahead what a loop will need, where entities lie scattered in memory. Private.

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

namespace GeometryEngine::detail {

/// Asks for the geometry of all entities of a region, without waiting for it.
inline void FetchEntitiesAhead([[maybe_unused]] const TEntityTree& aTree, [[maybe_unused]] const TTreeNode& aRegion) {
#ifdef __GNUC__
  for (const TTreeNode* child : aRegion.Children()) {
    const TDXFEntity& entity = aTree.GetNodeEntity(*child);
    __builtin_prefetch(&entity.EntityType);
    __builtin_prefetch(&entity.endAngle);
  }
#endif
}

}  // namespace GeometryEngine::detail

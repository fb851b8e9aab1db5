#pragma once

// Works on regions that have been traced: joining two consecutive entities that continue one another, and building a
// region that the drawing leaves empty. For tracing itself see RegionTracing.h.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <cstdint>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/DXF_Regions_Utilities/TreeNodeArrays.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// What a walk along a region keeps while it feeds each consecutive pair of entities to `DetectMergeEntity`. The walk
/// passes the first entity from point 1 to point 2 and the second one from there on.
struct TEntityMerge {
  TTreeNode* fNode_A = nullptr;         ///< region node of the first entity; after a merge the node of the merged one
  TTreeNode* fNode_B = nullptr;         ///< region node of the second entity
  TTreeNode* fParent = nullptr;         ///< the region
  TDXFEntity fEntity;                   ///< the first entity; after a merge the merged one
  TEntityCoordinate fPoint_1;           ///< where the first entity begins
  TEntityCoordinate fPoint_2;           ///< where the two meet
  TTreeNodeArray fRemovals;             ///< nodes whose entities have been merged, for the caller to remove afterwards
  TIndex fRemovalPosition = kNotFound;  ///< place in the removals of the last node appended
  std::int32_t fMergeCount = 0;
};

/// True when B continues A: two arcs about one centre with radii equal to the bit, or two lines of one slope within the
/// linear tolerance, both vertical or neither. `aPoint_0` and `aPoint_1` are the ends of A, `aPoint_1` and `aPoint_2`
/// those of B, in the order of travel.
GEOMETRYENGINE_API bool CheckEntitiesForMerge(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B,
                                              const TEntityCoordinate& aPoint_0, const TEntityCoordinate& aPoint_1,
                                              const TEntityCoordinate& aPoint_2);

/// Merges the walk's entity with the next one, which ends at `aPoint_3`, when `CheckEntitiesForMerge` allows it: the
/// merged entity, which carries no attributes, is appended to the tree's storage and gets a node of its own, child of
/// the region at `aPosition`; both old nodes join the removals. True when a merge was made. Otherwise the walk moves on
/// to its second point and nothing else changes.
/// DEGENERATE: without a region or a storage the merged entity gets no node, and the walk's first node becomes nil.
GEOMETRYENGINE_API bool DetectMergeEntity(TEntityTree& aTree, TEntityMerge& aMerge, const TDXFEntity& aEntity_2,
                                          const TEntityCoordinate& aPoint_3, TIndex aPosition);

/// A region made of the entities of `GetBlankRegionEntities` for the same four numbers, appended to the region tree and
/// to its storage. Area, centroid and direction of travel keep their initial values.
/// DEGENERATE: in a tree without a storage the region has no entities.
GEOMETRYENGINE_API TTreeNode* GenerateBlankRegion(TEntityTree& aRegionTree, double r1, double r2, double a1, double a2);

}  // namespace GeometryEngine

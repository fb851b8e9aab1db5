#pragma once

// Records where entities meet. The points themselves are found by PairInterceptions.h; what is done with them by
// EntitySplitting.h.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/TInterceptionPoints.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// Records a point of an entity in an intercept tree; answers the node that holds it, which is an earlier one when the
/// point is known already under the tolerance. `aIndex` is the entity's index in the tree's storage.
///
/// The points of a line stand in descending x, and where x is the same under the tolerance in descending y. The points
/// of an arc stand in ascending angle from its start, through 0 degrees if need be. Entities that are equal share one
/// node: the index that it holds is that of the first.
/// DEGENERATE: an entity that is neither line nor arc equals nothing, so each of its points gets a node of its own.
GEOMETRYENGINE_API TTreeNode* AddInterception(TEntityTree& aTree, const TDXFEntity& aEntity, TIndex aIndex,
                                              const TEntityCoordinate& aPoint);

/// Records every point of the list, in order, first with A and then with B.
GEOMETRYENGINE_API void AddInterceptions(TEntityTree& aTree, const TInterceptionPoints& aPoints,
                                         const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TIndex aIndex_A,
                                         TIndex aIndex_B);

}  // namespace GeometryEngine

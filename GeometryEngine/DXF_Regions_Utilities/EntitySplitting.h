#pragma once

// Cuts an entity at the points where others meet it. The points come from AddInterception (InterceptionRecording.h),
// which keeps them in order along the entity.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// The pieces of a line or an arc between the points that the node's children hold.
///
/// With two points or more there is a piece from each point to the next and nothing beyond the first and the last: the
/// entity's own ends must be among the points unless they are to be cut off. With a single point that is neither end
/// there are two pieces, from start to point and from point to end. With no point, or with one that is an end, the
/// entity comes back as it is. Only then does it keep its tags; pieces carry none.
///
/// DEGENERATE: nothing for an entity whose ends are the same point under the tolerance, and for any other kind of
/// entity. A nil node holds no points.
GEOMETRYENGINE_API TEntityArray SplitEntity_FromIntercepts(const TDXFEntity& aEntity, const TTreeNode* aNode);

/// The part of an arc that runs anticlockwise from one point to the other: its radius and centre, its angles read off
/// the points, brought into 0 to less than 360. Points and centre are cleaned (CheckCoordinate).
/// REQUIRES: points on the arc, `aStart` the one nearer to its start.
GEOMETRYENGINE_API TDXFEntity CreateEntity_Arc_CoordinateTree(const TEntityCoordinate& aStart,
                                                              const TEntityCoordinate& aEnd, const TDXFEntity& aArc);

}  // namespace GeometryEngine

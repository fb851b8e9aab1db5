#pragma once

// Operations on arrays of geometry nodes, array first. A single node is cast by TTreeNode_Geometry::TypeCast.

#include <span>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"

namespace GeometryEngine {

inline namespace TTreeNodeArray_Geometry_Helper {

/// Appends one node, which may be nil. The array owns no node.
GEOMETRYENGINE_API void AddTreeNode_Geometry(TTreeNodeArray_Geometry& aRegions, TTreeNode_Geometry* aRegion);

/// The same nodes in the same order as geometry nodes.
/// DEGENERATE: nil in the place of a node that is nil or no geometry node, so that positions still correspond.
GEOMETRYENGINE_API TTreeNodeArray_Geometry TypeCast(std::span<TTreeNode_Base* const> aArray);
GEOMETRYENGINE_API TTreeNodeArray_Geometry TypeCast(std::span<TTreeNode_CoreProperties* const> aArray);

}  // namespace TTreeNodeArray_Geometry_Helper

}  // namespace GeometryEngine

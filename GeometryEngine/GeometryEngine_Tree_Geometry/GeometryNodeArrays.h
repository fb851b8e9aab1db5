#pragma once

#include <span>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"

namespace GeometryEngine {

inline namespace TTreeNodeArray_Geometry_Helper {

GEOMETRYENGINE_API void AddTreeNode_Geometry(TTreeNodeArray_Geometry& aRegions, TTreeNode_Geometry* aRegion);
GEOMETRYENGINE_API TTreeNodeArray_Geometry TypeCast(std::span<TTreeNode_Base* const> aArray);
GEOMETRYENGINE_API TTreeNodeArray_Geometry TypeCast(std::span<TTreeNode_CoreProperties* const> aArray);

}  // namespace TTreeNodeArray_Geometry_Helper

}  // namespace GeometryEngine

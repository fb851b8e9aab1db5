#include "GeometryEngine/GeometryEngine_Tree_Geometry/GeometryNodeArrays.h"

namespace GeometryEngine {

namespace {

template <typename TNode>
TTreeNodeArray_Geometry CastEach(std::span<TNode* const> aArray) {
  TTreeNodeArray_Geometry regions;
  regions.reserve(aArray.size());
  for (TNode* node : aArray) regions.push_back(TTreeNode_Geometry::TypeCast(node));
  return regions;
}

}  // namespace

inline namespace TTreeNodeArray_Geometry_Helper {

void AddTreeNode_Geometry(TTreeNodeArray_Geometry& aRegions, TTreeNode_Geometry* aRegion) {
  aRegions.push_back(aRegion);
}

TTreeNodeArray_Geometry TypeCast(std::span<TTreeNode_Base* const> aArray) {
  return CastEach(aArray);
}

TTreeNodeArray_Geometry TypeCast(std::span<TTreeNode_CoreProperties* const> aArray) {
  return CastEach(aArray);
}

}  // namespace TTreeNodeArray_Geometry_Helper

}  // namespace GeometryEngine

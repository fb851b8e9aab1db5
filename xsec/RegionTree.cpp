#include "xsec/RegionTree.h"

#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"

namespace xsec {

namespace {

using GeometryEngine::TTree_Geometry;
using GeometryEngine::TTreeNode_Geometry;

std::vector<TTreeNode_Geometry*> AddNodes(TTree_Geometry& tree, GeometryEngine::TEntityBaseClass& driver,
                                          std::span<const TracedLoop> faces) {
  std::vector<TTreeNode_Geometry*> nodes;
  for (const TracedLoop& face : faces) {
    auto owned = tree.CreateTreeNode();
    nodes.push_back(TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(owned)));
    driver.AddRegionEntities(nodes.back(), GeometryEngine::ToIndex(face.index));
  }
  return nodes;
}

void ReadBack(TTreeNode_Geometry& node, Region& region) {
  region.uniqueName = node.GetRegionName_Unique();
  region.type = node.RegionType();
  region.baseArea = node.RegionArea_Base();
  region.netArea = node.RegionArea();
  region.centroid = node.Centroid();
  region.label = node.RegionCoordinate();
}

}  // namespace

void FillFromGeometryTree(GeometryEngine::TEntityBaseClass& aDriver, std::span<const TracedLoop> aFaces,
                          std::vector<Region>& aRegions) {
  TTree_Geometry tree;
  const std::vector<TTreeNode_Geometry*> nodes = AddNodes(tree, aDriver, aFaces);
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    nodes[i]->RegionType(aRegions[i].type);
    nodes[i]->SetRegionName(aRegions[i].name);
    if (aRegions[i].parent != kNone) tree.MoveTreeNode_Recursive(nodes[i], nodes[aRegions[i].parent]);
  }
  // A node's label keeps clear of its children and its net area is without theirs, so all stand in place by now.
  for (TTreeNode_Geometry* node : nodes) node->UpdateGeometry_Outputs();
  for (std::size_t i = 0; i < aRegions.size(); ++i) ReadBack(*nodes[i], aRegions[i]);
}

}  // namespace xsec

#include "xsec/RegionTree.h"

namespace xsec {

namespace {

using GeometryEngine::TTreeNode_Geometry;

void ReadBack(TTreeNode_Geometry& node, Region& region) {
  region.uniqueName = node.GetRegionName_Unique();
  region.type = node.RegionType();
  region.baseArea = node.RegionArea_Base();
  region.netArea = node.RegionArea();
  region.centroid = node.Centroid();
  region.label = node.RegionCoordinate();
}

}  // namespace

void RegionTree::Add(GeometryEngine::TEntityBaseClass& aDriver, std::span<const TracedLoop> aFaces,
                     const Motion& aBack) {
  for (const TracedLoop& face : aFaces) {
    auto owned = fTree.CreateTreeNode();
    fFaces.push_back({TTreeNode_Geometry::TypeCast(fTree.AddNewTreeNode(owned)), aBack});
    aDriver.AddRegionEntities(fFaces.back().node, GeometryEngine::ToIndex(face.index));
  }
}

void RegionTree::Fill(std::vector<Region>& aRegions) {
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    TTreeNode_Geometry* node = fFaces[i].node;
    node->RegionType(aRegions[i].type);
    node->SetRegionName(aRegions[i].name);
    if (aRegions[i].parent != kNone) fTree.MoveTreeNode_Recursive(node, fFaces[aRegions[i].parent].node);
  }
  // A node's label keeps clear of its children and its net area is without theirs, so all stand in place by now.
  for (const Face& face : fFaces) face.node->UpdateGeometry_Outputs();
  for (std::size_t i = 0; i < aRegions.size(); ++i) {
    ReadBack(*fFaces[i].node, aRegions[i]);
    fFaces[i].back.ApplyToPoints(aRegions[i]);
  }
  fTree.Clear();
  fFaces.clear();
}

}  // namespace xsec

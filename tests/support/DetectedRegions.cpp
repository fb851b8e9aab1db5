#include "tests/support/DetectedRegions.h"

#include <memory>

#include "GeometryEngine/GeometryEngine.h"

namespace GeometryEngine::support {

namespace {

std::vector<std::optional<std::size_t>> Parents(const TTreeNode& aRegions) {
  std::vector<std::optional<std::size_t>> parents(aRegions.Children().size());
  for (std::size_t j = 0; j < parents.size(); ++j) {
    for (const std::int32_t i : aRegions.Children()[j]->SubRegions()) parents[static_cast<std::size_t>(i)] = j;
  }
  return parents;
}

TTreeNodeArray_Geometry HandOver(TEntityBaseClass& aDriver, TTree_Geometry& aTree) {
  TTreeNodeArray_Geometry nodes;
  for (TIndex i = 0; i < aDriver.RegionTree().RootNode()->GetCount(); ++i) {
    std::unique_ptr<TTreeNode_Base> node = aTree.CreateTreeNode();
    nodes.push_back(TTreeNode_Geometry::TypeCast(aTree.AddNewTreeNode(node)));
    aDriver.AddRegionEntities(nodes.back(), i);
  }
  return nodes;
}

DetectedRegion Describe(const TTreeNode_Geometry& aNode) {
  DetectedRegion region;
  region.baseArea = aNode.RegionArea_Base();
  region.netArea = aNode.RegionArea();
  region.centroid = aNode.Centroid();
  region.label = aNode.RegionCoordinate();
  region.entities = static_cast<std::size_t>(aNode.NumberEntities());
  for (const TDXFEntity& entity : aNode.Entities().EntityArray()) region.perimeter += entity.EntityLength();
  return region;
}

}  // namespace

std::vector<DetectedRegion> DetectRegions(const TEntityArray& aEntities) {
  TEntityStorage storage;
  storage.AddEntities(aEntities);
  TEntityBaseClass driver;
  return DetectRegions(driver, storage);
}

std::vector<DetectedRegion> DetectRegions(TEntityBaseClass& aDriver, TEntityStorage& aStorage) {
  aDriver.DetermineInterceptions(&aStorage);
  aDriver.DetermineRegions(aDriver.CoordinateTree(), 1);
  aDriver.IdentifySubRegions(aDriver.CoordinateTree());
  aDriver.RemoveDuplicatedSubRegions();

  TTree_Geometry tree;
  const TTreeNodeArray_Geometry nodes = HandOver(aDriver, tree);
  const auto parents = Parents(*aDriver.RegionTree().RootNode());
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (parents[i]) tree.MoveTreeNode_Recursive(nodes[i], nodes[*parents[i]]);
  }
  std::vector<DetectedRegion> regions;
  for (TTreeNode_Geometry* node : nodes) node->UpdateGeometry_Outputs();
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    regions.push_back(Describe(*nodes[i]));
    regions.back().parent = parents[i];
  }
  return regions;
}

}  // namespace GeometryEngine::support

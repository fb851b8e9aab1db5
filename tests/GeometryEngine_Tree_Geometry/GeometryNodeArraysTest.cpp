#include "GeometryEngine/GeometryEngine_Tree_Geometry/GeometryNodeArrays.h"

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"
#include "tests/support/Regions.h"

namespace GeometryEngine {
namespace {

using ::testing::ElementsAre;

TEST(TTreeNodeArray_Geometry_Helper, AddTreeNode_GeometryAppends) {
  TTree_Geometry tree;
  TTreeNode_Geometry& region = support::AddRegion(tree, "");
  TTreeNodeArray_Geometry regions;
  AddTreeNode_Geometry(regions, &region);
  AddTreeNode_Geometry(regions, tree.RootNode());
  AddTreeNode_Geometry(regions, &region);
  EXPECT_THAT(regions, ElementsAre(&region, tree.RootNode(), &region));
}

TEST(TTreeNodeArray_Geometry_Helper, TypeCastKeepsPlacesAndGivesNilForOtherNodes) {
  TTree_Geometry tree;
  TTreeNode_Geometry& region = support::AddRegion(tree, "");
  TTreeNode_CoreProperties other(&tree);
  const TTreeNodeArray_Base nodes = {&region, nullptr, &other, tree.RootNode()};
  EXPECT_THAT(TypeCast(nodes), ElementsAre(&region, nullptr, nullptr, tree.RootNode()));
  const TTreeNodeArray_CoreProperties regions = {&other, &region};
  EXPECT_THAT(TTreeNodeArray_Geometry_Helper::TypeCast(regions), ElementsAre(nullptr, &region));
  EXPECT_THAT(TypeCast(TTreeNodeArray_Base{}), ElementsAre());
}

}  // namespace
}  // namespace GeometryEngine

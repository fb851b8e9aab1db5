#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

#include <cmath>

#include <gmock/gmock.h>

#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/RunWithStack.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::IsBits;
using support::ParseEntity;

namespace {

constexpr std::size_t kSmallStack = 256 * 1024;  // bytes

TTreeNode* AddVertex(TEntityTree& aTree, double aX, double aY) {
  TTreeNode* vertex = aTree.AddTreeNode_ToRoot();
  vertex->Coordinates({aX, aY});
  return vertex;
}

std::vector<TIndex> RelativeIndexes(const TTreeNode* aNode) {
  std::vector<TIndex> indexes;
  for (const TTreeNode* child : aNode->Children()) indexes.push_back(child->RelativeIndex());
  return indexes;
}

void AddChainOfNodes(TEntityTree& aTree, std::int32_t aDepth) {
  TTreeNode* node = aTree.RootNode();
  for (std::int32_t i = 0; i < aDepth; ++i) node = aTree.AddTreeNode(node);
}

}  // namespace

TEST(TEntityTree, StartsWithItsRootAlone) {
  const TEntityTree tree("Intercepts");
  EXPECT_EQ(tree.Name(), "Intercepts");
  EXPECT_EQ(tree.Count(), 1);
  EXPECT_EQ(tree.GetCount(), 1);
  EXPECT_EQ(tree.GetNodeFromIndex(0), tree.RootNode());
  EXPECT_EQ(tree.RootNode()->AbsoluteIndex(), 0);
  EXPECT_EQ(tree.RootNode()->Level(), 0);
  EXPECT_EQ(tree.RootNode()->Parent(), nullptr);
  EXPECT_EQ(tree.RootNode()->RegionIndex(), -2);
  EXPECT_EQ(tree.pEntityStorage(), nullptr);
}

TEST(TEntityTree, GetNodeFromIndexOutsideTheTreeIsNil) {
  TEntityTree tree("Regions");
  tree.AddTreeNode_ToRoot();
  EXPECT_EQ(tree.GetNodeFromIndex(-1), nullptr);
  EXPECT_EQ(tree.GetNodeFromIndex(tree.Count()), nullptr);
  EXPECT_EQ(tree.Item(1), tree.RootNode()->GetNode(0));
}

TEST(TEntityTree, AddTreeNodeBelowNilIsNilAndChangesNothing) {
  TEntityTree tree("Regions");
  EXPECT_EQ(tree.AddTreeNode(nullptr), nullptr);
  EXPECT_EQ(tree.AddTreeNode_AtIndex(nullptr, 0), nullptr);
  EXPECT_EQ(tree.Count(), 1);
  EXPECT_EQ(tree.AddTreeNode_ToRoot()->AbsoluteIndex(), 1);
}

TEST(TEntityTree, AddTreeNodeBelowANodeOfAnotherTreeIsNil) {
  TEntityTree tree("Regions");
  TEntityTree other("Intercepts");
  EXPECT_EQ(tree.AddTreeNode(other.RootNode()), nullptr);
  EXPECT_EQ(other.RootNode()->Count(), 0);
  EXPECT_EQ(tree.Count(), 1);
}

TEST(TEntityTree, AddTreeNodeAppendsAndCountsUp) {
  TEntityTree tree("Regions");
  const TTreeNode* first = tree.AddTreeNode_ToRoot();
  const TTreeNode* second = tree.AddTreeNode_ToRoot();
  EXPECT_THAT(tree.RootNode()->Children(), testing::ElementsAre(first, second));
  EXPECT_EQ(tree.RootNode()->Count(), 2);
  EXPECT_EQ(second->RelativeIndex(), 1);
  EXPECT_EQ(second->AbsoluteIndex(), 2);
  EXPECT_EQ(tree.GetNodeFromIndex(2), second);
}

TEST(TEntityTree, AddTreeNode_AtIndexMovesLaterSiblingsUpButStandsLastInTheFlatList) {
  TEntityTree tree("Intercepts");
  const TTreeNode* first = tree.AddTreeNode_ToRoot();
  const TTreeNode* last = tree.AddTreeNode_ToRoot();
  const TTreeNode* between = tree.AddTreeNode_AtIndex(tree.RootNode(), 1);
  EXPECT_THAT(tree.RootNode()->Children(), testing::ElementsAre(first, between, last));
  EXPECT_THAT(RelativeIndexes(tree.RootNode()), testing::ElementsAre(0, 1, 2));
  EXPECT_EQ(tree.GetNodeFromIndex(3), between);
}

TEST(TEntityTree, AddTreeNode_AtIndexOutsideTheChildrenGoesToTheNearerEnd) {
  TEntityTree tree("Intercepts");
  const TTreeNode* middle = tree.AddTreeNode_ToRoot();
  const TTreeNode* front = tree.AddTreeNode_AtIndex(tree.RootNode(), -5);
  const TTreeNode* back = tree.AddTreeNode_AtIndex(tree.RootNode(), INT32_MAX);
  EXPECT_THAT(tree.RootNode()->Children(), testing::ElementsAre(front, middle, back));
  EXPECT_THAT(RelativeIndexes(tree.RootNode()), testing::ElementsAre(0, 1, 2));
}

TEST(TEntityTree, ClearTakesTheRootOffTheListAndStartsCountingAnew) {
  TEntityTree tree("Regions");
  tree.AddTreeNode(tree.AddTreeNode_ToRoot());
  tree.Clear();
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_EQ(tree.RootNode()->Count(), 0);
  EXPECT_TRUE(tree.RootNode()->Children().empty());
  const TTreeNode* node = tree.AddTreeNode_ToRoot();
  EXPECT_EQ(node->AbsoluteIndex(), 0);
  EXPECT_EQ(tree.GetNodeFromIndex(0), node);
}

TEST(TEntityTree, AbsoluteIndexAndPositionAgreeAfterAClear) {
  TEntityTree tree("Coordinates_SlotPole");
  tree.Clear();
  for (int vertex = 0; vertex < 5; ++vertex) tree.AddTreeNode(tree.AddTreeNode_ToRoot());
  for (TIndex i = 0; i < tree.Count(); ++i) EXPECT_EQ(tree.GetNodeFromIndex(i)->AbsoluteIndex(), i);
}

TEST(TEntityTree, AbsoluteIndexAndPositionAgreeInATreeNeverCleared) {
  TEntityTree tree("Coordinates_Symmetry");
  for (int vertex = 0; vertex < 5; ++vertex) tree.AddTreeNode(tree.AddTreeNode_ToRoot());
  for (TIndex i = 0; i < tree.Count(); ++i) EXPECT_EQ(tree.GetNodeFromIndex(i)->AbsoluteIndex(), i);
}

TEST(TEntityTree, SecondClearDropsTheFirstNodeAliveKept) {
  TEntityTree tree("Regions");
  tree.Clear();
  TTreeNode* dropped = tree.AddTreeNode_ToRoot();
  dropped->EntityIndex(7);
  tree.AddTreeNode(dropped);
  tree.AddTreeNode_ToRoot();
  tree.Clear();
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_TRUE(tree.RootNode()->Children().empty());
  EXPECT_EQ(dropped->EntityIndex(), 7);
  EXPECT_EQ(dropped->tree(), &tree);
  EXPECT_EQ(dropped->Parent(), tree.RootNode());
  EXPECT_EQ(dropped->Count(), 0);
  EXPECT_TRUE(dropped->Children().empty());
}

TEST(TEntityTree, DroppedNodeTakesChildrenUntilTheNextClear) {
  TEntityTree tree("Regions");
  tree.Clear();
  TTreeNode* dropped = tree.AddTreeNode_ToRoot();
  tree.Clear();
  TTreeNode* child = tree.AddTreeNode(dropped);
  EXPECT_EQ(child->Parent(), dropped);
  EXPECT_EQ(tree.GetNodeFromIndex(0), child);
  tree.Clear();
  EXPECT_EQ(child->Parent(), nullptr);
  EXPECT_EQ(tree.Count(), 0);
}

TEST(TEntityTree, RemoveTreeNodeLeavesADroppedNodeAlone) {
  TEntityTree tree("Regions");
  tree.Clear();
  TTreeNode* dropped = tree.AddTreeNode_ToRoot();
  tree.Clear();
  tree.AddTreeNode_ToRoot();
  tree.RemoveTreeNode(dropped, true);
  EXPECT_EQ(tree.RootNode()->Count(), 1);
  EXPECT_EQ(dropped->tree(), &tree);
}

TEST(TEntityTree, RemoveTreeNodeOfTheRootChangesNothing) {
  TEntityTree tree("Regions");
  tree.AddTreeNode_ToRoot();
  tree.RemoveTreeNode(tree.RootNode(), true);
  tree.RemoveTreeNode(tree.RootNode(), false);
  EXPECT_EQ(tree.Count(), 2);
  EXPECT_EQ(tree.RootNode()->Count(), 1);
  tree.Clear();
  tree.RemoveTreeNode(tree.RootNode(), true);
  EXPECT_EQ(tree.RootNode()->RegionIndex(), -2);
}

TEST(TEntityTree, RemoveTreeNodeOfNilOrAForeignNodeChangesNothing) {
  TEntityTree tree("Regions");
  TEntityTree other("Regions");
  tree.RemoveTreeNode(nullptr, true);
  tree.RemoveTreeNode(other.AddTreeNode_ToRoot(), true);
  EXPECT_EQ(tree.Count(), 1);
  EXPECT_EQ(other.Count(), 2);
}

TEST(TEntityTree, RemoveTreeNodeTakesTheWholeSubtree) {
  TEntityTree tree("Regions");
  TTreeNode* doomed = tree.AddTreeNode_ToRoot();
  const TTreeNode* left = tree.AddTreeNode_ToRoot();
  tree.AddTreeNode(tree.AddTreeNode(doomed));
  tree.RemoveTreeNode(doomed, true);
  EXPECT_THAT(tree.RootNode()->Children(), testing::ElementsAre(left));
  EXPECT_EQ(tree.RootNode()->Count(), 1);
  EXPECT_EQ(tree.Count(), 2);
  EXPECT_EQ(tree.GetNodeFromIndex(1), left);
}

TEST(TEntityTree, RemoveTreeNodeCountsEveryChildOffTwiceKept) {
  TEntityTree tree("Regions");
  TTreeNode* doomed = tree.AddTreeNode_ToRoot();
  tree.AddTreeNode(doomed);
  tree.AddTreeNode(doomed);
  tree.RemoveTreeNode(doomed, true);
  // Four nodes had been made, the next index was 4; one is counted off once and its two children twice each.
  EXPECT_EQ(tree.AddTreeNode_ToRoot()->AbsoluteIndex(), -1);
}

TEST(TEntityTree, RemoveTreeNodeWithoutChildrenCountsOffOnce) {
  TEntityTree tree("Regions");
  tree.RemoveTreeNode(tree.AddTreeNode_ToRoot(), true);
  EXPECT_EQ(tree.AddTreeNode_ToRoot()->AbsoluteIndex(), 1);
}

TEST(TEntityTree, RemoveTreeNodeHandsTheChildrenToTheParent) {
  TEntityTree tree("Regions");
  TTreeNode* doomed = tree.AddTreeNode_ToRoot();
  const TTreeNode* sibling = tree.AddTreeNode_ToRoot();
  TTreeNode* child = tree.AddTreeNode(doomed);
  const TTreeNode* grandchild = tree.AddTreeNode(child);
  tree.RemoveTreeNode(doomed, false);
  EXPECT_THAT(tree.RootNode()->Children(), testing::ElementsAre(sibling, child));
  EXPECT_EQ(tree.RootNode()->Count(), 2);
  EXPECT_EQ(child->Parent(), tree.RootNode());
  EXPECT_EQ(child->RelativeIndex(), 1);
  EXPECT_EQ(child->Level(), 1);
  EXPECT_THAT(child->Children(), testing::ElementsAre(grandchild));
  EXPECT_EQ(grandchild->Level(), 3) << "deeper descendants keep their levels";
  EXPECT_EQ(tree.Count(), 4);
}

TEST(TEntityTree, DepthCostsNoStack) {
  support::RunWithStack(kSmallStack, [] {
    TEntityTree tree("Regions");
    AddChainOfNodes(tree, 100000);
    tree.RemoveTreeNode(tree.RootNode()->GetNode(0), true);
    EXPECT_EQ(tree.Count(), 1);
    AddChainOfNodes(tree, 100000);
    tree.Clear();
    EXPECT_EQ(tree.Count(), 0);
    AddChainOfNodes(tree, 100000);
  });
}

TEST(TEntityTree, Search_L1_CoordsAnswersTheVertexAddedFirst) {
  const support::TSettingsGuard settings;
  TEntityTree tree("Coordinates_SlotPole");
  const TTreeNode* first = AddVertex(tree, 0.00012, 0);
  AddVertex(tree, 0, 0);
  EXPECT_EQ(tree.Search_L1_Coords({0.00006, 0}), first);
}

TEST(TEntityTree, Search_L1_CoordsLooksAtBothCoordinatesAndAtVerticesOnly) {
  const support::TSettingsGuard settings;
  TEntityTree tree("Coordinates_SlotPole");
  tree.AddTreeNode(AddVertex(tree, 1, 2))->Coordinates({5, 5});
  EXPECT_EQ(tree.Search_L1_Coords({1, 2.0002}), nullptr);
  EXPECT_EQ(tree.Search_L1_Coords({1.0002, 2}), nullptr);
  EXPECT_EQ(tree.Search_L1_Coords({5, 5}), nullptr);
  EXPECT_EQ(tree.Search_L1_Coords({1.00005, 1.99995}), tree.RootNode()->GetNode(0));
}

TEST(TEntityTree, Search_L1_CoordsFindsNothingUnderAToleranceOfZero) {
  support::TSettingsGuard settings;
  TEntityTree tree("Coordinates_SlotPole");
  AddVertex(tree, 1, 2);
  settings.With(Maindataenum::TInputFields::ifLinearTolerance, 0);
  EXPECT_EQ(tree.Search_L1_Coords({1, 2}), nullptr);
  settings.With(Maindataenum::TInputFields::ifLinearTolerance, std::nan(""));
  EXPECT_EQ(tree.Search_L1_Coords({1, 2}), nullptr);
}

TEST(TEntityTree, Search_L1_EntitiesAnswersTheFirstNodeOfAnEqualEntity) {
  const support::TSettingsGuard settings;
  const auto storage = support::MakeStorage("L 0,0 1,0; L 4,0 5,0; L 5,0 4,0");
  TEntityTree tree("Intercepts");
  tree.pEntityStorage(storage.get());
  for (const TIndex index : {0, 1, 2}) tree.AddTreeNode_ToRoot()->EntityIndex(index);
  EXPECT_EQ(tree.pEntityStorage(), storage.get());
  EXPECT_EQ(tree.Search_L1_Entities(ParseEntity("L 5,0 4,0")), tree.RootNode()->GetNode(1));
  EXPECT_EQ(tree.Search_L1_Entities(ParseEntity("L 7,0 8,0")), nullptr);
  EXPECT_EQ(tree.Search_L1_Entities(TDXFEntity{}), nullptr);
}

TEST(TEntityTree, Search_L1_EntitiesWithoutAStorageFindsNothing) {
  const support::TSettingsGuard settings;
  TEntityTree tree("Intercepts");
  tree.AddTreeNode_ToRoot()->EntityIndex(0);
  EXPECT_EQ(tree.Search_L1_Entities(ParseEntity("L 0,0 1,0")), nullptr);
}

TEST(TEntityTree, Search_L2_CoordinatesAnswersTheFirstChildAtThePoint) {
  const support::TSettingsGuard settings;
  TEntityTree tree("Intercepts");
  TTreeNode* entity = tree.AddTreeNode_ToRoot();
  const TTreeNode* origin = tree.AddTreeNode(entity);
  tree.AddTreeNode(entity);
  EXPECT_EQ(tree.Search_L2_Coordinates({0.00005, 0}, entity), origin);
  EXPECT_EQ(tree.Search_L2_Coordinates({1, 0}, entity), nullptr);
  EXPECT_EQ(tree.Search_L2_Coordinates({0, 0}, nullptr), nullptr);
}

TEST(TEntityTree, GetNodeEntityOfANodeWithoutOneIsEmpty) {
  const auto storage = support::MakeStorage("L 0,0 1,0");
  TEntityTree tree("Regions");
  TTreeNode* node = tree.AddTreeNode_ToRoot();
  EXPECT_EQ(tree.GetNodeEntity(*node).EntityType, DXFNoLineType);
  tree.pEntityStorage(storage.get());
  EXPECT_EQ(tree.GetNodeEntity(*node).EntityType, DXFNoLineType);
  node->EntityIndex(0);
  EXPECT_THAT(tree.GetNodeEntity(*node), IsBits("L 0,0 1,0"));
}

TEST(TEntityTree, ResetTravelledFlagGoesByPosition) {
  TEntityTree tree("Coordinates_SlotPole");
  TTreeNode* node = tree.AddTreeNode_ToRoot();
  TTreeNode* other = tree.AddTreeNode_ToRoot();
  node->Travelled(true);
  other->Travelled(true);
  tree.ResetTravelledFlag(-1);
  tree.ResetTravelledFlag(tree.Count());
  tree.ResetTravelledFlag(1);
  EXPECT_FALSE(node->Travelled());
  EXPECT_TRUE(other->Travelled());
}

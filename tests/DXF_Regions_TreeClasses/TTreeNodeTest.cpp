#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "tests/support/Geometry.h"

using namespace GeometryEngine;
using support::IsBits;

TEST(TTreeNode, StartsWithoutChildrenUntravelledAndWithoutAnEntity) {
  TEntityTree tree("Coordinates_SlotPole");
  const TTreeNode* node = tree.AddTreeNode_ToRoot();
  EXPECT_EQ(node->GetCount(), 0);
  EXPECT_EQ(node->Count(), 0);
  EXPECT_TRUE(node->Children().empty());
  EXPECT_FALSE(node->Travelled());
  EXPECT_EQ(node->EntityIndex(), -1);
  EXPECT_EQ(node->RegionIndex(), 0);
  EXPECT_EQ(node->GaussArea(), 0);
  EXPECT_THAT(node->Coordinates(), IsBits(0, 0));
  EXPECT_THAT(node->RegionCentroid(), IsBits(0, 0));
  EXPECT_EQ(node->NumSubRegions(), 0);
}

TEST(TTreeNode, KnowsItsTreeItsParentAndItsLevel) {
  TEntityTree tree("Coordinates_SlotPole");
  TTreeNode* vertex = tree.AddTreeNode_ToRoot();
  const TTreeNode* end = tree.AddTreeNode(vertex);
  EXPECT_EQ(end->tree(), &tree);
  EXPECT_EQ(end->Parent(), vertex);
  EXPECT_EQ(vertex->Parent(), tree.RootNode());
  EXPECT_EQ(vertex->Level(), 1);
  EXPECT_EQ(end->Level(), 2);
}

TEST(TTreeNode, KeepsWhatItsPropertiesAreSetTo) {
  TEntityTree tree("Regions");
  TTreeNode* node = tree.AddTreeNode_ToRoot();
  node->EntityIndex(4);
  node->Coordinates({1, 2});
  node->coordinate_Y(3);
  node->RegionIndex(5);
  node->Travelled(true);
  node->GaussArea(-6);
  node->RegionCentroid({7, 8});
  node->TravelDirection(Travel_Clockwise);
  EXPECT_EQ(node->EntityIndex(), 4);
  EXPECT_THAT(node->Coordinates(), IsBits(1, 3));
  EXPECT_EQ(node->coordinate_X(), 1);
  EXPECT_EQ(node->coordinate_Y(), 3);
  EXPECT_EQ(node->RegionIndex(), 5);
  EXPECT_TRUE(node->Travelled());
  EXPECT_EQ(node->GaussArea(), -6);
  EXPECT_THAT(node->RegionCentroid(), IsBits(7, 8));
  EXPECT_EQ(node->TravelDirection(), Travel_Clockwise);
  node->coordinate_X(9);
  EXPECT_THAT(node->Coordinates(), IsBits(9, 3));
}

TEST(TTreeNode, GetNodeOutsideTheChildrenIsNil) {
  TEntityTree tree("Coordinates_SlotPole");
  TTreeNode* vertex = tree.AddTreeNode_ToRoot();
  const TTreeNode* end = tree.AddTreeNode(vertex);
  EXPECT_EQ(vertex->GetNode(0), end);
  EXPECT_EQ(vertex->GetNode(-1), nullptr);
  EXPECT_EQ(vertex->GetNode(1), nullptr);
}

TEST(TTreeNode, GetSubRegionOutOfRangeIsMinusOne) {
  TEntityTree tree("Regions");
  TTreeNode* region = tree.AddTreeNode_ToRoot();
  region->AddSubRegion(3);
  EXPECT_EQ(region->GetSubRegion(0), 3);
  EXPECT_EQ(region->GetSubRegion(-1), -1);
  EXPECT_EQ(region->GetSubRegion(1), -1);
}

TEST(TTreeNode, AddSubRegionDoesNotLookForDuplicates) {
  TEntityTree tree("Regions");
  TTreeNode* region = tree.AddTreeNode_ToRoot();
  region->AddSubRegion(3);
  region->AddSubRegion(3);
  EXPECT_THAT(region->SubRegions(), testing::ElementsAre(3, 3));
  EXPECT_EQ(region->NumSubRegions(), 2);
  EXPECT_EQ(region->NumberSubRegions(), 2);
}

TEST(TTreeNode, RemoveSubRegionTakesTheFirstEntryOnly) {
  TEntityTree tree("Regions");
  TTreeNode* region = tree.AddTreeNode_ToRoot();
  for (const std::int32_t index : {3, 4, 3}) region->AddSubRegion(index);
  region->RemoveSubRegion(3);
  EXPECT_THAT(region->SubRegions(), testing::ElementsAre(4, 3));
  region->RemoveSubRegion(5);
  EXPECT_THAT(region->SubRegions(), testing::ElementsAre(4, 3));
}

TEST(TTreeNode, CheckSubRegionIdentifiedFindsWhatWasAdded) {
  TEntityTree tree("Regions");
  TTreeNode* region = tree.AddTreeNode_ToRoot();
  region->AddSubRegion(3);
  EXPECT_TRUE(region->CheckSubRegionIdentified(3));
  EXPECT_FALSE(region->CheckSubRegionIdentified(4));
}

TEST(TTreeNode, ResetRegionIdentifierForgetsIndexAndSubRegions) {
  TEntityTree tree("Regions");
  TTreeNode* region = tree.AddTreeNode_ToRoot();
  region->RegionIndex(7);
  region->AddSubRegion(3);
  region->ResetRegionIdentifier();
  EXPECT_EQ(region->RegionIndex(), -1);
  EXPECT_EQ(region->NumSubRegions(), 0);
}

TEST(TTreeNode, EqualComparesTreeNamePlaceAndEntityButNoCoordinates) {
  TEntityTree tree("Regions");
  TEntityTree twin("Regions");
  TEntityTree other("Intercepts");
  TTreeNode* node = tree.AddTreeNode_ToRoot();
  TTreeNode* same = twin.AddTreeNode_ToRoot();
  same->Coordinates({5, 5});
  same->Travelled(true);
  EXPECT_TRUE(node->Equal(node));
  EXPECT_TRUE(node->Equal(same));
  EXPECT_FALSE(node->Equal(other.AddTreeNode_ToRoot()));
  EXPECT_FALSE(node->Equal(tree.AddTreeNode_ToRoot()));
  same->EntityIndex(2);
  EXPECT_FALSE(node->Equal(same));
  EXPECT_FALSE(node->Equal(nullptr));
}

TEST(TTreeNode, EqualTellsPlacesUnderOneIndexApart) {
  TEntityTree wide("Regions");
  const TTreeNode* first = wide.AddTreeNode_ToRoot();
  const TTreeNode* second = wide.AddTreeNode_ToRoot();

  TEntityTree deep("Regions");
  const TTreeNode* below = deep.AddTreeNode(deep.AddTreeNode_ToRoot());
  ASSERT_EQ(second->AbsoluteIndex(), below->AbsoluteIndex());
  EXPECT_FALSE(second->Equal(below)) << "the second child of its parent and the first";

  TEntityTree shifted("Regions");
  const TTreeNode free(&shifted);
  const TTreeNode* alone = shifted.AddTreeNode_ToRoot();
  ASSERT_EQ(alone->AbsoluteIndex(), below->AbsoluteIndex());
  ASSERT_EQ(alone->RelativeIndex(), below->RelativeIndex());
  EXPECT_FALSE(alone->Equal(below)) << "levels 1 and 2";
  EXPECT_FALSE(first->Equal(alone));
}

TEST(TTreeNode, StandingFreeTakesAnIndexOfItsTreeAndGivesItBack) {
  TEntityTree tree("Regions");
  {
    const TTreeNode node(&tree);
    EXPECT_EQ(node.AbsoluteIndex(), 1);
    EXPECT_EQ(node.Parent(), nullptr);
    EXPECT_EQ(tree.Count(), 1);
  }
  EXPECT_EQ(tree.AddTreeNode_ToRoot()->AbsoluteIndex(), 1);
}

TEST(TTreeNode, StandingFreeTakesItsChildrenAlongWhenItGoes) {
  TEntityTree tree("Regions");
  {
    TTreeNode node(&tree);
    tree.AddTreeNode(tree.AddTreeNode(&node));
    EXPECT_EQ(tree.Count(), 3);
  }
  EXPECT_EQ(tree.Count(), 1);
}

TEST(TTreeNode, StandingFreeLosesItsChildrenWhenTheTreeIsCleared) {
  TEntityTree tree("Regions");
  TTreeNode node(&tree);
  tree.AddTreeNode(&node);
  tree.Clear();
  EXPECT_EQ(node.Count(), 0);
  EXPECT_TRUE(node.Children().empty());
}

TEST(TTreeNode, WithoutATreeIsAnOrdinaryEmptyNode) {
  const TTreeNode node(nullptr);
  EXPECT_EQ(node.tree(), nullptr);
  EXPECT_EQ(node.AbsoluteIndex(), 0);
  EXPECT_TRUE(node.Equal(&node));
}

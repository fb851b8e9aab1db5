#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeBatch.h"

#include <functional>
#include <utility>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TRegionEntities.h"
#include "tests/support/Chains.h"

namespace GeometryEngine {

using detail::TNodeBatch;
using detail::TRegionEntities;

namespace {

const std::vector<std::vector<TIndex>> kRegions = {{2, 0}, {}, {1, 2, 3}};  // entities below each

void AddAtOnce(TEntityTree& aTree) {
  aTree.Clear();
  for (const std::vector<TIndex>& entities : kRegions) {
    TTreeNode* region = aTree.AddTreeNode_ToRoot();
    for (const TIndex entity : entities) aTree.AddTreeNode(region)->EntityIndex(entity);
  }
}

void AddPending(TEntityTree& aTree) {
  aTree.Clear();
  TNodeBatch batch(aTree, kRegions.size(), 0);
  detail::TPendingLeaves leaves{{}, {0}};
  for (const std::vector<TIndex>& entities : kRegions) {
    batch.AddToRoot(0);
    leaves.fEntityIndexes.insert(leaves.fEntityIndexes.end(), entities.begin(), entities.end());
    leaves.fFirst.push_back(leaves.fEntityIndexes.size());
  }
  batch.AddPending(std::move(leaves));
}

struct TSeen {
  TIndex fAbsolute;
  TIndex fRelative;
  std::int32_t fLevel;
  TIndex fEntity;
  TIndex fParent;
  std::vector<TIndex> fChildren;
  bool operator==(const TSeen&) const = default;
};

std::vector<TSeen> See(const TEntityTree& aTree) {
  std::vector<TSeen> seen;
  for (TIndex i = 0; i < aTree.Count(); ++i) {
    const TTreeNode& node = *aTree.GetNodeFromIndex(i);
    TSeen& one = seen.emplace_back(TSeen{node.AbsoluteIndex(),
                                         node.RelativeIndex(),
                                         node.Level(),
                                         node.EntityIndex(),
                                         node.Parent()->AbsoluteIndex(),
                                         {}});
    for (const TTreeNode* child : node.Children()) one.fChildren.push_back(child->AbsoluteIndex());
  }
  return seen;
}

}  // namespace

TEST(TNodeBatch, GivesEachNodeItsPlaceAndTheNextAbsoluteIndex) {
  TEntityTree tree("Intercepts");
  tree.Clear();
  TNodeBatch batch(tree, 2, 2);
  const TNodeBatch::TParent first = batch.AddToRoot(0);
  const TNodeBatch::TParent second = batch.AddToRoot(2);
  const TTreeNode& last = batch.Add(second, 1);
  const TTreeNode& between = batch.Add(second, 0);
  EXPECT_EQ(tree.Count(), 4);
  EXPECT_EQ(tree.RootNode()->GetNode(0), first.fNode);
  EXPECT_EQ(tree.RootNode()->GetNode(1), second.fNode);
  EXPECT_EQ(second.fNode->GetNode(0), &between);
  EXPECT_EQ(second.fNode->GetNode(1), &last);
  EXPECT_EQ(second.fNode->Count(), 2);
  EXPECT_EQ(first.fNode->Count(), 0);
  EXPECT_EQ(last.Level(), 2);
  EXPECT_EQ(last.Parent(), second.fNode);
  for (TIndex i = 0; i < tree.Count(); ++i) EXPECT_EQ(tree.GetNodeFromIndex(i)->AbsoluteIndex(), i);
}

TEST(TNodeBatch, LeavesATreeThatTakesAndLosesNodesAsAlways) {
  TEntityTree tree("Intercepts");
  TNodeBatch batch(tree, 1, 1);
  const TNodeBatch::TParent vertex = batch.AddToRoot(1);
  batch.Add(vertex, 0);
  TTreeNode* front = tree.AddTreeNode_AtIndex(vertex.fNode, 0);
  EXPECT_EQ(vertex.fNode->GetNode(0), front);
  EXPECT_EQ(vertex.fNode->GetNode(1)->RelativeIndex(), 1);
  tree.RemoveTreeNode(vertex.fNode->GetNode(1), true);
  EXPECT_EQ(vertex.fNode->Count(), 1);
  tree.Clear();
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_TRUE(tree.RootNode()->Children().empty());
}

TEST(TNodeBatch, ThatIsNotFullLeavesATreeThatCanBeCleared) {
  TEntityTree tree("Intercepts");
  for (int i = 0; i < 3; ++i) {
    tree.Clear();
    TNodeBatch batch(tree, 5, 5);
    batch.Add(batch.AddToRoot(2), 1);
  }
  tree.Clear();
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_EQ(tree.AddTreeNode_ToRoot()->AbsoluteIndex(), 0);
}

// Whatever somebody does first.
TEST(TNodeBatch, PendingNodesHaveBeenThereAllAlong) {
  const std::vector<std::function<void(TEntityTree&)>> firstActs = {
      [](TEntityTree& aTree) { EXPECT_EQ(aTree.Count(), 8); },
      [](TEntityTree& aTree) { EXPECT_EQ(aTree.GetNodeFromIndex(7)->EntityIndex(), 3); },
      [](TEntityTree& aTree) { EXPECT_EQ(aTree.RootNode()->GetNode(2)->Count(), 3); },
      [](TEntityTree& aTree) { EXPECT_EQ(aTree.RootNode()->GetNode(0)->GetNode(1)->EntityIndex(), 0); },
      [](TEntityTree& aTree) { EXPECT_TRUE(aTree.RootNode()->GetNode(1)->Children().empty()); },
      [](TEntityTree& aTree) { EXPECT_EQ(aTree.AddTreeNode_ToRoot()->AbsoluteIndex(), 8); },
      [](TEntityTree& aTree) { EXPECT_EQ(aTree.AddTreeNode(aTree.RootNode()->GetNode(1))->RelativeIndex(), 0); },
      [](TEntityTree& aTree) { aTree.AddTreeNode_AtIndex(aTree.RootNode()->GetNode(2), 1)->EntityIndex(9); },
      [](TEntityTree& aTree) { aTree.RemoveTreeNode(aTree.RootNode()->GetNode(0), true); },
      [](TEntityTree& aTree) { aTree.RemoveTreeNode(aTree.RootNode()->GetNode(2), false); },
      [](TEntityTree& aTree) { EXPECT_EQ(TTreeNode(&aTree).AbsoluteIndex(), 8); },
      [](TEntityTree& aTree) { aTree.ResetTravelledFlag(1); },
      [](TEntityTree& aTree) { aTree.Clear(); },
  };
  for (std::size_t i = 0; i < firstActs.size(); ++i) {
    TEntityTree pending("Regions");
    TEntityTree atOnce("Regions");
    for (int round = 0; round < 2; ++round) {
      AddPending(pending);
      AddAtOnce(atOnce);
      firstActs[i](pending);
      firstActs[i](atOnce);
      EXPECT_TRUE(See(pending) == See(atOnce)) << "act " << i;
    }
  }
}

TEST(TNodeBatch, ClearDropsARegionWhosePendingNodesAreNotMade) {
  TEntityTree tree("Regions");
  AddPending(tree);
  const TTreeNode* dropped = tree.RootNode()->GetNode(0);
  tree.Clear();
  EXPECT_EQ(dropped->Count(), 0);
  EXPECT_TRUE(dropped->Children().empty());
  AddPending(tree);
  EXPECT_EQ(tree.Count(), 8);
}

TEST(TRegionEntities, AreTheSameBeforeAndAfterNodesAreMade) {
  const auto storage = support::MakeStorage("L 0,0 1,0; L 1,0 2,0; L 2,0 3,0");
  TEntityTree tree("Regions");
  tree.pEntityStorage(storage.get());
  AddPending(tree);
  for (int round = 0; round < 2; ++round) {
    const TRegionEntities entities(tree, *tree.RootNode()->GetNode(2));
    ASSERT_EQ(entities.size(), 3U);
    EXPECT_EQ(entities[0].StartCoords.x, 1);
    EXPECT_EQ(entities[1].StartCoords.x, 2);
    EXPECT_EQ(entities[2].EntityType, DXFNoLineType) << "the storage has no fourth entity";
    EXPECT_TRUE(TRegionEntities(tree, *tree.RootNode()->GetNode(1)).empty());
    EXPECT_EQ(tree.Count(), 8) << "makes the nodes";
  }
}

}  // namespace GeometryEngine

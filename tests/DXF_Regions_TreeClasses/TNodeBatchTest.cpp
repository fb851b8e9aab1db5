#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeBatch.h"

#include <gmock/gmock.h>

namespace GeometryEngine {

using detail::TNodeBatch;

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

}  // namespace GeometryEngine

#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeBatch.h"

#include <gmock/gmock.h>

namespace GeometryEngine {

using detail::TNodeBatch;

TEST(TNodeBatch, GivesEachNodeItsPlaceAndTheNextAbsoluteIndex) {
  TEntityTree tree("Intercepts");
  tree.Clear();
  TNodeBatch batch(tree, 10);
  TTreeNode& second = batch.AddToRoot(1);
  const TTreeNode& last = batch.Add(second, 1);
  const TTreeNode& first = batch.AddToRoot(0);
  const TTreeNode& between = batch.Add(second, 0);
  batch.Finish();
  EXPECT_EQ(tree.Count(), 4);
  EXPECT_EQ(tree.RootNode()->GetNode(0), &first);
  EXPECT_EQ(tree.RootNode()->GetNode(1), &second);
  EXPECT_EQ(second.GetNode(0), &between);
  EXPECT_EQ(second.GetNode(1), &last);
  EXPECT_EQ(second.Count(), 2);
  EXPECT_EQ(last.Level(), 2);
  EXPECT_EQ(last.Parent(), &second);
  for (TIndex i = 0; i < tree.Count(); ++i) EXPECT_EQ(tree.GetNodeFromIndex(i)->AbsoluteIndex(), i);
}

TEST(TNodeBatch, LeavesATreeThatTakesAndLosesNodesAsAlways) {
  TEntityTree tree("Intercepts");
  TNodeBatch batch(tree, 3);
  TTreeNode& vertex = batch.AddToRoot(0);
  batch.Add(vertex, 0);
  batch.Finish();
  TTreeNode* front = tree.AddTreeNode_AtIndex(&vertex, 0);
  EXPECT_EQ(vertex.GetNode(0), front);
  EXPECT_EQ(vertex.GetNode(1)->RelativeIndex(), 1);
  tree.RemoveTreeNode(vertex.GetNode(1), true);
  EXPECT_EQ(vertex.Count(), 1);
  tree.Clear();
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_TRUE(tree.RootNode()->Children().empty());
}

TEST(TNodeBatch, ThatIsNotFinishedLeavesATreeThatCanBeCleared) {
  TEntityTree tree("Intercepts");
  for (int i = 0; i < 3; ++i) {
    tree.Clear();
    TNodeBatch batch(tree, 5);
    batch.Add(batch.AddToRoot(0), 0);
  }
  tree.Clear();
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_EQ(tree.AddTreeNode_ToRoot()->AbsoluteIndex(), 0);
}

}  // namespace GeometryEngine

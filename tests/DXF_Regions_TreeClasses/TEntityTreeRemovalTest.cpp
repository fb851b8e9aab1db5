#include <algorithm>
#include <map>
#include <random>
#include <vector>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

using namespace GeometryEngine;
using testing::ElementsAreArray;

namespace {

/// What a tree has to look like, kept in lists that are changed at once.
class PlainLists {
 public:
  explicit PlainLists(TEntityTree& aTree) : fTree(aTree), fNodes{aTree.RootNode()}, fPlaces{{aTree.RootNode(), {}}} {}

  void Add(TTreeNode* aParent, TIndex aPosition) {
    TTreeNode* node = fTree.AddTreeNode_AtIndex(aParent, aPosition);
    fNodes.push_back(node);
    std::vector<TTreeNode*>& siblings = fPlaces[aParent].fChildren;
    siblings.insert(siblings.begin() + aPosition, node);
    fPlaces[node].fParent = aParent;
    fPlaces[node].fLevel = fPlaces[aParent].fLevel + 1;
    for (std::size_t i = static_cast<std::size_t>(aPosition); i < siblings.size(); ++i)
      fPlaces[siblings[i]].fRelativeIndex = ToIndex(i);
  }

  void Remove(TTreeNode* aNode, bool aRemoveChildren) {
    TTreeNode* parent = fPlaces[aNode].fParent;
    std::erase(fPlaces[parent].fChildren, aNode);
    if (!aRemoveChildren) HandOver(fPlaces[aNode].fChildren, parent);
    Forget(aNode);
    fTree.RemoveTreeNode(aNode, aRemoveChildren);
  }

  TTreeNode* Any(std::mt19937& aRandom) const { return fNodes[aRandom() % fNodes.size()]; }
  TIndex Children(TTreeNode* aNode) const { return ToIndex(fPlaces.at(aNode).fChildren.size()); }

  void ExpectChildren(const TTreeNode* aNode) const {
    const Place& place = fPlaces.at(aNode);
    EXPECT_EQ(aNode->Count(), ToIndex(place.fChildren.size()));
    EXPECT_THAT(aNode->Children(), ElementsAreArray(place.fChildren));
    EXPECT_EQ(aNode->GetNode(0), place.fChildren.empty() ? nullptr : place.fChildren.front());
    EXPECT_EQ(aNode->GetNode(aNode->Count()), nullptr);
  }

  void ExpectAll() const {
    ASSERT_EQ(fTree.Count(), ToIndex(fNodes.size()));
    for (std::size_t i = 0; i < fNodes.size(); ++i) {
      const TTreeNode* node = fNodes[i];
      ASSERT_EQ(fTree.GetNodeFromIndex(ToIndex(i)), node);
      ExpectChildren(node);
      const Place& place = fPlaces.at(node);
      EXPECT_EQ(node->Parent(), place.fParent);
      EXPECT_EQ(node->Level(), place.fLevel);
      EXPECT_EQ(node->RelativeIndex(), place.fRelativeIndex);
    }
  }

 private:
  struct Place {
    std::vector<TTreeNode*> fChildren;
    TTreeNode* fParent = nullptr;
    std::int32_t fLevel = 0;
    TIndex fRelativeIndex = 0;
  };

  void HandOver(std::vector<TTreeNode*>& aChildren, TTreeNode* aParent) {
    Place& parent = fPlaces[aParent];
    for (TTreeNode* child : aChildren) {
      Place& place = fPlaces[child];
      place.fParent = aParent;
      place.fLevel = parent.fLevel + 1;
      place.fRelativeIndex = ToIndex(parent.fChildren.size());
      parent.fChildren.push_back(child);
    }
    aChildren.clear();
  }

  void Forget(TTreeNode* aNode) {
    for (TTreeNode* child : fPlaces[aNode].fChildren) Forget(child);
    fPlaces.erase(aNode);
    std::erase(fNodes, aNode);
  }

  TEntityTree& fTree;
  std::vector<TTreeNode*> fNodes;
  std::map<const TTreeNode*, Place> fPlaces;
};

void ChangeAtRandom(PlainLists& aLists, const TTreeNode* aRoot, std::mt19937& aRandom) {
  TTreeNode* node = aLists.Any(aRandom);
  const bool isRemoved = aRandom() % 2 == 0;
  if (!isRemoved) aLists.Add(node, static_cast<TIndex>(aRandom() % static_cast<unsigned>(aLists.Children(node) + 1)));
  if (isRemoved && node != aRoot) aLists.Remove(node, aRandom() % 3 == 0);
}

}  // namespace

// Each tree is looked at now and then only, here or there: between two looks many nodes come and go.
TEST(TEntityTree_Removal, LeavesTheListsThatSearchingAndErasingAtOnceLeaves) {
  std::mt19937 random(20260711);
  for (int i = 0; i < 100; ++i) {
    TEntityTree tree("Regions");
    PlainLists lists(tree);
    for (TIndex k = 0; k < 30; ++k) lists.Add(tree.RootNode(), k);
    for (int k = 0; k < 100; ++k) {
      ChangeAtRandom(lists, tree.RootNode(), random);
      if (random() % 8 == 0) lists.ExpectChildren(lists.Any(random));
      if (random() % 32 == 0) lists.ExpectAll();
    }
    lists.ExpectAll();
    if (HasFailure()) FAIL() << "tree " << i;
  }
}

TEST(TEntityTree_Removal, OfANodeThatIsGoneButStillListedChangesNothing) {
  TEntityTree tree("Regions");
  TTreeNode* first = tree.AddTreeNode_ToRoot();
  const TTreeNode* second = tree.AddTreeNode_ToRoot();
  tree.RemoveTreeNode(first, true);
  tree.RemoveTreeNode(first, true);
  EXPECT_EQ(tree.Count(), 2);
  EXPECT_THAT(tree.RootNode()->Children(), testing::ElementsAre(second));
}

TEST(TEntityTree_Removal, BeforeAClearDropsTheNodeThatIsFirstByThen) {
  TEntityTree tree("Regions");
  tree.Clear();
  TTreeNode* first = tree.AddTreeNode_ToRoot();
  TTreeNode* second = tree.AddTreeNode_ToRoot();
  second->EntityIndex(7);
  tree.AddTreeNode_ToRoot();
  tree.RemoveTreeNode(first, true);
  tree.Clear();
  EXPECT_EQ(second->EntityIndex(), 7) << "a node that a clear drops can be read until the next one";
  EXPECT_EQ(tree.Count(), 0);
  EXPECT_EQ(tree.AddTreeNode_ToRoot()->AbsoluteIndex(), 0);
}

TEST(TEntityTree_Removal, ChildrenOfANodeThatStandsFreeGoWithIt) {
  TEntityTree tree("Regions");
  {
    TTreeNode alone(&tree);
    TTreeNode* child = tree.AddTreeNode(&alone);
    tree.AddTreeNode(&alone);
    tree.AddTreeNode_ToRoot();
    tree.RemoveTreeNode(child, true);
    EXPECT_EQ(alone.Count(), 1);
  }
  EXPECT_EQ(tree.Count(), 2);
  EXPECT_NE(tree.GetNodeFromIndex(1), nullptr);
}

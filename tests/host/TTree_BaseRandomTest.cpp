// Trees that have been through many moves, against lists that are kept plainly; and trees of many nodes.

#include <cstddef>
#include <cstdint>
#include <map>
#include <random>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/host/TTree_Base.h"
#include "tests/reference/PlainTree.h"
#include "tests/support/RunWithStack.h"

namespace GeometryEngine {
namespace {

/// One tree and its plain twin, and the same random steps for both.
class TwinTrees {
 public:
  explicit TwinTrees(unsigned aSeed) : fRandom(aSeed) {}

  void Step() {
    switch (Below(8)) {
      case 0:
      case 1:
        return Add(static_cast<TIndex>(fPlain.flat.size()));
      case 2:
        return Add(static_cast<TIndex>(Below(fPlain.flat.size())));
      case 3:
        return Remove(AnyNode(), Below(2) == 0);
      case 4:
        return ExpectTheSame();  // reads, and so closes holes, between some steps but not between others
      default:
        return Move(AnyNode(), AnyNode(), Below(2) == 0);
    }
  }

  void ExpectTheSame() {
    ASSERT_EQ(static_cast<std::size_t>(fTree.GetCount()), fPlain.flat.size());
    for (TIndex place = 0; place < fTree.GetCount(); ++place) {
      const int node = fPlain.flat[static_cast<std::size_t>(place)];
      ASSERT_EQ(fTree.GetNodeFromIndex(place), Node(node));
      ASSERT_EQ(Node(node)->GetTreeIndex(), place);
      ExpectTheSameChildren(node);
    }
  }

 private:
  std::size_t Below(std::size_t aBound) { return fRandom() % aBound; }
  int AnyNode() { return fPlain.flat[Below(fPlain.flat.size())]; }
  TTreeNode_Base* Node(int aNode) { return aNode == 0 ? fTree.GetRootNode() : fNodes.at(aNode); }

  void Add(TIndex aPlace) {
    auto node = fTree.CreateTreeNode();
    TTreeNode_Base* const entered = fTree.AddNewTreeNode_AtIndex(node, aPlace);
    fNodes[fPlain.Add(aPlace == 0 ? fPlain.flat.size() : static_cast<std::size_t>(aPlace))] = entered;
  }

  void Move(int aNode, int aNewParent, bool aWithChildren) {
    if (aWithChildren) {
      fTree.MoveTreeNode_Recursive(Node(aNode), Node(aNewParent));
    } else {
      fTree.MoveTreeNode(Node(aNode), Node(aNewParent));
    }
    fPlain.Move(aNode, aNewParent, aWithChildren);
  }

  void Remove(int aNode, bool aWithChildren) {
    fTree.RemoveFreeTreeNode(Node(aNode), aWithChildren);
    fPlain.Remove(aNode, aWithChildren);
  }

  void ExpectTheSameChildren(int aNode) {
    const std::vector<int>& children = fPlain.ChildrenOf(aNode);
    const TTreeNode_Base& node = *Node(aNode);
    ASSERT_EQ(static_cast<std::size_t>(node.GetCount()), children.size());
    for (std::size_t i = 0; i < children.size(); ++i) {
      ASSERT_EQ(node.GetNode(static_cast<TIndex>(i)), Node(children[i]));
      ASSERT_EQ(node.GetChildren()[i]->GetParent(), &node);
    }
  }

  std::mt19937 fRandom;
  TTree_Base fTree;
  reference::PlainTree fPlain;
  std::map<int, TTreeNode_Base*> fNodes;
};

TEST(TTree_BaseRandom, AnswersWhatPlainListsAnswer) {
  for (unsigned seed = 0; seed < 500; ++seed) {
    SCOPED_TRACE(seed);
    TwinTrees trees(seed);
    for (int step = 0; step < 60; ++step) trees.Step();
    trees.ExpectTheSame();
    if (::testing::Test::HasFatalFailure()) return;
  }
}

TTreeNode_Base* Add(TTree_Base& aTree) {
  auto node = aTree.CreateTreeNode();
  return aTree.AddNewTreeNode(node);
}

// Each would take minutes if a node that moves were looked for among its siblings, or its new parent's forebears
// walked.
TEST(TTree_BaseRandom, AChainOf100000IsBuiltFromTheTop) {
  support::RunWithStack(256 * 1024, [] {
    TTree_Base tree;
    TTreeNode_Base* above = tree.GetRootNode();
    for (int depth = 0; depth < 100000; ++depth) {
      TTreeNode_Base* const node = Add(tree);
      tree.MoveTreeNode(node, above);
      above = node;
    }
    int depth = 0;
    for (; above->GetParent() != nullptr; above = above->GetParent()) ++depth;
    EXPECT_EQ(depth, 100000);
  });
}

TEST(TTree_BaseRandom, NodesEnteredAllAtOnceLeaveTheRootInTheirOrder) {
  constexpr int kParents = 1000;
  constexpr int kChildren = 200000;
  TTree_Base tree;
  for (int i = 0; i < kParents + kChildren; ++i) Add(tree);
  for (int i = 1; i <= kChildren; ++i) {
    tree.MoveTreeNode_Recursive(tree.GetNodeFromIndex(kParents + i), tree.GetNodeFromIndex(1 + i % kParents));
  }
  EXPECT_EQ(tree.GetRootNode()->GetCount(), kParents);
  EXPECT_EQ(tree.GetRootNode()->GetChildren().size(), std::size_t{kParents});
  EXPECT_EQ(tree.GetRootNode()->GetNode(7)->GetTreeIndex(), 8);
  EXPECT_EQ(tree.GetNodeFromIndex(3)->GetNode(5)->GetTreeIndex(), kParents + 5 * kParents + 2);
}

TEST(TTree_BaseRandom, ChangesOfTheFlatIndexAreCountedButNotNodesAtItsEnd) {
  TTree_Base tree;
  TTreeNode_Base* const first = Add(tree);
  const std::uint64_t before = tree.GetChangeCount();
  tree.MoveTreeNode(Add(tree), first);
  EXPECT_EQ(tree.GetChangeCount(), before);
  auto node = tree.CreateTreeNode();
  tree.AddNewTreeNode_AtIndex(node, 1);
  EXPECT_NE(tree.GetChangeCount(), before);
  const std::uint64_t afterwards = tree.GetChangeCount();
  tree.RemoveFreeTreeNode(first, false);
  EXPECT_NE(tree.GetChangeCount(), afterwards);
}

}  // namespace
}  // namespace GeometryEngine

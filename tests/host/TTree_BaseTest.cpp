#include "GeometryEngine/host/TTree_Base.h"

#include <memory>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/RunWithStack.h"

namespace GeometryEngine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TTreeNode_Base* Add(TTree_Base& aTree, TTreeNode_Base* aParent = nullptr) {
  auto node = aTree.CreateTreeNode();
  TTreeNode_Base* const entered = aTree.AddNewTreeNode(node);
  if (aParent != nullptr) aTree.MoveTreeNode(entered, aParent);
  return entered;
}

TTreeNodeArray_Base FlatIndex(const TTree_Base& aTree) {
  TTreeNodeArray_Base nodes;
  for (TIndex index = 0; index < aTree.GetCount(); ++index) nodes.push_back(aTree.GetNodeFromIndex(index));
  return nodes;
}

// The flat index and the nodes' own knowledge of it agree, and so do parents and children.
void ExpectConsistent(const TTree_Base& aTree) {
  TIndex children = 0;
  for (TIndex index = 0; index < aTree.GetCount(); ++index) {
    const TTreeNode_Base* const node = aTree.GetNodeFromIndex(index);
    EXPECT_EQ(node->GetTreeIndex(), index);
    EXPECT_EQ(node->GetTree(), &aTree);
    EXPECT_EQ(node->GetParent() == nullptr, index == 0);
    for (const TTreeNode_Base* child : node->GetChildren()) EXPECT_EQ(child->GetParent(), node);
    children += node->GetCount();
  }
  EXPECT_EQ(children, aTree.GetCount() - 1);
}

/// Root; a with children b and c; c with child d; e. In the flat index in that order.
struct TTree_BaseTest : ::testing::Test {
  TTree_Base tree;
  TTreeNode_Base* root = tree.GetRootNode();
  TTreeNode_Base* a = Add(tree);
  TTreeNode_Base* b = Add(tree, a);
  TTreeNode_Base* c = Add(tree, a);
  TTreeNode_Base* d = Add(tree, c);
  TTreeNode_Base* e = Add(tree);

  ~TTree_BaseTest() override { ExpectConsistent(tree); }

  void ExpectUnchanged() const {
    EXPECT_THAT(FlatIndex(tree), ElementsAre(root, a, b, c, d, e));
    EXPECT_THAT(root->GetChildren(), ElementsAre(a, e));
    EXPECT_THAT(a->GetChildren(), ElementsAre(b, c));
    EXPECT_THAT(c->GetChildren(), ElementsAre(d));
  }
};

TEST(TTree_Base, HasARootFromTheStart) {
  const TTree_Base tree;
  EXPECT_EQ(tree.GetCount(), 1);
  ASSERT_NE(tree.GetRootNode(), nullptr);
  EXPECT_EQ(tree.GetNodeFromIndex(0), tree.GetRootNode());
  EXPECT_EQ(tree.GetRootNode()->GetCount(), 0);
  ExpectConsistent(tree);
}

TEST(TTree_Base, CreatesNodesThatAreNotEntered) {
  TTree_Base tree;
  const auto node = tree.CreateTreeNode();
  EXPECT_EQ(node->GetTree(), &tree);
  EXPECT_EQ(node->GetParent(), nullptr);
  EXPECT_EQ(node->GetTreeIndex(), kNotFound);
  EXPECT_EQ(tree.GetCount(), 1);
}

struct TNamedNode : TTreeNode_Base {
  using TTreeNode_Base::TTreeNode_Base;
};
struct TNamedTree : TTree_Base {
  TNamedTree()
      : TTree_Base([](TTree_Base& aTree) -> std::unique_ptr<TTreeNode_Base> {
          return std::make_unique<TNamedNode>(&aTree);
        }) {}
};

TEST(TTree_Base, MakesItsNodesWithTheFactory) {
  TNamedTree tree;
  EXPECT_NE(dynamic_cast<TNamedNode*>(tree.GetRootNode()), nullptr);
  EXPECT_NE(dynamic_cast<TNamedNode*>(tree.CreateTreeNode().get()), nullptr);
  tree.Clear();
  EXPECT_NE(dynamic_cast<TNamedNode*>(tree.GetRootNode()), nullptr);
}

TEST_F(TTree_BaseTest, AddNewTreeNodeMakesALastChildOfTheRoot) {
  auto node = tree.CreateTreeNode();
  TTreeNode_Base* const f = tree.AddNewTreeNode(node);
  EXPECT_EQ(node, nullptr);
  EXPECT_THAT(root->GetChildren(), ElementsAre(a, e, f));
  EXPECT_THAT(FlatIndex(tree), ElementsAre(root, a, b, c, d, e, f));
  EXPECT_EQ(f->GetTreeIndex(), 6);
}

TEST_F(TTree_BaseTest, AddNewTreeNode_AtIndexTakesAPlaceInTheFlatIndex) {
  auto node = tree.CreateTreeNode();
  TTreeNode_Base* const f = tree.AddNewTreeNode_AtIndex(node, 2);
  EXPECT_THAT(FlatIndex(tree), ElementsAre(root, a, f, b, c, d, e));
  EXPECT_THAT(root->GetChildren(), ElementsAre(a, e, f));
}

TEST_F(TTree_BaseTest, AddNewTreeNode_AtIndexTakesTheFirstAndTheLastPlace) {
  auto node = tree.CreateTreeNode();
  TTreeNode_Base* const f = tree.AddNewTreeNode_AtIndex(node, 1);
  node = tree.CreateTreeNode();
  TTreeNode_Base* const g = tree.AddNewTreeNode_AtIndex(node, tree.GetCount());
  EXPECT_THAT(FlatIndex(tree), ElementsAre(root, f, a, b, c, d, e, g));
}

TEST_F(TTree_BaseTest, AddNewTreeNode_AtIndexAppendsForOtherIndexes) {
  for (const TIndex index : {0, -1, 100, INT32_MIN, INT32_MAX}) {
    auto node = tree.CreateTreeNode();
    TTreeNode_Base* const entered = tree.AddNewTreeNode_AtIndex(node, index);
    EXPECT_EQ(entered->GetTreeIndex(), tree.GetCount() - 1) << index;
    EXPECT_EQ(entered->GetParent(), root);
  }
}

TEST_F(TTree_BaseTest, RefusedNodesStayWithTheirOwner) {
  TTree_Base other;
  auto foreign = other.CreateTreeNode();
  auto ofNoTree = std::make_unique<TTreeNode_Base>(nullptr);
  std::unique_ptr<TTreeNode_Base> nil;
  for (auto* node : {&foreign, &ofNoTree, &nil}) {
    TTreeNode_Base* const before = node->get();
    EXPECT_EQ(tree.AddNewTreeNode(*node), nullptr);
    EXPECT_EQ(tree.AddNewTreeNode_AtIndex(*node, 1), nullptr);
    tree.SetRootNode(*node);
    EXPECT_EQ(node->get(), before);
  }
  ExpectUnchanged();
}

TEST_F(TTree_BaseTest, NodesThatAreEnteredAlreadyAreRefused) {
  std::unique_ptr<TTreeNode_Base> again(e);
  EXPECT_EQ(tree.AddNewTreeNode(again), nullptr);
  tree.SetRootNode(again);
  EXPECT_EQ(again.release(), e);
  ExpectUnchanged();
}

TEST_F(TTree_BaseTest, GetNodeFromIndexIsNilOutsideTheIndex) {
  EXPECT_EQ(tree.GetNodeFromIndex(-1), nullptr);
  EXPECT_EQ(tree.GetNodeFromIndex(6), nullptr);
  EXPECT_EQ(tree.GetNodeFromIndex(INT32_MIN), nullptr);
  EXPECT_EQ(tree.GetNodeFromIndex(INT32_MAX), nullptr);
}

TEST_F(TTree_BaseTest, GetNodeOfANodeIsNilOutsideItsChildren) {
  EXPECT_EQ(a->GetCount(), 2);
  EXPECT_EQ(a->GetNode(0), b);
  EXPECT_EQ(a->GetNode(1), c);
  EXPECT_EQ(a->GetNode(-1), nullptr);
  EXPECT_EQ(a->GetNode(2), nullptr);
}

TEST_F(TTree_BaseTest, RemoveFreeTreeNodeTakesTheDescendantsAlong) {
  tree.RemoveFreeTreeNode(a, true);
  EXPECT_THAT(FlatIndex(tree), ElementsAre(root, e));
  EXPECT_THAT(root->GetChildren(), ElementsAre(e));
  EXPECT_EQ(e->GetTreeIndex(), 1);
}

TEST_F(TTree_BaseTest, RemoveFreeTreeNodeHandsTheChildrenToTheParent) {
  tree.RemoveFreeTreeNode(a, false);
  EXPECT_THAT(FlatIndex(tree), ElementsAre(root, b, c, d, e));
  EXPECT_THAT(root->GetChildren(), ElementsAre(b, c, e));
  EXPECT_THAT(c->GetChildren(), ElementsAre(d));
}

TEST_F(TTree_BaseTest, RemoveFreeTreeNodeOfALeafIsTheSameEitherWay) {
  tree.RemoveFreeTreeNode(b, true);
  tree.RemoveFreeTreeNode(d, false);
  EXPECT_THAT(FlatIndex(tree), ElementsAre(root, a, c, e));
  EXPECT_THAT(a->GetChildren(), ElementsAre(c));
  EXPECT_THAT(c->GetChildren(), IsEmpty());
}

struct TCountedNode : TTreeNode_Base {
  static inline int alive = 0;
  explicit TCountedNode(TTree_Base* aTree) : TTreeNode_Base(aTree) { ++alive; }
  ~TCountedNode() override { --alive; }
};
struct TCountedTree : TTree_Base {
  TCountedTree()
      : TTree_Base([](TTree_Base& aTree) -> std::unique_ptr<TTreeNode_Base> {
          return std::make_unique<TCountedNode>(&aTree);
        }) {}
};

TEST(TTree_Base, FreesEveryNodeOnce) {
  {
    TCountedTree tree;
    TTreeNode_Base* const top = Add(tree);
    Add(tree, Add(tree, top));
    Add(tree);
    EXPECT_EQ(TCountedNode::alive, 5);
    tree.RemoveFreeTreeNode(top, true);
    EXPECT_EQ(TCountedNode::alive, 2);
    auto root = tree.CreateTreeNode();
    tree.SetRootNode(root);
    EXPECT_EQ(TCountedNode::alive, 2);
    tree.Clear();
    EXPECT_EQ(TCountedNode::alive, 1);
    Add(tree, Add(tree));
  }
  EXPECT_EQ(TCountedNode::alive, 0);
}

TEST_F(TTree_BaseTest, MoveTreeNodeLeavesTheChildrenWithTheOldParent) {
  tree.MoveTreeNode(c, e);
  EXPECT_THAT(a->GetChildren(), ElementsAre(b, d));
  EXPECT_THAT(e->GetChildren(), ElementsAre(c));
  EXPECT_THAT(c->GetChildren(), IsEmpty());
}

TEST_F(TTree_BaseTest, MoveTreeNodeLeavesTheChildrenInTheNodesPlace) {
  tree.MoveTreeNode(a, e);
  EXPECT_THAT(root->GetChildren(), ElementsAre(b, c, e));
  EXPECT_THAT(e->GetChildren(), ElementsAre(a));
}

TEST_F(TTree_BaseTest, MoveTreeNode_RecursiveTakesTheChildrenAlong) {
  tree.MoveTreeNode_Recursive(a, e);
  EXPECT_THAT(root->GetChildren(), ElementsAre(e));
  EXPECT_THAT(e->GetChildren(), ElementsAre(a));
  EXPECT_THAT(a->GetChildren(), ElementsAre(b, c));
}

TEST_F(TTree_BaseTest, MovesKeepTheFlatOrder) {
  tree.MoveTreeNode(c, e);
  tree.MoveTreeNode_Recursive(a, e);
  EXPECT_THAT(FlatIndex(tree), ElementsAre(root, a, b, c, d, e));
}

TEST_F(TTree_BaseTest, MovesToTheSameParentMakeALastChild) {
  tree.MoveTreeNode_Recursive(b, a);
  EXPECT_THAT(a->GetChildren(), ElementsAre(c, b));
  tree.MoveTreeNode(c, a);
  EXPECT_THAT(a->GetChildren(), ElementsAre(d, b, c));
}

TEST_F(TTree_BaseTest, MovesBelowItselfOrADescendantAreRefused) {
  for (TTreeNode_Base* below : {a, b, c, d}) {
    tree.MoveTreeNode(a, below);
    tree.MoveTreeNode_Recursive(a, below);
  }
  ExpectUnchanged();
}

TEST_F(TTree_BaseTest, TheRootIsNeitherMovedNorRemoved) {
  tree.MoveTreeNode(root, a);
  tree.MoveTreeNode_Recursive(root, e);
  tree.RemoveFreeTreeNode(root, true);
  tree.RemoveFreeTreeNode(root, false);
  ExpectUnchanged();
}

TEST_F(TTree_BaseTest, NilForeignAndNotEnteredNodesAreNeitherMovedNorRemoved) {
  TTree_Base other;
  TTreeNode_Base* const foreign = Add(other);
  const auto notEntered = tree.CreateTreeNode();
  for (TTreeNode_Base* node : {static_cast<TTreeNode_Base*>(nullptr), foreign, notEntered.get()}) {
    tree.MoveTreeNode(node, a);
    tree.MoveTreeNode(e, node);
    tree.MoveTreeNode_Recursive(node, a);
    tree.MoveTreeNode_Recursive(e, node);
    tree.RemoveFreeTreeNode(node, true);
    tree.RemoveFreeTreeNode(node, false);
  }
  ExpectUnchanged();
  ExpectConsistent(other);
}

TEST_F(TTree_BaseTest, ClearLeavesAFreshRoot) {
  tree.Clear();
  EXPECT_EQ(tree.GetCount(), 1);
  EXPECT_EQ(tree.GetRootNode()->GetCount(), 0);
  EXPECT_EQ(Add(tree)->GetTreeIndex(), 1);
}

TEST_F(TTree_BaseTest, SetRootNodeTakesTheRootsPlaceAndChildren) {
  auto node = tree.CreateTreeNode();
  TTreeNode_Base* const fresh = node.get();
  tree.SetRootNode(node);
  EXPECT_EQ(node, nullptr);
  EXPECT_EQ(tree.GetRootNode(), fresh);
  EXPECT_THAT(FlatIndex(tree), ElementsAre(fresh, a, b, c, d, e));
  EXPECT_THAT(fresh->GetChildren(), ElementsAre(a, e));
}

TEST(TTree_Base, DeepTreesCostNoStack) {
  support::RunWithStack(256 * 1024, [] {
    TTree_Base tree;
    TTreeNode_Base* const deepest = Add(tree);
    TTreeNode_Base* top = deepest;
    for (int depth = 1; depth < 100000; ++depth) {
      TTreeNode_Base* const above = Add(tree);
      tree.MoveTreeNode_Recursive(top, above);
      top = above;
    }
    tree.MoveTreeNode_Recursive(top, deepest);
    EXPECT_EQ(top->GetParent(), tree.GetRootNode());
    Add(tree);
    tree.RemoveFreeTreeNode(top, true);
    EXPECT_EQ(tree.GetCount(), 2);
  });
}

TEST(TTree_Base, ManyNodesGoOneByOneFromTheFront) {
  constexpr int kNodes = 200000;
  for (const bool byFlatIndex : {false, true}) {
    TTree_Base tree;
    std::vector<TTreeNode_Base*> nodes;
    for (int k = 0; k < kNodes; ++k) nodes.push_back(Add(tree));
    for (int k = 0; k + 3 < kNodes; ++k) {
      TTreeNode_Base* const first = byFlatIndex ? tree.GetNodeFromIndex(1) : tree.GetRootNode()->GetNode(0);
      ASSERT_EQ(first, nodes[static_cast<std::size_t>(k)]);
      ASSERT_EQ(first->GetTreeIndex(), 1);
      tree.RemoveFreeTreeNode(first, k % 2 == 0);
    }
    nodes.erase(nodes.begin(), nodes.end() - 3);
    EXPECT_THAT(FlatIndex(tree), ElementsAre(tree.GetRootNode(), nodes[0], nodes[1], nodes[2]));
    EXPECT_THAT(tree.GetRootNode()->GetChildren(), ElementsAre(nodes[0], nodes[1], nodes[2]));
  }
}

TEST(TTree_Base, NodesThatGoFromTheMidstWithoutAReadingLeaveTheOthersInOrder) {
  TTree_Base tree;
  std::vector<TTreeNode_Base*> nodes;
  for (int k = 0; k < 10; ++k) nodes.push_back(Add(tree));
  for (const std::size_t k : {4U, 0U, 9U, 7U, 1U}) tree.RemoveFreeTreeNode(nodes[k], true);
  EXPECT_EQ(tree.GetCount(), 6);
  EXPECT_EQ(nodes[5]->GetTreeIndex(), 3);
  TTreeNode_Base* const last = Add(tree);
  EXPECT_THAT(FlatIndex(tree), ElementsAre(tree.GetRootNode(), nodes[2], nodes[3], nodes[5], nodes[6], nodes[8], last));
  EXPECT_THAT(tree.GetRootNode()->GetChildren(), ElementsAre(nodes[2], nodes[3], nodes[5], nodes[6], nodes[8], last));
  tree.RemoveFreeTreeNode(nodes[3], true);
  auto inserted = tree.CreateTreeNode();
  TTreeNode_Base* const second = tree.AddNewTreeNode_AtIndex(inserted, 2);
  EXPECT_THAT(FlatIndex(tree), ElementsAre(tree.GetRootNode(), nodes[2], second, nodes[5], nodes[6], nodes[8], last));
}

}  // namespace
}  // namespace GeometryEngine

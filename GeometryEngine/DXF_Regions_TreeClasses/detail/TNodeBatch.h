#pragma once

// Many nodes for a tree at once. Private.

#include <cstddef>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingLeaves.h"

namespace GeometryEngine::detail {

/// Adds nodes to a tree without children, by a pass that knows beforehand how many there will be, how many children
/// each has and the place of each: no list of children grows.
///
/// REQUIRES: nobody else adds to the tree meanwhile, and all nodes are added in the end. A tree of which some are
/// missing can only be cleared.
class TNodeBatch {
 public:
  /// A node and its room for children, so that adding one needn't look at the node.
  struct TParent {
    TTreeNode* fNode;
    TTreeNode** fChildren;
  };

  TNodeBatch(TEntityTree& aTree, std::size_t aRootChildren, std::size_t aOthers);
  /// A new last node of level 1, with so many children.
  TParent AddToRoot(TIndex aChildren);
  /// A new node of level 2. REQUIRES: each place below a parent is taken once.
  TTreeNode& Add(const TParent& aParent, TIndex aPlace);
  /// All nodes of level 2, to be made when somebody first looks at them. REQUIRES: all of level 1, added without
  /// children to a tree that has been cleared.
  void AddPending(TPendingLeaves aLeaves);

 private:
  TTreeNode& MakeNode(TTreeNode& aParent, TIndex aPlace);

  TEntityTree& fTree;
  TTreeNode* fSlots;   ///< what is left of the room for nodes
  TTreeNode** fLists;  ///< what is left of the room for lists of children
};

}  // namespace GeometryEngine::detail

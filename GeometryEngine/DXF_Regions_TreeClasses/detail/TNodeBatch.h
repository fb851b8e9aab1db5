#pragma once

// Many nodes for a tree at once. Private.

#include <cstddef>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

namespace GeometryEngine::detail {

/// Adds nodes to a tree that will know its children only at the end: a pass that knows the place of each node
/// beforehand, and about how many there will be, needs no list of children that grows.
///
/// REQUIRES: nobody else adds to the tree meanwhile. A batch that does not come to `Finish` leaves a tree that can only
/// be cleared.
class TNodeBatch {
 public:
  TNodeBatch(TEntityTree& aTree, std::size_t aMostNodes);
  /// A new node. REQUIRES: in the end each place among the new children of a parent is taken once, without gaps.
  TTreeNode& Add(TTreeNode& aParent, TIndex aPlace);
  TTreeNode& AddToRoot(TIndex aPlace);
  /// Gives each node its list of children.
  void Finish();

 private:
  TEntityTree& fTree;
  std::size_t fFirst;  ///< position of the first new node
  TTreeNode* fSlots;   ///< what is left of the room
};

}  // namespace GeometryEngine::detail

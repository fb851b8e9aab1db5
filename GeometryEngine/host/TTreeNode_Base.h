#pragma once

#include <cstddef>
#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

class TTree_Base;
class TTreeNode_Base;

/// References to nodes; owns none of them.
using TTreeNodeArray_Base = std::vector<TTreeNode_Base*>;

/// A node of a TTree_Base: at most one parent and an ordered list of children, both changed by the tree alone.
///
/// A child that leaves its parent leaves a hole there at first; whoever reads the list next closes all holes at once,
/// unless a single child is asked for and only first ones have left. So even a reading belongs to the thread that works
/// on the tree.
///
/// OWNS: nothing. A node that has been entered belongs to its tree; before that it belongs to whoever created it. A
/// node's destructor must not look at its parent or its children, which may be gone already.
class GEOMETRYENGINE_API TTreeNode_Base {
 public:
  /// A node made for `aTree`, which only that tree will take. It is not entered yet: it has no parent and no place.
  explicit TTreeNode_Base(TTree_Base* aTree);
  virtual ~TTreeNode_Base();
  TTreeNode_Base(const TTreeNode_Base&) = delete;
  TTreeNode_Base& operator=(const TTreeNode_Base&) = delete;

  /// The tree for which the node was made; nil for a node made for none.
  TTree_Base* GetTree() const;
  /// Nil for the root and for a node that is not entered.
  TTreeNode_Base* GetParent() const;
  /// Number of children.
  TIndex GetCount() const;
  /// The child at that place; nil for an index outside 0 to GetCount() - 1.
  TTreeNode_Base* GetNode(TIndex aIndex) const;
  /// The children, in order. COST: constant; after children have left, the first reading takes their number once.
  const TTreeNodeArray_Base& GetChildren() const;
  /// Place in the tree's flat index; kNotFound while the node is not entered. COST: as TTree_Base::GetNodeFromIndex.
  TIndex GetTreeIndex() const;

 private:
  friend class TTree_Base;
  void CloseHoles() const;

  TTree_Base* fTree;
  TTreeNode_Base* fParent = nullptr;
  mutable TTreeNodeArray_Base fChildren;  ///< nil where a child has left
  mutable TIndex fHoles = 0;              ///< how many of them are nil,
  mutable TIndex fLeadingHoles = 0;       ///< and how many of those come before the first that is not
  mutable std::size_t fPlace = 0;         ///< where this node stands in its parent's list, holes counted in
  TIndex fTreeIndex = kNotFound;          ///< where this node stands in the tree's list, holes counted in
};

}  // namespace GeometryEngine

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"
#include "GeometryEngine/host/TTreeNode_Base.h"

namespace GeometryEngine {

/// A tree whose nodes also stand in a flat index, 0 to GetCount() - 1.
///
/// The root stands at place 0 from the tree's creation on. Every other node has one parent, and its place in the flat
/// index is independent of where it hangs: moving a node leaves the flat order alone. Nodes that don't belong where
/// they are offered (nil, made for another tree, entered already or not at all) are refused: nothing changes and
/// nothing is taken.
///
/// A node that is taken out leaves a hole in the flat index at first, as a child does in its parent's list: even a
/// reading belongs to the thread that works on the tree.
///
/// OWNS: all its nodes. Depth costs no stack, neither in walking nor in freeing.
///
///   TTree_Base tree;
///   auto node = tree.CreateTreeNode();
///   TTreeNode_Base* slot = tree.AddNewTreeNode(node);           // below the root
///   node = tree.CreateTreeNode();
///   tree.MoveTreeNode(tree.AddNewTreeNode(node), slot);          // below the slot
class GEOMETRYENGINE_API TTree_Base {
 public:
  TTree_Base();
  virtual ~TTree_Base();
  TTree_Base(const TTree_Base&) = delete;
  TTree_Base& operator=(const TTree_Base&) = delete;

  /// Frees all nodes and leaves a fresh root, of the tree's node class.
  void Clear();
  /// Number of nodes in the flat index, the root among them.
  TIndex GetCount() const;
  /// The node at that place of the flat index; nil for an index outside it. COST: constant; after nodes have been taken
  /// out of its midst, the first reading takes their number once.
  TTreeNode_Base* GetNodeFromIndex(TIndex aIndex) const;
  TTreeNode_Base* GetRootNode() const;
  /// Counts what has happened to the flat index apart from nodes entered at its end: as long as it stays the same, a
  /// node keeps its place. For whoever keeps something by place between two calls.
  std::uint64_t GetChangeCount() const;
  /// Puts `aNode` in the root's place: it takes over the root's children, and the old root is freed.
  /// OWNS: takes `aNode` unless it is refused.
  void SetRootNode(std::unique_ptr<TTreeNode_Base>& aNode);
  /// A new node of the tree's node class, not yet entered; nil never.
  std::unique_ptr<TTreeNode_Base> CreateTreeNode();
  /// Enters `aNode` at the end of the flat index, as the last child of the root, and returns it; nil when it is
  /// refused. OWNS: takes `aNode` unless it is refused.
  TTreeNode_Base* AddNewTreeNode(std::unique_ptr<TTreeNode_Base>& aNode);
  /// The same, but at place `aIndex` of the flat index; the nodes from there on move up by one. An index outside 1 to
  /// GetCount() means the end.
  TTreeNode_Base* AddNewTreeNode_AtIndex(std::unique_ptr<TTreeNode_Base>& aNode, TIndex aIndex);
  /// Takes a node out of the tree and frees it, and with `aRemoveDescendants` all that hangs below it. Otherwise its
  /// children go to its parent, where they take its place in their order. The flat index closes up. The root is
  /// refused. COST: what is taken out, and the siblings behind it when its children stay.
  void RemoveFreeTreeNode(TTreeNode_Base* aNode, bool aRemoveDescendants);
  /// Makes `aNode` the last child of `aNewParent`; its children stay behind with the old parent, in its place and their
  /// order. The root, and a new parent that is `aNode` or hangs below it, are refused. COST: constant for a node
  /// without children; otherwise the depth of the new parent and the number of old siblings besides.
  void MoveTreeNode(TTreeNode_Base* aNode, TTreeNode_Base* aNewParent);
  /// The same, but the node takes all that hangs below it along. COST: constant for a node without children, else the
  /// depth of the new parent.
  void MoveTreeNode_Recursive(TTreeNode_Base* aNode, TTreeNode_Base* aNewParent);

 protected:
  /// Makes a node for the given tree.
  using TNodeFactory = std::unique_ptr<TTreeNode_Base> (*)(TTree_Base&);

  /// For trees with a node class of their own. REQUIRES: the factory is not nil and returns a fresh node made for that
  /// tree; it is called during construction already, when only the base of the tree exists.
  explicit TTree_Base(TNodeFactory aFactory);

 private:
  bool IsEnterable(const TTreeNode_Base* aNode) const;
  bool IsEntered(const TTreeNode_Base* aNode) const;
  bool IsMovable(const TTreeNode_Base* aNode) const;
  bool IsMovableTo(const TTreeNode_Base* aNode, const TTreeNode_Base* aNewParent) const;
  static void MakeRoomForChild(TTreeNode_Base& aParent);
  static void Attach(TTreeNode_Base* aNode, TTreeNode_Base* aParent);
  static void Detach(TTreeNode_Base* aNode);
  static void HandChildrenToParent(TTreeNode_Base& aNode);
  friend class TTreeNode_Base;
  void RenumberFrom(std::size_t aPlace) const;
  void NoteHoles();
  void CloseHoles() const;

  TNodeFactory fFactory;
  std::uint64_t fChanges = 0;
  /// The flat index; position 0 is the root. Nil where a node has been taken out.
  mutable std::vector<std::unique_ptr<TTreeNode_Base>> fNodes;
  mutable TIndex fHoles = 0;         ///< how many are nil,
  mutable TIndex fLeadingHoles = 0;  ///< and how many of those stand right behind the root
};

}  // namespace GeometryEngine

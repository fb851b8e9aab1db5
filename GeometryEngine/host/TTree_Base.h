#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"
#include "GeometryEngine/host/TTreeNode_Base.h"

namespace GeometryEngine {

/// A tree that owns its nodes and keeps them in a flat index beside the parent-child structure.
class GEOMETRYENGINE_API TTree_Base {
 public:
  TTree_Base();
  virtual ~TTree_Base();
  TTree_Base(const TTree_Base&) = delete;
  TTree_Base& operator=(const TTree_Base&) = delete;

  void Clear();
  TIndex GetCount() const;
  TTreeNode_Base* GetNodeFromIndex(TIndex aIndex) const;
  TTreeNode_Base* GetRootNode() const;
  void SetRootNode(std::unique_ptr<TTreeNode_Base>& aNode);
  /// A new node of the tree's node class, not yet entered; nil never.
  std::unique_ptr<TTreeNode_Base> CreateTreeNode();
  TTreeNode_Base* AddNewTreeNode(std::unique_ptr<TTreeNode_Base>& aNode);
  TTreeNode_Base* AddNewTreeNode_AtIndex(std::unique_ptr<TTreeNode_Base>& aNode, TIndex aIndex);
  void RemoveFreeTreeNode(TTreeNode_Base* aNode, bool aRemoveDescendants);
  void MoveTreeNode(TTreeNode_Base* aNode, TTreeNode_Base* aNewParent);
  void MoveTreeNode_Recursive(TTreeNode_Base* aNode, TTreeNode_Base* aNewParent);

 protected:
  using TNodeFactory = std::unique_ptr<TTreeNode_Base> (*)(TTree_Base&);
  explicit TTree_Base(TNodeFactory aFactory);

 private:
  bool IsEnterable(const TTreeNode_Base* aNode) const;
  bool IsEntered(const TTreeNode_Base* aNode) const;
  bool IsMovable(const TTreeNode_Base* aNode) const;
  bool IsMovableTo(const TTreeNode_Base* aNode, const TTreeNode_Base* aNewParent) const;
  static void Attach(TTreeNode_Base* aNode, TTreeNode_Base* aParent);
  static void Detach(TTreeNode_Base* aNode);
  static void HandChildrenToParent(TTreeNode_Base& aNode);
  void RenumberFrom(std::size_t aPlace);

  TNodeFactory fFactory;
  std::vector<std::unique_ptr<TTreeNode_Base>> fNodes;  ///< the flat index; position 0 is the root
};

}  // namespace GeometryEngine

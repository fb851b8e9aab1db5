#pragma once

#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

class TTree_Base;
class TTreeNode_Base;

/// References to nodes; owns none of them.
using TTreeNodeArray_Base = std::vector<TTreeNode_Base*>;

class GEOMETRYENGINE_API TTreeNode_Base {
 public:
  explicit TTreeNode_Base(TTree_Base* aTree);
  virtual ~TTreeNode_Base();
  TTreeNode_Base(const TTreeNode_Base&) = delete;
  TTreeNode_Base& operator=(const TTreeNode_Base&) = delete;

  TTree_Base* GetTree() const;
  TTreeNode_Base* GetParent() const;
  /// Number of children.
  TIndex GetCount() const;
  TTreeNode_Base* GetNode(TIndex aIndex) const;
  const TTreeNodeArray_Base& GetChildren() const;
  /// Place in the tree's flat index; kNotFound while the node is not entered.
  TIndex GetTreeIndex() const;

 private:
  friend class TTree_Base;
  TTree_Base* fTree;
  TTreeNode_Base* fParent = nullptr;
  TTreeNodeArray_Base fChildren;
  TIndex fTreeIndex = kNotFound;
};

}  // namespace GeometryEngine

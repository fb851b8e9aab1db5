#include "GeometryEngine/host/TTreeNode_Base.h"

namespace GeometryEngine {

TTreeNode_Base::TTreeNode_Base(TTree_Base* aTree) : fTree(aTree) {}

TTreeNode_Base::~TTreeNode_Base() = default;

TTree_Base* TTreeNode_Base::GetTree() const {
  return fTree;
}

TTreeNode_Base* TTreeNode_Base::GetParent() const {
  return fParent;
}

TIndex TTreeNode_Base::GetCount() const {
  return ToIndex(fChildren.size());
}

TTreeNode_Base* TTreeNode_Base::GetNode(TIndex aIndex) const {
  if (!IsIndexWithin(aIndex, fChildren.size())) return nullptr;
  return fChildren[static_cast<std::size_t>(aIndex)];
}

const TTreeNodeArray_Base& TTreeNode_Base::GetChildren() const {
  return fChildren;
}

TIndex TTreeNode_Base::GetTreeIndex() const {
  return fTreeIndex;
}

}  // namespace GeometryEngine

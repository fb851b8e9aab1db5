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
  return ToIndex(fChildren.size()) - fHoles;
}

TTreeNode_Base* TTreeNode_Base::GetNode(TIndex aIndex) const {
  if (aIndex < 0 || aIndex >= GetCount()) return nullptr;
  if (fHoles != fLeadingHoles) CloseHoles();
  return fChildren[static_cast<std::size_t>(fLeadingHoles + aIndex)];
}

const TTreeNodeArray_Base& TTreeNode_Base::GetChildren() const {
  CloseHoles();
  return fChildren;
}

void TTreeNode_Base::CloseHoles() const {
  if (fHoles == 0) return;
  std::erase(fChildren, nullptr);
  for (std::size_t place = 0; place < fChildren.size(); ++place) fChildren[place]->fPlace = place;
  fHoles = 0;
  fLeadingHoles = 0;
}

}  // namespace GeometryEngine

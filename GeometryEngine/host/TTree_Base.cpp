#include "GeometryEngine/host/TTree_Base.h"

#include <algorithm>
#include <utility>

namespace GeometryEngine {

namespace {

// Room for one more element with the growth of an append, so that the append itself can't fail half-way.
template <typename TElement>
void MakeRoomForOne(std::vector<TElement>& aElements) {
  if (aElements.size() == aElements.capacity()) aElements.reserve(2 * aElements.size() + 1);
}

// Takes holes off the end of a list, and counts those that come first behind `aFirst` places that are never holes.
template <typename TElement>
void SkipHoles(std::vector<TElement>& aElements, std::size_t aFirst, TIndex& aHoles, TIndex& aLeadingHoles) {
  for (; !aElements.empty() && aElements.back() == nullptr; --aHoles) aElements.pop_back();
  aLeadingHoles = std::min(aLeadingHoles, aHoles);
  std::size_t place = aFirst + static_cast<std::size_t>(aLeadingHoles);
  for (; place < aElements.size() && aElements[place] == nullptr; ++place) ++aLeadingHoles;
}

std::unique_ptr<TTreeNode_Base> CreateNode_Base(TTree_Base& aTree) {
  return std::make_unique<TTreeNode_Base>(&aTree);
}

bool IsWithinSubtree(const TTreeNode_Base* aNode, const TTreeNode_Base* aTop) {
  if (aTop->GetCount() == 0) return aNode == aTop;
  while (aNode != nullptr && aNode != aTop) aNode = aNode->GetParent();
  return aNode == aTop;
}

// `aTop` and everything below it, parents before their children.
TTreeNodeArray_Base CollectSubtree(TTreeNode_Base* aTop) {
  TTreeNodeArray_Base nodes{aTop};
  for (std::size_t place = 0; place < nodes.size(); ++place) {
    const TTreeNodeArray_Base& children = nodes[place]->GetChildren();
    nodes.insert(nodes.end(), children.begin(), children.end());
  }
  return nodes;
}

}  // namespace

TTree_Base::TTree_Base() : TTree_Base(&CreateNode_Base) {}

TTree_Base::TTree_Base(TNodeFactory aFactory) : fFactory(aFactory) {
  Clear();
}

TTree_Base::~TTree_Base() = default;

void TTree_Base::Clear() {
  std::vector<std::unique_ptr<TTreeNode_Base>> nodes;
  nodes.push_back(CreateTreeNode());
  nodes.front()->fTreeIndex = 0;
  fNodes.swap(nodes);
  fHoles = 0;
  fLeadingHoles = 0;
  ++fChanges;
}

TIndex TTree_Base::GetCount() const {
  return ToIndex(fNodes.size()) - fHoles;
}

TTreeNode_Base* TTree_Base::GetNodeFromIndex(TIndex aIndex) const {
  if (aIndex < 0 || aIndex >= GetCount()) return nullptr;
  if (fHoles != fLeadingHoles) CloseHoles();
  return fNodes[static_cast<std::size_t>(aIndex == 0 ? 0 : aIndex + fLeadingHoles)].get();
}

TTreeNode_Base* TTree_Base::GetRootNode() const {
  return fNodes.front().get();
}

std::uint64_t TTree_Base::GetChangeCount() const {
  return fChanges;
}

void TTree_Base::SetRootNode(std::unique_ptr<TTreeNode_Base>& aNode) {
  if (!IsEnterable(aNode.get())) return;
  GetRootNode()->CloseHoles();
  aNode->fChildren = std::move(GetRootNode()->fChildren);
  for (TTreeNode_Base* child : aNode->fChildren) child->fParent = aNode.get();
  aNode->fTreeIndex = 0;
  fNodes.front() = std::move(aNode);
  ++fChanges;
}

std::unique_ptr<TTreeNode_Base> TTree_Base::CreateTreeNode() {
  return fFactory(*this);
}

TTreeNode_Base* TTree_Base::AddNewTreeNode(std::unique_ptr<TTreeNode_Base>& aNode) {
  return AddNewTreeNode_AtIndex(aNode, GetCount());
}

TTreeNode_Base* TTree_Base::AddNewTreeNode_AtIndex(std::unique_ptr<TTreeNode_Base>& aNode, TIndex aIndex) {
  if (!IsEnterable(aNode.get())) return nullptr;
  TTreeNode_Base* const node = aNode.get();
  const bool isAtEnd = aIndex < 1 || aIndex >= GetCount();
  if (!isAtEnd) CloseHoles();
  const std::size_t place = isAtEnd ? fNodes.size() : static_cast<std::size_t>(aIndex);
  MakeRoomForOne(fNodes);
  MakeRoomForChild(*GetRootNode());
  if (place < fNodes.size()) ++fChanges;
  fNodes.insert(fNodes.begin() + static_cast<std::ptrdiff_t>(place), std::move(aNode));
  Attach(node, GetRootNode());
  RenumberFrom(place);
  return node;
}

void TTree_Base::RemoveFreeTreeNode(TTreeNode_Base* aNode, bool aRemoveDescendants) {
  if (!IsMovable(aNode)) return;
  const TTreeNodeArray_Base doomed = aRemoveDescendants ? CollectSubtree(aNode) : TTreeNodeArray_Base{aNode};
  if (!aRemoveDescendants) HandChildrenToParent(*aNode);
  Detach(aNode);
  for (const TTreeNode_Base* node : doomed) fNodes[static_cast<std::size_t>(node->fTreeIndex)].reset();
  fHoles += ToIndex(doomed.size());
  NoteHoles();
  ++fChanges;
}

void TTree_Base::MoveTreeNode(TTreeNode_Base* aNode, TTreeNode_Base* aNewParent) {
  if (!IsMovableTo(aNode, aNewParent)) return;
  // Room for all that may come below the new parent, so that nothing fails once the children have been handed over.
  MakeRoomForChild(*aNewParent);
  aNewParent->fChildren.reserve(aNewParent->fChildren.size() + 1 +
                                (aNewParent == aNode->fParent ? aNode->fChildren.size() : 0));
  HandChildrenToParent(*aNode);
  MoveTreeNode_Recursive(aNode, aNewParent);
}

void TTree_Base::MoveTreeNode_Recursive(TTreeNode_Base* aNode, TTreeNode_Base* aNewParent) {
  if (!IsMovableTo(aNode, aNewParent)) return;
  MakeRoomForChild(*aNewParent);
  Detach(aNode);
  Attach(aNode, aNewParent);
}

bool TTree_Base::IsEnterable(const TTreeNode_Base* aNode) const {
  return aNode != nullptr && aNode->fTree == this && aNode->fTreeIndex == kNotFound;
}

bool TTree_Base::IsEntered(const TTreeNode_Base* aNode) const {
  return aNode != nullptr && aNode->fTree == this && aNode->fTreeIndex != kNotFound;
}

bool TTree_Base::IsMovable(const TTreeNode_Base* aNode) const {
  return IsEntered(aNode) && aNode != GetRootNode();
}

bool TTree_Base::IsMovableTo(const TTreeNode_Base* aNode, const TTreeNode_Base* aNewParent) const {
  return IsMovable(aNode) && IsEntered(aNewParent) && !IsWithinSubtree(aNewParent, aNode);
}

void TTree_Base::MakeRoomForChild(TTreeNode_Base& aParent) {
  if (aParent.fHoles > aParent.GetCount()) aParent.CloseHoles();
  MakeRoomForOne(aParent.fChildren);
}

void TTree_Base::Attach(TTreeNode_Base* aNode, TTreeNode_Base* aParent) {
  aNode->fPlace = aParent->fChildren.size();
  aParent->fChildren.push_back(aNode);
  aNode->fParent = aParent;
}

void TTree_Base::Detach(TTreeNode_Base* aNode) {
  TTreeNode_Base& parent = *std::exchange(aNode->fParent, nullptr);
  parent.fChildren[aNode->fPlace] = nullptr;
  ++parent.fHoles;
  SkipHoles(parent.fChildren, 0, parent.fHoles, parent.fLeadingHoles);
}

void TTree_Base::HandChildrenToParent(TTreeNode_Base& aNode) {
  if (aNode.GetCount() == 0) return;
  aNode.CloseHoles();
  TTreeNodeArray_Base& siblings = aNode.fParent->fChildren;
  const auto place = siblings.begin() + static_cast<std::ptrdiff_t>(aNode.fPlace);
  siblings.insert(place + 1, aNode.fChildren.begin(), aNode.fChildren.end());
  for (TTreeNode_Base* child : aNode.fChildren) child->fParent = aNode.fParent;
  aNode.fChildren.clear();
  for (std::size_t i = aNode.fPlace + 1; i < siblings.size(); ++i) {
    if (siblings[i] != nullptr) siblings[i]->fPlace = i;
  }
}

/// After nodes have gone: keeps holes fewer than nodes, and no hole at the end.
void TTree_Base::NoteHoles() {
  SkipHoles(fNodes, 1, fHoles, fLeadingHoles);
  if (fHoles > GetCount()) CloseHoles();
}

void TTree_Base::CloseHoles() const {
  if (fHoles == 0) return;
  std::erase(fNodes, nullptr);
  RenumberFrom(0);
  fHoles = 0;
  fLeadingHoles = 0;
}

void TTree_Base::RenumberFrom(std::size_t aPlace) const {
  for (std::size_t place = aPlace; place < fNodes.size(); ++place) fNodes[place]->fTreeIndex = ToIndex(place);
}

// What a node asks of its tree. It stands here, so that the node's own source needs to know of no tree.

TIndex TTreeNode_Base::GetTreeIndex() const {
  if (fTreeIndex <= 0) return fTreeIndex;
  if (fTree->fHoles != fTree->fLeadingHoles) fTree->CloseHoles();
  return fTreeIndex - fTree->fLeadingHoles;
}

}  // namespace GeometryEngine

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
  ++fChanges;
}

TIndex TTree_Base::GetCount() const {
  return ToIndex(fNodes.size());
}

TTreeNode_Base* TTree_Base::GetNodeFromIndex(TIndex aIndex) const {
  return IsIndexWithin(aIndex, fNodes.size()) ? fNodes[static_cast<std::size_t>(aIndex)].get() : nullptr;
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
  const std::size_t place = aIndex >= 1 && aIndex < GetCount() ? static_cast<std::size_t>(aIndex) : fNodes.size();
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
  TIndex first = GetCount();
  for (TTreeNode_Base* node : doomed) first = std::min(first, std::exchange(node->fTreeIndex, kNotFound));
  const auto isDoomed = [](const auto& aEntered) { return aEntered->fTreeIndex == kNotFound; };
  fNodes.erase(std::remove_if(fNodes.begin() + first, fNodes.end(), isDoomed), fNodes.end());
  RenumberFrom(static_cast<std::size_t>(first));
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
  for (; !parent.fChildren.empty() && parent.fChildren.back() == nullptr; --parent.fHoles) parent.fChildren.pop_back();
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

void TTree_Base::RenumberFrom(std::size_t aPlace) {
  for (std::size_t place = aPlace; place < fNodes.size(); ++place) fNodes[place]->fTreeIndex = ToIndex(place);
}

}  // namespace GeometryEngine

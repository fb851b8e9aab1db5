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

void TTree_Base::SetRootNode(std::unique_ptr<TTreeNode_Base>& aNode) {
  if (!IsEnterable(aNode.get())) return;
  aNode->fChildren = std::move(GetRootNode()->fChildren);
  for (TTreeNode_Base* child : aNode->fChildren) child->fParent = aNode.get();
  aNode->fTreeIndex = 0;
  fNodes.front() = std::move(aNode);
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
  MakeRoomForOne(GetRootNode()->fChildren);
  fNodes.insert(fNodes.begin() + static_cast<std::ptrdiff_t>(place), std::move(aNode));
  Attach(node, GetRootNode());
  RenumberFrom(place);
  return node;
}

void TTree_Base::RemoveFreeTreeNode(TTreeNode_Base* aNode, bool aRemoveDescendants) {
  if (!IsMovable(aNode)) return;
  if (!aRemoveDescendants) HandChildrenToParent(*aNode);
  const TTreeNodeArray_Base doomed = CollectSubtree(aNode);
  Detach(aNode);
  for (TTreeNode_Base* node : doomed) node->fTreeIndex = kNotFound;
  std::erase_if(fNodes, [](const auto& aEntered) { return aEntered->fTreeIndex == kNotFound; });
  RenumberFrom(1);
}

void TTree_Base::MoveTreeNode(TTreeNode_Base* aNode, TTreeNode_Base* aNewParent) {
  if (!IsMovableTo(aNode, aNewParent)) return;
  HandChildrenToParent(*aNode);
  MoveTreeNode_Recursive(aNode, aNewParent);
}

void TTree_Base::MoveTreeNode_Recursive(TTreeNode_Base* aNode, TTreeNode_Base* aNewParent) {
  if (!IsMovableTo(aNode, aNewParent)) return;
  MakeRoomForOne(aNewParent->fChildren);
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

void TTree_Base::Attach(TTreeNode_Base* aNode, TTreeNode_Base* aParent) {
  aParent->fChildren.push_back(aNode);
  aNode->fParent = aParent;
}

void TTree_Base::Detach(TTreeNode_Base* aNode) {
  std::erase(aNode->fParent->fChildren, aNode);
  aNode->fParent = nullptr;
}

void TTree_Base::HandChildrenToParent(TTreeNode_Base& aNode) {
  TTreeNodeArray_Base& siblings = aNode.fParent->fChildren;
  const auto place = std::ranges::find(siblings, &aNode);
  siblings.insert(place + 1, aNode.fChildren.begin(), aNode.fChildren.end());
  for (TTreeNode_Base* child : aNode.fChildren) child->fParent = aNode.fParent;
  aNode.fChildren.clear();
}

void TTree_Base::RenumberFrom(std::size_t aPlace) {
  for (std::size_t place = aPlace; place < fNodes.size(); ++place) fNodes[place]->fTreeIndex = ToIndex(place);
}

}  // namespace GeometryEngine

#include "tests/reference/plain/TEntityTree.h"

#include <algorithm>

#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

TTreeNode* TTreeNode::GetNode(TIndex aIndex) const {
  return IsIndexWithin(aIndex, fChildren.size()) ? fChildren[static_cast<std::size_t>(aIndex)] : nullptr;
}

bool TTreeNode::CheckSubRegionIdentified(std::int32_t aRegionIndex) const {
  return std::ranges::find(fSubRegions, aRegionIndex) != fSubRegions.end();
}

void TTreeNode::RemoveSubRegion(std::int32_t aRegionIndex) {
  const auto found = std::ranges::find(fSubRegions, aRegionIndex);
  if (found != fSubRegions.end()) fSubRegions.erase(found);
}

TEntityTree::TEntityTree() {
  constexpr std::int32_t kRegionIndex_Root = -2;
  fRoot->fRegionIndex = kRegionIndex_Root;
  fTreeNodes.push_back(fRoot.get());
  fNextIndex = 1;
}

TTreeNode* TEntityTree::AddTreeNode(TTreeNode* aParentNode) {
  return AddTreeNode_AtIndex(aParentNode, aParentNode->Count());
}

TTreeNode* TEntityTree::AddTreeNode_AtIndex(TTreeNode* aParentNode, TIndex aIndex) {
  TTreeNode* node = fOwnedNodes.emplace_back(std::make_unique<TTreeNode>()).get();
  node->fParent = aParentNode;
  node->fLevel = aParentNode->fLevel + 1;
  node->fIndex = fNextIndex++;
  fTreeNodes.push_back(node);
  std::vector<TTreeNode*>& siblings = aParentNode->fChildren;
  siblings.insert(siblings.begin() + aIndex, node);
  for (std::size_t i = 0; i < siblings.size(); ++i) siblings[i]->fRelativeIndex = ToIndex(i);
  return node;
}

void TEntityTree::Clear() {
  fRoot->fChildren.clear();
  fTreeNodes.clear();
  fOwnedNodes.clear();
  fNextIndex = 0;
}

TTreeNode* TEntityTree::Search_L1_Coords(const TEntityCoordinate& aCoordinates) const {
  return Search_L2_Coordinates(aCoordinates, RootNode());
}

TTreeNode* TEntityTree::Search_L1_Entities(const TDXFEntity& aEntity) const {
  const auto found = std::ranges::find_if(fRoot->fChildren,
                                          [&](const TTreeNode* node) { return Same(GetNodeEntity(*node), aEntity); });
  return found == fRoot->fChildren.end() ? nullptr : *found;
}

TTreeNode* TEntityTree::Search_L2_Coordinates(const TEntityCoordinate& aCoordinates, const TTreeNode* aNode) const {
  const auto found = std::ranges::find_if(
      aNode->fChildren, [&](const TTreeNode* child) { return Same(child->fCoordinates, aCoordinates); });
  return found == aNode->fChildren.end() ? nullptr : *found;
}

TTreeNode* TEntityTree::GetNodeFromIndex(TIndex aIndex) const {
  return IsIndexWithin(aIndex, fTreeNodes.size()) ? fTreeNodes[static_cast<std::size_t>(aIndex)] : nullptr;
}

const TDXFEntity& TEntityTree::GetNodeEntity(const TTreeNode& aNode) const {
  if (fStorage == nullptr || !IsIndexWithin(aNode.fEntityIndex, fStorage->fEntities.size())) return fEmpty;
  return fStorage->fEntities[static_cast<std::size_t>(aNode.fEntityIndex)];
}

}  // namespace GeometryEngine::Plain

// How nodes leave a detection tree: one by one, or all at once.

#include <algorithm>
#include <utility>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingLeaves.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingNodes.h"

namespace GeometryEngine {

/// Whether the node is in the flat list, and not the root.
bool TEntityTree::IsListed(const TTreeNode& aNode) const {
  const bool isOwned = aNode.fIsPooled || &aNode == fFirstNode.get();
  return aNode.ftree == this && isOwned && &aNode != fDroppedNode;
}

void TEntityTree::RemoveTreeNode(TTreeNode* aNode, bool aRemoveChildren) {
  MakePendingNodes();
  ++fNestingChanges;
  if (aNode == nullptr || !IsListed(*aNode)) return;
  TTreeNode& parent = *aNode->fParent;
  const std::span<TTreeNode* const> handedOver = aRemoveChildren ? std::span<TTreeNode* const>{} : aNode->Children();
  if (!handedOver.empty()) {
    MakeRoomForChildren(parent, handedOver.size());
    aNode->fNumChildNodes = 0;
  }
  --parent.fNumChildNodes;
  parent.fHasGaps = true;
  ReleaseSubtree(*aNode);
  AttachChildren(parent, handedOver);
  if (2 * fReleasedNodes > fTreeNodes.size()) CloseGaps();
}

// REQUIRES: room for them.
void TEntityTree::AttachChildren(TTreeNode& aParentNode, std::span<TTreeNode* const> aNodes) {
  if (!aNodes.empty()) CloseChildGaps(aParentNode);
  for (TTreeNode* node : aNodes) AttachChild(aParentNode, *node, aParentNode.fNumChildNodes);
}

// Whatever is released stands in the lists as a node of no tree until they are next read.
void TEntityTree::ReleaseSubtree(TTreeNode& aNode) {
  ++fNestingChanges;
  // Leaf by leaf and without memory of its own, since a destructor gets here when memory has run out.
  TIndex released = 0;
  for (TTreeNode* node = &aNode; node != nullptr;) {
    CloseChildGaps(*node);
    if (node->fNumChildNodes > 0) {
      node = node->fChildren[--node->fNumChildNodes];
      continue;
    }
    ++released;
    if (IsListed(*node)) ++fReleasedNodes;
    node->ftree = nullptr;
    node = node == &aNode ? nullptr : node->fParent;
  }
  // KEPT: every node below the released one is counted off twice, once for itself and once by its parent, so that
  // absolute indexes given out afterwards may repeat earlier ones; index arrays don't survive a removal anyway.
  findex -= 2 * released - 1;
}

/// What a node that stands free does when it goes.
void TEntityTree::ReleaseFreeNode(TTreeNode& aNode) {
  if (fRemoveAll) return;
  ReleaseSubtree(aNode);
  CloseGaps();  // its children know it as their parent
}

void TEntityTree::CloseChildGaps(TTreeNode& aParentNode) {
  if (!aParentNode.fHasGaps) return;
  TIndex kept = 0;
  for (TTreeNode** child = aParentNode.fChildren; kept < aParentNode.fNumChildNodes; ++child) {
    if ((*child)->ftree != nullptr) aParentNode.fChildren[kept++] = *child;
  }
  aParentNode.fHasGaps = false;
}

void TEntityTree::CloseGaps() {
  const auto isReleased = [](const TTreeNode* node) { return node->ftree == nullptr; };
  std::erase_if(fRegionNodes, isReleased);
  std::erase_if(fFreeParents, isReleased);
  for (const TTreeNode* node : fTreeNodes) {
    if (isReleased(node)) CloseChildGaps(*node->fParent);
  }
  auto kept = fTreeNodes.begin();
  for (TTreeNode* node : fTreeNodes) {
    if (isReleased(node)) {
      DestroyNode(*node);
    } else {
      *kept++ = node;
    }
  }
  fTreeNodes.erase(kept, fTreeNodes.end());
  fReleasedNodes = 0;
}

void TEntityTree::DestroyNode(TTreeNode& aNode) {
  if (&aNode == fFirstNode.get()) {
    fFirstNode.reset();
  } else if (aNode.fIsPooled) {
    aNode.~TTreeNode();
    fFreeSlots = new (&aNode) TFreeSlot{fFreeSlots};
  }
}

void TEntityTree::Clear() {
  CloseGapsIfAny();
  ++fNestingChanges;
  fRemoveAll = true;
  findex = 0;
  fPendingNodes.reset();
  fPendingLeaves.reset();
  DropFirstNode();
  ReleaseAllNodes();
  fRemoveAll = false;
}

/// But for the root and the one that has been dropped.
void TEntityTree::ReleaseAllNodes() {
  EmptyChildLists();
  ReleaseRegionFields();
  fTreeNodes.clear();
  fFirstNode.reset();
  fFreeSlots = nullptr;
  fMemories[fMemoryInUse].release();
}

/// Of the nodes that live on: the lists stand in memory that goes.
void TEntityTree::EmptyChildLists() {
  const auto empty = [](TTreeNode& node) {
    node.fIsPending = false;
    node.fChildren = nullptr;
    node.fNumChildNodes = 0;
    node.fRoomForChildren = 0;
  };
  empty(*fRootNode);
  if (!fTreeNodes.empty()) empty(*fTreeNodes.front());
  for (TTreeNode* parent : fFreeParents) empty(*parent);
  fFreeParents.clear();
}

/// All that a pooled node owns elsewhere; so the pool goes as a whole.
void TEntityTree::ReleaseRegionFields() {
  for (TTreeNode* node : fRegionNodes) node->fRegionFields.reset();
  fRegionNodes.clear();
}

void TEntityTree::DropFirstNode() {
  ReleaseDroppedNode();
  // KEPT: position 0 is passed over, because in a fresh tree the root stands there. Once a first clear has taken the
  // root off the list (which makes absolute indexes and positions agree), it's an ordinary node that is passed over:
  // it leaves the lists alive, and a host that still refers to it may read it until the next clear.
  if (fTreeNodes.empty() || fTreeNodes.front() == fRootNode.get()) return;
  fDroppedNode = fTreeNodes.front();
  if (fDroppedNode->fParent != fRootNode.get()) fDroppedNode->fParent = nullptr;
  std::erase(fRegionNodes, fDroppedNode);
  if (fDroppedNode == fFirstNode.get()) {
    fDroppedAlone = std::move(fFirstNode);
  } else {
    fMemoryInUse = 1 - fMemoryInUse;  // one that has moved up since the first was removed: its memory stays as a whole
  }
}

void TEntityTree::ReleaseDroppedNode() {
  std::erase(fFreeParents, fDroppedNode);
  if (fDroppedNode != nullptr && fDroppedAlone == nullptr) {
    fDroppedNode->~TTreeNode();
    fMemories[1 - fMemoryInUse].release();
  }
  fDroppedAlone.reset();
  fDroppedNode = nullptr;
}

}  // namespace GeometryEngine

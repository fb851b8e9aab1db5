#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

#include <algorithm>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingNodes.h"

namespace GeometryEngine {

namespace {

constexpr std::int32_t kRegionIndex_Root = -2;

std::string_view NameOf(const TEntityTree* aTree) {
  return aTree == nullptr ? std::string_view{} : std::string_view{aTree->Name()};
}

}  // namespace

TEntityTree::TEntityTree(std::string_view aName) : fTreeName(aName) {
  fRootNode = std::make_unique<TTreeNode>(this);
  fRootNode->fRegionIndex = kRegionIndex_Root;
  fTreeNodes.push_back(fRootNode.get());
}

TEntityTree::~TEntityTree() {
  Clear();
  fRemoveAll = true;
  ReleaseDroppedNode();
  fRootNode.reset();
}

void TEntityTree::PendingNodes(std::unique_ptr<detail::TPendingNodes> aNodes) {
  fPendingNodes = std::move(aNodes);
  fRootNode->fIsPending = true;
}

void TEntityTree::AddPendingNodes() {
  const bool isRootListed = !fTreeNodes.empty();
  const TIndex first = ToIndex(fTreeNodes.size());
  const TIndex countedOff = findex - first;  // by nodes that stood free and have gone: as it would be after the others
  std::unique_ptr<detail::TPendingNodes> nodes = std::move(fPendingNodes);
  fRootNode->fIsPending = false;
  findex = first;
  try {
    nodes->AddNodes(*this);
  } catch (...) {
    fRemoveAll = true;
    ReleaseAllNodes();
    fRemoveAll = false;
    if (isRootListed) fTreeNodes.push_back(fRootNode.get());
    PendingNodes(std::move(nodes));
    findex = first + countedOff;
    throw;
  }
  findex += countedOff;
}

TTreeNode* TEntityTree::AddTreeNode(TTreeNode* aParentNode) {
  return aParentNode == nullptr ? nullptr : AddTreeNode_AtIndex(aParentNode, aParentNode->GetCount());
}

TTreeNode* TEntityTree::AddTreeNode_AtIndex(TTreeNode* aParentNode, TIndex aIndex) {
  if (aParentNode == nullptr || aParentNode->ftree != this) return nullptr;
  MakePendingNodes();
  if (fTreeNodes.size() == fTreeNodes.capacity()) fTreeNodes.reserve(2 * fTreeNodes.size() + 1);
  MakeRoomForChildren(*aParentNode, 1);
  TTreeNode& node = MakeNode();
  AttachChild(*aParentNode, node, aIndex);
  fTreeNodes.push_back(&node);
  return &node;
}

TTreeNode* TEntityTree::AddTreeNode_ToRoot() {
  return AddTreeNode(fRootNode.get());
}

/// One that has no place in the tree yet, and is the first of the list when that is empty.
TTreeNode& TEntityTree::MakeNode() {
  if (fTreeNodes.empty()) {
    fFirstNode = std::make_unique<TTreeNode>(this);
    return *fFirstNode;
  }
  TTreeNode* node = new (TakeSlot()) TTreeNode(this);
  node->fIsPooled = true;
  return *node;
}

void* TEntityTree::TakeSlot() {
  if (fFreeSlots == nullptr) return Allocate<TTreeNode>(1);
  TFreeSlot* slot = fFreeSlots;
  fFreeSlots = slot->fNext;
  return slot;
}

void TEntityTree::MakeRoomForChildren(TTreeNode& aParentNode, std::size_t aCount) {
  constexpr std::size_t kLeastRoom = 4;
  const std::span<TTreeNode* const> children = aParentNode.Children();
  const std::size_t room = static_cast<std::size_t>(aParentNode.fRoomForChildren);
  if (children.size() + aCount <= room) return;
  const bool isOwned = aParentNode.fIsPooled || &aParentNode == fRootNode.get() || &aParentNode == fFirstNode.get();
  if (!isOwned) fFreeParents.push_back(&aParentNode);
  const std::size_t newRoom = std::max({kLeastRoom, 2 * room, children.size() + aCount});
  TTreeNode** list = Allocate<TTreeNode*>(newRoom);
  std::ranges::copy(children, list);
  aParentNode.fChildren = list;
  aParentNode.fRoomForChildren = ToIndex(newRoom);
}

// REQUIRES: room for one more child.
void TEntityTree::AttachChild(TTreeNode& aParentNode, TTreeNode& aNode, TIndex aIndex) {
  const TIndex count = aParentNode.fNumChildNodes++;
  const TIndex position = std::clamp(aIndex, 0, count);
  TTreeNode** siblings = aParentNode.fChildren;
  std::copy_backward(siblings + position, siblings + count, siblings + count + 1);
  siblings[position] = &aNode;
  aNode.fParent = &aParentNode;
  aNode.fLevel = aParentNode.fLevel + 1;
  for (TIndex i = position; i <= count; ++i) siblings[i]->frelindex = i;
}

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
  fRootNode->fIsPending = false;
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
  if (fDroppedNode != nullptr && fDroppedAlone == nullptr) {
    fDroppedNode->~TTreeNode();
    fMemories[1 - fMemoryInUse].release();
  }
  fDroppedAlone.reset();
  fDroppedNode = nullptr;
}

TTreeNode* TEntityTree::Search_L1_Coords(const TEntityCoordinate& aCoordinates) const {
  for (TTreeNode* vertex : fRootNode->Children()) {
    if (ValuesSame_DXFTolerance(vertex->fCoordinates.x, aCoordinates.x) &&
        ValuesSame_DXFTolerance(vertex->fCoordinates.y, aCoordinates.y)) {
      return vertex;
    }
  }
  return nullptr;
}

TTreeNode* TEntityTree::Search_L1_Entities(const TDXFEntity& aEntity) const {
  for (TTreeNode* node : fRootNode->Children()) {
    if (GetNodeEntity(*node) == aEntity) return node;
  }
  return nullptr;
}

TTreeNode* TEntityTree::Search_L2_Coordinates(const TEntityCoordinate& aCoordinates, const TTreeNode* aNode) const {
  if (aNode == nullptr) return nullptr;
  for (TTreeNode* child : aNode->Children()) {
    if (child->fCoordinates == aCoordinates) return child;
  }
  return nullptr;
}

void TEntityTree::ResetTravelledFlag(TIndex aIndex) {
  if (TTreeNode* node = GetNodeFromIndex(aIndex); node != nullptr) node->fTravelled = false;
}

TTreeNode* TEntityTree::GetNodeFromIndex(TIndex aIndex) const {
  MakePendingNodes();
  CloseGapsIfAny();
  return IsIndexWithin(aIndex, fTreeNodes.size()) ? fTreeNodes[static_cast<std::size_t>(aIndex)] : nullptr;
}

const TDXFEntity& TEntityTree::GetNodeEntity(const TTreeNode& aNode) const {
  return GetEntity(aNode.fEntityIndex);
}

const TDXFEntity& TEntityTree::GetEntity(TIndex aIndex) const {
  static const TDXFEntity empty;
  const TEntityStorage* storage = fEntityStorage;
  const TDXFEntity* entity = storage == nullptr ? nullptr : storage->GetEntityFromIndex_Pointer(aIndex);
  return entity == nullptr ? empty : *entity;
}

TTreeNode* TEntityTree::Item(TIndex aIndex) const {
  return GetNodeFromIndex(aIndex);
}

TIndex TEntityTree::GetCount() const {
  MakePendingNodes();
  return ToIndex(fTreeNodes.size() - fReleasedNodes);
}

TIndex TEntityTree::Count() const {
  return GetCount();
}

TTreeNode* TEntityTree::RootNode() const {
  return fRootNode.get();
}

const std::string& TEntityTree::Name() const {
  return fTreeName;
}

std::uint64_t TEntityTree::NestingChanges() const {
  return fNestingChanges;
}

TEntityStorage* TEntityTree::pEntityStorage() const {
  return fEntityStorage;
}

void TEntityTree::pEntityStorage(TEntityStorage* apEntityStorage) {
  fEntityStorage = apEntityStorage;
}

// What a node asks of its tree. It stands here, so that the node's own source needs to know of no tree.

TTreeNode::TTreeNode(TEntityTree* aTree) : ftree(aTree) {
  if (ftree == nullptr) return;
  ftree->MakePendingNodes();
  findex = ftree->findex++;
}

TTreeNode::~TTreeNode() {
  if (ftree != nullptr) ftree->ReleaseFreeNode(*this);
}

void TTreeNode::NoteNestingChange() const {
  if (ftree != nullptr) ++ftree->fNestingChanges;
}

void TTreeNode::SettleChildren() const {
  if (fIsPending) ftree->MakePendingNodes();
  TEntityTree::CloseChildGaps(const_cast<TTreeNode&>(*this));
}

TTreeNode::TRegionFields& TTreeNode::RegionFields() {
  if (fRegionFields == nullptr) {
    auto fields = std::make_unique<TRegionFields>();
    if (fIsPooled) ftree->fRegionNodes.push_back(this);
    fRegionFields = std::move(fields);
  }
  return *fRegionFields;
}

bool TTreeNode::Equal(const TTreeNode* aTreeNode) const {
  return aTreeNode != nullptr && NameOf(ftree) == NameOf(aTreeNode->ftree) && findex == aTreeNode->findex &&
         frelindex == aTreeNode->frelindex && fLevel == aTreeNode->fLevel && fEntityIndex == aTreeNode->fEntityIndex;
}

}  // namespace GeometryEngine

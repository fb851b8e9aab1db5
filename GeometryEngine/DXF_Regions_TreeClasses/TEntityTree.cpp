#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

#include <algorithm>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingLeaves.h"
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

void TEntityTree::PendingLeaves(std::unique_ptr<detail::TPendingLeaves> aLeaves) {
  fPendingLeaves = std::move(aLeaves);
  for (TTreeNode* node : fRootNode->Children()) {
    node->fIsPending = true;
    node->findex = findex++;
    findex += ToIndex(fPendingLeaves->Of(node->frelindex).size());
  }
}

const detail::TPendingLeaves* TEntityTree::PendingLeavesOf(const TTreeNode& aNode) {
  return aNode.ftree != nullptr && aNode.fIsPending ? aNode.ftree->fPendingLeaves.get() : nullptr;
}

// Nothing has changed when memory runs out: all of it is asked for at first.
void TEntityTree::AddPendingLeaves() {
  const std::size_t count = fPendingLeaves->fEntityIndexes.size();
  TTreeNode** list = Allocate<TTreeNode*>(count);
  TTreeNode* slot = Allocate<TTreeNode>(count);
  std::vector<TTreeNode*> nodes;
  nodes.reserve(fTreeNodes.size() + count);
  for (TTreeNode* parent : fTreeNodes) {
    nodes.push_back(parent);
    if (!parent->fIsPending) continue;
    const std::span<const TIndex> entities = fPendingLeaves->Of(parent->frelindex);
    parent->fIsPending = false;
    parent->fChildren = list;
    parent->fRoomForChildren = ToIndex(entities.size());
    list += entities.size();
    for (const TIndex entity : entities) {
      TTreeNode* node = new (slot++) TTreeNode(this, nodes.back()->findex + 1);
      node->fIsPooled = true;
      node->fParent = parent;
      node->fLevel = parent->fLevel + 1;
      node->fEntityIndex = entity;
      node->frelindex = parent->fNumChildNodes;
      parent->fChildren[parent->fNumChildNodes++] = node;
      nodes.push_back(node);
    }
  }
  fTreeNodes = std::move(nodes);
  fPendingLeaves.reset();
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

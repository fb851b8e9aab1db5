#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

#include <algorithm>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeRecord.h"

namespace GeometryEngine {

namespace {

constexpr std::int32_t kRegionIndex_Root = -2;

std::string_view NameOf(const TEntityTree* aTree) {
  return aTree == nullptr ? std::string_view{} : std::string_view{aTree->Name()};
}

std::ptrdiff_t ClampedPosition(TIndex aIndex, std::size_t aCount) {
  return std::clamp<std::ptrdiff_t>(aIndex, 0, static_cast<std::ptrdiff_t>(aCount));
}

// So that the next element cannot fail: it grows as the vector would by itself.
template <typename T>
void MakeRoomForOne(std::vector<T>& aElements) {
  if (aElements.size() == aElements.capacity()) aElements.reserve(2 * aElements.size() + 1);
}

// The node that a walk to the leaves takes next; it leaves its parent's list.
TTreeNode* TakeLast(std::vector<TTreeNode*>& aChildren) {
  TTreeNode* last = aChildren.back();
  aChildren.pop_back();
  return last;
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
  fOwnedNodes.clear();
  fRootNode.reset();
}

TTreeNode* TEntityTree::AddTreeNode(TTreeNode* aParentNode) {
  return aParentNode == nullptr ? nullptr : AddTreeNode_AtIndex(aParentNode, aParentNode->fNumChildNodes);
}

TTreeNode* TEntityTree::AddTreeNode_AtIndex(TTreeNode* aParentNode, TIndex aIndex) {
  if (aParentNode == nullptr || aParentNode->ftree != this) return nullptr;
  auto owned = std::make_unique<TTreeNode>(this);
  TTreeNode* node = owned.get();
  MakeRoomForOne(fOwnedNodes);
  MakeRoomForOne(fTreeNodes);
  AttachChild(*aParentNode, *node, aIndex);
  fOwnedNodes.push_back(std::move(owned));
  fTreeNodes.push_back(node);
  return node;
}

TTreeNode* TEntityTree::AddTreeNode_ToRoot() {
  return AddTreeNode(fRootNode.get());
}

void TEntityTree::AddNodes(std::span<const detail::TNodeRecord> aRecords) {
  const std::size_t first = fTreeNodes.size();
  const auto parentOf = [&](const detail::TNodeRecord& record) {
    return record.fParent == kNotFound ? fRootNode.get() : fTreeNodes[first + static_cast<std::size_t>(record.fParent)];
  };
  for (const detail::TNodeRecord& record : aRecords) {
    TTreeNode* node = fOwnedNodes.emplace_back(std::make_unique<TTreeNode>(this)).get();
    TTreeNode* parent = parentOf(record);
    node->fParent = parent;
    node->fLevel = parent->fLevel + 1;
    node->frelindex = record.fPlace;
    node->fEntityIndex = record.fEntityIndex;
    node->fCoordinates = record.fCoordinates;
    ++parent->fNumChildNodes;
    fTreeNodes.push_back(node);
  }
  fRootNode->fChildren.resize(static_cast<std::size_t>(fRootNode->fNumChildNodes));
  for (std::size_t i = 0; i < aRecords.size(); ++i) {
    TTreeNode* node = fTreeNodes[first + i];
    node->fChildren.resize(static_cast<std::size_t>(node->fNumChildNodes));
    node->fParent->fChildren[static_cast<std::size_t>(node->frelindex)] = node;
  }
}

void TEntityTree::AttachChild(TTreeNode& aParentNode, TTreeNode& aNode, TIndex aIndex) {
  std::vector<TTreeNode*>& siblings = aParentNode.fChildren;
  const std::ptrdiff_t position = ClampedPosition(aIndex, siblings.size());
  siblings.insert(siblings.begin() + position, &aNode);
  aParentNode.fNumChildNodes = ToIndex(siblings.size());
  aNode.fParent = &aParentNode;
  aNode.fLevel = aParentNode.fLevel + 1;
  for (std::size_t i = static_cast<std::size_t>(position); i < siblings.size(); ++i) {
    siblings[i]->frelindex = ToIndex(i);
  }
}

void TEntityTree::RemoveTreeNode(TTreeNode* aNode, bool aRemoveChildren) {
  ++fNestingChanges;
  const auto entry = std::find(fTreeNodes.begin(), fTreeNodes.end(), aNode);
  if (entry == fTreeNodes.end() || aNode == fRootNode.get()) return;
  TTreeNode& parent = *aNode->fParent;
  if (!aRemoveChildren) parent.fChildren.reserve(parent.fChildren.size() + aNode->fChildren.size());
  std::erase(parent.fChildren, aNode);
  parent.fNumChildNodes = ToIndex(parent.fChildren.size());
  if (!aRemoveChildren) HandChildrenTo(parent, *aNode);
  ReleaseSubtree(*aNode);
}

void TEntityTree::HandChildrenTo(TTreeNode& aParentNode, TTreeNode& aNode) {
  // Taken out of the old list first: what stays in it is destroyed together with the node.
  const std::vector<TTreeNode*> children = std::exchange(aNode.fChildren, {});
  aNode.fNumChildNodes = 0;
  for (TTreeNode* child : children) AttachChild(aParentNode, *child, aParentNode.fNumChildNodes);
}

void TEntityTree::ReleaseSubtree(TTreeNode& aNode) {
  ++fNestingChanges;
  if (fRemoveAll) return;
  // Leaf by leaf and without memory of its own, since a destructor gets here when memory has run out.
  TIndex released = 0;
  for (TTreeNode* node = &aNode; node != nullptr;) {
    if (!node->fChildren.empty()) {
      node = TakeLast(node->fChildren);
      continue;
    }
    ++released;
    node->ftree = nullptr;
    node = node == &aNode ? nullptr : node->fParent;
  }
  // KEPT: every node below the released one is counted off twice, once for itself and once by its parent, so that
  // absolute indexes given out afterwards may repeat earlier ones; index arrays don't survive a removal anyway.
  findex -= 2 * released - 1;
  std::erase_if(fTreeNodes, [](const TTreeNode* node) { return node->ftree == nullptr; });
  std::erase_if(fOwnedNodes, [](const std::unique_ptr<TTreeNode>& node) { return node->ftree == nullptr; });
}

void TEntityTree::Clear() {
  ++fNestingChanges;
  fRemoveAll = true;
  findex = 0;
  EmptyChildLists();
  std::unique_ptr<TTreeNode> dropped = TakeDroppedNode();
  fOwnedNodes.clear();
  fTreeNodes.clear();
  if (dropped != nullptr) fOwnedNodes.push_back(std::move(dropped));
  fRemoveAll = false;
}

void TEntityTree::EmptyChildLists() {
  for (const TTreeNode* node : fTreeNodes) {
    if (TTreeNode* parent = node->fParent; parent != nullptr) {
      parent->fChildren.clear();
      parent->fNumChildNodes = 0;
    }
  }
}

std::unique_ptr<TTreeNode> TEntityTree::TakeDroppedNode() {
  // KEPT: position 0 is passed over, because in a fresh tree the root stands there. Once a first clear has taken the
  // root off the list (which makes absolute indexes and positions agree), it's an ordinary node that is passed over:
  // it leaves the lists alive, and a host that still refers to it may read it until the next clear.
  if (fTreeNodes.empty() || fTreeNodes.front() == fRootNode.get()) return nullptr;
  const auto entry = std::find_if(fOwnedNodes.begin(), fOwnedNodes.end(),
                                  [this](const auto& node) { return node.get() == fTreeNodes.front(); });
  if ((*entry)->fParent != fRootNode.get()) (*entry)->fParent = nullptr;
  return std::move(*entry);
}

TTreeNode* TEntityTree::Search_L1_Coords(const TEntityCoordinate& aCoordinates) const {
  for (TTreeNode* vertex : fRootNode->fChildren) {
    if (ValuesSame_DXFTolerance(vertex->fCoordinates.x, aCoordinates.x) &&
        ValuesSame_DXFTolerance(vertex->fCoordinates.y, aCoordinates.y)) {
      return vertex;
    }
  }
  return nullptr;
}

TTreeNode* TEntityTree::Search_L1_Entities(const TDXFEntity& aEntity) const {
  for (TTreeNode* node : fRootNode->fChildren) {
    if (GetNodeEntity(*node) == aEntity) return node;
  }
  return nullptr;
}

TTreeNode* TEntityTree::Search_L2_Coordinates(const TEntityCoordinate& aCoordinates, const TTreeNode* aNode) const {
  if (aNode == nullptr) return nullptr;
  for (TTreeNode* child : aNode->fChildren) {
    if (child->fCoordinates == aCoordinates) return child;
  }
  return nullptr;
}

void TEntityTree::ResetTravelledFlag(TIndex aIndex) {
  if (TTreeNode* node = GetNodeFromIndex(aIndex); node != nullptr) node->fTravelled = false;
}

TTreeNode* TEntityTree::GetNodeFromIndex(TIndex aIndex) const {
  return IsIndexWithin(aIndex, fTreeNodes.size()) ? fTreeNodes[static_cast<std::size_t>(aIndex)] : nullptr;
}

const TDXFEntity& TEntityTree::GetNodeEntity(const TTreeNode& aNode) const {
  static const TDXFEntity empty;
  const TEntityStorage* storage = fEntityStorage;
  const TDXFEntity* entity = storage == nullptr ? nullptr : storage->GetEntityFromIndex_Pointer(aNode.fEntityIndex);
  return entity == nullptr ? empty : *entity;
}

TTreeNode* TEntityTree::Item(TIndex aIndex) const {
  return GetNodeFromIndex(aIndex);
}

TIndex TEntityTree::GetCount() const {
  return ToIndex(fTreeNodes.size());
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
  if (ftree != nullptr) findex = ftree->findex++;
}

TTreeNode::~TTreeNode() {
  if (ftree != nullptr) ftree->ReleaseSubtree(*this);
}

void TTreeNode::NoteNestingChange() const {
  if (ftree != nullptr) ++ftree->fNestingChanges;
}

bool TTreeNode::Equal(const TTreeNode* aTreeNode) const {
  return aTreeNode != nullptr && NameOf(ftree) == NameOf(aTreeNode->ftree) && findex == aTreeNode->findex &&
         frelindex == aTreeNode->frelindex && fLevel == aTreeNode->fLevel && fEntityIndex == aTreeNode->fEntityIndex;
}

}  // namespace GeometryEngine

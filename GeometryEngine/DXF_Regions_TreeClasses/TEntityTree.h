#pragma once

// The tree in which region detection keeps what it finds out: interceptions, the vertex graph, traced regions. It lives
// as long as the driver (TEntityBaseClass). What a host keeps is the geometry tree, TTree_Geometry.

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

namespace detail {
class TNodeBatch;
class TPendingNodes;
class TRegionEntities;
struct TPendingLeaves;
class TVertexGraph;
}  // namespace detail

/// A root with two levels below it; nodes refer to entities by their index in a storage. The driver has four:
///
///   name                                           level 1                        level 2
///   "Coordinates_SlotPole", "Coordinates_Symmetry" a vertex: Coordinates          a half-edge: EntityIndex of a piece
///                                                                                 that ends at the vertex, Travelled
///   "Intercepts"                                   a drawn entity: EntityIndex    a point on it: Coordinates, in order
///                                                                                 along the entity
///   "Regions"                                      a traced loop or chain:        an entity of it, in the order of
///                                                  Coordinates of its start,      travel: EntityIndex of a piece
///                                                  GaussArea, RegionCentroid,
///                                                  TravelDirection, SubRegions
///
/// A piece stands under both of its vertices, and so is two half-edges.
///
/// Besides, every node stands in one flat list in the order in which it was added, with the root in front; an index of
/// the tree is a position in this list. The first Clear takes the root off the list for good. Either way a node's
/// absolute index equals its position, so that lists of absolute indexes (TRegionWalk) can be resolved by
/// GetNodeFromIndex; removing a node ends that.
///
/// A tree that the driver has filled may make its nodes when somebody first looks at them, in the tree or below its
/// root. When memory runs out then, that look throws, and the next one tries again.
///
/// OWNS: its nodes, from AddTreeNode on until they are removed, cleared or go with the tree; not the storage.
/// COST: each search compares node after node; a node added in the middle moves the siblings behind it.
class GEOMETRYENGINE_API TEntityTree {
 public:
  /// A tree with its root alone and without a storage. The root has level 0 and the region index -2.
  explicit TEntityTree(std::string_view aName);
  ~TEntityTree();
  TEntityTree(const TEntityTree&) = delete;
  TEntityTree& operator=(const TEntityTree&) = delete;

  // Nodes -------------------------------------------------------------------------------------------------------------

  /// A new last child of the parent. DEGENERATE: nil when the parent is nil or of another tree; nothing changes then.
  TTreeNode* AddTreeNode(TTreeNode* aParentNode);
  /// A new child at a place among the parent's children; the later ones move up. In the flat list it stands last all
  /// the same. DEGENERATE: as AddTreeNode; a place outside is taken as the nearer end.
  TTreeNode* AddTreeNode_AtIndex(TTreeNode* aParentNode, TIndex aIndex);
  /// A new last node of level 1.
  TTreeNode* AddTreeNode_ToRoot();
  /// Destroys the node. Its children go with it, all the way down, or become the last children of its parent; only they
  /// themselves then get a new level, not what lies below them. DEGENERATE: nothing happens for the root, for nil and
  /// for a node that is not in the flat list.
  /// COST: constant, with what lies below the node and what it hands over; lists close their gaps when they are next
  /// read, in time proportional to their length.
  void RemoveTreeNode(TTreeNode* aNode, bool aRemoveChildren);
  /// Destroys every node but the root and starts absolute indexes from 0 again.
  /// From the second Clear on the first node of the list is not destroyed: it drops out of the tree, without children,
  /// and lives on until the next Clear or until the tree goes. Every other reference to a node ends here.
  void Clear();

  // Searches ----------------------------------------------------------------------------------------------------------

  /// The first node of level 1 that lies at the point within the linear tolerance, in x and in y; nil when none does.
  TTreeNode* Search_L1_Coords(const TEntityCoordinate& aCoordinates) const;
  /// The first node of level 1 whose entity equals this one (a line equals its reverse, tags don't count); nil when
  /// none does. DEGENERATE: nil without a storage, and for an entity that is neither line nor arc.
  TTreeNode* Search_L1_Entities(const TDXFEntity& aEntity) const;
  /// The first child of the node that lies at the point within the linear tolerance; nil when none does.
  TTreeNode* Search_L2_Coordinates(const TEntityCoordinate& aCoordinates, const TTreeNode* aNode) const;

  // The flat list -----------------------------------------------------------------------------------------------------

  /// Frees the half-edge at a position for tracing. DEGENERATE: nothing happens outside the list.
  void ResetTravelledFlag(TIndex aIndex);
  /// The node at a position; nil outside.
  TTreeNode* GetNodeFromIndex(TIndex aIndex) const;
  TTreeNode* Item(TIndex aIndex) const;
  /// Length of the flat list: with the root before the first Clear, without it afterwards.
  TIndex GetCount() const;
  TIndex Count() const;

  // The rest ----------------------------------------------------------------------------------------------------------

  /// The entity that a node refers to, in the tree's storage; it moves when the storage changes.
  /// DEGENERATE: an empty entity without a storage and for an index outside of it.
  const TDXFEntity& GetNodeEntity(const TTreeNode& aNode) const;
  /// Grows whenever nodes go, or lists of sub-regions change, for whoever keeps what it has found in them.
  std::uint64_t NestingChanges() const;
  /// Never nil.
  TTreeNode* RootNode() const;
  const std::string& Name() const;
  /// The storage whose entities the nodes' indexes count; nil at first.
  TEntityStorage* pEntityStorage() const;
  void pEntityStorage(TEntityStorage* apEntityStorage);

 private:
  friend class TEntityBaseClass;
  friend class TTreeNode;
  friend class detail::TNodeBatch;
  friend class detail::TRegionEntities;
  friend class detail::TVertexGraph;
  struct TFreeSlot {
    TFreeSlot* fNext;
  };

  /// Leaves a tree that has just been cleared to make these nodes when somebody first looks at them.
  void PendingNodes(std::unique_ptr<detail::TPendingNodes> aNodes);
  /// Nil when all nodes are there.
  detail::TPendingNodes* PendingNodes() const { return fPendingNodes.get(); }
  /// Called before anything that looks at the nodes: for whoever looks, they have been there all along.
  void MakePendingNodes() const {
    if (fPendingNodes != nullptr) const_cast<TEntityTree*>(this)->AddPendingNodes();
    if (fPendingLeaves != nullptr) const_cast<TEntityTree*>(this)->AddPendingLeaves();
  }
  void AddPendingNodes();
  /// Leaves nodes of level 1, the only ones there are, to get their children when somebody first looks at them.
  void PendingLeaves(std::unique_ptr<detail::TPendingLeaves> aLeaves);
  /// What the children of this node are among; nil when they are there.
  static const detail::TPendingLeaves* PendingLeavesOf(const TTreeNode& aNode);
  void AddPendingLeaves();
  const TDXFEntity& GetEntity(TIndex aIndex) const;
  TTreeNode& MakeNode();
  void* TakeSlot();
  void MakeRoomForChildren(TTreeNode& aParentNode, std::size_t aCount);
  void AttachChild(TTreeNode& aParentNode, TTreeNode& aNode, TIndex aIndex);
  void AttachChildren(TTreeNode& aParentNode, std::span<TTreeNode* const> aNodes);
  bool IsListed(const TTreeNode& aNode) const;
  void ReleaseSubtree(TTreeNode& aNode);
  void ReleaseFreeNode(TTreeNode& aNode);
  static void CloseChildGaps(TTreeNode& aParentNode);
  void CloseGaps();
  void CloseGapsIfAny() const {
    if (fReleasedNodes > 0) const_cast<TEntityTree*>(this)->CloseGaps();
  }
  void DestroyNode(TTreeNode& aNode);
  void ReleaseAllNodes();
  void EmptyChildLists();
  void ReleaseRegionFields();
  void DropFirstNode();
  void ReleaseDroppedNode();
  template <class T>
  T* Allocate(std::size_t aCount) {
    return static_cast<T*>(fMemories[fMemoryInUse].allocate(aCount * sizeof(T), alignof(T)));
  }

  std::unique_ptr<TTreeNode> fRootNode;
  std::vector<TTreeNode*> fTreeNodes;  ///< the flat list, and between its nodes those released since it was last read
  std::size_t fReleasedNodes = 0;      ///< in the list, of no tree any longer, and destroyed once its gaps are closed
  std::uint64_t fNestingChanges = 0;
  TIndex findex = 0;        ///< the absolute index of the next node
  bool fRemoveAll = false;  ///< true while all nodes go; they then leave the tree's lists alone
  std::string fTreeName;
  TEntityStorage* fEntityStorage = nullptr;
  std::unique_ptr<detail::TPendingNodes> fPendingNodes;
  std::unique_ptr<detail::TPendingLeaves> fPendingLeaves;

  /// Memory of the nodes and of their lists of children. The other one is empty, or holds the dropped node.
  std::array<std::pmr::monotonic_buffer_resource, 2> fMemories;
  std::size_t fMemoryInUse = 0;
  TFreeSlot* fFreeSlots = nullptr;           ///< of removed nodes
  std::unique_ptr<TTreeNode> fFirstNode;     ///< the first node after a clear, alone since the next clear may drop it
  TTreeNode* fDroppedNode = nullptr;         ///< the one that the last clear has dropped
  std::unique_ptr<TTreeNode> fDroppedAlone;  ///< the same, if it stood alone
  std::vector<TTreeNode*> fRegionNodes;      ///< pooled nodes that have region fields
  std::vector<TTreeNode*> fFreeParents;      ///< nodes that stand free and have children
};

}  // namespace GeometryEngine

#pragma once

// A node of a detection tree. Which fields mean something depends on the tree and on the node's level in it: see
// TEntityTree.h. Nodes of the geometry tree, which outlives the detection, are TTreeNode_Geometry.

#include <cstdint>
#include <memory>
#include <span>

#include "GeometryEngine/DXF_Entity_Types/EntityEnumerations.h"
#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/IntegerArrays.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

class TEntityTree;

namespace detail {
class TNodeBatch;
}

/// A node of a detection tree: its place there, an entity by index or a point, and what tracing found out about it.
///
/// Nodes are made by TEntityTree::AddTreeNode and its siblings and belong to the tree. A node made by hand stands free:
/// it takes an absolute index of its tree and may be given children, but is in no list of the tree.
///
/// OWNS: nothing; even its children belong to the tree.
/// REQUIRES: a node that stands free goes before its tree does.
class GEOMETRYENGINE_API TTreeNode {
 public:
  /// A node without parent and children. DEGENERATE: without a tree its absolute index is 0.
  explicit TTreeNode(TEntityTree* aTree);
  /// Takes itself and everything below it out of the tree, unless the tree is just clearing itself.
  ~TTreeNode();
  TTreeNode(const TTreeNode&) = delete;
  TTreeNode& operator=(const TTreeNode&) = delete;

  // Place in the tree -------------------------------------------------------------------------------------------------

  TEntityTree* tree() const;
  /// Nil for the root.
  TTreeNode* Parent() const;
  /// The tree's running number when the node was made. Equal to its position in the tree
  /// (TEntityTree::GetNodeFromIndex) as long as no node has been removed.
  TIndex AbsoluteIndex() const;
  /// The place among the parent's children. Removing a sibling leaves it as it is.
  TIndex RelativeIndex() const;
  /// 0 for the root, 1 and 2 for the levels below it.
  std::int32_t Level() const;
  /// Number of children.
  TIndex GetCount() const;
  TIndex Count() const;
  /// The children in order. Valid until the node gets or loses one.
  std::span<TTreeNode* const> Children() const;
  /// The child at `aIndex`; nil outside.
  TTreeNode* GetNode(TIndex aIndex) const;

  // Contents ----------------------------------------------------------------------------------------------------------

  /// Index of an entity in the tree's storage; kNotFound at first.
  TIndex EntityIndex() const;
  void EntityIndex(TIndex aEntityIndex);
  const TEntityCoordinate& Coordinates() const;
  void Coordinates(const TEntityCoordinate& aCoordinates);
  double coordinate_X() const;
  void coordinate_X(double aX);
  double coordinate_Y() const;
  void coordinate_Y(double aY);
  /// -2 on a root, -1 on a traced region, 0 elsewhere unless a host sets it.
  std::int32_t RegionIndex() const;
  void RegionIndex(std::int32_t aRegionIndex);
  /// Whether a walk has left the vertex by this half-edge.
  bool Travelled() const;
  void Travelled(bool aTravelled);
  /// Signed area of a traced loop, positive when it runs anticlockwise. UNITS: drawing units squared.
  double GaussArea() const;
  void GaussArea(double aGaussArea);
  /// Centroid of a traced loop. DEGENERATE: for an open chain the bare sum of its entities' terms, not divided by six
  /// times the area.
  const TEntityCoordinate& RegionCentroid() const;
  void RegionCentroid(const TEntityCoordinate& aCentroid);
  TTravelDirection TravelDirection() const;
  void TravelDirection(TTravelDirection aTravelDirection);

  // Sub-regions: indexes of the regions that lie inside this one ------------------------------------------------------

  const TIntegerArray& SubRegions() const;
  void SubRegions(TIntegerArray aSubRegions);
  TIndex NumberSubRegions() const;
  TIndex NumSubRegions() const;
  /// kNotFound outside the list.
  std::int32_t GetSubRegion(TIndex aIndex) const;
  /// Appends without looking for the index in the list.
  void AddSubRegion(std::int32_t aRegionIndex);
  /// Removes the first entry equal to `aRegionIndex`.
  void RemoveSubRegion(std::int32_t aRegionIndex);
  bool CheckSubRegionIdentified(std::int32_t aRegionIndex) const;
  /// Sets the region index to -1 and empties the list of sub-regions.
  void ResetRegionIdentifier();

  /// True when trees of the same name, both indexes, the level and the entity index agree. Coordinates and what tracing
  /// left in the nodes are not compared. DEGENERATE: false for nil.
  bool Equal(const TTreeNode* aTreeNode) const;

 private:
  friend class TEntityTree;
  friend class detail::TNodeBatch;
  /// What only traced regions have; a drawing has many more nodes of other kinds.
  struct TRegionFields {
    double fGaussArea = 0;
    TEntityCoordinate fCentroid;
    TTravelDirection fTravelDirection = Travel_AntiClockwise;
    TIntegerArray fSubRegionsArray;
  };
  TTreeNode(TEntityTree* aTree, TIndex aIndex) : ftree(aTree), findex(aIndex) {}
  static const TRegionFields& NoRegionFields();
  const TRegionFields& RegionFields() const;
  TRegionFields& RegionFields();
  void NoteNestingChange() const;
  /// Makes the children that are pending, and closes the gaps that removed ones have left.
  void SettleChildren() const;

  TEntityTree* ftree;
  TTreeNode* fParent = nullptr;
  TTreeNode** fChildren = nullptr;  ///< room that the tree owns
  std::unique_ptr<TRegionFields> fRegionFields;
  TEntityCoordinate fCoordinates;
  TIndex findex = 0;
  TIndex frelindex = 0;
  std::int32_t fLevel = 0;
  TIndex fNumChildNodes = 0;
  TIndex fRoomForChildren = 0;
  TIndex fEntityIndex = kNotFound;
  std::int32_t fRegionIndex = 0;
  bool fTravelled = false;
  bool fIsPending = false;  ///< true while the nodes below it are still to be made
  bool fHasGaps = false;    ///< true while nodes that have been removed still stand among the children
  bool fIsPooled = false;   ///< true for a node in the memory of its tree, which doesn't destroy nodes one by one
};

}  // namespace GeometryEngine

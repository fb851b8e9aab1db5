#pragma once

// The driver of region detection: from the entities of a drawing, in any order, to closed regions and their nesting.
// What it finds is handed over to nodes of a geometry tree (TTreeNode_Geometry), which is what a host keeps.

#include <cstdint>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"

namespace GeometryEngine {

/// Finds the regions of one drawing. A host calls, in this order:
///
///   TEntityBaseClass driver;
///   driver.DetermineInterceptions(&drawing);
///   driver.DetermineRegions(driver.CoordinateTree(), 1);
///   driver.IdentifySubRegions(driver.CoordinateTree());
///   driver.RemoveDuplicatedSubRegions();
///   for (TIndex i = 0; i < driver.RegionTree().RootNode()->Count(); ++i) driver.AddRegionEntities(nodes[i], i);
///
/// Before the nodes compute their outputs (TTreeNode_Geometry::UpdateGeometry_Outputs) the host attaches each one to
/// the node of the region that lists it among its SubRegions: a label keeps clear of the children that a node has then.
/// examples/01_detect_regions.cpp is the whole of it.
///
/// The index of a region is its place among the children of the region tree's root.
///
/// Each pass overwrites what the same pass left before. Tracing leaves its marks in the vertex graph: what has been
/// travelled once is not traced again, whether the loop was kept or not. A host that wants closed regions and open
/// chains of one drawing, or regions of another type, calls DetermineInterceptions again in between.
///
/// When an allocation fails, the exception comes through: what a pass was to fill is empty then (the intercept tree and
/// the vertex graph, or the region tree), nesting and hand-over leave everything as it was. Each pass computes in the
/// default floating-point environment, whatever the host's (TFloatEnvironment).
///
/// OWNS: its trees and the pieces; not the drawing, which has to live as long as the intercept tree is used.
/// Not copyable. One driver is for one thread at a time; two drivers don't know of each other.
class GEOMETRYENGINE_API TEntityBaseClass {
 public:
  TEntityBaseClass();
  ~TEntityBaseClass();
  TEntityBaseClass(const TEntityBaseClass&) = delete;
  TEntityBaseClass& operator=(const TEntityBaseClass&) = delete;

  // The trees (see TEntityTree for their levels) ----------------------------------------------------------------------

  /// The vertex graph of the drawing's pieces.
  TEntityTree& CoordinateTree();
  const TEntityTree& CoordinateTree() const;
  /// A second vertex graph, which the host fills by AddEntityToCoordinateTree once it has set a storage of its own.
  TEntityTree& CoordinateTree_Duplicated();
  const TEntityTree& CoordinateTree_Duplicated() const;
  /// The points at which each drawn entity is met.
  TEntityTree& InterceptTree();
  const TEntityTree& InterceptTree() const;
  /// The regions, or the open chains, that the last tracing found.
  TEntityTree& RegionTree();
  const TEntityTree& RegionTree() const;

  // From the drawing to the vertex graph ------------------------------------------------------------------------------

  /// Finds every interception in the drawing by a sweep from left to right, and rebuilds the vertex graph from the
  /// pieces in between. The drawing is sorted in place, by left-most x; an entity's index is its place from then on.
  /// Equal entities, and pieces that lie on each other, are kept once.
  /// An entity that the sweep has not left behind when it ends loses the ends that meet nothing. A host that wants open
  /// ends too adds some short line to the right of everything else.
  /// DEGENERATE: nil empties the vertex graph and the intercept tree.
  /// COST: n log n for the entities and their points, besides the pairs of entities that meet in x and in y.
  void DetermineInterceptions(TEntityStorage* apEntityStorage);
  /// The second half of DetermineInterceptions: splits every entity of the intercept tree at its points and adds the
  /// pieces to the vertex graph. Vertices that stand there already remain, with the half-edges they have; pieces snap
  /// to them. COST: n log n for the pieces when the graph was cleared before, else a search among all of them for each.
  void CreateCoordinateTreeFromIntercepts();
  /// Appends a line or an arc to the tree's storage and its two half-edges to the vertices at its ends; the ends snap
  /// to vertices that stand there already. DEGENERATE: nothing happens when the tree has no storage, when an equal
  /// entity is in it, and for any other kind of entity.
  void AddEntityToCoordinateTree(TEntityTree& aTree, const TDXFEntity& aEntity);
  /// Adds a half-edge to the vertex at the point, which is made when there is none; answers the vertex's coordinates.
  TEntityCoordinate AddCoordinateNode(TEntityTree& aTree, const TEntityCoordinate& aCoordinate, TIndex aEntityIndex);

  // From the vertex graph to regions ----------------------------------------------------------------------------------

  /// Traces every closed loop of a vertex graph into the region tree. `aRegionType`: 0 keeps all of them, 1 those of
  /// non-negative area (the bounded faces), 2 those of negative area (the outlines of connected groups); any other
  /// value keeps none. Dangling pieces and bridges bound no region and are in no loop.
  /// COST: proportional to the pieces, but for kept loops that bridges join to others: each of them is walked with all
  /// that lies beyond its bridges.
  /// LIMIT: the same goes for clockwise loops so small that the rounding of those steps might hide their sense, until
  /// they have stepped back 1,000,000 times beyond bridges; from then on their own pieces tell which sense they have.
  void DetermineRegions(TEntityTree& aTree, std::int32_t aRegionType);
  /// Traces an open chain from each vertex that a single piece reaches into the region tree; a chain met from both of
  /// its ends is listed once. A chain that runs into a closed loop goes on round it.
  void DetectOrphanEntities(TEntityTree& aTree);
  /// Adds one region to the region tree: the entities of these nodes of the coordinate tree, by absolute index, and
  /// what the walk has summed up. DEGENERATE: nothing without indexes; an index that the tree doesn't hold stands for
  /// no entity.
  void AddRegionCoordinates(const TEntityTree& aCoordinateTree, std::span<const std::int32_t> aNodeIndexes,
                            const TEntityCoordinate& aStart, const TEntityCoordinate& aCentroid, double aArea);

  // Nesting -----------------------------------------------------------------------------------------------------------

  /// Lists in each region every other one that lies inside it (RegionContains_SubRegion). `aTree` is the vertex graph
  /// in which the regions were traced. REQUIRES: once only after each tracing, else everything is listed twice.
  void IdentifySubRegions(const TEntityTree& aTree);
  /// Leaves each region listed in its closest container only, the one of least signed area.
  /// RANGE: containers below 1e12 drawing units squared; clockwise regions count as the smallest.
  void RemoveDuplicatedSubRegions();
  /// True when some region lists this one. COST: a look at all lists after they have changed, else constant.
  bool GetIsRegionSubRegion(std::int32_t aRegionIndex) const;

  // Hand-over ---------------------------------------------------------------------------------------------------------

  /// Puts copies of a region's entities into a node's outline, in the place of what was there, and sets the outline's
  /// start coordinate. A node for a closed region gets the centroid and the area as well, and its outline runs
  /// anticlockwise even if the loop was traced clockwise; any other node gets the entities as traced and keeps its
  /// centroid and area. DEGENERATE: nothing happens for a nil node or an index that is no region's.
  void AddRegionEntities(TTreeNode_Geometry* aRegion, TIndex aRegionIndex);

 private:
  static TEntityTree CreateCoordinateTree();
  static TEntityTree CreateCoordinateTree_Duplicated();
  static TEntityTree CreateInterceptTree();
  static TEntityTree CreateRegionTree();
  void BuildCoordinateTree();
  void AddPiecesToCoordinateTree();

  // Which regions are listed by some region, as of a count of the region tree's changes.
  struct TListedRegions {
    std::uint64_t fNestingChanges = 0;
    std::vector<bool> fIsListed;  // by index; for as many as there are regions
  };
  const std::vector<bool>& ListedRegions() const;

  // The storage stands first: trees refer to it, so it is destroyed last.
  TEntityStorage fEntityStorage_Regions;
  TEntityTree fCoordinateTree;
  TEntityTree fCoordinateTree_Duplicated;
  TEntityTree fInterceptTree;
  TEntityTree fRegionTree;
  mutable TListedRegions fListedRegions;
};

}  // namespace GeometryEngine

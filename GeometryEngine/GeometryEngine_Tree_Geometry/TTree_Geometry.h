#pragma once

// The regions of a drawing as a tree: extents, radii, one list of all their entities, and mirroring as a whole.
// A single region is TTreeNode_Geometry; how regions are found in a drawing is TEntityBaseClass.

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"
#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"

namespace GeometryEngine {

/// A tree of TTreeNode_Geometry; CreateTreeNode makes such nodes.
///
/// The root at index 0 is there from the start. It stands for the drawing, not for a region of it: the box, the mirror
/// and the entity lists pass over it. Only the two radius queries take it in.
/// A set of region types selects by TTreeNode_CoreProperties::IsOfType_WithinSet; the empty set selects nothing.
///
/// OWNS: its nodes, as every tree does.
///
///   TTree_Geometry tree;
///   auto node = tree.CreateTreeNode();
///   auto* region = TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node));
///   driver.AddRegionEntities(region, 0);
///   region->UpdateGeometry_Outputs();
///   tree.UpdateMinMaxValues(TGeometryRegionTypesSet::All());
class GEOMETRYENGINE_API TTree_Geometry : public TTree_CoreProperties {
 public:
  TTree_Geometry();
  ~TTree_Geometry() override;

  /// A marker of the host's: the geometry came from a script. The library only keeps it; false at first.
  bool GeometryFromScripting() const;
  void GeometryFromScripting(bool aFromScripting);

  // Nodes. Nil where there is none, and for a node of another class that a host entered.
  TTreeNode_Geometry* GetRootNode() const;
  TTreeNode_Geometry* RootNode() const;
  TTreeNode_Geometry* GetNodeFromIndex(TIndex aIndex) const;
  TTreeNode_Geometry* Item(TIndex aIndex) const;

  // Radii about the machine axis. They look at the ends of the outlines' entities only, not at the bulge of an arc.
  /// The least radius among the selected regions, the root included; 1e9 when none is selected.
  /// DEGENERATE: a selected region without entities counts with radius 0.
  double GetRadius_Minimum(const TGeometryRegionTypesSet& aRegionTypes) const;
  /// The greatest radius among the selected regions, the root included; -1e9 when none is selected.
  double GetRadius_Maximum(const TGeometryRegionTypesSet& aRegionTypes) const;

  // The box of the regions that the last UpdateMinMaxValues selected; 0 throughout before the first.
  /// Sets the box from the outlines of the selected regions, arcs with their bulges, the root left aside.
  /// DEGENERATE: with nothing selected the box is empty: its minima are +infinity, its maxima -infinity.
  void UpdateMinMaxValues(const TGeometryRegionTypesSet& aRegionTypes);
  double Min_X() const;
  double Max_X() const;
  double Min_Y() const;
  double Max_Y() const;
  /// DEGENERATE: -infinity for the empty box.
  double GetWidth() const;
  double Width() const;
  /// DEGENERATE: -infinity for the empty box.
  double GetHeight() const;
  double Height() const;
  /// DEGENERATE: not a number for the empty box.
  TEntityCoordinate GetCentre() const;
  TEntityCoordinate Centre() const;

  /// Mirrors every region but the root, in index order, as TTreeNode_Geometry::Mirror does.
  void Mirror(const TDXFEntity& aMirrorLine);

  // Entities. Each list holds an entity once: an equal one that comes later (operator==) is left out.
  /// The outline and then the internal chain of every region but the root, in index order.
  TEntityArray GetEntities_NoDuplicates() const;
  /// The same of the selected regions below the root, walked depth first: a region's own entities come before those of
  /// its children, and those before its next sibling's. A region that isn't selected is left out, but not what lies
  /// below it. A selected one that is a point, or closed but not valid (TTreeNode_Geometry::IsRegionValid_Closed), is
  /// left out with everything below it.
  TEntityArray GetEntities_NoDuplicates(const TGeometryRegionTypesSet& aRegionTypes) const;

 private:
  TTreeNodeArray_Geometry RegionsFrom(TIndex aFirst) const;

  double fMin_X = 0;
  double fMax_X = 0;
  double fMin_Y = 0;
  double fMax_Y = 0;
  bool fGeometryFromScripting = false;
};

}  // namespace GeometryEngine

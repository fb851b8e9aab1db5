#pragma once

// What a region of the machine carries whatever its shape: colour, type, and the names under which the exports know it.
// The tree of such nodes is TTree_CoreProperties; a region with a shape is TTreeNode_Geometry.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TGeometryRegionTypesSet.h"
#include "GeometryEngine/host/TTreeNode_Base.h"

namespace GeometryEngine {

class TTree_CoreProperties;
class TTreeNode_CoreProperties;

/// References to nodes; owns none of them.
using TTreeNodeArray_CoreProperties = std::vector<TTreeNode_CoreProperties*>;

/// A region's colour, type and names.
///
/// A region has one type. The two composite types (rtComposite, rtCompositeEmpty) stand for another one as well, the
/// mapped type: such a region answers to both. It has the name that the host gave it and, while the host's switch
/// ifUniqueRegionNames is on, a unique name: the first region called Magnet in a tree keeps that name, the second one
/// becomes Magnet_1, the third Magnet_2, upper and lower case being the same. Names are made unique when they are
/// given, against the names that the tree holds then: a region that is to take part must be in the tree first.
///
/// OWNS: nothing but its texts; the tree owns the node.
///
///   auto node = tree.CreateTreeNode();
///   auto* region = TTreeNode_CoreProperties::TypeCast(tree.AddNewTreeNode(node));
///   region->RegionType(rtConductor);
///   region->RegionName("Bar");
class GEOMETRYENGINE_API TTreeNode_CoreProperties : public TTreeNode_Base {
 public:
  /// A region of type rtUndefined without a name. The tree isn't told: AddNewTreeNode enters the node.
  explicit TTreeNode_CoreProperties(TTree_Base* aTree);
  ~TTreeNode_CoreProperties() override;

  /// The owning tree when it is a core-properties tree, else nil.
  TTree_CoreProperties* GetTree() const;

  // Properties
  std::uint32_t Colour() const;
  void Colour(std::uint32_t aColour);
  TGeometryRegionType RegionType() const;
  /// Names stay as they are, although some types have no unique one: give the type first, then the name.
  void RegionType(TGeometryRegionType aRegionType);
  /// The type that a composite region stands for; of no effect in any other region.
  TGeometryRegionType RegionType_Mapped() const;
  void RegionType_Mapped(TGeometryRegionType aRegionType);
  /// The name that the host gave.
  const std::string& RegionName() const;
  /// Same as SetRegionName.
  void RegionName(std::string_view aName);
  /// The name made unique, or empty. GetRegionName_Unique falls back on the given name instead.
  const std::string& UniqueName() const;

  // Types
  /// True for the region's own type and, in a composite region, for the mapped one.
  bool IsOfType(TGeometryRegionType aType) const;
  /// The same of a node that may be missing: false for nil, so that the answer of a search can be handed on unchecked.
  static bool IsOfType(const TTreeNode_CoreProperties* aNode, TGeometryRegionType aType);
  /// True when the region is of some type of the set. False for the empty set.
  bool IsOfType_WithinSet(const TGeometryRegionTypesSet& aTypes) const;
  /// The mapped type of a composite region, else its type.
  TGeometryRegionType GetStandardRegionType() const;

  // Children. A child that is no core-properties node is left out of all three.
  TTreeNodeArray_CoreProperties GetChildren() const;
  TTreeNodeArray_CoreProperties GetChildren_OfType(TGeometryRegionType aType) const;
  /// Grouped by type, the lower ordinal first, each group in the children's order. A composite child that is of two
  /// types of the set is listed twice.
  TTreeNodeArray_CoreProperties GetChildren_OfTypes(const TGeometryRegionTypesSet& aTypes) const;

  // Names
  /// Gives the name and makes it unique afresh.
  /// DEGENERATE: without a core-properties tree the unique name stays empty.
  void SetRegionName(std::string_view aName);
  /// The unique name, or the given one when there is none.
  const std::string& GetRegionName_Unique() const;
  /// Sets the unique name from the present one; empties it while the host's switch is off or when
  /// CheckApply_UniqueRegionName says no. Nothing happens without a core-properties tree.
  void SetRegionName_Unique();
  /// False for an empty name, for the types rtAirGap and rtSurrounding, and for bars (rtRotorBar) of the machine types
  /// 1, 6 and 8, all of whose bars share one name.
  bool CheckApply_UniqueRegionName() const;
  /// The first free one of: the present GetRegionName_Unique, then the given name with _1, _2 and so on. A name is
  /// taken when another node of the tree, the root left aside, answers to it; only the letters A to Z are folded.
  /// A region that has a unique name already keeps it while it is free, even after its given name was copied anew.
  /// DEGENERATE: the present name without a core-properties tree; the last candidate when a million and one are taken.
  /// COST: constant for a node of a tree that is only added to; the number of nodes after others have been taken out.
  std::string GenerateUniqueRegionName() const;
  /// The name in the finite-element export: the unique name, but the given one when there is none and for regions that
  /// the export knows by their common name: wedges, impregnation, liners, coil dividers, slot openings, magnet pockets
  /// and cooling ducts.
  const std::string& GetRegionName_FEA() const;
  /// The component in the three-dimensional export: "Lamination" for both laminations, "Bars" for bars of the machine
  /// types 1 and 8, else the display name of the region's own type.
  std::string_view GetComponentName_3D() const;

  /// Takes over colour, both types and the given name; then makes the name unique within this node's own tree when
  /// `aApplyUniqueName`, else takes over the unique name as well, even if that makes it occur twice.
  void CopyRegionParameters(const TTreeNode_CoreProperties& aRegion, bool aApplyUniqueName);

  /// The node as a core-properties node; nil for nil and for any other node.
  static TTreeNode_CoreProperties* TypeCast(TTreeNode_Base* aNode);
  static const TTreeNode_CoreProperties* TypeCast(const TTreeNode_Base* aNode);

 private:
  void NoteRenaming();

  std::uint32_t fColour = 0;
  TGeometryRegionType fRegionType = rtUndefined;
  TGeometryRegionType fRegionType_Mapped = rtUndefined;
  std::string fRegionName;
  std::string fUniqueName;
};

}  // namespace GeometryEngine

#pragma once

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

using TTreeNodeArray_CoreProperties = std::vector<TTreeNode_CoreProperties*>;

class GEOMETRYENGINE_API TTreeNode_CoreProperties : public TTreeNode_Base {
 public:
  explicit TTreeNode_CoreProperties(TTree_Base* aTree);
  ~TTreeNode_CoreProperties() override;

  /// The owning tree when it is a core-properties tree, else nil.
  TTree_CoreProperties* GetTree() const;

  std::uint32_t Colour() const;
  void Colour(std::uint32_t aColour);
  TGeometryRegionType RegionType() const;
  void RegionType(TGeometryRegionType aRegionType);
  TGeometryRegionType RegionType_Mapped() const;
  void RegionType_Mapped(TGeometryRegionType aRegionType);
  const std::string& RegionName() const;
  void RegionName(std::string_view aName);
  const std::string& UniqueName() const;

  bool IsOfType(TGeometryRegionType aType) const;
  /// False for a missing node, so that the answer of a search can be handed on unchecked.
  static bool IsOfType(const TTreeNode_CoreProperties* aNode, TGeometryRegionType aType);
  bool IsOfType_WithinSet(const TGeometryRegionTypesSet& aTypes) const;
  TGeometryRegionType GetStandardRegionType() const;
  TTreeNodeArray_CoreProperties GetChildren() const;
  TTreeNodeArray_CoreProperties GetChildren_OfType(TGeometryRegionType aType) const;
  TTreeNodeArray_CoreProperties GetChildren_OfTypes(const TGeometryRegionTypesSet& aTypes) const;
  void SetRegionName(std::string_view aName);
  const std::string& GetRegionName_Unique() const;
  void SetRegionName_Unique();
  bool CheckApply_UniqueRegionName() const;
  std::string GenerateUniqueRegionName() const;
  const std::string& GetRegionName_FEA() const;
  std::string_view GetComponentName_3D() const;
  void CopyRegionParameters(const TTreeNode_CoreProperties& aRegion, bool aApplyUniqueName);

  static TTreeNode_CoreProperties* TypeCast(TTreeNode_Base* aNode);
  static const TTreeNode_CoreProperties* TypeCast(const TTreeNode_Base* aNode);

 private:
  bool NameClashes(const TTree_CoreProperties& aTree, std::string_view aName) const;

  std::uint32_t fColour = 0;
  TGeometryRegionType fRegionType = rtUndefined;
  TGeometryRegionType fRegionType_Mapped = rtUndefined;
  std::string fRegionName;
  std::string fUniqueName;
};

}  // namespace GeometryEngine

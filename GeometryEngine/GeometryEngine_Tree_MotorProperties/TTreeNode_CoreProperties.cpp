#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTreeNode_CoreProperties.h"

namespace GeometryEngine {

TTreeNode_CoreProperties::TTreeNode_CoreProperties(TTree_Base* aTree) : TTreeNode_Base(aTree) {}

TTreeNode_CoreProperties::~TTreeNode_CoreProperties() = default;

std::uint32_t TTreeNode_CoreProperties::Colour() const {
  return fColour;
}

void TTreeNode_CoreProperties::Colour(std::uint32_t aColour) {
  fColour = aColour;
}

TGeometryRegionType TTreeNode_CoreProperties::RegionType() const {
  return fRegionType;
}

void TTreeNode_CoreProperties::RegionType(TGeometryRegionType aRegionType) {
  fRegionType = aRegionType;
}

TGeometryRegionType TTreeNode_CoreProperties::RegionType_Mapped() const {
  return fRegionType_Mapped;
}

void TTreeNode_CoreProperties::RegionType_Mapped(TGeometryRegionType aRegionType) {
  fRegionType_Mapped = aRegionType;
}

const std::string& TTreeNode_CoreProperties::RegionName() const {
  return fRegionName;
}

void TTreeNode_CoreProperties::RegionName(std::string_view aName) {
  SetRegionName(aName);
}

const std::string& TTreeNode_CoreProperties::UniqueName() const {
  return fUniqueName;
}

bool TTreeNode_CoreProperties::IsOfType(TGeometryRegionType aType) const {
  return fRegionType == aType || GetStandardRegionType() == aType;
}

bool TTreeNode_CoreProperties::IsOfType(const TTreeNode_CoreProperties* aNode, TGeometryRegionType aType) {
  return aNode != nullptr && aNode->IsOfType(aType);
}

bool TTreeNode_CoreProperties::IsOfType_WithinSet(const TGeometryRegionTypesSet& aTypes) const {
  return aTypes.Contains(fRegionType) || aTypes.Contains(GetStandardRegionType());
}

TGeometryRegionType TTreeNode_CoreProperties::GetStandardRegionType() const {
  const bool composite = fRegionType == rtComposite || fRegionType == rtCompositeEmpty;
  return composite ? fRegionType_Mapped : fRegionType;
}

TTreeNodeArray_CoreProperties TTreeNode_CoreProperties::GetChildren() const {
  TTreeNodeArray_CoreProperties children;
  for (TTreeNode_Base* child : TTreeNode_Base::GetChildren()) {
    if (TTreeNode_CoreProperties* region = TypeCast(child)) children.push_back(region);
  }
  return children;
}

TTreeNodeArray_CoreProperties TTreeNode_CoreProperties::GetChildren_OfType(TGeometryRegionType aType) const {
  TTreeNodeArray_CoreProperties children = GetChildren();
  std::erase_if(children, [aType](const TTreeNode_CoreProperties* child) { return !child->IsOfType(aType); });
  return children;
}

TTreeNodeArray_CoreProperties TTreeNode_CoreProperties::GetChildren_OfTypes(
    const TGeometryRegionTypesSet& aTypes) const {
  TTreeNodeArray_CoreProperties found;
  for (const TGeometryRegionType type : aTypes) {
    const TTreeNodeArray_CoreProperties children = GetChildren_OfType(type);
    found.insert(found.end(), children.begin(), children.end());
  }
  return found;
}

TTreeNode_CoreProperties* TTreeNode_CoreProperties::TypeCast(TTreeNode_Base* aNode) {
  return dynamic_cast<TTreeNode_CoreProperties*>(aNode);
}

const TTreeNode_CoreProperties* TTreeNode_CoreProperties::TypeCast(const TTreeNode_Base* aNode) {
  return dynamic_cast<const TTreeNode_CoreProperties*>(aNode);
}

}  // namespace GeometryEngine

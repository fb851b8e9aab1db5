#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"

#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/detail/TNameTable.h"

namespace GeometryEngine {

namespace {

std::unique_ptr<TTreeNode_Base> NewNode(TTree_Base& aTree) {
  return std::make_unique<TTreeNode_CoreProperties>(&aTree);
}

}  // namespace

TTree_CoreProperties::TTree_CoreProperties() : TTree_CoreProperties(&NewNode) {}

TTree_CoreProperties::TTree_CoreProperties(TNodeFactory aFactory)
    : TTree_Base(aFactory), fNames(std::make_unique<detail::TNameTable>()) {}

TTree_CoreProperties::~TTree_CoreProperties() = default;

TTreeNode_CoreProperties* TTree_CoreProperties::GetNodeFromIndex(TIndex aIndex) const {
  return TTreeNode_CoreProperties::TypeCast(TTree_Base::GetNodeFromIndex(aIndex));
}

void TTree_CoreProperties::GetRegionsFromTypeSet(const TGeometryRegionTypesSet& aTypes,
                                                 TTreeNodeArray_CoreProperties& aRegions) const {
  TTreeNodeArray_CoreProperties found;  // of its own: memory that runs out leaves the host's array as it was
  for (TIndex index = 0; index < GetCount(); ++index) {
    TTreeNode_CoreProperties* node = GetNodeFromIndex(index);
    if (node != nullptr && node->IsOfType_WithinSet(aTypes)) found.push_back(node);
  }
  aRegions.insert(aRegions.end(), found.begin(), found.end());
}

TTreeNode_CoreProperties* TTree_CoreProperties::GetConductorRegionFromName(std::string_view aConductorName) const {
  for (TIndex index = 0; index < GetCount(); ++index) {
    TTreeNode_CoreProperties* node = GetNodeFromIndex(index);
    if (TTreeNode_CoreProperties::IsOfType(node, rtConductor) && node->RegionName() == aConductorName) return node;
  }
  return nullptr;
}

detail::TNameTable& TTree_CoreProperties::Names() {
  return *fNames;
}

}  // namespace GeometryEngine

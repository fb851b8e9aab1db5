#pragma once

#include <string_view>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTreeNode_CoreProperties.h"
#include "GeometryEngine/host/TTree_Base.h"

namespace GeometryEngine {

class GEOMETRYENGINE_API TTree_CoreProperties : public TTree_Base {
 public:
  TTree_CoreProperties();
  ~TTree_CoreProperties() override;

  TTreeNode_CoreProperties* GetNodeFromIndex(TIndex aIndex) const;
  /// Appends to `aRegions`.
  void GetRegionsFromTypeSet(const TGeometryRegionTypesSet& aTypes, TTreeNodeArray_CoreProperties& aRegions) const;
  TTreeNode_CoreProperties* GetConductorRegionFromName(std::string_view aConductorName) const;

 protected:
  explicit TTree_CoreProperties(TNodeFactory aFactory);
};

}  // namespace GeometryEngine

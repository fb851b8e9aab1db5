#pragma once

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"
#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"

namespace GeometryEngine {

class GEOMETRYENGINE_API TTree_Geometry : public TTree_CoreProperties {
 public:
  TTree_Geometry();
  ~TTree_Geometry() override;

  bool GeometryFromScripting() const;
  void GeometryFromScripting(bool aFromScripting);
  TTreeNode_Geometry* GetRootNode() const;
  TTreeNode_Geometry* RootNode() const;
  TTreeNode_Geometry* GetNodeFromIndex(TIndex aIndex) const;
  TTreeNode_Geometry* Item(TIndex aIndex) const;
  double GetRadius_Minimum(const TGeometryRegionTypesSet& aRegionTypes) const;
  double GetRadius_Maximum(const TGeometryRegionTypesSet& aRegionTypes) const;
  void UpdateMinMaxValues(const TGeometryRegionTypesSet& aRegionTypes);
  double Min_X() const;
  double Max_X() const;
  double Min_Y() const;
  double Max_Y() const;
  double GetWidth() const;
  double Width() const;
  double GetHeight() const;
  double Height() const;
  TEntityCoordinate GetCentre() const;
  TEntityCoordinate Centre() const;
  void Mirror(const TDXFEntity& aMirrorLine);
  TEntityArray GetEntities_NoDuplicates() const;
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

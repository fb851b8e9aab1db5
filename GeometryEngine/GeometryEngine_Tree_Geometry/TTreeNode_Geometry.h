#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TPolyType.h"
#include "GeometryEngine/GeometryEngine_Plane/TPlane.h"
#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTreeNode_CoreProperties.h"
#include "GeometryEngine/Pole_Inaccessibility/PoleSearch.h"

namespace GeometryEngine {

class TTreeNode_Geometry;
using TTreeNodeArray_Geometry = std::vector<TTreeNode_Geometry*>;

class GEOMETRYENGINE_API TTreeNode_Geometry : public TTreeNode_CoreProperties {
 public:
  explicit TTreeNode_Geometry(TTree_Base* aTree);
  ~TTreeNode_Geometry() override;

  // Copies
  void CopyRegionParameters(const TTreeNode_Geometry& aRegion, bool aApplyUniqueName);
  void CopyRegionParameters_Geometry(const TTreeNode_Geometry& aRegion);

  // Structure
  TTreeNode_Geometry* GetNode(TIndex aIndex) const;
  /// The children as geometry nodes, in order.
  TTreeNodeArray_Geometry Children() const;

  // Chains
  TEntityStorage& Entities();
  const TEntityStorage& Entities() const;
  TEntityStorage& Entities_Internal();
  const TEntityStorage& Entities_Internal() const;
  TIndex GetNumEntities() const;
  TIndex NumberEntities() const;
  TIndex GetNumEntities_Internal() const;
  TIndex NumberEntities_Internal() const;
  TCoordinateArray& DetectionStartCoords();
  const TCoordinateArray& DetectionStartCoords() const;

  // Measures
  double GetRegionArea() const;
  double RegionArea() const;
  double RegionArea_Base() const;
  void RegionArea_Base(double aArea);
  const TEntityCoordinate& Centroid() const;
  void Centroid(const TEntityCoordinate& aCentroid);
  double GetWidth();
  double Width();
  double GetHeight();
  double Heigth();
  bool IsRegionValid_Closed() const;
  bool PointInsideRegion(const TEntityCoordinate& aPoint, const TGeometryRegionTypesSet& aRegionTypes,
                         bool aIncludePointOnEntity) const;
  bool RegionInsideRegion(const TTreeNode_Geometry& aRegion, bool aIncludePointOnEntity) const;
  void UpdateRegionArea_Base();
  void UpdateGeometry_Outputs();

  // Label points
  TCoordinateArray& RegionCoordinates();
  const TCoordinateArray& RegionCoordinates() const;
  TEntityCoordinate GetRegionCoordinate_Single() const;
  void SetRegionCoordinate_Single(const TEntityCoordinate& aCoordinate);
  TEntityCoordinate RegionCoordinate() const;
  void RegionCoordinate(const TEntityCoordinate& aCoordinate);
  void UpdateRegionCoordinate();
  /// The region's chains as the pole search sees them; valid while the node and its children live unchanged.
  TPoleRegion PoleRegion();

  // Duplications
  std::int32_t NumberDuplications() const;
  void NumberDuplications(std::int32_t aNumDuplications);
  double DuplicationAngle() const;
  void DuplicationAngle(double aAngle);
  void UpdateRegionDuplicationValues(std::int32_t aNumDuplications);
  void UpdateDuplicationValues_Angle(double aAngle);
  bool HasFractionalChildDuplications() const;

  // Plane
  TPlane& GetPlane();
  TPlane& Plane();
  void SetPlane(std::unique_ptr<TPlane>& aPlane);
  void Plane(std::unique_ptr<TPlane>& aPlane);

  // Flags
  bool OnBoundary() const;
  void OnBoundary(bool aOnBoundary);
  bool Singular() const;
  void Singular(bool aSingular);
  bool FitToParent() const;
  void FitToParent(bool aFitToParent);
  bool IncludeRegionIdentifier() const;
  void IncludeRegionIdentifier(bool aInclude);
  TPolyType RegionPolyType() const;
  void RegionPolyType(TPolyType aPolyType);
  bool CustomRegionApplied() const;
  void CustomRegionApplied(bool aApplied);
  bool AdaptiveEntities() const;
  void AdaptiveEntities(bool aAdaptive);

  // Transforms
  void Rotate(double aAngle);
  void Rotate_AboutPoint(double aAngle, const TEntityCoordinate& aPoint);
  void Translate(double xDistance, double yDistance);
  void Mirror(const TDXFEntity& aMirrorLine);

  static TTreeNode_Geometry* TypeCast(TTreeNode_Base* aNode);
  static const TTreeNode_Geometry* TypeCast(const TTreeNode_Base* aNode);

 private:
  bool HasInside() const;
  bool PointInsideChild(const TEntityCoordinate& aPoint, const TGeometryRegionTypesSet& aRegionTypes) const;

  TEntityStorage fEntities;
  TEntityStorage fEntities_Internal;
  TEntityCoordinate fCentroid;
  double fRegionArea_Base = 0;
  std::int32_t fNumDuplications = 1;
  double fDuplicationAngle = 360;
  bool fOnBoundary = false;
  bool fSingularRegion = false;
  bool fFitToParent = false;
  std::unique_ptr<TPlane> fPlane;
  TCoordinateArray fRegionCoordinates;
  bool fIncludeRegionIdentifier = true;
  TPolyType fRegionPolyType = ptClosed;
  bool fCustomRegionApplied = false;
  bool fAdaptiveEntities = false;
  TCoordinateArray fDetectionStartCoords;
};

}  // namespace GeometryEngine

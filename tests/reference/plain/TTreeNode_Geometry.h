#pragma once

// Regions with a shape and a name, and the tree of them.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/EntityEnumerations.h"
#include "tests/reference/plain/TEntityStorage.h"

namespace GeometryEngine::Plain {

class TTree_Geometry;

/// A closed region.
class TTreeNode_Geometry {
 public:
  explicit TTreeNode_Geometry(TTree_Geometry* aTree) : fTree(aTree) {}

  TEntityStorage& Entities() { return fEntities; }
  TEntityStorage& Entities_Internal() { return fEntities_Internal; }
  const TEntityCoordinate& Centroid() const { return fCentroid; }
  double RegionArea_Base() const { return fRegionArea_Base; }
  double RegionArea() const;
  const TCoordinateArray& RegionCoordinates() const { return fRegionCoordinates; }
  std::int32_t NumberDuplications() const { return fNumDuplications; }
  double DuplicationAngle() const { return fDuplicationAngle; }
  void NumberDuplications(std::int32_t aNumDuplications);
  void Singular(bool aSingular) { fSingular = aSingular; }

  bool PointInsideRegion(const TEntityCoordinate& aPoint, bool aIncludePointOnEntity) const;
  void UpdateGeometry_Outputs();
  void UpdateRegionCoordinate();
  void Duplicate();
  void DuplicateAndUnite(std::int32_t aNumberDuplications, TGeometryPlane aDirection);

  const std::string& RegionName() const { return fRegionName; }
  const std::string& UniqueName() const { return fUniqueName; }
  const std::string& GetRegionName_Unique() const { return fUniqueName.empty() ? fRegionName : fUniqueName; }
  void SetRegionName(std::string_view aName);
  void SetRegionName_Unique();

  TTree_Geometry* fTree;
  std::vector<TTreeNode_Geometry*> fChildren;
  TEntityStorage fEntities;
  TEntityStorage fEntities_Internal;
  TEntityCoordinate fCentroid;
  double fRegionArea_Base = 0;
  TCoordinateArray fRegionCoordinates = TCoordinateArray(1);
  std::int32_t fNumDuplications = 1;
  double fDuplicationAngle = 360;
  bool fSingular = false;
  std::string fRegionName;
  std::string fUniqueName;

 private:
  bool IsRegionValid_Closed() const;
  bool NameClashes(std::string_view aName) const;
  bool UniteOutline();
  void PlaceAroundAxis(std::int32_t aCopies, std::int32_t aCopies_Full);
  void SpreadAroundAxis(std::int32_t aCopies);
  void SpreadOutputs(const TCoordinateArray& aCentroids, const TCoordinateArray& aLabels);
};

/// The root aside, whose chains play no part here.
class TTree_Geometry {
 public:
  TTreeNode_Geometry* AddRegion();
  void RemoveRegion(const TTreeNode_Geometry* aRegion);
  TEntityArray GetEntities_NoDuplicates() const;

  std::vector<std::unique_ptr<TTreeNode_Geometry>> fRegions;
};

/// A label point well inside a region.
TEntityCoordinate FindPoleInaccessibility(TTreeNode_Geometry& aRegion, bool aSearchable, double aPrecision,
                                          double aMinimumDistance);

}  // namespace GeometryEngine::Plain

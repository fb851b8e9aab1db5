#pragma once

#include <cstdint>
#include <span>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"

namespace GeometryEngine {

class GEOMETRYENGINE_API TEntityBaseClass {
 public:
  TEntityBaseClass();
  ~TEntityBaseClass();
  TEntityBaseClass(const TEntityBaseClass&) = delete;
  TEntityBaseClass& operator=(const TEntityBaseClass&) = delete;

  TEntityTree& CoordinateTree();
  const TEntityTree& CoordinateTree() const;
  TEntityTree& CoordinateTree_Duplicated();
  const TEntityTree& CoordinateTree_Duplicated() const;
  TEntityTree& InterceptTree();
  const TEntityTree& InterceptTree() const;
  TEntityTree& RegionTree();
  const TEntityTree& RegionTree() const;

  void DetermineInterceptions(TEntityStorage* apEntityStorage);
  void CreateCoordinateTreeFromIntercepts();
  /// `aRegionType`: 0 all closed loops, 1 only loops of non-negative area, 2 only loops of negative area.
  void DetermineRegions(TEntityTree& aTree, std::int32_t aRegionType);
  void DetectOrphanEntities(TEntityTree& aTree);
  void IdentifySubRegions(const TEntityTree& aTree);
  void RemoveDuplicatedSubRegions();
  bool GetIsRegionSubRegion(std::int32_t aRegionIndex) const;
  void AddEntityToCoordinateTree(TEntityTree& aTree, const TDXFEntity& aEntity);
  TEntityCoordinate AddCoordinateNode(TEntityTree& aTree, const TEntityCoordinate& aCoordinate, TIndex aEntityIndex);
  void AddRegionCoordinates(const TEntityTree& aCoordinateTree, std::span<const std::int32_t> aNodeIndexes,
                            const TEntityCoordinate& aStart, const TEntityCoordinate& aCentroid, double aArea);
  void AddRegionEntities(TTreeNode_Geometry* aRegion, TIndex aRegionIndex);

 private:
  // The storage stands first: trees refer to it, so it is destroyed last.
  TEntityStorage fEntityStorage_Regions;
  TEntityTree fCoordinateTree;
  TEntityTree fCoordinateTree_Duplicated;
  TEntityTree fInterceptTree;
  TEntityTree fRegionTree;
};

}  // namespace GeometryEngine

#pragma once

// The passes of detection.

#include <cstdint>

#include "tests/reference/plain/Detection.h"
#include "tests/reference/plain/TTreeNode_Geometry.h"

namespace GeometryEngine::Plain {

class TEntityBaseClass {
 public:
  TEntityTree& CoordinateTree() { return fCoordinateTree; }
  TEntityTree& CoordinateTree_Duplicated() { return fCoordinateTree_Duplicated; }
  TEntityTree& InterceptTree() { return fInterceptTree; }
  TEntityTree& RegionTree() { return fRegionTree; }

  void DetermineInterceptions(TEntityStorage* apEntityStorage);
  void CreateCoordinateTreeFromIntercepts();
  void AddEntityToCoordinateTree(TEntityTree& aTree, const TDXFEntity& aEntity);
  void DetermineRegions(TEntityTree& aTree, std::int32_t aRegionType);
  void DetectOrphanEntities(TEntityTree& aTree);
  void IdentifySubRegions(const TEntityTree& aTree);
  void RemoveDuplicatedSubRegions();
  bool GetIsRegionSubRegion(std::int32_t aRegionIndex);
  void AddRegionEntities(TTreeNode_Geometry* aRegion, TIndex aRegionIndex);

 private:
  TEntityCoordinate AddCoordinateNode(TEntityTree& aTree, const TEntityCoordinate& aCoordinate, TIndex aEntityIndex);
  void Sweep(const TEntityArray& aEntities);
  void AddRegionCoordinates(const TEntityTree& aTree, const TTreeNode& aVertex, const TRegionWalk& aWalk);
  bool IsChainKnown(const TEntityArray& aChain) const;

  TEntityStorage fEntityStorage_Regions;
  TEntityTree fCoordinateTree;
  TEntityTree fCoordinateTree_Duplicated;
  TEntityTree fInterceptTree;
  TEntityTree fRegionTree;
};

}  // namespace GeometryEngine::Plain

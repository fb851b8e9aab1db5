#pragma once

// The detection trees: a root with two levels below it, searched node by node.

#include <memory>
#include <string>
#include <vector>

#include "GeometryEngine/host/IntegerArrays.h"
#include "tests/reference/plain/TEntityStorage.h"

namespace GeometryEngine::Plain {

class TTreeNode {
 public:
  TTreeNode* Parent() const { return fParent; }
  TIndex AbsoluteIndex() const { return fIndex; }
  TIndex RelativeIndex() const { return fRelativeIndex; }
  std::int32_t Level() const { return fLevel; }
  TIndex Count() const { return ToIndex(fChildren.size()); }
  const std::vector<TTreeNode*>& Children() const { return fChildren; }
  TTreeNode* GetNode(TIndex aIndex) const;

  TIndex EntityIndex() const { return fEntityIndex; }
  const TEntityCoordinate& Coordinates() const { return fCoordinates; }
  std::int32_t RegionIndex() const { return fRegionIndex; }
  bool Travelled() const { return fTravelled; }
  double GaussArea() const { return fGaussArea; }
  const TEntityCoordinate& RegionCentroid() const { return fCentroid; }
  TTravelDirection TravelDirection() const { return fTravelDirection; }
  const TIntegerArray& SubRegions() const { return fSubRegions; }
  bool CheckSubRegionIdentified(std::int32_t aRegionIndex) const;
  void RemoveSubRegion(std::int32_t aRegionIndex);
  void EntityIndex(TIndex aEntityIndex) { fEntityIndex = aEntityIndex; }
  void Coordinates(const TEntityCoordinate& aCoordinates) { fCoordinates = aCoordinates; }
  void Travelled(bool aTravelled) { fTravelled = aTravelled; }

  TTreeNode* fParent = nullptr;
  TIndex fIndex = 0;
  TIndex fRelativeIndex = 0;
  std::int32_t fLevel = 0;
  std::vector<TTreeNode*> fChildren;
  TIndex fEntityIndex = kNotFound;
  TEntityCoordinate fCoordinates;
  std::int32_t fRegionIndex = 0;
  bool fTravelled = false;
  double fGaussArea = 0;
  TEntityCoordinate fCentroid;
  TTravelDirection fTravelDirection = Travel_AntiClockwise;
  TIntegerArray fSubRegions;
};

class TEntityTree {
 public:
  TEntityTree();

  TTreeNode* AddTreeNode(TTreeNode* aParentNode);
  TTreeNode* AddTreeNode_AtIndex(TTreeNode* aParentNode, TIndex aIndex);
  TTreeNode* AddTreeNode_ToRoot() { return AddTreeNode(RootNode()); }
  /// Afterwards the flat list is without the root.
  void Clear();

  TTreeNode* Search_L1_Coords(const TEntityCoordinate& aCoordinates) const;
  TTreeNode* Search_L1_Entities(const TDXFEntity& aEntity) const;
  TTreeNode* Search_L2_Coordinates(const TEntityCoordinate& aCoordinates, const TTreeNode* aNode) const;

  TTreeNode* GetNodeFromIndex(TIndex aIndex) const;
  TIndex Count() const { return ToIndex(fTreeNodes.size()); }
  /// An empty entity for an index outside the storage.
  const TDXFEntity& GetNodeEntity(const TTreeNode& aNode) const;
  TTreeNode* RootNode() const { return fRoot.get(); }
  TEntityStorage* pEntityStorage() const { return fStorage; }
  void pEntityStorage(TEntityStorage* apEntityStorage) { fStorage = apEntityStorage; }

 private:
  std::unique_ptr<TTreeNode> fRoot = std::make_unique<TTreeNode>();
  std::vector<TTreeNode*> fTreeNodes;
  TIndex fNextIndex = 0;
  std::vector<std::unique_ptr<TTreeNode>> fOwnedNodes;
  TEntityStorage* fStorage = nullptr;
  TDXFEntity fEmpty;
};

}  // namespace GeometryEngine::Plain

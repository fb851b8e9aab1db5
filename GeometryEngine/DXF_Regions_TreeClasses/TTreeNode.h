#pragma once

#include <cstdint>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/EntityEnumerations.h"
#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/IntegerArrays.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

class TEntityTree;

class GEOMETRYENGINE_API TTreeNode {
 public:
  explicit TTreeNode(TEntityTree* aTree);
  ~TTreeNode();
  TTreeNode(const TTreeNode&) = delete;
  TTreeNode& operator=(const TTreeNode&) = delete;

  TEntityTree* tree() const;
  TTreeNode* Parent() const;
  TIndex AbsoluteIndex() const;
  TIndex RelativeIndex() const;
  std::int32_t Level() const;
  TIndex GetCount() const;
  TIndex Count() const;
  const std::vector<TTreeNode*>& Children() const;
  /// The child at `aIndex`; nil outside.
  TTreeNode* GetNode(TIndex aIndex) const;

  TIndex EntityIndex() const;
  void EntityIndex(TIndex aEntityIndex);
  const TEntityCoordinate& Coordinates() const;
  void Coordinates(const TEntityCoordinate& aCoordinates);
  double coordinate_X() const;
  void coordinate_X(double aX);
  double coordinate_Y() const;
  void coordinate_Y(double aY);
  std::int32_t RegionIndex() const;
  void RegionIndex(std::int32_t aRegionIndex);
  bool Travelled() const;
  void Travelled(bool aTravelled);
  double GaussArea() const;
  void GaussArea(double aGaussArea);
  const TEntityCoordinate& RegionCentroid() const;
  void RegionCentroid(const TEntityCoordinate& aCentroid);
  TTravelDirection TravelDirection() const;
  void TravelDirection(TTravelDirection aTravelDirection);

  const TIntegerArray& SubRegions() const;
  TIndex NumberSubRegions() const;
  TIndex NumSubRegions() const;
  std::int32_t GetSubRegion(TIndex aIndex) const;
  void AddSubRegion(std::int32_t aRegionIndex);
  /// Removes the first entry equal to `aRegionIndex`.
  void RemoveSubRegion(std::int32_t aRegionIndex);
  bool CheckSubRegionIdentified(std::int32_t aRegionIndex) const;
  void ResetRegionIdentifier();
  bool Equal(const TTreeNode* aTreeNode) const;

 private:
  friend class TEntityTree;
  TEntityTree* ftree;
  TTreeNode* fParent = nullptr;
  TIndex findex = 0;
  TIndex frelindex = 0;
  std::int32_t fLevel = 0;
  TIndex fNumChildNodes = 0;
  std::vector<TTreeNode*> fChildren;
  TIndex fEntityIndex = kNotFound;
  TEntityCoordinate fCoordinates;
  std::int32_t fRegionIndex = 0;
  bool fTravelled = false;
  double fGaussArea = 0;
  TEntityCoordinate fCentroid;
  TTravelDirection fTravelDirection = Travel_AntiClockwise;
  TIntegerArray fSubRegionsArray;
};

}  // namespace GeometryEngine

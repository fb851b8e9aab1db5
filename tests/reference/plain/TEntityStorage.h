#pragma once

// The chain, with every walk and every search from its beginning.

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::Plain {

class TEntityStorage {
 public:
  // Container
  TIndex Count() const { return ToIndex(fEntities.size()); }
  const TEntityArray& EntityArray() const { return fEntities; }
  TEntityArray& EntityArray() { return fEntities; }
  void AddEntity(const TDXFEntity& aEntity) { fEntities.push_back(aEntity); }
  void AddEntities(const TEntityArray& aEntities);
  TIndex IndexOf(const TDXFEntity& aEntity) const;
  bool CheckEntityExists(const TDXFEntity& aEntity) const { return IndexOf(aEntity) != kNotFound; }
  /// Removes the first equal entity, if any.
  void RemoveEntityFromArray(const TDXFEntity& aEntity);
  void RemoveEntities(const TEntityArray& aEntities);
  void FreeEntities() { fEntities.clear(); }
  /// The library's own sort: the order of ties is part of its answer.
  void QuickSortArray(TIndex aLow, TIndex aHigh);

  // Chain
  TEntityCoordinate GetStartCoordinate() const;
  TEntityCoordinate GetEndCoordinate() const;
  TDXFEntity GetEntity_Next(const TEntityCoordinate& aVertex) const;
  TDXFEntity GetEntity_Previous(const TEntityCoordinate& aVertex) const;
  void ReOrderEntities(const TEntityCoordinate& aCoordinate);
  void ReverseEntities();
  TCoordinateArray GetVertices() const;
  TCoordinateArray GetVertices_Surf(bool aIncludeMidPoint) const;
  const TEntityCoordinate& StartCoordinate() const { return fStartCoordinate; }
  void StartCoordinate(const TEntityCoordinate& aStart) { fStartCoordinate = aStart; }

  // Bounds
  void CalculateMinMaxValues();
  void CalculateMinMaxValues_RT();
  double GetRadius_Maximum() const;
  double GetRadius_Minimum() const;
  double GetRadius_MaximumSurf() const;
  double Min_X() const { return fMin.x; }
  double Max_X() const { return fMax.x; }
  double Min_Y() const { return fMin.y; }
  double Max_Y() const { return fMax.y; }
  double Min_R() const { return fMin_RT.x; }
  double Max_R() const { return fMax_RT.x; }
  double Min_T() const { return fMin_RT.y; }
  double Max_T() const { return fMax_RT.y; }

  // Measures
  bool PointOnEntities(const TEntityCoordinate& aPoint) const;
  bool PointInsideEntities(const TEntityCoordinate& aPoint, bool aIncludePointOnEntity) const;
  double GetClosedArea() const;
  TEntityCoordinate GetCentroid() const;
  double MinPointToEntitiesDistance(const TEntityCoordinate& aPoint) const;

  // Copies
  void DuplicateAroundAxis(std::int32_t aDuplications, std::int32_t aDuplications_Full, double aAngle, bool aSingular);
  void DuplicateAlongAxis(std::int32_t aDuplications, double aDuplicationDistance);
  void Offset(double aDistance);

  TEntityArray fEntities;

 private:
  TIndex FindVertex(const TEntityCoordinate& aVertex) const;

  TEntityCoordinate fStartCoordinate;
  TEntityCoordinate fMin;
  TEntityCoordinate fMax;
  TEntityCoordinate fMin_RT;
  TEntityCoordinate fMax_RT;
};

/// To the closed polyline; infinite when it has fewer than two points.
double DistanceToPolyline(const TCoordinateArray& aPolyline, const TEntityCoordinate& aPoint);
TIndex IndexOf(const TCoordinateArray& aCoordinates, const TEntityCoordinate& aCoordinate);
TIndex IndexOf(const TEntityArray& aEntities, const TDXFEntity& aEntity);
/// Appends each entity that the array doesn't hold by then.
void AddEntities_CheckDuplicate(TEntityArray& aEntities, const TEntityArray& aAdded);

}  // namespace GeometryEngine::Plain

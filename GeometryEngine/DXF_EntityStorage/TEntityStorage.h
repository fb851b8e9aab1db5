#pragma once

#include <string_view>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TRotationMatrix.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

/// What a walk along a chain found at a vertex.
struct TEntityAtVertex {
  TDXFEntity aEntity;
  TIndex success = kNotFound;  ///< 0 when found, else kNotFound
};

class GEOMETRYENGINE_API TEntityStorage {
 public:
  TEntityStorage();
  ~TEntityStorage();
  TEntityStorage(const TEntityStorage&) = delete;
  TEntityStorage& operator=(const TEntityStorage&) = delete;

  // Container
  TIndex GetCount() const;
  TIndex Count() const;
  bool GetIsIndexValid(TIndex aIndex) const;
  TDXFEntity GetEntityFromIndex(TIndex aIndex) const;
  TDXFEntity Entities(TIndex aIndex) const;
  void Entities(TIndex aIndex, const TDXFEntity& aEntity);
  PtrDXFEntity GetEntityFromIndex_Pointer(TIndex aIndex);
  const TDXFEntity* GetEntityFromIndex_Pointer(TIndex aIndex) const;
  PtrDXFEntity Entities_P(TIndex aIndex);
  const TDXFEntity* Entities_P(TIndex aIndex) const;
  TEntityArray& EntityArray();
  const TEntityArray& EntityArray() const;
  void SetEntityFromIndex(TIndex aIndex, const TDXFEntity& aEntity);
  TIndex AddEntity(const TDXFEntity& aEntity);
  TIndex AddEntity_AtIndex(const TDXFEntity& aEntity, TIndex aIndex);
  void AddEntities(const TEntityArray& aEntityArray);
  void RemoveEntityFromArray(TIndex aIndex);
  void RemoveEntityFromArray(const TDXFEntity& aDXFEntity);
  void RemoveEntities(const TEntityArray& aEntityArray);
  bool CheckEntityExists(const TDXFEntity& aEntity) const;
  TIndex IndexOf(const TDXFEntity& aEntity) const;
  void SetEntityColour(TIndex aIndex, std::string_view aColour);
  void SetEntitySourceDXF(TIndex aIndex, void* aSourceDXF);
  void FreeEntities();
  void CopyGeometry(const TEntityStorage& apEntityClass);
  void CopyNewGeometry(TEntityStorage& apEntityClass);
  bool IsEqual(const TEntityStorage& aEntityStorage) const;
  void QuickSortArray(TIndex aLow, TIndex aHigh);

  // Chain
  TEntityCoordinate GetStartCoordinate() const;
  TEntityCoordinate GetEndCoordinate() const;
  static TEntityCoordinate GetCommonCoordinate_StartEnd(const TDXFEntity& aFirst, const TDXFEntity& aSecond);
  TEntityAtVertex GetEntity_Next(const TEntityCoordinate& aVertex) const;
  TEntityAtVertex GetEntity_Previous(const TEntityCoordinate& aVertex) const;
  void ReOrderEntities(const TEntityCoordinate& aCoordinate);
  void ReverseEntities();
  TCoordinateArray GetVertices() const;
  TCoordinateArray GetVertices_Surf(bool aIncludeMidPoint) const;
  void CalculateMinMaxValues();
  void CalculateMinMaxValues_RT();
  double GetRadius_Maximum() const;
  double GetRadius_Minimum() const;
  double GetRadius_MaximumSurf() const;

  /// The cached start vertex; must hold one of the chain's vertices before `PointInsideEntities` is used.
  const TEntityCoordinate& StartCoordinate() const;
  void StartCoordinate(const TEntityCoordinate& aStartCoordinate);
  double Min_X() const;
  double Max_X() const;
  double Min_Y() const;
  double Max_Y() const;
  double Min_R() const;
  double Max_R() const;
  double Min_T() const;
  double Max_T() const;

  // Measures of a closed chain
  bool PointInsideEntities(const TEntityCoordinate& aCoord, bool aIncludePointOnEntity) const;
  bool PointOnEntities(const TEntityCoordinate& aCoordinate) const;
  double GetClosedArea() const;
  TEntityCoordinate GetCentroid() const;
  double MinPointToEntitiesDistance(const TEntityCoordinate& aPoint) const;

  // Transforms and duplication
  void RotateEntities(const TRotationMatrix& aMatrix);
  void RotateEntities_AroundPoint(const TRotationMatrix& aMatrix, const TEntityCoordinate& aCentre);
  void Translate(double aXDistance, double aYDistance);
  void Mirror(const TDXFEntity& aMirrorLine);
  void DuplicateAroundAxis(std::int32_t aDuplications, std::int32_t aDuplications_Full, double aAngle,
                           bool aSingular);
  void DuplicateAlongAxis(std::int32_t aDuplications, double aDuplicationDistance);

 private:
  TEntityArray fEntityArray;
  TEntityCoordinate fStartCoordinate;
  double fMin_X = 0;
  double fMax_X = 0;
  double fMin_Y = 0;
  double fMax_Y = 0;
  double fMin_R = 0;
  double fMax_R = 0;
  double fMin_T = 0;
  double fMax_T = 0;
};

}  // namespace GeometryEngine

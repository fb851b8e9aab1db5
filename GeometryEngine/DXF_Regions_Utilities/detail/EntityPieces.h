#pragma once

#include <cstddef>
#include <span>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TInterceptRows.h"

namespace GeometryEngine::detail {

/// The part of a line or an arc from one of its points to another.
TDXFEntity CreatePiece(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd, const TDXFEntity& aEntity);

inline const TEntityCoordinate& GetPoint(const TTreeNode* aNode) {
  return aNode->Coordinates();
}

inline const TEntityCoordinate& GetPoint(const TInterceptRows::TPoint& aPoint) {
  return aPoint.fPoint;
}

/// Calls `aVisit(TDXFEntity&&)` for each piece of SplitEntity_FromIntercepts, in order. The points are those of a row
/// of interceptions, or of the nodes that hold them.
template <class TPoint, class TVisit>
void ForEachPiece(const TDXFEntity& aEntity, std::span<TPoint> aPoints, const TVisit& aVisit) {
  if (aEntity.EntityType != DXFLine && aEntity.EntityType != DXFArc) return;
  const TEntityCoordinate& start = aEntity.StartCoords;
  const TEntityCoordinate& end = aEntity.EndCoords;
  if (start == end) return;
  for (std::size_t i = 1; i < aPoints.size(); ++i) {
    aVisit(CreatePiece(GetPoint(aPoints[i - 1]), GetPoint(aPoints[i]), aEntity));
  }
  if (aPoints.size() > 1) return;
  const bool isCut = aPoints.size() == 1 && GetPoint(aPoints[0]) != start && GetPoint(aPoints[0]) != end;
  if (!isCut) return aVisit(TDXFEntity(aEntity));
  aVisit(CreatePiece(start, GetPoint(aPoints[0]), aEntity));
  aVisit(CreatePiece(GetPoint(aPoints[0]), end, aEntity));
}

}  // namespace GeometryEngine::detail

#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"

namespace GeometryEngine::detail {

/// The part of a line or an arc from one of its points to another.
TDXFEntity CreatePiece(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd, const TDXFEntity& aEntity);

/// Calls `aVisit(TDXFEntity&&)` for each piece of SplitEntity_FromIntercepts, in order.
template <class TVisit>
void ForEachPiece(const TDXFEntity& aEntity, const TTreeNode& aNode, const TVisit& aVisit) {
  if (aEntity.EntityType != DXFLine && aEntity.EntityType != DXFArc) return;
  const TEntityCoordinate& start = aEntity.StartCoords;
  const TEntityCoordinate& end = aEntity.EndCoords;
  if (start == end) return;
  const std::span<TTreeNode* const> points = aNode.Children();
  for (std::size_t i = 1; i < points.size(); ++i) {
    aVisit(CreatePiece(points[i - 1]->Coordinates(), points[i]->Coordinates(), aEntity));
  }
  if (points.size() > 1) return;
  const bool isCut = points.size() == 1 && points[0]->Coordinates() != start && points[0]->Coordinates() != end;
  if (!isCut) return aVisit(TDXFEntity(aEntity));
  aVisit(CreatePiece(start, points[0]->Coordinates(), aEntity));
  aVisit(CreatePiece(points[0]->Coordinates(), end, aEntity));
}

}  // namespace GeometryEngine::detail

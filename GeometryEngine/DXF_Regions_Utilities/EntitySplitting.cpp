#include "GeometryEngine/DXF_Regions_Utilities/EntitySplitting.h"

#include <utility>

#include "GeometryEngine/DXF_Regions_Utilities/detail/EntityPieces.h"
#include "GeometryEngine/GeometryCreation_Drawing/CoordinateCleaning.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/GeometryFuncts/CoordinateAngles.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

double GetPieceAngle(const TEntityCoordinate& aPoint, const TDXFEntity& aArc) {
  return GetAngleInRange(GetCoordinateAngle_AboutPoint(aPoint, aArc.CentreCoords), 0, kFullTurn);
}

}  // namespace

TDXFEntity detail::CreatePiece(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                               const TDXFEntity& aEntity) {
  return aEntity.EntityType == DXFLine ? CreateEntity_Line(aStart, aEnd)
                                       : CreateEntity_Arc_CoordinateTree(aStart, aEnd, aEntity);
}

TEntityArray SplitEntity_FromIntercepts(const TDXFEntity& aEntity, const TTreeNode* aNode) {
  TEntityArray pieces;
  const std::span<TTreeNode* const> points = aNode == nullptr ? std::span<TTreeNode* const>() : aNode->Children();
  detail::ForEachPiece(aEntity, points, [&](TDXFEntity&& piece) { pieces.push_back(std::move(piece)); });
  return pieces;
}

TDXFEntity CreateEntity_Arc_CoordinateTree(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                           const TDXFEntity& aArc) {
  return TDXFEntity::Arc(CheckCoordinate(aStart), CheckCoordinate(aEnd), CheckCoordinate(aArc.CentreCoords),
                         aArc.radius, GetPieceAngle(aStart, aArc), GetPieceAngle(aEnd, aArc));
}

}  // namespace GeometryEngine

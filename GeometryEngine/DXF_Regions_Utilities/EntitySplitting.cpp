#include "GeometryEngine/DXF_Regions_Utilities/EntitySplitting.h"

#include "GeometryEngine/GeometryCreation_Drawing/CoordinateCleaning.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/GeometryFuncts/CoordinateAngles.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

constexpr double kFullTurn = 360;  // degrees

// The points between which the pieces run; empty when the entity stays whole.
TCoordinateArray GetSplitPoints(const TDXFEntity& aEntity, const TTreeNode* aNode) {
  TCoordinateArray points;
  if (aNode == nullptr) return points;
  for (const TTreeNode* child : aNode->Children()) points.push_back(child->Coordinates());
  if (points.size() != 1) return points;
  if (points[0] == aEntity.StartCoords || points[0] == aEntity.EndCoords) return {};
  return {aEntity.StartCoords, points[0], aEntity.EndCoords};
}

TDXFEntity CreatePiece(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd, const TDXFEntity& aEntity) {
  return aEntity.EntityType == DXFLine ? CreateEntity_Line(aStart, aEnd)
                                       : CreateEntity_Arc_CoordinateTree(aStart, aEnd, aEntity);
}

double GetPieceAngle(const TEntityCoordinate& aPoint, const TDXFEntity& aArc) {
  return GetAngleInRange(GetCoordinateAngle_AboutPoint(aPoint, aArc.CentreCoords), 0, kFullTurn);
}

}  // namespace

TEntityArray SplitEntity_FromIntercepts(const TDXFEntity& aEntity, const TTreeNode* aNode) {
  if (aEntity.EntityType != DXFLine && aEntity.EntityType != DXFArc) return {};
  if (aEntity.StartCoords == aEntity.EndCoords) return {};
  const TCoordinateArray points = GetSplitPoints(aEntity, aNode);
  if (points.empty()) return {aEntity};
  TEntityArray pieces;
  for (std::size_t i = 1; i < points.size(); ++i) pieces.push_back(CreatePiece(points[i - 1], points[i], aEntity));
  return pieces;
}

TDXFEntity CreateEntity_Arc_CoordinateTree(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                           const TDXFEntity& aArc) {
  return TDXFEntity::Arc(CheckCoordinate(aStart), CheckCoordinate(aEnd), CheckCoordinate(aArc.CentreCoords),
                         aArc.radius, GetPieceAngle(aStart, aArc), GetPieceAngle(aEnd, aArc));
}

}  // namespace GeometryEngine

#include "GeometryEngine/GeometryCreation_Drawing/CoordinateCleaning.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "GeometryEngine/GeometryFuncts/CoordinateAngles.h"
#include "GeometryEngine/host/Numerics.h"
#include "tests/reference/plain/Detection.h"
#include "tests/reference/plain/Pairs.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

namespace {

double SortAngle(double aAngle) {
  return ValuesSame_DXFAngle(aAngle, 0) ? 0 : GetAngleInRange(aAngle, 0, 360);
}

/// The point's angle along the arc, beyond 360 past the positive x axis of an arc that passes it.
double AngleAlong(const TDXFEntity& aArc, const TEntityCoordinate& aPoint) {
  const double start = SortAngle(aArc.startAngle);
  const double end = SortAngle(aArc.endAngle);
  const double angle = Plain::GetArcInterceptAngle(aPoint, aArc, start, end);
  return start > end && (end > angle || ValuesSame_DXFAngle(angle, end)) ? angle + 360 : angle;
}

bool ComesBefore(const TDXFEntity& aEntity, const TEntityCoordinate& aPoint, const TEntityCoordinate& aListed) {
  if (aEntity.EntityType == DXFArc) return AngleAlong(aEntity, aListed) > AngleAlong(aEntity, aPoint);
  if (aEntity.EntityType != DXFLine) return true;
  return ValueMoreThan_DXFTolerance(aPoint.x, aListed.x) ||
         (ValuesSame_DXFTolerance(aPoint.x, aListed.x) && aPoint.y > aListed.y);
}

TCoordinateArray SplitPoints(const TDXFEntity& aEntity, const TTreeNode& aNode) {
  TCoordinateArray points;
  for (const TTreeNode* child : aNode.Children()) points.push_back(child->Coordinates());
  if (points.size() != 1) return points;
  if (Same(points[0], aEntity.StartCoords) || Same(points[0], aEntity.EndCoords)) return {};
  return {aEntity.StartCoords, points[0], aEntity.EndCoords};
}

double PieceAngle(const TEntityCoordinate& aPoint, const TDXFEntity& aArc) {
  return GetAngleInRange(GetCoordinateAngle_AboutPoint(aPoint, aArc.CentreCoords), 0, 360);
}

TDXFEntity Piece(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd, const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFLine) return CreateEntity_Line(aStart, aEnd);
  return TDXFEntity::Arc(CheckCoordinate(aStart), CheckCoordinate(aEnd), CheckCoordinate(aEntity.CentreCoords),
                         aEntity.radius, PieceAngle(aStart, aEntity), PieceAngle(aEnd, aEntity));
}

}  // namespace

TTreeNode* AddInterception(TEntityTree& aTree, const TDXFEntity& aEntity, TIndex aIndex,
                           const TEntityCoordinate& aPoint) {
  TTreeNode* node = aTree.Search_L1_Entities(aEntity);
  if (node == nullptr) {
    node = aTree.AddTreeNode_ToRoot();
    node->fEntityIndex = aIndex;
  }
  if (TTreeNode* known = aTree.Search_L2_Coordinates(aPoint, node)) return known;
  TIndex position = 0;
  while (position < node->Count() && !ComesBefore(aEntity, aPoint, node->GetNode(position)->Coordinates())) ++position;
  TTreeNode* point = aTree.AddTreeNode_AtIndex(node, position);
  point->fCoordinates = aPoint;
  return point;
}

TEntityArray SplitEntity_FromIntercepts(const TDXFEntity& aEntity, const TTreeNode& aNode) {
  if (aEntity.EntityType != DXFLine && aEntity.EntityType != DXFArc) return {};
  if (Same(aEntity.StartCoords, aEntity.EndCoords)) return {};
  const TCoordinateArray points = SplitPoints(aEntity, aNode);
  if (points.empty()) return {aEntity};
  TEntityArray pieces;
  for (std::size_t i = 1; i < points.size(); ++i) pieces.push_back(Piece(points[i - 1], points[i], aEntity));
  return pieces;
}

}  // namespace GeometryEngine::Plain

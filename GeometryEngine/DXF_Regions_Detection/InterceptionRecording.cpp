#include "GeometryEngine/DXF_Regions_Detection/InterceptionRecording.h"

#include "GeometryEngine/DXF_Regions_Detection/detail/PointOrder.h"

namespace GeometryEngine {

namespace {

template <class TComesBefore>
TIndex GetPosition(const TTreeNode& aNode, const TComesBefore& aComesBefore) {
  TIndex position = 0;
  for (const TTreeNode* child : aNode.Children()) {
    if (aComesBefore(child->Coordinates())) break;
    ++position;
  }
  return position;
}

TIndex GetPosition_Line(const TTreeNode& aNode, const TEntityCoordinate& aPoint) {
  return GetPosition(aNode, [&](const TEntityCoordinate& listed) { return detail::ComesBefore_Line(aPoint, listed); });
}

TIndex GetPosition_Arc(const TTreeNode& aNode, const TDXFEntity& aArc, const TEntityCoordinate& aPoint) {
  const detail::TArcOrder order(aArc);
  const double angle = order.GetAngle(aPoint);
  return GetPosition(aNode, [&](const TEntityCoordinate& listed) { return order.GetAngle(listed) > angle; });
}

TIndex GetInsertPosition(const TTreeNode& aNode, const TDXFEntity& aEntity, const TEntityCoordinate& aPoint) {
  if (aEntity.EntityType == DXFLine) return GetPosition_Line(aNode, aPoint);
  return aEntity.EntityType == DXFArc ? GetPosition_Arc(aNode, aEntity, aPoint) : 0;
}

TTreeNode* AddEntityNode(TEntityTree& aTree, TIndex aIndex) {
  TTreeNode* node = aTree.AddTreeNode_ToRoot();
  node->EntityIndex(aIndex);
  return node;
}

}  // namespace

TTreeNode* AddInterception(TEntityTree& aTree, const TDXFEntity& aEntity, TIndex aIndex,
                           const TEntityCoordinate& aPoint) {
  TTreeNode* node = aTree.Search_L1_Entities(aEntity);
  if (node == nullptr) node = AddEntityNode(aTree, aIndex);
  if (TTreeNode* known = aTree.Search_L2_Coordinates(aPoint, node); known != nullptr) return known;
  TTreeNode* point = aTree.AddTreeNode_AtIndex(node, GetInsertPosition(*node, aEntity, aPoint));
  point->Coordinates(aPoint);
  return point;
}

void AddInterceptions(TEntityTree& aTree, const TInterceptionPoints& aPoints, const TDXFEntity& aEntity_A,
                      const TDXFEntity& aEntity_B, TIndex aIndex_A, TIndex aIndex_B) {
  for (const TEntityCoordinate& point : aPoints.Points()) {
    AddInterception(aTree, aEntity_A, aIndex_A, point);
    AddInterception(aTree, aEntity_B, aIndex_B, point);
  }
}

}  // namespace GeometryEngine

#include "GeometryEngine/DXF_Regions_Detection/EntityMerging.h"

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Regions_Utilities/SectionBoundaries.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/VerticalLine.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"

namespace GeometryEngine {

namespace {

double GetSlope(bool aIsVertical, const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  return aIsVertical ? 0 : (aFrom.y - aTo.y) / (aFrom.x - aTo.x);
}

bool AreArcsOfOneCircle(const TDXFEntity& aArc_A, const TDXFEntity& aArc_B) {
  // KEPT: radii have to be equal to the bit; pieces split from one arc share it, and arcs of two circles stay apart.
  return aArc_A.CentreCoords == aArc_B.CentreCoords && aArc_A.radius == aArc_B.radius;
}

bool AreLinesInARow(const TEntityCoordinate& aPoint_0, const TEntityCoordinate& aPoint_1,
                    const TEntityCoordinate& aPoint_2) {
  const bool isVertical_A = GetIfVerticalLine(aPoint_0.x, aPoint_1.x);
  const bool isVertical_B = GetIfVerticalLine(aPoint_1.x, aPoint_2.x);
  // KEPT: slopes are held against each other under the linear tolerance, a length; the one setting decides here too.
  return ValuesSame_DXFTolerance(GetSlope(isVertical_A, aPoint_0, aPoint_1),
                                 GetSlope(isVertical_B, aPoint_1, aPoint_2)) &&
         isVertical_A == isVertical_B;
}

/// The arc over both entities: an arc always runs anticlockwise, whichever way the walk passes it.
TDXFEntity GetMergedArc(const TEntityMerge& aMerge, const TDXFEntity& aEntity_2, const TEntityCoordinate& aPoint_3) {
  const TDXFEntity& first = aMerge.fEntity;
  const TEntityCoordinate& c1 = aMerge.fPoint_1;
  const TEntityCoordinate& c2 = aMerge.fPoint_2;
  if (c1 == first.StartCoords)
    return TDXFEntity::Arc(c1, aPoint_3, first.CentreCoords, first.radius, GetEntityStartAngle_Arc(c1, first),
                           GetEntityEndAngle_Arc(c2, aEntity_2));
  return TDXFEntity::Arc(aPoint_3, c1, first.CentreCoords, first.radius, GetEntityStartAngle_Arc(aPoint_3, aEntity_2),
                         GetEntityEndAngle_Arc(c2, first));
}

/// Appends the entity to the tree's storage and to the region as its child at the position.
TTreeNode* AddEntityNode(TEntityTree& aTree, TTreeNode* aRegion, const TDXFEntity& aEntity, TIndex aPosition) {
  TEntityStorage* storage = aTree.pEntityStorage();
  if (storage == nullptr) return nullptr;
  TTreeNode* node = aTree.AddTreeNode_AtIndex(aRegion, aPosition);
  if (node != nullptr) node->EntityIndex(storage->AddEntity(aEntity) - 1);
  return node;
}

}  // namespace

bool CheckEntitiesForMerge(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, const TEntityCoordinate& aPoint_0,
                           const TEntityCoordinate& aPoint_1, const TEntityCoordinate& aPoint_2) {
  if (aEntity_A.EntityType != aEntity_B.EntityType) return false;
  if (aEntity_A.EntityType == DXFArc) return AreArcsOfOneCircle(aEntity_A, aEntity_B);
  return aEntity_A.EntityType == DXFLine && AreLinesInARow(aPoint_0, aPoint_1, aPoint_2);
}

bool DetectMergeEntity(TEntityTree& aTree, TEntityMerge& aMerge, const TDXFEntity& aEntity_2,
                       const TEntityCoordinate& aPoint_3, TIndex aPosition) {
  if (!CheckEntitiesForMerge(aMerge.fEntity, aEntity_2, aMerge.fPoint_1, aMerge.fPoint_2, aPoint_3)) {
    aMerge.fPoint_1 = aMerge.fPoint_2;
    return false;
  }
  aMerge.fEntity = aMerge.fEntity.EntityType == DXFArc ? GetMergedArc(aMerge, aEntity_2, aPoint_3)
                                                       : TDXFEntity::Line(aMerge.fPoint_1, aPoint_3);
  aMerge.fPoint_2 = GetEntityEndCoordinate(aMerge.fPoint_1, aMerge.fEntity);
  AddTreeNodeToArray(aMerge.fRemovals, aMerge.fNode_A);
  aMerge.fRemovalPosition = AddTreeNodeToArray(aMerge.fRemovals, aMerge.fNode_B);
  aMerge.fNode_A = AddEntityNode(aTree, aMerge.fParent, aMerge.fEntity, aPosition);
  ++aMerge.fMergeCount;
  return true;
}

TTreeNode* GenerateBlankRegion(TEntityTree& aRegionTree, double r1, double r2, double a1, double a2) {
  const TEntityArray entities = GetBlankRegionEntities(r1, r2, a1, a2);
  TTreeNode* region = aRegionTree.AddTreeNode_ToRoot();
  region->Coordinates(entities.front().StartCoords);
  region->ResetRegionIdentifier();
  for (const TDXFEntity& entity : entities) AddEntityNode(aRegionTree, region, entity, region->Count());
  return region;
}

}  // namespace GeometryEngine

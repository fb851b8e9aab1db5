#include <tuple>

#include "GeometryEngine/host/Numerics.h"
#include "tests/reference/plain/Detection.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

namespace {

bool Continues(const TDXFEntity& A, const TDXFEntity& B, const TEntityCoordinate& aPoint_0,
               const TEntityCoordinate& aPoint_1, const TEntityCoordinate& aPoint_2) {
  if (A.EntityType != B.EntityType) return false;
  if (A.EntityType == DXFArc) return Same(A.CentreCoords, B.CentreCoords) && A.radius == B.radius;
  if (A.EntityType != DXFLine) return false;
  const bool isVertical_A = ValuesClose_Standard(aPoint_0.x, aPoint_1.x);
  const bool isVertical_B = ValuesClose_Standard(aPoint_1.x, aPoint_2.x);
  const double slope_A = isVertical_A ? 0 : (aPoint_0.y - aPoint_1.y) / (aPoint_0.x - aPoint_1.x);
  const double slope_B = isVertical_B ? 0 : (aPoint_1.y - aPoint_2.y) / (aPoint_1.x - aPoint_2.x);
  return ValuesSame_DXFTolerance(slope_A, slope_B) && isVertical_A == isVertical_B;
}

TDXFEntity Merged(const TEntityMerge& aMerge, const TDXFEntity& aEntity_2, const TEntityCoordinate& aPoint_3) {
  const TDXFEntity& first = aMerge.fEntity;
  const auto& [c1, c2] = std::tie(aMerge.fPoint_1, aMerge.fPoint_2);
  if (first.EntityType == DXFLine) return TDXFEntity::Line(c1, aPoint_3);
  if (Same(c1, first.StartCoords))
    return TDXFEntity::Arc(c1, aPoint_3, first.CentreCoords, first.radius, Plain::GetEntityStartAngle_Arc(c1, first),
                           Plain::GetEntityEndAngle_Arc(c2, aEntity_2));
  return TDXFEntity::Arc(aPoint_3, c1, first.CentreCoords, first.radius,
                         Plain::GetEntityStartAngle_Arc(aPoint_3, aEntity_2), Plain::GetEntityEndAngle_Arc(c2, first));
}

}  // namespace

bool DetectMergeEntity(TEntityTree& aTree, TEntityMerge& aMerge, const TDXFEntity& aEntity_2,
                       const TEntityCoordinate& aPoint_3, TIndex aPosition) {
  if (!Continues(aMerge.fEntity, aEntity_2, aMerge.fPoint_1, aMerge.fPoint_2, aPoint_3)) {
    aMerge.fPoint_1 = aMerge.fPoint_2;
    return false;
  }
  aMerge.fEntity = Merged(aMerge, aEntity_2, aPoint_3);
  aMerge.fPoint_2 = Plain::GetEntityEndCoordinate(aMerge.fPoint_1, aMerge.fEntity);
  aMerge.fRemovals.push_back(aMerge.fNode_A);
  aMerge.fRemovals.push_back(aMerge.fNode_B);
  aMerge.fRemovalPosition = ToIndex(aMerge.fRemovals.size()) - 1;
  aMerge.fNode_A = aTree.AddTreeNode_AtIndex(aMerge.fParent, aPosition);
  aMerge.fNode_A->fEntityIndex = aTree.pEntityStorage()->Count();
  aTree.pEntityStorage()->AddEntity(aMerge.fEntity);
  ++aMerge.fMergeCount;
  return true;
}

}  // namespace GeometryEngine::Plain

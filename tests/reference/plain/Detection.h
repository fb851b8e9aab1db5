#pragma once

// What the passes of the driver are made of: recording and splitting, tracing, containment, merging.

#include <cstdint>
#include <span>
#include <vector>

#include "tests/reference/plain/TEntityTree.h"

namespace GeometryEngine::Plain {

// Recording and splitting
TTreeNode* AddInterception(TEntityTree& aTree, const TDXFEntity& aEntity, TIndex aIndex,
                           const TEntityCoordinate& aPoint);
TEntityArray SplitEntity_FromIntercepts(const TDXFEntity& aEntity, const TTreeNode& aNode);

// Tracing
struct TRegionWalk {
  TEntityCoordinate fStart;
  TEntityCoordinate fCentroid;
  double fArea = 0;
  TIntegerArray fPath;
  TIntegerArray fBlocked;
  bool fBacktracking = false;
};
void FindNextRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, TTreeNode* aEntityEnd, TRegionWalk& aWalk);

// Containment
std::int32_t CalculateWindingNumber(const TEntityTree& aTree, const TTreeNode* aRegion,
                                    const TEntityCoordinate& aPoint);
bool RegionContains_SubRegion(const TEntityTree& aTree, const TTreeNode* aRegion_A, const TTreeNode* aRegion_B);
TTreeNode* IdentifyRegionFromCoordinate(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree,
                                        const TEntityCoordinate& aPoint, TIndex& aRegionIndex);
void DetermineClockwiseSubRegions(TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree,
                                  const TTreeNode* aRegion, TIndex aRegionIndex);
bool GenerateRegionPoint(const TEntityTree& aTree, const TTreeNode* aRegion_R, const TTreeNode* aRegion_T,
                         double aRadius_Min, double aRadius_Max, double aAngle_1, double aAngle_2);

// Merging
struct TEntityMerge {
  TTreeNode* fNode_A = nullptr;
  TTreeNode* fNode_B = nullptr;
  TTreeNode* fParent = nullptr;
  TDXFEntity fEntity;
  TEntityCoordinate fPoint_1;
  TEntityCoordinate fPoint_2;
  std::vector<TTreeNode*> fRemovals;
  TIndex fRemovalPosition = kNotFound;
  std::int32_t fMergeCount = 0;
};
bool DetectMergeEntity(TEntityTree& aTree, TEntityMerge& aMerge, const TDXFEntity& aEntity_2,
                       const TEntityCoordinate& aPoint_3, TIndex aPosition);

}  // namespace GeometryEngine::Plain

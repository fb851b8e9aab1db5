#include "GeometryEngine/DXF_Regions_Detection/RegionTracing.h"

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

constexpr double kBelowEveryTurn = -1e12;  // degrees; the first candidate at a vertex beats it
constexpr std::int32_t kVector_Arriving = 0;
constexpr std::int32_t kVector_Leaving = 1;

// The half-edge that a walk takes next and the vertex that it leaves; without a half-edge the walk is over.
struct TWalkStep {
  TTreeNode* fVertex = nullptr;
  TTreeNode* fEntityEnd = nullptr;
};

// The entity just walked, from the vertex that was left to its far end.
struct TWalkedEntity {
  const TDXFEntity& fEntity;
  TEntityCoordinate fFrom;
  TEntityCoordinate fFarEnd;
};

// A half-edge that leaves the vertex just reached.
struct TTurn {
  TTreeNode* fEntityEnd = nullptr;
  TEntityCoordinate fFarEnd;
  double fAngle = kBelowEveryTurn;
};

// A sign of -1 takes back what a sign of +1 has added.
void AddTerms(const TWalkedEntity& aWalked, double aSign, TRegionWalk& aWalk) {
  const auto& [entity, from, farEnd] = aWalked;
  aWalk.fCentroid = aWalk.fCentroid + aSign * GetCentroidComponent_Entity(from, farEnd, entity);
  aWalk.fArea = aWalk.fArea + aSign * GetSignedArea_Entity(from, farEnd, entity);
}

TTurn GetTurn(const TEntityTree& aTree, TTreeNode* aCandidate, const TEntityCoordinate& aVertex,
              const TVector_Single& aArriving) {
  const TDXFEntity& entity = aTree.GetNodeEntity(*aCandidate);
  const TEntityCoordinate farEnd = GetEntityEndCoordinate(aVertex, entity);
  const TVector_Single leaving = GetEntityVector(aVertex, farEnd, entity, kVector_Leaving);
  return {aCandidate, farEnd, GetAngleBetweenVectors(aArriving, leaving) * kDegreesPerRadian};
}

bool IsSharper(const TTurn& aTurn, const TTurn& aBest, const TEntityCoordinate& aVertex) {
  if (aTurn.fAngle > aBest.fAngle) return true;
  return aTurn.fAngle == aBest.fAngle && IsPointLeft_Line(aTurn.fFarEnd, aVertex, aBest.fFarEnd) > 0;
}

// Among the half-edges free to take, the one with the sharpest left turn; none at a vertex without one.
TTurn FindSharpestTurn(const TEntityTree& aTree, const TTreeNode* aVertex, const TWalkedEntity& aWalked) {
  TTurn best;
  if (aVertex == nullptr) return best;
  const auto& [entity, from, farEnd] = aWalked;
  const TVector_Single arriving = GetEntityVector(from, farEnd, entity, kVector_Arriving);
  for (TTreeNode* candidate : aVertex->Children()) {
    if (aTree.GetNodeEntity(*candidate) == entity || candidate->Travelled()) continue;
    const TTurn turn = GetTurn(aTree, candidate, farEnd, arriving);
    if (IsSharper(turn, best, farEnd)) best = turn;
  }
  return best;
}

void MarkWalked(TTreeNode& aEntityEnd, TRegionWalk& aWalk) {
  aEntityEnd.Travelled(true);
  aWalk.fPath.push_back(aEntityEnd.AbsoluteIndex());
}

void FreeBlocked(TEntityTree& aTree, const TRegionWalk& aWalk) {
  for (const std::int32_t index : aWalk.fBlocked) aTree.ResetTravelledFlag(index);
}

void CloseLoop(TEntityTree& aTree, const TTurn& aLast, const TEntityCoordinate& aVertex, TRegionWalk& aWalk) {
  if (aWalk.fBacktracking) FreeBlocked(aTree, aWalk);
  MarkWalked(*aLast.fEntityEnd, aWalk);
  AddTerms({aTree.GetNodeEntity(*aLast.fEntityEnd), aVertex, aLast.fFarEnd}, 1, aWalk);
  aWalk.fCentroid = (1 / (aWalk.fArea * 6)) * aWalk.fCentroid;
}

// The half-edge walked before the last one, or none when the walk stands at its start.
TWalkStep GetPreviousStep(const TEntityTree& aTree, const TRegionWalk& aWalk) {
  if (aWalk.fPath.size() < 2) return {};
  TTreeNode* previous = aTree.GetNodeFromIndex(aWalk.fPath[aWalk.fPath.size() - 2]);
  if (previous == nullptr || previous->Parent() == nullptr) return {};
  return {previous->Parent(), previous};
}

TWalkStep StepBack(TEntityTree& aTree, const TWalkedEntity& aWalked, TRegionWalk& aWalk) {
  if (aWalk.fPath.empty()) return {};
  aWalk.fBacktracking = true;
  aWalk.fBlocked.push_back(aWalk.fPath.back());
  const TWalkStep previous = GetPreviousStep(aTree, aWalk);
  if (previous.fEntityEnd == nullptr) {
    FreeBlocked(aTree, aWalk);
    aWalk.fPath.clear();
    return {};
  }
  const TDXFEntity& entity = aTree.GetNodeEntity(*previous.fEntityEnd);
  const TEntityCoordinate from = previous.fVertex->Coordinates();
  AddTerms(aWalked, -1, aWalk);
  AddTerms({entity, from, GetEntityEndCoordinate(from, entity)}, -1, aWalk);
  aWalk.fPath.resize(aWalk.fPath.size() - 2);
  return previous;
}

TWalkStep WalkOn(TEntityTree& aTree, const TWalkStep& aStep, TRegionWalk& aWalk) {
  const TDXFEntity& entity = aTree.GetNodeEntity(*aStep.fEntityEnd);
  const TEntityCoordinate from = aStep.fVertex->Coordinates();
  const TWalkedEntity walked{entity, from, GetEntityEndCoordinate(from, entity)};
  MarkWalked(*aStep.fEntityEnd, aWalk);
  TTreeNode* vertex = aTree.Search_L1_Coords(walked.fFarEnd);
  AddTerms(walked, 1, aWalk);

  const TTurn best = FindSharpestTurn(aTree, vertex, walked);
  const bool deadEnd = best.fEntityEnd == nullptr;
  if (deadEnd && !aWalk.fBacktracking) return {};
  if (deadEnd) return StepBack(aTree, walked, aWalk);
  if (aWalk.fBacktracking && IsEntityInRegionPath(aTree, aWalk.fPath, best.fEntityEnd->EntityIndex())) {
    return StepBack(aTree, walked, aWalk);
  }
  // KEPT: a loop closes where it first comes back to its start. One that passes a vertex twice is traced as a whole
  // from every other vertex, but falls apart at that one; hosts index regions by what this rule yields.
  if (best.fFarEnd == aWalk.fStart) {
    CloseLoop(aTree, best, walked.fFarEnd, aWalk);
    return {};
  }
  return {vertex, best.fEntityEnd};
}

// Ends for every input. A step forwards marks a half-edge that was free, and no mark is taken back before the walk
// is over, so there are at most as many of them as half-edges. A step back shortens the path by one, so there are at
// most as many of those as steps forwards. Neither argument rests on a comparison of coordinates.
void WalkToEnd(TEntityTree& aTree, TWalkStep aStep, TRegionWalk& aWalk) {
  while (aStep.fEntityEnd != nullptr) aStep = WalkOn(aTree, aStep, aWalk);
}

}  // namespace

void FindNextRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, TTreeNode* aEntityEnd, TRegionWalk& aWalk) {
  if (aVertex != nullptr) WalkToEnd(aTree, {aVertex, aEntityEnd}, aWalk);
}

void StepBackRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, const TEntityCoordinate& aFarEnd,
                          const TDXFEntity& aEntity, TRegionWalk& aWalk) {
  if (aVertex == nullptr) return;
  WalkToEnd(aTree, StepBack(aTree, {aEntity, aVertex->Coordinates(), aFarEnd}, aWalk), aWalk);
}

bool IsEntityInRegionPath(const TEntityTree& aTree, std::span<const std::int32_t> aPath, TIndex aEntityIndex) {
  for (const std::int32_t index : aPath) {
    const TTreeNode* node = aTree.GetNodeFromIndex(index);
    if (node != nullptr && node->EntityIndex() == aEntityIndex) return true;
  }
  return false;
}

}  // namespace GeometryEngine

#include <algorithm>

#include "GeometryEngine/host/Numerics.h"
#include "tests/reference/plain/Detection.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

namespace {

/// A half-edge and the vertex that it leaves.
struct TStep {
  TTreeNode* fVertex = nullptr;
  TTreeNode* fEntityEnd = nullptr;
};

TEntityCoordinate FarEnd(const TEntityTree& aTree, const TStep& aStep) {
  return Plain::GetEntityEndCoordinate(aStep.fVertex->fCoordinates, aTree.GetNodeEntity(*aStep.fEntityEnd));
}

void AddTerms(const TEntityTree& aTree, const TStep& aStep, double aSign, TRegionWalk& aWalk) {
  const TDXFEntity& entity = aTree.GetNodeEntity(*aStep.fEntityEnd);
  const TEntityCoordinate from = aStep.fVertex->fCoordinates;
  const TEntityCoordinate to = FarEnd(aTree, aStep);
  aWalk.fCentroid = aWalk.fCentroid + aSign * Plain::GetCentroidComponent_Entity(from, to, entity);
  aWalk.fArea = aWalk.fArea + aSign * Plain::GetSignedArea_Entity(from, to, entity);
}

bool IsOnPath(const TEntityTree& aTree, const TRegionWalk& aWalk, TIndex aEntityIndex) {
  return std::ranges::any_of(
      aWalk.fPath, [&](std::int32_t index) { return aTree.GetNodeFromIndex(index)->fEntityIndex == aEntityIndex; });
}

/// The sharpest left turn at the far end of a step; of two in one direction, the one that ends further left.
TTreeNode* SharpestTurn(const TEntityTree& aTree, const TStep& aStep, const TTreeNode* aVertex) {
  const TDXFEntity& entity = aTree.GetNodeEntity(*aStep.fEntityEnd);
  const TEntityCoordinate here = FarEnd(aTree, aStep);
  const TVector_Single arriving = Plain::GetEntityVector(aStep.fVertex->fCoordinates, here, entity, 0);
  TTreeNode* best = nullptr;
  double bestAngle = -1e12;
  TEntityCoordinate bestEnd;
  for (TTreeNode* candidate : aVertex->Children()) {
    const TDXFEntity& leaving = aTree.GetNodeEntity(*candidate);
    if (Same(leaving, entity) || candidate->fTravelled) continue;
    const TEntityCoordinate end = Plain::GetEntityEndCoordinate(here, leaving);
    const double angle =
        Plain::GetAngleBetweenVectors(arriving, Plain::GetEntityVector(here, end, leaving, 1)) * kDegreesPerRadian;
    if (!(angle > bestAngle) && !(angle == bestAngle && Plain::IsPointLeft_Line(end, here, bestEnd) > 0)) continue;
    best = candidate;
    bestAngle = angle;
    bestEnd = end;
  }
  return best;
}

void Mark(TTreeNode& aEntityEnd, TRegionWalk& aWalk) {
  aEntityEnd.fTravelled = true;
  aWalk.fPath.push_back(aEntityEnd.fIndex);
}

void FreeBlocked(const TEntityTree& aTree, const TRegionWalk& aWalk) {
  for (const std::int32_t index : aWalk.fBlocked) aTree.GetNodeFromIndex(index)->fTravelled = false;
}

/// Takes the last two half-edges off the path; the walk goes on with the former of them.
TStep StepBack(const TEntityTree& aTree, const TStep& aStep, TRegionWalk& aWalk) {
  aWalk.fBlocked.push_back(aWalk.fPath.back());
  aWalk.fPath.pop_back();
  if (aWalk.fPath.empty()) {
    FreeBlocked(aTree, aWalk);
    return {};
  }
  TTreeNode* previous = aTree.GetNodeFromIndex(aWalk.fPath.back());
  aWalk.fPath.pop_back();
  AddTerms(aTree, aStep, -1, aWalk);
  AddTerms(aTree, {previous->fParent, previous}, -1, aWalk);
  return {previous->fParent, previous};
}

/// Closes the loop with a half-edge from the vertex at `aHere`.
void Close(const TEntityTree& aTree, TTreeNode& aLast, const TEntityCoordinate& aHere, TRegionWalk& aWalk) {
  if (aWalk.fBacktracking) FreeBlocked(aTree, aWalk);
  Mark(aLast, aWalk);
  const TDXFEntity& entity = aTree.GetNodeEntity(aLast);
  const TEntityCoordinate end = Plain::GetEntityEndCoordinate(aHere, entity);
  aWalk.fCentroid = aWalk.fCentroid + Plain::GetCentroidComponent_Entity(aHere, end, entity);
  aWalk.fArea = aWalk.fArea + Plain::GetSignedArea_Entity(aHere, end, entity);
  aWalk.fCentroid = (1 / (aWalk.fArea * 6)) * aWalk.fCentroid;
}

TStep WalkOn(TEntityTree& aTree, const TStep& aStep, TRegionWalk& aWalk) {
  Mark(*aStep.fEntityEnd, aWalk);
  AddTerms(aTree, aStep, 1, aWalk);
  const TEntityCoordinate here = FarEnd(aTree, aStep);
  TTreeNode* vertex = aTree.Search_L1_Coords(here);
  TTreeNode* best = vertex == nullptr ? nullptr : SharpestTurn(aTree, aStep, vertex);
  if (best == nullptr) return aWalk.fBacktracking ? StepBack(aTree, aStep, aWalk) : TStep{};
  if (aWalk.fBacktracking && IsOnPath(aTree, aWalk, best->fEntityIndex)) return StepBack(aTree, aStep, aWalk);
  if (!Same(Plain::GetEntityEndCoordinate(here, aTree.GetNodeEntity(*best)), aWalk.fStart)) return {vertex, best};
  Close(aTree, *best, here, aWalk);
  return {};
}

}  // namespace

void FindNextRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, TTreeNode* aEntityEnd, TRegionWalk& aWalk) {
  TStep step{aVertex, aEntityEnd};
  while (step.fEntityEnd != nullptr) step = WalkOn(aTree, step, aWalk);
}

}  // namespace GeometryEngine::Plain

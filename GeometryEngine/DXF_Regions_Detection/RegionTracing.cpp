#include "GeometryEngine/DXF_Regions_Detection/RegionTracing.h"

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/WalkRule.h"

namespace GeometryEngine {

namespace {

// A half-edge and the vertex that it leaves.
struct TStep {
  TTreeNode* fVertex = nullptr;
  TTreeNode* fEntityEnd = nullptr;
  bool operator==(const TStep&) const = default;
};

// The entity just walked, from the vertex that was left to its far end.
struct TWalkedEntity {
  const TDXFEntity& fEntity;
  TEntityCoordinate fFrom;
  TEntityCoordinate fFarEnd;
};

// A sign of -1 takes back what a sign of +1 has added.
void AddTerms(const TWalkedEntity& aWalked, double aSign, TRegionWalk& aWalk) {
  const auto& [entity, from, farEnd] = aWalked;
  aWalk.fCentroid = aWalk.fCentroid + aSign * GetCentroidComponent_Entity(from, farEnd, entity);
  aWalk.fArea = aWalk.fArea + aSign * GetSignedArea_Entity(from, farEnd, entity);
}

// A walk from node to node of a tree, on behalf of a host, who keeps its state.
class TTreeWalk {
 public:
  static constexpr TStep kNone{};

  TTreeWalk(TEntityTree& aTree, TRegionWalk& aWalk) : fTree(aTree), fWalk(aWalk) {}

  void Enter(const TStep& aStep) {
    fLast = aStep;
    Mark(*aStep.fEntityEnd);
    fReached = fTree.Search_L1_Coords(Walked(aStep).fFarEnd);
    AddTerms(Walked(aStep), 1, fWalk);
  }

  detail::TTurn<TStep> FindSharpestTurn() const {
    detail::TTurn<TStep> best;
    if (fReached == nullptr) return best;
    const auto& [entity, from, vertex] = Walked(fLast);
    const TVector_Single arriving = GetEntityVector(from, vertex, entity, detail::kVector_Arriving);
    for (TTreeNode* candidate : fReached->Children()) {
      const TDXFEntity& next = fTree.GetNodeEntity(*candidate);
      if (next == entity || candidate->Travelled()) continue;
      const TEntityCoordinate farEnd = GetEntityEndCoordinate(vertex, next);
      const double angle = detail::GetTurnAngle(arriving, vertex, farEnd, next);
      const detail::TTurn<TStep> turn{{fReached, candidate}, farEnd, angle};
      if (IsSharper(turn, best, vertex)) best = turn;
    }
    return best;
  }

  bool Backtracks() const { return fWalk.fBacktracking; }
  bool IsStart(const detail::TTurn<TStep>& aTurn) const { return aTurn.fFarEnd == fWalk.fStart; }
  bool IsOnPath(const TStep& aStep) const {
    return IsEntityInRegionPath(fTree, fWalk.fPath, aStep.fEntityEnd->EntityIndex());
  }

  void Close(const detail::TTurn<TStep>& aTurn) {
    if (fWalk.fBacktracking) FreeBlocked();
    const TStep& last = aTurn.fHalfEdge;
    Mark(*last.fEntityEnd);
    AddTerms({fTree.GetNodeEntity(*last.fEntityEnd), Walked(fLast).fFarEnd, aTurn.fFarEnd}, 1, fWalk);
    fWalk.fCentroid = (1 / (fWalk.fArea * 6)) * fWalk.fCentroid;
  }

  bool StepBack() { return StepBackFrom(Walked(fLast)); }

  bool StepBackFrom(const TWalkedEntity& aWalked) {
    if (fWalk.fPath.empty()) return false;
    fWalk.fBacktracking = true;
    fWalk.fBlocked.push_back(fWalk.fPath.back());
    const TStep previous = GetPrevious();
    if (previous == kNone) {
      FreeBlocked();
      fWalk.fPath.clear();
      return false;
    }
    AddTerms(aWalked, -1, fWalk);
    AddTerms(Walked(previous), -1, fWalk);
    fWalk.fPath.resize(fWalk.fPath.size() - 2);
    Enter(previous);
    return true;
  }

 private:
  TWalkedEntity Walked(const TStep& aStep) const {
    const TDXFEntity& entity = fTree.GetNodeEntity(*aStep.fEntityEnd);
    const TEntityCoordinate from = aStep.fVertex->Coordinates();
    return {entity, from, GetEntityEndCoordinate(from, entity)};
  }

  void Mark(TTreeNode& aEntityEnd) {
    aEntityEnd.Travelled(true);
    fWalk.fPath.push_back(aEntityEnd.AbsoluteIndex());
  }

  void FreeBlocked() {
    for (const std::int32_t index : fWalk.fBlocked) fTree.ResetTravelledFlag(index);
  }

  // The half-edge walked before the last one, or none when the walk stands at its start.
  TStep GetPrevious() const {
    if (fWalk.fPath.size() < 2) return kNone;
    TTreeNode* previous = fTree.GetNodeFromIndex(fWalk.fPath[fWalk.fPath.size() - 2]);
    if (previous == nullptr || previous->Parent() == nullptr) return kNone;
    return {previous->Parent(), previous};
  }

  TEntityTree& fTree;
  TRegionWalk& fWalk;
  TStep fLast;                    // the half-edge entered last
  TTreeNode* fReached = nullptr;  // the vertex at its far end
};

}  // namespace

void FindNextRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, TTreeNode* aEntityEnd, TRegionWalk& aWalk) {
  if (aVertex == nullptr || aEntityEnd == nullptr) return;
  TTreeWalk walk(aTree, aWalk);
  walk.Enter({aVertex, aEntityEnd});
  detail::WalkToEnd(walk);
}

void StepBackRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, const TEntityCoordinate& aFarEnd,
                          const TDXFEntity& aEntity, TRegionWalk& aWalk) {
  if (aVertex == nullptr) return;
  TTreeWalk walk(aTree, aWalk);
  if (walk.StepBackFrom({aEntity, aVertex->Coordinates(), aFarEnd})) detail::WalkToEnd(walk);
}

bool IsEntityInRegionPath(const TEntityTree& aTree, std::span<const std::int32_t> aPath, TIndex aEntityIndex) {
  for (const std::int32_t index : aPath) {
    const TTreeNode* node = aTree.GetNodeFromIndex(index);
    if (node != nullptr && node->EntityIndex() == aEntityIndex) return true;
  }
  return false;
}

}  // namespace GeometryEngine

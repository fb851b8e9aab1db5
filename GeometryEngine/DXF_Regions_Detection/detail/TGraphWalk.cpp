#include "GeometryEngine/DXF_Regions_Detection/detail/TGraphWalk.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/detail/PointSameness.h"
#include "GeometryEngine/host/detail/FetchAhead.h"

namespace GeometryEngine::detail {

namespace {

constexpr std::size_t kFirstLook = 32;       // half-edges blocked by a walk before it looks whether it may close
constexpr std::size_t kLaterLooks = 2;       // times as many
constexpr std::size_t kStepsBackAhead = 15;  // in which memory answers
constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

}  // namespace

TGraphWalk::TGraphWalk(const TVertexGraph& aGraph)
    : fGraph(aGraph),
      fOrder(aGraph),
      fWayBack(aGraph),
      fSums(aGraph),
      fTimesOnPath(aGraph.IsRegular() ? 0 : At(aGraph.EntityCount()), 0) {
  ReadMarks();
}

void TGraphWalk::ReadGraph() {
  fPath.clear();
  fBlocked.clear();
  fOrder.ReadGraph();
  fSums.ForgetTerms();
  ReadMarks();
}

void TGraphWalk::ReadMarks() {
  for (TIndex h = 0; h < fGraph.HalfEdgeCount(); ++h) {
    if (fGraph.HalfEdge(h).fIsTravelled) Take(h);
  }
  if (fGraph.IsRegular()) MarkDeadEnds();
}

void TGraphWalk::MarkDeadEnds() {
  for (TIndex h = 0; h < fGraph.HalfEdgeCount(); ++h) {
    const THalfEdge& halfEdge = fGraph.HalfEdge(h);
    if (fGraph.IsDangling(halfEdge.fVertex)) Mark(halfEdge.fTwin, kDeadEnd);
  }
}

void TGraphWalk::Walk(TIndex aHalfEdge, bool aBacktracking) {
  KeepMarks();
  fPath.clear();
  fBlocked.clear();
  fPassed.clear();
  fSteps.clear();
  fFirst = aHalfEdge;
  fStartVertex = fGraph.HalfEdge(aHalfEdge).fVertex;
  fStart = fGraph.Point(fStartVertex);
  fBacktracks = aBacktracking;
  fHasClosed = false;
  fHasStopped = false;
  fNextLook = fGraph.IsRegular() ? kFirstLook : kNever;
  Enter(aHalfEdge);
  WalkToEnd(*this);
}

// The path that the last walk has left.
void TGraphWalk::KeepMarks() {
  for (const TIndex h : fPath) {
    TakeOffPath(h);
    Unmark(h, kWalked);
    Take(h);
  }
}

void TGraphWalk::AvoidBridges(std::span<const std::uint8_t> aIsBridge) {
  fAvoidsBridges = true;
  for (std::size_t h = 0; h < aIsBridge.size(); ++h) {
    if (aIsBridge[h] != 0) Mark(static_cast<TIndex>(h), kBridge);
  }
}

// Beyond a bridge nothing was touched by the walk, so that it makes no difference when these steps are taken.
void TGraphWalk::AddStepsOverBridges() {
  std::swap(fSteps, fWalkedSteps);
  fSteps.clear();
  std::vector<TIndex> loop = std::exchange(fPath, {});
  fAvoidsBridges = false;
  fNextLook = kNever;
  std::size_t copied = 0;
  const auto copyUpTo = [&](std::size_t aEnd) {
    const std::span<const TIndex> next = std::span(fWalkedSteps).subspan(copied, aEnd - copied);
    fSteps.insert(fSteps.end(), next.begin(), next.end());
    copied = aEnd;
  };
  for (const auto& [steps, bridge] : fPassed) {
    copyUpTo(steps);
    Enter(bridge);
    WalkToEnd(*this);
    fSteps.push_back(TWalkSums::kStepBack);
  }
  copyUpTo(fWalkedSteps.size());
  fAvoidsBridges = true;
  fPath = std::move(loop);
}

double TGraphWalk::GetArea() {
  double area = 0;
  if (HasGoneToAndFro()) {
    const auto sums = fSums.GetSums(fSteps);
    area = sums.fArea;
    fCentroidSum = sums.fCentroid;
  } else {
    area = fSums.GetArea(fSteps);
  }
  if (!fHasClosed) return area;
  return area + GetSignedArea_Entity(fLastVertex, fLastFarEnd, fGraph.Curve(fGraph.HalfEdge(fPath.back())));
}

TEntityCoordinate TGraphWalk::GetCentroid(double aArea) {
  TEntityCoordinate sum = HasGoneToAndFro() ? fCentroidSum : fSums.GetCentroid(fSteps);
  if (!fHasClosed) return sum;
  const TDXFEntity& last = fGraph.Curve(fGraph.HalfEdge(fPath.back()));
  sum = sum + GetCentroidComponent_Entity(fLastVertex, fLastFarEnd, last);
  return (1 / (aArea * 6)) * sum;
}

bool TGraphWalk::HasGoneToAndFro() const {
  return fSteps.size() > fPath.size();
}

void TGraphWalk::WriteMarks() const {
  fGraph.WriteMarks([this](TIndex aHalfEdge) { return IsTravelled(aHalfEdge); });
}

inline void TGraphWalk::Enter(TIndex aHalfEdge) {
  fSteppedBack = kNone;
  Mark(aHalfEdge, kWalked);
  fPath.push_back(aHalfEdge);
  fSteps.push_back(aHalfEdge);
  if (fGraph.IsRegular()) return Mark(fOrder.Record(aHalfEdge).fTwin, kTwinOnPath);
  const TIndex entity = fGraph.HalfEdge(aHalfEdge).fEntityIndex;
  if (IsIndexWithin(entity, fTimesOnPath.size())) ++fTimesOnPath[At(entity)];
}

void TGraphWalk::TakeOffPath(TIndex aHalfEdge) {
  if (fGraph.IsRegular()) return Unmark(fOrder.Record(aHalfEdge).fTwin, kTwinOnPath);
  const TIndex entity = fGraph.HalfEdge(aHalfEdge).fEntityIndex;
  if (IsIndexWithin(entity, fTimesOnPath.size())) --fTimesOnPath[At(entity)];
}

// Asked about half-edges that are free: in a regular graph the entity has but one other.
inline bool TGraphWalk::IsOnPath(TIndex aHalfEdge) const {
  if (fGraph.IsRegular()) return (Marks(aHalfEdge) & kTwinOnPath) != 0;
  const TIndex entity = fGraph.HalfEdge(aHalfEdge).fEntityIndex;
  if (IsIndexWithin(entity, fTimesOnPath.size())) return fTimesOnPath[At(entity)] > 0;
  return std::ranges::any_of(fPath, [&](TIndex h) { return fGraph.HalfEdge(h).fEntityIndex == entity; });
}

// Vertices of a regular graph are all apart.
inline bool TGraphWalk::IsStart(const TTurn<TIndex>& aTurn) const {
  if (fGraph.IsRegular()) return fGraph.Leaves(fStartVertex, fOrder.Record(aTurn.fHalfEdge).fTwin);
  return AreSame(aTurn.fFarEnd, fStart, fGraph.Tolerance());
}

void TGraphWalk::FreeBlocked() {
  for (const TIndex h : fBlocked) Unmark(h, kWalked);
  fBlocked.clear();
}

void TGraphWalk::Close(const TTurn<TIndex>& aLast) {
  fLastVertex = fGraph.FarEnd(fGraph.HalfEdge(fPath.back()));
  fLastFarEnd = fGraph.IsRegular() ? fStart : aLast.fFarEnd;
  if (fBacktracks) FreeBlocked();
  Enter(aLast.fHalfEdge);
  fSteps.pop_back();  // its terms come last of all, whatever else is added
  fHasClosed = true;
}

inline bool TGraphWalk::StepBack() {
  const TIndex last = fPath.back();
  fBlocked.push_back(last);
  ++fStepsBack;
  if (fPath.size() < 2 || IsLost()) {
    GiveUp();
    return false;
  }
  TakeOffPath(last);
  fPath.pop_back();
  if (fPath.size() > kStepsBackAhead) FetchAhead(&fOrder.Record(fPath[fPath.size() - 1 - kStepsBackAhead]));
  fSteppedBack = last;
  fSteps.push_back(TWalkSums::kStepBack);
  return true;
}

void TGraphWalk::GiveUp() {
  for (const TIndex h : fPath) {
    TakeOffPath(h);
    Unmark(h, kWalked);
  }
  fPath.clear();
  FreeBlocked();
}

// Looking takes no longer than walking has taken so far.
bool TGraphWalk::IsLost() {
  if (fBlocked.size() < fNextLook) return false;
  fHasStopped = HasSteppedBackOften();
  if (fHasStopped) return true;
  const auto isOpen = [this](TIndex aHalfEdge) { return (Marks(aHalfEdge) & (kTaken | kBridge)) == 0; };
  const bool mayClose = fWayBack.MayExist(fFirst, fNextLook, isOpen);
  fNextLook *= kLaterLooks;
  return !mayClose;
}

inline TTurn<TIndex> TGraphWalk::FindSharpestTurn() {
  const TIndex last = fPath.back();
  if (!fOrder.HasClearTurns(last)) return FindByAngle(last);
  const TIndex twin = fOrder.Record(last).fTwin;
  for (TIndex h = fOrder.Clockwise(fSteppedBack == kNone ? twin : fSteppedBack); h != twin; h = fOrder.Clockwise(h)) {
    if (!MayTake(h)) continue;
    return {h, fGraph.IsRegular() ? TEntityCoordinate{} : fGraph.FarEnd(fGraph.HalfEdge(h))};
  }
  return {kNone, {}};
}

inline bool TGraphWalk::MayTake(TIndex aCandidate) {
  const std::uint32_t marks = Marks(aCandidate);
  if ((marks & (kTaken | kWalked)) != 0) return false;
  return (marks & (kDeadEnd | kBridge)) == 0 || !PassBy(aCandidate);
}

// Whether it is a dead end or a bridge that the walk has no need to enter.
bool TGraphWalk::PassBy(TIndex aCandidate) {
  const std::uint32_t marks = Marks(aCandidate);
  if ((marks & kDeadEnd) != 0 && fBacktracks) {
    // What entering it and stepping back from it comes to.
    fSteps.push_back(aCandidate);
    fSteps.push_back(TWalkSums::kStepBack);
  } else if ((marks & kBridge) != 0 && fAvoidsBridges) {
    fPassed.push_back({fSteps.size(), aCandidate});
  } else {
    return false;
  }
  Mark(aCandidate, kWalked);
  fBlocked.push_back(aCandidate);
  return true;
}

TTurn<TIndex> TGraphWalk::FindByAngle(TIndex aLast) {
  if (fGraph.HalfEdge(aLast).fFarVertex == kNotFound) return {kNone, {}};
  for (;;) {
    const TTurn<TIndex> best = FindSharpestAngle(aLast);
    if (best.fHalfEdge == kNone || MayTake(best.fHalfEdge)) return best;
  }
}

TTurn<TIndex> TGraphWalk::FindSharpestAngle(TIndex aLast) const {
  const THalfEdge& last = fGraph.HalfEdge(aLast);
  const TEntityCoordinate vertex = fGraph.FarEnd(last);
  const TVector_Single arriving = GetEntityVector(fGraph.From(last), vertex, fGraph.Entity(last), kVector_Arriving);
  TTurn<TIndex> best{kNone, {}};
  for (TIndex h = fGraph.FirstHalfEdge(last.fFarVertex); h < fGraph.EndOfHalfEdges(last.fFarVertex); ++h) {
    const THalfEdge& candidate = fGraph.HalfEdge(h);
    if (IsTravelled(h) || fGraph.AreSameEntity(last, candidate)) continue;
    const TEntityCoordinate farEnd = fGraph.FarEndFrom(vertex, candidate);
    const TTurn<TIndex> turn{h, farEnd, GetTurnAngle(arriving, vertex, farEnd, fGraph.Entity(candidate))};
    if (IsSharper(turn, best, vertex)) best = turn;
  }
  return best;
}

}  // namespace GeometryEngine::detail

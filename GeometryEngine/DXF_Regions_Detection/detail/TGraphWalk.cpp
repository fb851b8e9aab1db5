#include "GeometryEngine/DXF_Regions_Detection/detail/TGraphWalk.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/detail/PointSameness.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t kFirstLook = 32;  // half-edges blocked by a walk before it looks whether it may close
constexpr std::size_t kLaterLooks = 2;  // times as many
constexpr std::size_t kNever = std::numeric_limits<std::size_t>::max();

}  // namespace

TGraphWalk::TGraphWalk(const TVertexGraph& aGraph)
    : fGraph(aGraph),
      fOrder(aGraph),
      fWayBack(aGraph),
      fMarks(At(aGraph.HalfEdgeCount())),
      fTimesOnPath(aGraph.IsRegular() ? 0 : At(aGraph.EntityCount()), 0),
      fAreaTerms(At(aGraph.HalfEdgeCount()), kNotANumber) {
  for (TIndex h = 0; h < aGraph.HalfEdgeCount(); ++h) fMarks[At(h)] = aGraph.HalfEdge(h).fIsTravelled ? kTaken : 0;
  if (aGraph.IsRegular()) MarkDeadEnds();
}

void TGraphWalk::MarkDeadEnds() {
  for (TIndex h = 0; h < fGraph.HalfEdgeCount(); ++h) {
    const THalfEdge& halfEdge = fGraph.HalfEdge(h);
    if (fGraph.IsDangling(halfEdge.fVertex)) fMarks[At(halfEdge.fTwin)] |= kDeadEnd;
  }
}

void TGraphWalk::Walk(TIndex aHalfEdge, bool aBacktracking) {
  KeepMarks();
  fPath.clear();
  fBlocked.clear();
  fPassed.clear();
  fSteps.clear();
  fFirst = aHalfEdge;
  fStart = fGraph.From(fGraph.HalfEdge(aHalfEdge));
  fBacktracks = aBacktracking;
  fHasClosed = false;
  fNextLook = fGraph.IsRegular() ? kFirstLook : kNever;
  WalkToEnd(*this, aHalfEdge);
}

// The path that the last walk has left.
void TGraphWalk::KeepMarks() {
  for (const TIndex h : fPath) {
    TakeOffPath(h);
    Unmark(h, kWalked);
    fMarks[At(h)] |= kTaken;
  }
}

void TGraphWalk::AvoidBridges(std::span<const std::uint8_t> aIsBridge) {
  fAvoidsBridges = true;
  for (std::size_t h = 0; h < aIsBridge.size(); ++h) {
    if (aIsBridge[h] != 0) fMarks[h] |= kBridge;
  }
}

// Beyond a bridge nothing was touched by the walk, so that it makes no difference when these steps are taken.
void TGraphWalk::AddStepsOverBridges() {
  const std::vector<TIndex> walked = std::exchange(fSteps, {});
  std::vector<TIndex> loop = std::exchange(fPath, {});
  fAvoidsBridges = false;
  fNextLook = kNever;
  std::size_t copied = 0;
  const auto copyUpTo = [&](std::size_t aEnd) {
    const std::span<const TIndex> next = std::span(walked).subspan(copied, aEnd - copied);
    fSteps.insert(fSteps.end(), next.begin(), next.end());
    copied = aEnd;
  };
  for (const auto& [steps, bridge] : fPassed) {
    copyUpTo(steps);
    const TIndex before = fSteps.back();
    WalkToEnd(*this, bridge);
    fSteps.insert(fSteps.end(), {~bridge, ~before, before});
  }
  copyUpTo(walked.size());
  fAvoidsBridges = true;
  fPath = std::move(loop);
}

double TGraphWalk::GetArea() {
  double area = 0;
  for (const TIndex step : fSteps) area += step < 0 ? -GetAreaTerm(~step) : GetAreaTerm(step);
  if (!fHasClosed) return area;
  return area + GetSignedArea_Entity(fLastVertex, fLastFarEnd, fGraph.Curve(fGraph.HalfEdge(fPath.back())));
}

double TGraphWalk::GetAreaTerm(TIndex aHalfEdge) {
  double& term = fAreaTerms[At(aHalfEdge)];
  if (std::isnan(term)) {
    const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
    term = GetSignedArea_Entity(fGraph.From(halfEdge), fGraph.FarEnd(halfEdge), fGraph.Curve(halfEdge));
  }
  return term;
}

TEntityCoordinate TGraphWalk::GetCentroid(double aArea) {
  const bool repeatsTerms = fSteps.size() > fPath.size();
  if (repeatsTerms && fCentroidTerms.empty()) fCentroidTerms.resize(fAreaTerms.size(), {kNotANumber, kNotANumber});
  TEntityCoordinate sum;
  for (const TIndex step : fSteps) {
    sum = step < 0 ? sum - GetCentroidTerm(~step) : sum + GetCentroidTerm(step);
  }
  if (!fHasClosed) return sum;
  const TDXFEntity& last = fGraph.Curve(fGraph.HalfEdge(fPath.back()));
  sum = sum + GetCentroidComponent_Entity(fLastVertex, fLastFarEnd, last);
  return (1 / (aArea * 6)) * sum;
}

TEntityCoordinate TGraphWalk::GetCentroidTerm(TIndex aHalfEdge) {
  const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
  const auto compute = [&] {
    return GetCentroidComponent_Entity(fGraph.From(halfEdge), fGraph.FarEnd(halfEdge), fGraph.Curve(halfEdge));
  };
  if (fCentroidTerms.empty()) return compute();
  TEntityCoordinate& term = fCentroidTerms[At(aHalfEdge)];
  if (std::isnan(term.x)) term = compute();
  return term;
}

void TGraphWalk::WriteMarks() const {
  for (TIndex h = 0; h < fGraph.HalfEdgeCount(); ++h) {
    if (IsTravelled(h) && !fGraph.HalfEdge(h).fIsTravelled) fGraph.MarkTravelled(h);
  }
}

void TGraphWalk::Enter(TIndex aHalfEdge) {
  fMarks[At(aHalfEdge)] |= kWalked | kOnPath;
  fPath.push_back(aHalfEdge);
  fSteps.push_back(aHalfEdge);
  if (fGraph.IsRegular()) return;
  const TIndex entity = fGraph.HalfEdge(aHalfEdge).fEntityIndex;
  if (IsIndexWithin(entity, fTimesOnPath.size())) ++fTimesOnPath[At(entity)];
}

void TGraphWalk::TakeOffPath(TIndex aHalfEdge) {
  Unmark(aHalfEdge, kOnPath);
  if (fGraph.IsRegular()) return;
  const TIndex entity = fGraph.HalfEdge(aHalfEdge).fEntityIndex;
  if (IsIndexWithin(entity, fTimesOnPath.size())) --fTimesOnPath[At(entity)];
}

// Asked about half-edges that are free: in a regular graph the entity has but one other.
bool TGraphWalk::IsOnPath(TIndex aHalfEdge) const {
  const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
  if (fGraph.IsRegular()) return (fMarks[At(halfEdge.fTwin)] & kOnPath) != 0;
  const TIndex entity = halfEdge.fEntityIndex;
  if (IsIndexWithin(entity, fTimesOnPath.size())) return fTimesOnPath[At(entity)] > 0;
  return std::ranges::any_of(fPath, [&](TIndex h) { return fGraph.HalfEdge(h).fEntityIndex == entity; });
}

// Vertices of a regular graph are all apart.
bool TGraphWalk::IsStart(const TTurn<TIndex>& aTurn) const {
  if (fGraph.IsRegular()) {
    return fGraph.HalfEdge(aTurn.fHalfEdge).fFarVertex == fGraph.HalfEdge(fFirst).fVertex;
  }
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

TIndex TGraphWalk::StepBack() {
  const TIndex last = fPath.back();
  fBlocked.push_back(last);
  ++fStepsBack;
  if (fPath.size() < 2 || IsLost()) return GiveUp();
  const TIndex previous = fPath[fPath.size() - 2];
  fSteps.push_back(~last);
  fSteps.push_back(~previous);
  TakeOffPath(last);
  TakeOffPath(previous);
  fPath.resize(fPath.size() - 2);
  return previous;
}

TIndex TGraphWalk::GiveUp() {
  for (const TIndex h : fPath) {
    TakeOffPath(h);
    Unmark(h, kWalked);
  }
  fPath.clear();
  FreeBlocked();
  return kNone;
}

// Looking takes no longer than walking has taken so far.
bool TGraphWalk::IsLost() {
  if (fBlocked.size() < fNextLook) return false;
  const auto isOpen = [this](TIndex aHalfEdge) { return (fMarks[At(aHalfEdge)] & (kTaken | kBridge)) == 0; };
  const bool mayClose = fWayBack.MayExist(fFirst, fNextLook, isOpen);
  fNextLook *= kLaterLooks;
  return !mayClose;
}

TTurn<TIndex> TGraphWalk::FindSharpestTurn() {
  const TIndex last = fPath.back();
  const THalfEdge& arriving = fGraph.HalfEdge(last);
  if (arriving.fFarVertex == kNotFound) return {kNone, {}};
  const TIndex first = fOrder.FirstTurn(last);
  if (first == TTurnOrder::kUnclear) return FindByAngle(last);
  for (TIndex h = first; h != arriving.fTwin; h = fOrder.Clockwise(h)) {
    if (!MayTake(h)) continue;
    return {h, fGraph.IsRegular() ? TEntityCoordinate{} : fGraph.FarEnd(fGraph.HalfEdge(h))};
  }
  return {kNone, {}};
}

bool TGraphWalk::MayTake(TIndex aCandidate) {
  const std::uint8_t marks = fMarks[At(aCandidate)];
  if (marks == 0) return true;
  if ((marks & (kTaken | kWalked)) != 0) return false;
  if ((marks & kDeadEnd) != 0 && fBacktracks) {
    StepIntoDeadEnd(aCandidate);
    return false;
  }
  if (!fAvoidsBridges || (marks & kBridge) == 0) return true;
  PassBy(aCandidate);
  return false;
}

// What entering it and stepping back from it comes to.
void TGraphWalk::StepIntoDeadEnd(TIndex aHalfEdge) {
  const TIndex last = fPath.back();
  fSteps.insert(fSteps.end(), {aHalfEdge, ~aHalfEdge, ~last, last});
  fMarks[At(aHalfEdge)] |= kWalked;
  fBlocked.push_back(aHalfEdge);
}

void TGraphWalk::PassBy(TIndex aBridge) {
  fPassed.push_back({fSteps.size(), aBridge});
  fMarks[At(aBridge)] |= kWalked;
  fBlocked.push_back(aBridge);
}

TTurn<TIndex> TGraphWalk::FindByAngle(TIndex aLast) {
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

#include "GeometryEngine/DXF_Regions_Detection/detail/TGraphWalk.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/detail/PointSameness.h"

namespace GeometryEngine::detail {

namespace {

constexpr TIndex kUnclear = -2;  // in place of a half-edge: the angles proper have to decide

// Directions as numbers from 0 to 4 that grow with the angle from the x axis, cheaper than the angle.
constexpr double kUnknown = -1;
constexpr double kHalfTurn = 2;
constexpr double kFullTurn = 4;
constexpr double kClearDifference = 1e-9;  // far more than rounding can do to these numbers or to the angles proper

/// Two directions differ by at least half as much as their angles in radians.
/// DEGENERATE: not a number for the vector (0, 0), and where infinite components leave the angle to a convention.
double DirectionOf(const TVector_Single& aVector) {
  const auto x = static_cast<double>(aVector.x);
  const auto y = static_cast<double>(aVector.y);
  const double slope = y / (std::abs(x) + std::abs(y));
  if (x < 0) return kHalfTurn - slope;
  return slope < 0 ? kFullTurn + slope : slope;
}

}  // namespace

TGraphWalk::TGraphWalk(const TVertexGraph& aGraph)
    : fGraph(aGraph),
      fIsTravelled(At(aGraph.HalfEdgeCount())),
      fTimesOnPath(At(aGraph.EntityCount()), 0),
      fLeaving(At(aGraph.HalfEdgeCount()), kUnknown),
      fArriving_Arcs(At(aGraph.HalfEdgeCount()), kUnknown),
      fAreaTerms(At(aGraph.HalfEdgeCount()), std::numeric_limits<double>::quiet_NaN()) {
  for (TIndex h = 0; h < aGraph.HalfEdgeCount(); ++h) fIsTravelled[At(h)] = aGraph.Node(h).Travelled() ? 1 : 0;
}

void TGraphWalk::Walk(TIndex aHalfEdge, bool aBacktracking) {
  for (const TIndex h : fPath) TakeOffPath(h);
  fPath.clear();
  fBacktracks = aBacktracking;
  fAvoidsBridges = !fIsBridge.empty();
  Begin(aHalfEdge);
}

void TGraphWalk::WalkAgainOverBridges() {
  const TIndex first = fPath.front();
  for (const TIndex h : fPath) {
    TakeOffPath(h);
    fIsTravelled[At(h)] = 0;
  }
  fPath.clear();
  fAvoidsBridges = false;
  Begin(first);
}

void TGraphWalk::Begin(TIndex aHalfEdge) {
  fBlocked.clear();
  fSteps.clear();
  fStart = fGraph.From(fGraph.HalfEdge(aHalfEdge));
  fHasClosed = false;
  fPassedByBridges = false;
  WalkToEnd(*this, aHalfEdge);
}

void TGraphWalk::AvoidBridges(std::vector<std::uint8_t> aIsBridge) {
  fIsBridge = std::move(aIsBridge);
}

double TGraphWalk::GetArea() {
  double area = 0;
  for (const TIndex step : fSteps) area += step < 0 ? -GetAreaTerm(~step) : GetAreaTerm(step);
  if (!fHasClosed) return area;
  return area + GetSignedArea_Entity(fLastVertex, fLastFarEnd, fGraph.Entity(fGraph.HalfEdge(fPath.back())));
}

double TGraphWalk::GetAreaTerm(TIndex aHalfEdge) {
  double& term = fAreaTerms[At(aHalfEdge)];
  if (std::isnan(term)) {
    const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
    term = GetSignedArea_Entity(fGraph.From(halfEdge), fGraph.FarEnd(halfEdge), fGraph.Entity(halfEdge));
  }
  return term;
}

TEntityCoordinate TGraphWalk::GetCentroid(double aArea) {
  constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
  const bool repeatsTerms = fSteps.size() > fPath.size();
  if (repeatsTerms && fCentroidTerms.empty()) fCentroidTerms.resize(fAreaTerms.size(), {kNotANumber, kNotANumber});
  TEntityCoordinate sum;
  for (const TIndex step : fSteps) {
    sum = step < 0 ? sum - GetCentroidTerm(~step) : sum + GetCentroidTerm(step);
  }
  if (!fHasClosed) return sum;
  const TDXFEntity& last = fGraph.Entity(fGraph.HalfEdge(fPath.back()));
  sum = sum + GetCentroidComponent_Entity(fLastVertex, fLastFarEnd, last);
  return (1 / (aArea * 6)) * sum;
}

TEntityCoordinate TGraphWalk::GetCentroidTerm(TIndex aHalfEdge) {
  const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
  const auto compute = [&] {
    return GetCentroidComponent_Entity(fGraph.From(halfEdge), fGraph.FarEnd(halfEdge), fGraph.Entity(halfEdge));
  };
  if (fCentroidTerms.empty()) return compute();
  TEntityCoordinate& term = fCentroidTerms[At(aHalfEdge)];
  if (std::isnan(term.x)) term = compute();
  return term;
}

void TGraphWalk::WriteMarks() const {
  for (TIndex h = 0; h < fGraph.HalfEdgeCount(); ++h) {
    if (IsTravelled(h)) fGraph.Node(h).Travelled(true);
  }
}

void TGraphWalk::PutOnPath(TIndex aHalfEdge) {
  fIsTravelled[At(aHalfEdge)] = 1;
  fPath.push_back(aHalfEdge);
  const TIndex entity = fGraph.HalfEdge(aHalfEdge).fEntityIndex;
  if (IsIndexWithin(entity, fTimesOnPath.size())) ++fTimesOnPath[At(entity)];
}

void TGraphWalk::TakeOffPath(TIndex aHalfEdge) {
  const TIndex entity = fGraph.HalfEdge(aHalfEdge).fEntityIndex;
  if (IsIndexWithin(entity, fTimesOnPath.size())) --fTimesOnPath[At(entity)];
}

void TGraphWalk::Enter(TIndex aHalfEdge) {
  PutOnPath(aHalfEdge);
  fSteps.push_back(aHalfEdge);
}

bool TGraphWalk::IsOnPath(TIndex aHalfEdge) const {
  const TIndex entity = fGraph.HalfEdge(aHalfEdge).fEntityIndex;
  if (IsIndexWithin(entity, fTimesOnPath.size())) return fTimesOnPath[At(entity)] > 0;
  return std::ranges::any_of(fPath, [&](TIndex h) { return fGraph.HalfEdge(h).fEntityIndex == entity; });
}

bool TGraphWalk::IsStart(const TEntityCoordinate& aPoint) const {
  return AreSame(aPoint, fStart, fGraph.Tolerance());
}

void TGraphWalk::FreeBlocked() {
  for (const TIndex h : fBlocked) fIsTravelled[At(h)] = 0;
}

void TGraphWalk::Close(const TTurn<TIndex>& aLast) {
  fLastVertex = fGraph.FarEnd(fGraph.HalfEdge(fPath.back()));
  fLastFarEnd = aLast.fFarEnd;
  if (fBacktracks) FreeBlocked();
  PutOnPath(aLast.fHalfEdge);
  fHasClosed = true;
}

TIndex TGraphWalk::StepBack() {
  const TIndex last = fPath.back();
  fBlocked.push_back(last);
  ++fStepsBack;
  if (fPath.size() < 2) {
    FreeBlocked();
    TakeOffPath(last);
    fPath.clear();
    return kNone;
  }
  const TIndex previous = fPath[fPath.size() - 2];
  fSteps.push_back(~last);
  fSteps.push_back(~previous);
  TakeOffPath(last);
  TakeOffPath(previous);
  fPath.resize(fPath.size() - 2);
  return previous;
}

TTurn<TIndex> TGraphWalk::FindSharpestTurn() {
  const TIndex last = fPath.back();
  const THalfEdge& halfEdge = fGraph.HalfEdge(last);
  if (halfEdge.fFarVertex == kNotFound) return {kNone, {}};
  const TIndex clear = halfEdge.fIsExact ? FindClearlySharpest(last) : kUnclear;
  if (clear == kUnclear) return FindByAngle(last);
  if (clear == kNone) return {kNone, {}};
  return {clear, fGraph.FarEnd(fGraph.HalfEdge(clear))};
}

bool TGraphWalk::MayTake(TIndex aCandidate, TIndex aLast) {
  if (IsTravelled(aCandidate) || IsSameEntity(aCandidate, aLast)) return false;
  if (!fAvoidsBridges || !IsBridge(aCandidate)) return true;
  fPassedByBridges = true;
  return false;
}

bool TGraphWalk::IsSameEntity(TIndex aCandidate, TIndex aLast) const {
  const THalfEdge& candidate = fGraph.HalfEdge(aCandidate);
  const THalfEdge& last = fGraph.HalfEdge(aLast);
  if (fGraph.IsRegular()) {
    if (candidate.fEntityIndex == last.fEntityIndex) return true;
    if (candidate.fFarVertex != last.fVertex) return false;
  }
  return fGraph.Entity(candidate) == fGraph.Entity(last);
}

// The sharpest turn where directions leave no doubt about it, or where there are no two to choose from. The walk
// has arrived on the vertex to the bit, so that what leaves it does so in the directions that are remembered.
TIndex TGraphWalk::FindClearlySharpest(TIndex aLast) {
  const TIndex vertex = fGraph.HalfEdge(aLast).fFarVertex;
  TIndex best = kNone;
  double bestTurn = kUnknown;
  for (TIndex h = fGraph.FirstHalfEdge(vertex); h < fGraph.EndOfHalfEdges(vertex); ++h) {
    if (!MayTake(h, aLast)) continue;
    if (!fGraph.HalfEdge(h).fIsExact) return kUnclear;
    if (best == kNone) {
      best = h;
      continue;
    }
    if (bestTurn == kUnknown) bestTurn = GetClearTurn(aLast, best);
    const double turn = GetClearTurn(aLast, h);
    if (!(std::abs(turn - bestTurn) > kClearDifference)) return kUnclear;
    if (turn < bestTurn) continue;
    best = h;
    bestTurn = turn;
  }
  return best;
}

// How far it is to the left from where the walk came from; not a number for what leaves just there, where rounding
// decides between a turn of nothing and a full one.
double TGraphWalk::GetClearTurn(TIndex aLast, TIndex aCandidate) {
  const double difference = DirectionLeaving(aCandidate) - DirectionArriving(aLast);
  const double turn = difference < 0 ? difference + kFullTurn : difference;
  const bool isClear = turn > kClearDifference && turn < kFullTurn - kClearDifference;
  return isClear ? turn : std::numeric_limits<double>::quiet_NaN();
}

TTurn<TIndex> TGraphWalk::FindByAngle(TIndex aLast) {
  const THalfEdge& last = fGraph.HalfEdge(aLast);
  const TEntityCoordinate vertex = fGraph.FarEnd(last);
  const TVector_Single arriving = GetEntityVector(fGraph.From(last), vertex, fGraph.Entity(last), kVector_Arriving);
  TTurn<TIndex> best{kNone, {}};
  for (TIndex h = fGraph.FirstHalfEdge(last.fFarVertex); h < fGraph.EndOfHalfEdges(last.fFarVertex); ++h) {
    if (!MayTake(h, aLast)) continue;
    const TEntityCoordinate farEnd = fGraph.FarEndFrom(vertex, fGraph.HalfEdge(h));
    const TDXFEntity& entity = fGraph.Entity(fGraph.HalfEdge(h));
    const TTurn<TIndex> turn{h, farEnd, GetTurnAngle(arriving, vertex, farEnd, entity)};
    if (IsSharper(turn, best, vertex)) best = turn;
  }
  return best;
}

double TGraphWalk::DirectionLeaving(TIndex aHalfEdge) {
  double& direction = fLeaving[At(aHalfEdge)];
  if (direction == kUnknown) direction = GetDirection(aHalfEdge, kVector_Leaving);
  return direction;
}

// Of a line it is opposite to the one in which it leaves.
double TGraphWalk::DirectionArriving(TIndex aHalfEdge) {
  if (fGraph.HalfEdge(aHalfEdge).fIsLine) {
    const double leaving = DirectionLeaving(aHalfEdge);
    return leaving < kHalfTurn ? leaving + kHalfTurn : leaving - kHalfTurn;
  }
  double& direction = fArriving_Arcs[At(aHalfEdge)];
  if (direction == kUnknown) direction = GetDirection(aHalfEdge, kVector_Arriving);
  return direction;
}

double TGraphWalk::GetDirection(TIndex aHalfEdge, std::int32_t aMode) const {
  const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
  const TDXFEntity& entity = fGraph.Entity(halfEdge);
  return DirectionOf(GetEntityVector(fGraph.From(halfEdge), fGraph.FarEnd(halfEdge), entity, aMode));
}

}  // namespace GeometryEngine::detail

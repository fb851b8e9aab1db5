#include "GeometryEngine/DXF_Regions_Detection/detail/TLoopTracing.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/GraphBridges.h"

namespace GeometryEngine::detail {

TLoopTracing::TLoopTracing(TVertexGraph& aGraph) : fGraph(aGraph), fWalk(aGraph) {
  constexpr std::size_t kFewSteps = 16;  // half-edges for one step back
  if (fGraph.IsRegular()) fWalk.StopAfter(static_cast<std::size_t>(fGraph.HalfEdgeCount()) / kFewSteps);
}

bool TLoopTracing::Trace(TIndex aPlace, bool aNegativeToo) {
  if (!WalkFrom(aPlace)) return false;
  const bool mayPassOver = !aNegativeToo && fKnowsBridges && IsTakenAsNegative();
  if (!mayPassOver) {
    // The steps over a bridge and back leave their rounding in the sums.
    if (fWalk.PassedByBridges()) AddStepsOverBridges();
    fArea = fWalk.GetArea();
  }
  if (fKnowsBridges) CountOffLoop();
  return true;
}

// Whether the walk has closed.
bool TLoopTracing::WalkFrom(TIndex aPlace) {
  if (fWalk.HasSteppedBackOften()) PrepareForLongWalks();
  const TIndex start = fGraph.HalfEdgeInOrder(aPlace);
  if (fWalk.IsBridge(start)) return false;
  fWalk.Walk(start, true);
  return fWalk.HasStopped() ? WalkFrom(aPlace) : fWalk.HasClosed();
}

void TLoopTracing::PrepareForLongWalks() {
  fWalk.StopAfter(std::numeric_limits<std::size_t>::max());
  NumberByPlace();
  fKnowsBridges = true;
  fWalk.AvoidBridges(FindBridges(fGraph));
  CountFree();
}

void TLoopTracing::NumberByPlace() {
  std::vector<TIndex> taken;
  for (TIndex place = 0; place < fGraph.HalfEdgeCount(); ++place) {
    if (fWalk.IsTravelled(place)) taken.push_back(place);
  }
  fGraph.NumberByPlace();
  fWalk.ReadGraph();
  for (const TIndex place : taken) fWalk.Take(fGraph.HalfEdgeInOrder(place));
}

void TLoopTracing::FindMiddle() {
  TEntityCoordinate low = fGraph.Point(0);
  TEntityCoordinate high = low;
  for (TIndex v = 0; v < fGraph.VertexCount(); ++v) {
    const TEntityCoordinate& point = fGraph.Point(v);
    low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y)};
  }
  fMiddle = {(low.x + high.x) / 2, (low.y + high.y) / 2};
  fFromMiddle = (std::abs(fMiddle.x) * (high.y - low.y) + std::abs(fMiddle.y) * (high.x - low.x)) / 2;
}

// The larger one of a piece's two directions, which differ by rounding at least.
double TLoopTracing::GetMagnitude(TIndex aHalfEdge) {
  return std::max(std::abs(GetTermAboutMiddle(aHalfEdge)),
                  std::abs(GetTermAboutMiddle(fGraph.HalfEdge(aHalfEdge).fTwin)));
}

double TLoopTracing::GetTermAboutMiddle(TIndex aHalfEdge) {
  const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
  const TEntityCoordinate& from = fGraph.From(halfEdge);
  const TEntityCoordinate& to = fGraph.Point(halfEdge.fFarVertex);
  return fWalk.Sums().GetAreaTerm(aHalfEdge) - (fMiddle.x * (to.y - from.y) - fMiddle.y * (to.x - from.x)) / 2;
}

void TLoopTracing::CountFree() {
  FindMiddle();
  fWalk.Sums().KeepTerms();
  for (TIndex h = 0; h < fGraph.HalfEdgeCount(); ++h) {
    if (fWalk.IsTravelled(h)) continue;
    ++fFree;
    const TIndex twin = fGraph.HalfEdge(h).fTwin;
    if (h < twin || fWalk.IsTravelled(twin)) fFreeMagnitudes += GetMagnitude(h);
  }
  constexpr double kRoundingOfMagnitudes = 1e-6;  // far more than adding them up and counting them off amounts to
  fFreeMagnitudes += kRoundingOfMagnitudes * fFreeMagnitudes;
}

void TLoopTracing::CountOffLoop() {
  fFree -= static_cast<double>(fWalk.Path().size());
  for (const TIndex h : fWalk.Path()) {
    if (fWalk.IsTravelled(fGraph.HalfEdge(h).fTwin)) fFreeMagnitudes -= GetMagnitude(h);
  }
}

void TLoopTracing::AddStepsOverBridges() {
  const std::size_t before = fWalk.StepsBack();
  fWalk.AddStepsOverBridges();
  if (fPathArea < 0) fStepsInDoubt += fWalk.StepsBack() - before;
}

bool TLoopTracing::IsTakenAsNegative() {
  fPathArea = 0;
  for (const TIndex h : fWalk.Path()) fPathArea += fWalk.Sums().GetAreaTerm(h);
  fArea = fPathArea;
  return IsSurelyNegative() || (fPathArea < 0 && fStepsInDoubt >= kMostStepsInDoubt);
}

// Whether the sum along the whole walk is negative, as the one along its path is but for rounding. Along a walk each
// free half-edge is entered once, and entered again or taken out three times more for each step back, of which there
// are no more than half-edges. Each of these steps rounds by half an epsilon of the sum so far, which is that along a
// path without any piece twice: about the middle, no more than the magnitudes of all free pieces. The sum along the
// path rounds a quarter as often at most.
bool TLoopTracing::IsSurelyNegative() const {
  constexpr double kRounding = 2.5 * std::numeric_limits<double>::epsilon();
  return fPathArea < -kRounding * (fFree + 1) * (fFreeMagnitudes + fFromMiddle);
}

}  // namespace GeometryEngine::detail

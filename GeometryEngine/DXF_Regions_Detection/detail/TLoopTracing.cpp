#include "GeometryEngine/DXF_Regions_Detection/detail/TLoopTracing.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "GeometryEngine/DXF_Regions_Detection/detail/GraphBridges.h"

namespace GeometryEngine::detail {

bool TLoopTracing::Trace(TIndex aHalfEdge, bool aNegativeToo) {
  FindBridgesOnceTheyMatter();
  if (fWalk.IsBridge(aHalfEdge)) return false;
  fWalk.Walk(aHalfEdge, true);
  if (!fWalk.HasClosed()) return false;
  const bool mayPassOver = !aNegativeToo && fKnowsBridges && IsTakenAsNegative();
  if (!mayPassOver) {
    // The steps over a bridge and back leave their rounding in the sums.
    if (fWalk.PassedByBridges()) AddStepsOverBridges();
    fArea = fWalk.GetArea();
  }
  if (fKnowsBridges) CountOffLoop();
  return true;
}

void TLoopTracing::FindBridgesOnceTheyMatter() {
  constexpr std::size_t kFewSteps = 16;  // half-edges for one step back
  const auto halfEdges = static_cast<std::size_t>(fGraph.HalfEdgeCount());
  if (fKnowsBridges || kFewSteps * fWalk.StepsBack() <= halfEdges || !fGraph.IsRegular()) return;
  fKnowsBridges = true;
  fWalk.AvoidBridges(FindBridges(fGraph));
  CountFree();
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
  return fWalk.GetAreaTerm(aHalfEdge) - (fMiddle.x * (to.y - from.y) - fMiddle.y * (to.x - from.x)) / 2;
}

void TLoopTracing::CountFree() {
  FindMiddle();
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
  for (const TIndex h : fWalk.Path()) fPathArea += fWalk.GetAreaTerm(h);
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

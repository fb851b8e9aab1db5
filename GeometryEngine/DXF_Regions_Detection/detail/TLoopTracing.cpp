#include "GeometryEngine/DXF_Regions_Detection/detail/TLoopTracing.h"

#include <cmath>
#include <limits>

#include "GeometryEngine/DXF_Regions_Detection/detail/GraphBridges.h"

namespace GeometryEngine::detail {

bool TLoopTracing::Trace(TIndex aHalfEdge, bool aNegativeToo) {
  FindBridgesOnceTheyMatter();
  if (fWalk.IsBridge(aHalfEdge)) return false;
  fWalk.Walk(aHalfEdge, true);
  if (!fWalk.HasClosed()) return false;
  fArea = fWalk.GetArea();
  const bool clearlyNegative = fArea < -fSlack;
  if (!fWalk.PassedByBridges() || (clearlyNegative && !aNegativeToo)) return true;
  // The steps over a bridge and back leave their rounding in the sums.
  fWalk.WalkAgainOverBridges();
  fArea = fWalk.GetArea();
  return true;
}

void TLoopTracing::FindBridgesOnceTheyMatter() {
  const auto halfEdges = static_cast<std::size_t>(fGraph.HalfEdgeCount());
  if (fKnowsBridges || fWalk.StepsBack() <= halfEdges || !fGraph.IsRegular()) return;
  fKnowsBridges = true;
  fWalk.AvoidBridges(FindBridges(fGraph));
  fSlack = GetAreaSlack();
}

// A sum is at most the sum of all magnitudes, and rounded at most six times for each half-edge: when it is walked,
// walked again after a step back, and taken out.
double TLoopTracing::GetAreaSlack() const {
  constexpr double kRoundings = 16 * std::numeric_limits<double>::epsilon();
  double magnitudes = 0;
  for (TIndex h = 0; h < fGraph.HalfEdgeCount(); ++h) {
    const THalfEdge& halfEdge = fGraph.HalfEdge(h);
    magnitudes +=
        std::abs(GetSignedArea_Entity(fGraph.From(halfEdge), fGraph.FarEnd(halfEdge), fGraph.Entity(halfEdge)));
  }
  return kRoundings * fGraph.HalfEdgeCount() * magnitudes;
}

}  // namespace GeometryEngine::detail

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
  const bool mayPassOver = !aNegativeToo && fKnowsBridges && IsSurelyNegative();
  if (!mayPassOver) {
    // The steps over a bridge and back leave their rounding in the sums.
    if (fWalk.PassedByBridges()) fWalk.AddStepsOverBridges();
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

void TLoopTracing::CountFree() {
  for (TIndex h = 0; h < fGraph.HalfEdgeCount(); ++h) {
    if (fWalk.IsTravelled(h)) continue;
    ++fFree;
    fFreeMagnitudes += std::abs(fWalk.GetAreaTerm(h));
  }
  constexpr double kRoundingOfMagnitudes = 1e-6;  // far more than adding them up and counting them off amounts to
  fFreeMagnitudes += kRoundingOfMagnitudes * fFreeMagnitudes;
}

void TLoopTracing::CountOffLoop() {
  fFree -= static_cast<double>(fWalk.Path().size());
  for (const TIndex h : fWalk.Path()) fFreeMagnitudes -= std::abs(fWalk.GetAreaTerm(h));
}

// Whether the sum along the whole walk is negative, as the one along its path is but for rounding. Along a walk each
// free half-edge is entered once, and entered again or taken out three times more for each step back, of which there
// are no more than half-edges. No sum on the way exceeds the magnitudes of all of them, so that each of these steps
// rounds by half an epsilon of that at most. The sum along the path does no more.
bool TLoopTracing::IsSurelyNegative() {
  constexpr double kRounding = 4 * std::numeric_limits<double>::epsilon();
  fArea = 0;
  for (const TIndex h : fWalk.Path()) fArea += fWalk.GetAreaTerm(h);
  return fArea < -kRounding * (fFree + 1) * fFreeMagnitudes;
}

}  // namespace GeometryEngine::detail

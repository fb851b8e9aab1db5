#include "GeometryEngine/DXF_Regions_Detection/detail/TTurnOrder.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "GeometryEngine/DXF_Regions_Detection/detail/WalkRule.h"

namespace GeometryEngine::detail {

namespace {

// Directions as numbers from 0 to 4 that grow with the angle from the x axis, cheaper than the angle.
constexpr double kFullTurn = 4;
constexpr double kHalfTurn = 2;
constexpr double kNoDirection = -1;
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

TTurnOrder::TTurnOrder(const TVertexGraph& aGraph)
    : fGraph(aGraph), fRecords(At(aGraph.HalfEdgeCount())), fLeaving(At(aGraph.HalfEdgeCount())) {
  for (TIndex h = 0; h < aGraph.HalfEdgeCount(); ++h) Record(h).fTwin = aGraph.HalfEdge(h).fTwin;
}

TTurnClarity TTurnOrder::FindClarity(TIndex aArriving) {
  const TTurnClarity found = IsClear(aArriving) ? TTurnClarity::kClear : TTurnClarity::kUnclear;
  Record(aArriving).Turns(found);
  return found;
}

// A walk that arrives on the vertex to the bit leaves it in the very directions that the ring is ordered by.
bool TTurnOrder::IsClear(TIndex aArriving) {
  const THalfEdge& arriving = fGraph.HalfEdge(aArriving);
  const TIndex vertex = arriving.fFarVertex;
  const TIndex twin = arriving.fTwin;
  if (!arriving.fIsExact || twin == kNotFound || fGraph.HalfEdge(twin).fVertex != vertex) return false;
  if (static_cast<std::size_t>(fGraph.Degree(vertex)) > TTurnRecord::kLargestRing) return false;
  if (Clockwise(twin) == twin) MakeRing(vertex);
  for (TIndex h = Clockwise(twin); h != twin; h = Clockwise(h)) {
    if (!fGraph.HalfEdge(h).fIsExact || fGraph.AreSameEntity(arriving, fGraph.HalfEdge(h))) return false;
  }
  // A turn that is the only one is taken whatever its angle.
  return fGraph.Degree(vertex) < 3 || AreTurnsClear(aArriving);
}

// Each turn, to the left from where the walk came from, is to be less than the one before it in the ring. None may be
// next to nothing or to a full turn: rounding decides between the two for what leaves just where the walk came from.
bool TTurnOrder::AreTurnsClear(TIndex aArriving) const {
  const double from = GetArrivingDirection(fGraph.HalfEdge(aArriving));
  const TIndex twin = fGraph.HalfEdge(aArriving).fTwin;
  double previous = kFullTurn;
  for (TIndex h = Clockwise(twin); h != twin; h = Clockwise(h)) {
    const double difference = fLeaving[At(h)] - from;
    const double turn = difference < 0 ? difference + kFullTurn : difference;
    if (!(previous - turn > kClearDifference)) return false;
    previous = turn;
  }
  return previous > kClearDifference;
}

// Of a line between two vertices it is the one in which its twin leaves.
double TTurnOrder::GetArrivingDirection(const THalfEdge& aArriving) const {
  const THalfEdge& twin = fGraph.HalfEdge(aArriving.fTwin);
  const bool isReverse = aArriving.fIsLine && twin.fIsExact && twin.fFarVertex == aArriving.fVertex;
  return isReverse ? fLeaving[At(aArriving.fTwin)] : GetDirection(aArriving, kVector_Arriving);
}

void TTurnOrder::MakeRing(TIndex aVertex) {
  const bool needsDirections = fGraph.Degree(aVertex) >= 3;
  fRing.clear();
  for (TIndex h = fGraph.FirstHalfEdge(aVertex); h < fGraph.EndOfHalfEdges(aVertex); ++h) {
    if (needsDirections) fLeaving[At(h)] = GetDirection(fGraph.HalfEdge(h), kVector_Leaving);
    const double direction = fLeaving[At(h)];
    fRing.emplace_back(std::isnan(direction) ? kNoDirection : direction, h);
  }
  std::ranges::sort(fRing, std::greater{});
  for (std::size_t k = 0; k < fRing.size(); ++k) {
    const TIndex halfEdge = fRing[k].second;
    Record(halfEdge).ToNext(fRing[(k + 1) % fRing.size()].second - halfEdge);
  }
}

double TTurnOrder::GetDirection(const THalfEdge& aHalfEdge, std::int32_t aMode) const {
  const TDXFEntity& curve = fGraph.Curve(aHalfEdge);
  return DirectionOf(GetEntityVector(fGraph.From(aHalfEdge), fGraph.FarEnd(aHalfEdge), curve, aMode));
}

}  // namespace GeometryEngine::detail

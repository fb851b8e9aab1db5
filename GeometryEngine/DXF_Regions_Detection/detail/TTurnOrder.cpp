#include "GeometryEngine/DXF_Regions_Detection/detail/TTurnOrder.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/detail/PointSameness.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/WalkRule.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kNoDirection = -1;
constexpr double kClearDifference = 1e-9;  // far more than rounding can do to directions or to the angles proper

double DirectionOf(const TVector_Single& aVector) {
  return GetDirection(static_cast<double>(aVector.x), static_cast<double>(aVector.y));
}

}  // namespace

void TTurnOrder::ReadGraph() {
  fRecords.assign(At(fGraph.HalfEdgeCount()), {});
  fLeaving.clear();
  for (TIndex h = 0; h < fGraph.HalfEdgeCount(); ++h) Record(h).fTwin = fGraph.HalfEdge(h).fTwin;
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
  if (fGraph.Degree(vertex) < 3) return true;
  if (Record(twin).IsInClearRing()) return fGraph.HalfEdge(twin).fTwin == aArriving;
  return AreTurnsClear(aArriving);
}

// Each turn, to the left from where the walk came from, is to be less than the one before it in the ring. None may be
// next to nothing or to a full turn: rounding decides between the two for what leaves just where the walk came from.
bool TTurnOrder::AreTurnsClear(TIndex aArriving) const {
  const double from = GetArrivingDirection(fGraph.HalfEdge(aArriving));
  const TIndex twin = fGraph.HalfEdge(aArriving).fTwin;
  double previous = kFullTurn_Direction;
  for (TIndex h = Clockwise(twin); h != twin; h = Clockwise(h)) {
    const double difference = LeavingDirection(h) - from;
    const double turn = difference < 0 ? difference + kFullTurn_Direction : difference;
    if (!(previous - turn > kClearDifference)) return false;
    previous = turn;
  }
  return previous > kClearDifference;
}

// Of a line between two vertices it is the one in which its twin leaves.
double TTurnOrder::GetArrivingDirection(const THalfEdge& aArriving) const {
  const THalfEdge& twin = fGraph.HalfEdge(aArriving.fTwin);
  const bool isReverse = aArriving.fIsLine && twin.fIsExact && twin.fFarVertex == aArriving.fVertex;
  return isReverse ? LeavingDirection(aArriving.fTwin) : GetDirection(aArriving, kVector_Arriving);
}

void TTurnOrder::MakeRing(TIndex aVertex) {
  const bool isClear = fGraph.Degree(aVertex) >= 3 && FillRing_Roughly(aVertex);
  if (!isClear) FillRing(aVertex);
  for (std::size_t k = 0; k < fRing.size(); ++k) {
    const TIndex halfEdge = fRing[k].fHalfEdge;
    Record(halfEdge).ToNext(fRing[(k + 1) % fRing.size()].fHalfEdge - halfEdge);
    if (isClear) Record(halfEdge).PutInClearRing();
  }
}

void TTurnOrder::FillRing(TIndex aVertex) {
  const bool needsDirections = fGraph.Degree(aVertex) >= 3;
  fRing.clear();
  for (TIndex h = fGraph.FirstHalfEdge(aVertex); h < fGraph.EndOfHalfEdges(aVertex); ++h) {
    const double direction = needsDirections ? GetDirection(fGraph.HalfEdge(h), kVector_Leaving) : 0;
    if (needsDirections) fLeaving[h] = direction;
    fRing.push_back({std::isnan(direction) ? kNoDirection : direction, 0, h});
  }
  SortRing();
}

// False unless all directions are known so well, and are so far apart, that there is no doubt about their order. A walk
// that arrives by a piece then comes from its direction in the ring, but for rounding.
bool TTurnOrder::FillRing_Roughly(TIndex aVertex) {
  fRing.clear();
  for (TIndex h = fGraph.FirstHalfEdge(aVertex); h < fGraph.EndOfHalfEdges(aVertex); ++h) {
    const std::optional<TRoughDirection> direction = GetRoughDirection(h);
    if (!direction || std::isnan(direction->fDirection)) return false;
    fRing.push_back({direction->fDirection, direction->fSlack, h});
  }
  SortRing();
  double next = fRing.front().fDirection - kFullTurn_Direction + fRing.front().fSlack;
  for (std::size_t k = fRing.size(); k-- > 0;) {
    const auto& [direction, slack, halfEdge] = fRing[k];
    if (!(direction - slack - next > 2 * kRoughness)) return false;
    next = direction + slack;
  }
  return true;
}

void TTurnOrder::SortRing() {
  std::ranges::sort(fRing, std::greater{},
                    [](const TRingPlace& place) { return std::pair(place.fDirection, place.fHalfEdge); });
}

// Nothing for a piece that doesn't run between the two vertices to the bit, in either direction.
std::optional<TRoughDirection> TTurnOrder::GetRoughDirection(TIndex aHalfEdge) const {
  const THalfEdge& leaving = fGraph.HalfEdge(aHalfEdge);
  if (!leaving.fIsExact || leaving.fTwin == kNotFound) return std::nullopt;
  const THalfEdge& arriving = fGraph.HalfEdge(leaving.fTwin);
  const bool isReverse = arriving.fIsExact && arriving.fTwin == aHalfEdge && arriving.fFarVertex == leaving.fVertex &&
                         leaving.fFarVertex == arriving.fVertex;
  if (!isReverse) return std::nullopt;
  if (leaving.fIsLine) return TRoughDirection{GetDirection(leaving, kVector_Leaving), 0};
  const TDXFEntity& arc = fGraph.Entity(leaving);
  const TEntityCoordinate& from = fGraph.From(leaving);
  const TEntityCoordinate& to = fGraph.From(arriving);
  const bool isFromStart = AreEqual(from, arc.StartCoords) && AreEqual(to, arc.EndCoords);
  const bool isFromEnd = AreEqual(from, arc.EndCoords) && AreEqual(to, arc.StartCoords);
  const bool isArc = arc.EntityType == DXFArc && isFromStart != isFromEnd && !AreSame(from, to, fGraph.Tolerance());
  return isArc ? GetRoughDirection_Arc(arc, isFromStart) : std::nullopt;
}

double TTurnOrder::GetDirection(const THalfEdge& aHalfEdge, std::int32_t aMode) const {
  const TDXFEntity& curve = fGraph.Curve(aHalfEdge);
  return DirectionOf(GetEntityVector(fGraph.From(aHalfEdge), fGraph.FarEnd(aHalfEdge), curve, aMode));
}

}  // namespace GeometryEngine::detail

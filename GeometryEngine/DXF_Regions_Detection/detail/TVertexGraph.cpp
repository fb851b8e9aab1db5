#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "GeometryEngine/DXF_EntityStorage/detail/OtherEnd.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TPointIndex.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/PlaneOrder.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kLargestTame = 1e150;  // products of two such numbers stay finite

bool IsTame(double aValue) {
  return std::abs(aValue) < kLargestTame;
}

bool IsTame(const TEntityCoordinate& aPoint) {
  return IsTame(aPoint.x) && IsTame(aPoint.y);
}

bool IsTameArc(const TDXFEntity& aArc) {
  return IsTame(aArc.CentreCoords) && IsTame(aArc.radius) && IsTame(aArc.startAngle) && IsTame(aArc.endAngle);
}

bool HasSameBits(const TEntityCoordinate& aPoint_A, const TEntityCoordinate& aPoint_B) {
  return aPoint_A.x == aPoint_B.x && aPoint_A.y == aPoint_B.y && std::signbit(aPoint_A.x) == std::signbit(aPoint_B.x) &&
         std::signbit(aPoint_A.y) == std::signbit(aPoint_B.y);
}

std::span<const TDXFEntity> EntitiesOf(const TEntityTree& aTree) {
  const TEntityStorage* storage = aTree.pEntityStorage();
  return storage == nullptr ? std::span<const TDXFEntity>{} : std::span<const TDXFEntity>(storage->EntityArray());
}

// The vertices of a graph, searched for the first one that is the same as a point.
class TVertexSearch {
 public:
  explicit TVertexSearch(std::span<const TEntityCoordinate> aPoints) {
    fIndex.Reserve(aPoints.size());
    for (const TEntityCoordinate& point : aPoints) fIndex.Add(point);
    fFirstSame.reserve(aPoints.size());
    for (const TEntityCoordinate& point : aPoints) fFirstSame.push_back(fIndex.FindFirst(point));
  }

  /// The first vertex that is the same as this one.
  TIndex FindFirst(TIndex aVertex) const { return fFirstSame[static_cast<std::size_t>(aVertex)]; }
  TIndex FindFirst(const TEntityCoordinate& aPoint) const { return fIndex.FindFirst(aPoint); }
  bool IsFirst(TIndex aVertex) const { return FindFirst(aVertex) == aVertex; }
  /// True when each vertex is the same as itself and no other.
  bool AreAllApart() const {
    for (TIndex v = 0; v < fIndex.Count(); ++v) {
      if (!IsFirst(v)) return false;
    }
    return true;
  }

 private:
  TPointIndex fIndex;
  std::vector<TIndex> fFirstSame;
};

// The two half-edges of each entity.
class TTwins {
 public:
  TTwins(std::span<const THalfEdge> aHalfEdges, std::size_t aEntities)
      : fSums(aEntities, 0), fCounts(aEntities, std::uint8_t{0}) {
    for (std::size_t h = 0; h < aHalfEdges.size(); ++h) {
      const TIndex entity = aHalfEdges[h].fEntityIndex;
      if (IsIndexWithin(entity, aEntities)) Add(static_cast<std::size_t>(entity), static_cast<std::uint32_t>(h));
    }
  }

  /// The other half-edge of the entity; kNotFound unless it has exactly two.
  TIndex Of(TIndex aHalfEdge, TIndex aEntityIndex) const {
    if (!IsIndexWithin(aEntityIndex, fCounts.size())) return kNotFound;
    const auto entity = static_cast<std::size_t>(aEntityIndex);
    return fCounts[entity] == 2 ? static_cast<TIndex>(fSums[entity] - static_cast<std::uint32_t>(aHalfEdge))
                                : kNotFound;
  }

 private:
  void Add(std::size_t aEntity, std::uint32_t aHalfEdge) {
    fSums[aEntity] += aHalfEdge;
    fCounts[aEntity] = static_cast<std::uint8_t>(std::min(fCounts[aEntity] + 1, 3));
  }

  std::vector<std::uint32_t> fSums;   // of the numbers of an entity's half-edges
  std::vector<std::uint8_t> fCounts;  // of them, three standing for more
};

}  // namespace

TVertexGraph::TVertexGraph(const TEntityTree& aTree)
    : fEntities(EntitiesOf(aTree)),
      fTolerance(ReadLinearTolerance()),
      fPending(dynamic_cast<TPendingGraph*>(aTree.PendingNodes())) {
  fAnyLine.EntityType = DXFLine;
  if (fPending == nullptr) {
    ReadTree(aTree);
  } else {
    ReadPendingGraph();
  }
  if (fPending == nullptr || !JoinPendingTwins()) FindFarVertices();
}

void TVertexGraph::ReadTree(const TEntityTree& aTree) {
  const std::span<TTreeNode* const> vertices = aTree.RootNode()->Children();
  fPoints.reserve(vertices.size());
  fFirst.reserve(vertices.size() + 1);
  fHalfEdges.reserve(2 * fEntities.size());
  fNodes.reserve(2 * fEntities.size());
  for (TTreeNode* vertex : vertices) {
    fFirst.push_back(HalfEdgeCount());
    for (TTreeNode* node : vertex->Children()) {
      THalfEdge& halfEdge = fHalfEdges.emplace_back();
      halfEdge.fVertex = ToIndex(fPoints.size());
      halfEdge.fEntityIndex = node->EntityIndex();
      halfEdge.fIsTravelled = node->Travelled();
      fNodes.push_back(node);
    }
    fPoints.push_back(vertex->Coordinates());
  }
  fFirst.push_back(HalfEdgeCount());
}

void TVertexGraph::ReadPendingGraph() {
  const std::span<const TIndex> vertexOf = fPending->VertexOfHalfEdges();
  fPoints = fPending->Points();
  fFirst = fPending->GetCounts();
  fFirst.push_back(0);
  std::exclusive_scan(fFirst.begin(), fFirst.end(), fFirst.begin(), 0);
  fHalfEdges.resize(vertexOf.size());
  fPendingPlaces.reserve(vertexOf.size());
  std::vector<TIndex> places = fFirst;
  for (TIndex i = 0; i < ToIndex(vertexOf.size()); ++i) {
    const TIndex vertex = vertexOf[At(i)];
    fPendingPlaces.push_back(places[At(vertex)]++);
    THalfEdge& halfEdge = fHalfEdges[At(fPendingPlaces.back())];
    halfEdge.fVertex = vertex;
    halfEdge.fEntityIndex = i / 2;
    halfEdge.fIsTravelled = fPending->Travelled(i);
  }
}

// Without a search: no two vertices of a pending graph are the same under the tolerance that it was made with, and
// each is an end of some piece, so that it is the same as itself once that piece is joined. False when some are left
// over for FindFarVertices.
bool TVertexGraph::JoinPendingTwins() {
  fIsRegular = fPending->Tolerance() == fTolerance && fTolerance > 0 && fHalfEdges.size() <= 2 * fEntities.size();
  if (!fIsRegular) return false;
  for (std::size_t i = 0; i + 1 < fPendingPlaces.size(); i += 2) {
    const auto [low, high] = std::minmax(fPendingPlaces[i], fPendingPlaces[i + 1]);
    fIsRegular = JoinTwins(low, high) && fIsRegular;
  }
  return fIsRegular;
}

void TVertexGraph::NumberByPlace() {
  const std::vector<TIndex> numbers = GetPlaneOrder(fPoints);
  std::vector<TEntityCoordinate> points(fPoints.size());
  std::vector<TIndex> first(fFirst.size(), 0);
  for (std::size_t v = 0; v < numbers.size(); ++v) {
    points[At(numbers[v])] = fPoints[v];
    first[At(numbers[v])] = Degree(ToIndex(v));
  }
  std::exclusive_scan(first.begin(), first.end(), first.begin(), 0);
  fInOrder.reserve(fHalfEdges.size());
  for (TIndex h = 0; h < HalfEdgeCount(); ++h) {
    const TIndex vertex = HalfEdge(h).fVertex;
    fInOrder.push_back(first[At(numbers[At(vertex)])] + (h - FirstHalfEdge(vertex)));
  }
  std::vector<THalfEdge> halfEdges(fHalfEdges.size());
  for (std::size_t h = 0; h < fHalfEdges.size(); ++h) {
    THalfEdge halfEdge = fHalfEdges[h];
    halfEdge.fVertex = numbers[At(halfEdge.fVertex)];
    halfEdge.fFarVertex = numbers[At(halfEdge.fFarVertex)];
    halfEdge.fTwin = fInOrder[At(halfEdge.fTwin)];
    halfEdges[At(fInOrder[h])] = halfEdge;
  }
  fPoints = std::move(points);
  fFirst = std::move(first);
  fHalfEdges = std::move(halfEdges);
}

void TVertexGraph::FindFarVertices() {
  const TVertexSearch search(fPoints);
  const TTwins twins(fHalfEdges, fEntities.size());
  fIsRegular = search.AreAllApart();
  for (TIndex h = 0; h < HalfEdgeCount(); ++h) {
    THalfEdge& halfEdge = fHalfEdges[At(h)];
    if (halfEdge.fFarVertex != kNotFound) continue;  // joined with its twin already
    const TIndex twin = twins.Of(h, halfEdge.fEntityIndex);
    if (twin > h && search.IsFirst(halfEdge.fVertex) && search.IsFirst(HalfEdge(twin).fVertex) && JoinTwins(h, twin)) {
      continue;
    }
    const TEntityCoordinate farEnd = FarEndFrom(From(halfEdge), halfEdge);
    const bool leadsToTwin = twin != kNotFound && HasSameBits(From(HalfEdge(twin)), farEnd);
    if (leadsToTwin) halfEdge.fTwin = twin;
    halfEdge.fFarVertex = leadsToTwin ? search.FindFirst(HalfEdge(twin).fVertex) : search.FindFirst(farEnd);
    halfEdge.fIsLine = Entity(halfEdge).EntityType == DXFLine;
    halfEdge.fIsExact = IsExact(halfEdge, farEnd);
    fIsRegular = fIsRegular && leadsToTwin && halfEdge.fIsExact && JoinsVertices(halfEdge);
  }
}

// Both half-edges of a piece at once, where all is well: each vertex is the first that is the same as itself, so the
// two are one or not the same, and either end of the piece is the other end of the other one. False when something is
// not.
bool TVertexGraph::JoinTwins(TIndex aHalfEdge, TIndex aTwin) {
  THalfEdge& halfEdge = fHalfEdges[At(aHalfEdge)];
  THalfEdge& twin = fHalfEdges[At(aTwin)];
  const bool isLine = Entity(halfEdge).EntityType == DXFLine;
  THalfEdge joined = halfEdge;
  joined.fFarVertex = twin.fVertex;
  joined.fTwin = aTwin;
  joined.fIsLine = isLine;
  joined.fIsExact = IsExact(joined, From(twin));
  if (!joined.fIsExact || !JoinsVertices(joined)) return false;
  halfEdge = joined;
  twin.fFarVertex = halfEdge.fVertex;
  twin.fTwin = aHalfEdge;
  twin.fIsLine = isLine;
  twin.fIsExact = true;
  return true;
}

bool TVertexGraph::IsExact(const THalfEdge& aHalfEdge, const TEntityCoordinate& aFarEnd) const {
  if (aHalfEdge.fFarVertex == kNotFound || !HasSameBits(Point(aHalfEdge.fFarVertex), aFarEnd)) return false;
  const TDXFEntity& entity = Entity(aHalfEdge);
  if (!IsTame(entity.StartCoords) || !IsTame(entity.EndCoords)) return false;
  return aHalfEdge.fIsLine || (entity.EntityType == DXFArc && IsTameArc(entity));
}

// Whether the piece's own ends are the half-edge's two vertices. REQUIRES: an exact half-edge.
bool TVertexGraph::JoinsVertices(const THalfEdge& aHalfEdge) const {
  const TDXFEntity& entity = Entity(aHalfEdge);
  const TEntityCoordinate& from = From(aHalfEdge);
  const TEntityCoordinate& farEnd = Point(aHalfEdge.fFarVertex);
  return (HasSameBits(entity.StartCoords, from) && HasSameBits(entity.EndCoords, farEnd)) ||
         (HasSameBits(entity.EndCoords, from) && HasSameBits(entity.StartCoords, farEnd));
}

const TDXFEntity& TVertexGraph::Entity(const THalfEdge& aHalfEdge) const {
  static const TDXFEntity empty;
  return IsIndexWithin(aHalfEdge.fEntityIndex, fEntities.size()) ? fEntities[At(aHalfEdge.fEntityIndex)] : empty;
}

bool TVertexGraph::AreSameEntity(const THalfEdge& aArriving, const THalfEdge& aLeaving) const {
  // A piece with an infinite coordinate is not the same as itself.
  if (IsRegular() && aLeaving.fEntityIndex == aArriving.fEntityIndex) return true;
  if (IsRegular() && aLeaving.fFarVertex != aArriving.fVertex) return false;
  return Entity(aLeaving) == Entity(aArriving);
}

TEntityCoordinate TVertexGraph::FarEndFrom(const TEntityCoordinate& aPoint, const THalfEdge& aHalfEdge) const {
  return GetOtherEnd(aPoint, Entity(aHalfEdge), fTolerance);
}

}  // namespace GeometryEngine::detail

#include "xsec/prepare/VertexPlaces.h"

#include <algorithm>

#include "xsec/prepare/Curves.h"
#include "xsec/prepare/PointCells.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;
using GeometryEngine::TTreeNode;

class PlaceCollector {
 public:
  explicit PlaceCollector(double tolerance) : fKnown(tolerance) {}

  void AddEnds(const TDXFEntity& geometry, std::size_t part) {
    for (const Point& end : {geometry.StartCoords, geometry.EndCoords}) Add(end, part);
  }

  /// REQUIRES: the part's ends were added.
  void AddMeetings(const Part& met, std::size_t part) {
    for (const Point& end : {met.geometry.StartCoords, met.geometry.EndCoords}) fLastPart[PlaceOf(end)] = part;
    for (const Point& meeting : met.meetings) Add(meeting, part);
  }

  std::vector<MeetingPlace> Result() && { return std::move(fPlaces); }

 private:
  void Add(const Point& point, std::size_t part) {
    const std::size_t place = PlaceOf(point);
    if (fLastPart[place] == part) return;
    fLastPart[place] = part;
    fPlaces[place].parts.push_back(part);
  }

  std::size_t PlaceOf(const Point& point) {
    std::size_t first = fPlaces.size();
    fKnown.Visit(point, [&](std::size_t place) {
      if (fPlaces[place].point == point) first = std::min(first, place);
      return false;
    });
    if (first == fPlaces.size()) {
      fKnown.Add(point, first);
      fPlaces.push_back({point, {}});
      fLastPart.push_back(kNone);
    }
    return first;
  }

  PointCells fKnown;
  std::vector<MeetingPlace> fPlaces;
  std::vector<std::size_t> fLastPart;  ///< for each place the part that was last found there
};

/// What of some points is the same as another point.
struct SamePoints {
  std::size_t closest = kNone;
  std::size_t count = 0;
};

std::vector<SamePoints> SamePointsOf(const std::vector<Point>& points, const std::vector<Point>& others,
                                     double tolerance) {
  PointCells cells(tolerance);
  for (std::size_t i = 0; i < points.size(); ++i) cells.Add(points[i], i);
  std::vector<SamePoints> found;
  for (const Point& other : others) {
    SamePoints& same = found.emplace_back();
    cells.Visit(other, [&](std::size_t i) {
      if (points[i] != other) return false;
      const bool isCloser = same.count == 0 || DistanceOf(points[i], other) < DistanceOf(points[same.closest], other);
      if (isCloser) same.closest = i;
      ++same.count;
      return false;
    });
  }
  return found;
}

bool IsSameBits(const Point& a, const Point& b) {
  return a.x == b.x && a.y == b.y;
}

void MoveEnds(TDXFEntity& piece, const Point& from, const Point& to) {
  const Point start = IsSameBits(piece.StartCoords, from) ? to : piece.StartCoords;
  const Point end = IsSameBits(piece.EndCoords, from) ? to : piece.EndCoords;
  const TDXFEntity moved = PieceBetween(piece, start, end);
  piece.StartCoords = moved.StartCoords;
  piece.EndCoords = moved.EndCoords;
  piece.startAngle = moved.startAngle;
  piece.endAngle = moved.endAngle;
}

void MoveVertex(TTreeNode& vertex, GeometryEngine::TEntityStorage& pieces, const Point& to) {
  const Point from = vertex.Coordinates();
  for (const TTreeNode* end : vertex.Children()) {
    MoveEnds(*pieces.GetEntityFromIndex_Pointer(end->EntityIndex()), from, to);
  }
  vertex.Coordinates(to);
}

}  // namespace

std::vector<MeetingPlace> FindPlaces(const Preparation& aWork) {
  PlaceCollector places(aWork.tolerance);
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) places.AddEnds(aWork.parts[i].geometry, i);
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) places.AddMeetings(aWork.parts[i], i);
  return std::move(places).Result();
}

std::vector<Cure> PutVerticesBack(GeometryEngine::TEntityTree& aGraph, const std::vector<Point>& aPlaces,
                                  double aTolerance) {
  std::vector<Point> vertices;
  for (const TTreeNode* vertex : aGraph.RootNode()->Children()) vertices.push_back(vertex->Coordinates());
  const std::vector<SamePoints> placesOf = SamePointsOf(aPlaces, vertices, aTolerance);
  const std::vector<SamePoints> verticesAt = SamePointsOf(vertices, aPlaces, aTolerance);
  std::vector<Cure> cures;
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const std::size_t closest = placesOf[i].closest;
    if (closest == kNone || verticesAt[closest].count > 1) continue;
    const Point& place = aPlaces[closest];
    if (IsSameBits(place, vertices[i])) continue;
    MoveVertex(*aGraph.RootNode()->GetNode(GeometryEngine::ToIndex(i)), *aGraph.pEntityStorage(), place);
    const double moved = DistanceOf(place, vertices[i]);
    if (moved > kToldMove * aTolerance) cures.push_back({CureKind::Vertex, place, kNone, kNone, moved});
  }
  return cures;
}

}  // namespace xsec

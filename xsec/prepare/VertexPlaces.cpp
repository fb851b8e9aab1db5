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
  PlaceCollector(double tolerance, std::size_t parts) : fKnown(tolerance, parts) {}

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

/// Points, looked up by what is the same as one of them.
class PointLookup {
 public:
  PointLookup(const std::vector<Point>& points, double tolerance) : fPoints(points), fCells(tolerance, points.size()) {
    for (std::size_t i = 0; i < points.size(); ++i) fCells.Add(points[i], i);
  }

  /// kNone where none is the same.
  std::size_t ClosestTo(const Point& point) const {
    std::size_t closest = kNone;
    ForEachSame(point, [&](std::size_t i) {
      const bool isCloser = closest == kNone || Distance(fPoints[i], point) < Distance(fPoints[closest], point);
      if (isCloser) closest = i;
    });
    return closest;
  }

  std::size_t CountAt(const Point& point) const {
    std::size_t count = 0;
    ForEachSame(point, [&](std::size_t) { ++count; });
    return count;
  }

 private:
  template <typename Take>
  void ForEachSame(const Point& point, Take&& take) const {
    fCells.Visit(point, [&](std::size_t i) {
      if (fPoints[i] == point) take(i);
      return false;
    });
  }

  const std::vector<Point>& fPoints;
  PointCells fCells;
};

void MoveEnds(TDXFEntity& piece, const Point& from, const Point& to) {
  const Point start = IsSameBits(piece.StartCoords, from) ? to : piece.StartCoords;
  const Point end = IsSameBits(piece.EndCoords, from) ? to : piece.EndCoords;
  const TDXFEntity moved = PieceBetween(piece, start, end);
  piece.StartCoords = moved.StartCoords;
  piece.EndCoords = moved.EndCoords;
  piece.CentreCoords = moved.CentreCoords;
  piece.radius = moved.radius;
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
  PlaceCollector places(aWork.tolerance, aWork.parts.size());
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) places.AddEnds(aWork.parts[i].geometry, i);
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) places.AddMeetings(aWork.parts[i], i);
  return std::move(places).Result();
}

std::vector<Cure> PutVerticesBack(GeometryEngine::TEntityTree& aGraph, const std::vector<Point>& aPlaces,
                                  double aTolerance) {
  std::vector<Point> vertices;
  for (const TTreeNode* vertex : aGraph.RootNode()->Children()) vertices.push_back(vertex->Coordinates());
  const PointLookup places(aPlaces, aTolerance);
  const PointLookup vertexLookup(vertices, aTolerance);
  std::vector<Cure> cures;
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const std::size_t closest = places.ClosestTo(vertices[i]);
    if (closest == kNone) continue;
    const Point& place = aPlaces[closest];
    if (IsSameBits(place, vertices[i]) || vertexLookup.CountAt(place) > 1) continue;
    MoveVertex(*aGraph.RootNode()->GetNode(GeometryEngine::ToIndex(i)), *aGraph.pEntityStorage(), place);
    const double moved = Distance(place, vertices[i]);
    if (moved > kToldMove * aTolerance) cures.push_back({CureKind::Vertex, place, kNone, kNone, moved});
  }
  return cures;
}

}  // namespace xsec

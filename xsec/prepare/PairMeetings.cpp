#include "xsec/prepare/PairMeetings.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"
#include "GeometryEngine/host/Numerics.h"
#include "xsec/prepare/Curves.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;
using GeometryEngine::TDXFEntity;

/// A frame about a point near the pair, its x axis along a direction of length 1.
struct Frame {
  Point origin;
  Point along{1, 0};

  Point Into(const Point& p) const {
    const Point d = p - origin;
    return {along.x * d.x + along.y * d.y, along.x * d.y - along.y * d.x};
  }
  Point OutOf(const Point& p) const {
    return {origin.x + along.x * p.x - along.y * p.y, origin.y + along.y * p.x + along.x * p.y};
  }
  TDXFEntity Into(TDXFEntity entity) const {
    const double turn = std::atan2(along.y, along.x) * GeometryEngine::kDegreesPerRadian;
    entity.StartCoords = Into(entity.StartCoords);
    entity.EndCoords = Into(entity.EndCoords);
    entity.CentreCoords = Into(entity.CentreCoords);
    entity.startAngle = GeometryEngine::GetAngleInRange(entity.startAngle - turn, 0, kFullTurn);
    entity.endAngle = GeometryEngine::GetAngleInRange(entity.endAngle - turn, 0, kFullTurn);
    return entity;
  }
};

/// DEGENERATE: along x for a vector without length.
Point Unit(const Point& vector) {
  const double length = std::hypot(vector.x, vector.y);
  return length > 0 ? Point{vector.x / length, vector.y / length} : Point{1, 0};
}

Point DirectionOfLine(const TDXFEntity& line) {
  return Unit(line.EndCoords - line.StartCoords);
}

/// Half-way between the directions of both lines, on the side where they are closer: neither is steep there.
Frame FrameOfLines(const TDXFEntity& a, const TDXFEntity& b) {
  const Point u = DirectionOfLine(a);
  const Point v = DirectionOfLine(b);
  const double sign = u.x * v.x + u.y * v.y < 0 ? -1 : 1;
  return {a.StartCoords, Unit({u.x + sign * v.x, u.y + sign * v.y})};
}

/// The centres stand above each other.
Frame FrameOfArcs(const TDXFEntity& a, const TDXFEntity& b) {
  const Point up = Unit(b.CentreCoords - a.CentreCoords);
  return {a.CentreCoords, {up.y, -up.x}};
}

/// The line lies level, or stands upright when it runs towards the centre: where it meets the circle is far away then
/// from the direction at which angles begin anew. An arc that ends there may begin just past it in one rounding and
/// just before it in another.
Frame FrameOfLineAndArc(const TDXFEntity& line, const TDXFEntity& arc) {
  const Point along = DirectionOfLine(line);
  const Point arm = line.StartCoords - arc.CentreCoords;
  const bool isTowardsCentre = std::abs(along.x * arm.y - along.y * arm.x) < arc.radius / 2;
  return {arc.CentreCoords, isTowardsCentre ? Point{along.y, -along.x} : along};
}

Frame FrameOf(const TDXFEntity& a, const TDXFEntity& b) {
  if (IsArc(a) && IsArc(b)) return FrameOfArcs(a, b);
  if (IsArc(a)) return FrameOfLineAndArc(b, a);
  if (IsArc(b)) return FrameOfLineAndArc(a, b);
  return FrameOfLines(a, b);
}

/// An end of either that is the same as the point, else the point itself: what meets at an end shares its very bits.
Point SnappedToEnds(const Point& point, const TDXFEntity& a, const TDXFEntity& b) {
  for (const Point& end : {a.StartCoords, a.EndCoords, b.StartCoords, b.EndCoords}) {
    if (end == point) return end;
  }
  return point;
}

bool IsOn(const TDXFEntity& entity, const Point& point) {
  return GeometryEngine::ValuesSame_DXFTolerance(DistanceTo(entity, point), 0);
}

/// Where a line only touches an arc the library answers one point of the line, though it may well run through the arc
/// between two points that are further apart than the tolerance: then these. Else the point, moved onto the arc.
std::vector<Point> TouchingPoints(const Point& touch, const TDXFEntity& line, const TDXFEntity& arc) {
  if (touch == arc.StartCoords || touch == arc.EndCoords || touch == line.StartCoords || touch == line.EndCoords) {
    return {touch};
  }
  const Point arm = touch - arc.CentreCoords;
  const double distance = std::hypot(arm.x, arm.y);
  const double half = std::sqrt(std::max(0.0, arc.radius * arc.radius - distance * distance));
  const Point reach = half * DirectionOfLine(line);
  std::vector<Point> points;
  for (const Point& point : {touch - reach, touch + reach}) {
    if (IsOn(line, point) && IsOn(arc, point)) points.push_back(point);
  }
  const bool isOne = touch == touch + reach || points.empty();
  return isOne ? std::vector<Point>{arc.CentreCoords + arc.radius / distance * arm} : points;
}

std::vector<Point> Snapped(std::vector<Point> points, const TDXFEntity& a, const TDXFEntity& b) {
  for (Point& point : points) point = SnappedToEnds(point, a, b);
  return points;
}

}  // namespace

std::vector<Point> CrossingsOf(const TDXFEntity& aFirst, const TDXFEntity& aSecond) {
  const Frame frame = FrameOf(aFirst, aSecond);
  const TDXFEntity first = frame.Into(aFirst);
  const TDXFEntity second = frame.Into(aSecond);
  GeometryEngine::TInterceptionPoints found;
  CheckIntercepts(first, second, found);
  if (found.IsEmpty()) CheckIntercepts(second, first, found);  // one order turns lines away by their extent
  std::vector<Point> points;
  for (const Point& point : found.Points()) points.push_back(frame.OutOf(point));
  if (points.size() == 1 && IsArc(aFirst) != IsArc(aSecond)) {
    points = IsArc(aFirst) ? TouchingPoints(points[0], aSecond, aFirst) : TouchingPoints(points[0], aFirst, aSecond);
  }
  return points;
}

std::vector<Point> MeetingsOf(const TDXFEntity& aFirst, const TDXFEntity& aSecond) {
  return Snapped(CrossingsOf(aFirst, aSecond), aFirst, aSecond);
}

std::vector<Point> MeetingsAsDrawn(const TDXFEntity& aFirst, const TDXFEntity& aSecond) {
  const bool isFirstNewer = GetLeftMostCoordinate(aFirst).x > GetLeftMostCoordinate(aSecond).x;
  GeometryEngine::TInterceptionPoints found;
  isFirstNewer ? CheckIntercepts(aFirst, aSecond, found) : CheckIntercepts(aSecond, aFirst, found);
  return found.Points();
}

}  // namespace xsec

#include "xsec/TravelledPiece.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include "GeometryEngine/host/Numerics.h"

namespace xsec {

namespace {

using GeometryEngine::kDegreesPerRadian;
using GeometryEngine::kFullTurn;
using GeometryEngine::kHalfTurn;
using GeometryEngine::kQuarterTurn;
using GeometryEngine::kRadiansPerDegree;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

Point OnCircle(const TravelledPiece& piece, double angle) {
  const double radians = angle * kRadiansPerDegree;
  return {piece.centre.x + piece.radius * std::cos(radians), piece.centre.y + piece.radius * std::sin(radians)};
}

/// Where the arc begins when it is walked anticlockwise, at least 0 and less than 360.
double LowestAngle(const TravelledPiece& piece) {
  return GeometryEngine::GetAngleInRange(piece.sweep < 0 ? piece.endAngle : piece.startAngle, 0, kFullTurn);
}

/// The first angle beyond this one that is `offset` and a multiple of `step`.
double NextAngle(double angle, double step, double offset) {
  return (std::floor((angle - offset) / step) + 1) * step + offset;
}

bool IsWithinSweep(const TravelledPiece& piece, const Point& point) {
  const double angle = std::atan2(point.y - piece.centre.y, point.x - piece.centre.x) * kDegreesPerRadian;
  const double beyond = GeometryEngine::GetAngleInRange(angle - LowestAngle(piece), 0, kFullTurn);
  return beyond <= std::abs(piece.sweep);
}

double DistanceToLine(const TravelledPiece& piece, const Point& point) {
  const double dx = piece.to.x - piece.from.x;
  const double dy = piece.to.y - piece.from.y;
  const double square = dx * dx + dy * dy;
  if (!(square > 0)) return Distance(piece.from, point);
  const double along = ((point.x - piece.from.x) * dx + (point.y - piece.from.y) * dy) / square;
  const double part = std::clamp(along, 0.0, 1.0);
  return Distance(Point{piece.from.x + part * dx, piece.from.y + part * dy}, point);
}

/// Whether a stretch that rises or falls from one height to another crosses the height y. Half open, so that two
/// stretches that meet at y count once when they go on and twice or never when they turn back.
bool Passes(double from, double to, double y) {
  return (from <= y) != (to <= y);
}

/// Reckoned upwards whatever the travel, so that the two sides of a line are crossed at the very same place.
void AddLineCrossing(const TravelledPiece& piece, double y, std::vector<double>& crossings) {
  if (!Passes(piece.from.y, piece.to.y, y)) return;
  const auto& [low, high] = std::minmax(piece.from, piece.to, [](const Point& a, const Point& b) { return a.y < b.y; });
  const double part = (y - low.y) / (high.y - low.y);
  crossings.push_back(low.x + part * (high.x - low.x));
}

/// The arc is cut at its highest and lowest point; each stretch crosses a height once at most. The first and the last
/// stretch take their outer ends from the piece, which shares them with its neighbours: no crossing gets lost in
/// between.
void AddArcCrossings(const TravelledPiece& piece, double y, std::vector<double>& crossings) {
  const bool clockwise = piece.sweep < 0;
  const double rise = y - piece.centre.y;
  const double run = std::sqrt(std::max(0.0, piece.radius * piece.radius - rise * rise));
  double angle = LowestAngle(piece);
  const double end = angle + std::abs(piece.sweep);
  double height = clockwise ? piece.to.y : piece.from.y;
  while (angle < end) {
    const double next = std::min(end, NextAngle(angle, kHalfTurn, kQuarterTurn));
    const double nextHeight = next < end ? OnCircle(piece, next).y : (clockwise ? piece.from.y : piece.to.y);
    const bool onTheRight = std::cos((angle + next) / 2 * kRadiansPerDegree) > 0;
    if (Passes(height, nextHeight, y)) crossings.push_back(piece.centre.x + (onTheRight ? run : -run));
    angle = next;
    height = nextHeight;
  }
}

/// An angle less its sine, the digits kept where they are nearly the same.
double LessItsSine(double angle) {
  constexpr double kSmall = 0.01;  // radians; the next term would be below a double's last place
  const double square = angle * angle;
  if (std::abs(angle) > kSmall) return angle - std::sin(angle);
  return angle * square / 6 * (1 - square / 20 * (1 - square / 42));
}

/// The area between an arc and its chord, positive when the arc bulges to the right of its travel.
double SegmentArea(const TravelledPiece& piece) {
  return piece.radius * piece.radius / 2 * LessItsSine(piece.sweep * kRadiansPerDegree);
}

/// That area times where its centroid lies, seen from a point. About the arc's own centre, where it is the cube of the
/// chord over 12 along the middle of the arc, and from there moved.
Point SegmentMoment(const TravelledPiece& piece, const Point& origin) {
  const double halfSweep = piece.sweep / 2 * kRadiansPerDegree;
  const double middle = piece.startAngle * kRadiansPerDegree + halfSweep;
  const double chord = 2 * piece.radius * std::sin(halfSweep);
  const double aboutCentre = chord * chord * chord / 12;
  return SegmentArea(piece) * (piece.centre - origin) + aboutCentre * Point{std::cos(middle), std::sin(middle)};
}

}  // namespace

TravelledPiece Travel(const GeometryEngine::TDXFEntity& aEntity, bool aForward) {
  TravelledPiece piece;
  piece.isArc = aEntity.EntityType == GeometryEngine::DXFArc;
  piece.from = aForward ? aEntity.StartCoords : aEntity.EndCoords;
  piece.to = aForward ? aEntity.EndCoords : aEntity.StartCoords;
  if (!piece.isArc) return piece;
  piece.centre = aEntity.CentreCoords;
  piece.radius = aEntity.radius;
  piece.startAngle = aForward ? aEntity.startAngle : aEntity.endAngle;
  piece.endAngle = aForward ? aEntity.endAngle : aEntity.startAngle;
  piece.sweep = aForward ? aEntity.ArcSweep() : -aEntity.ArcSweep();
  return piece;
}

TravelledPiece Reversed(const TravelledPiece& aPiece) {
  TravelledPiece reversed = aPiece;
  std::swap(reversed.from, reversed.to);
  std::swap(reversed.startAngle, reversed.endAngle);
  reversed.sweep = -aPiece.sweep;
  return reversed;
}

Point PointAlong(const TravelledPiece& aPiece, double aPart) {
  if (aPiece.isArc) return OnCircle(aPiece, aPiece.startAngle + aPart * aPiece.sweep);
  return {aPiece.from.x + aPart * (aPiece.to.x - aPiece.from.x), aPiece.from.y + aPart * (aPiece.to.y - aPiece.from.y)};
}

TravelledPiece PartOf(const TravelledPiece& aPiece, double aFrom, double aTo) {
  TravelledPiece part = aPiece;
  if (aFrom > 0) part.from = PointAlong(aPiece, aFrom);
  if (aTo < 1) part.to = PointAlong(aPiece, aTo);
  part.startAngle = aPiece.startAngle + aFrom * aPiece.sweep;
  part.endAngle = aPiece.startAngle + aTo * aPiece.sweep;
  part.sweep = (aTo - aFrom) * aPiece.sweep;
  return part;
}

Point MidPoint(const TravelledPiece& aPiece) {
  return PointAlong(aPiece, 0.5);
}

double Length(const TravelledPiece& aPiece) {
  if (aPiece.isArc) return aPiece.radius * std::abs(aPiece.sweep) * kRadiansPerDegree;
  return Distance(aPiece.from, aPiece.to);
}

double Distance(const TravelledPiece& aPiece, const Point& aPoint) {
  if (!aPiece.isArc) return DistanceToLine(aPiece, aPoint);
  const double toEnds = std::min(Distance(aPiece.from, aPoint), Distance(aPiece.to, aPoint));
  if (!IsWithinSweep(aPiece, aPoint)) return toEnds;
  return std::min(toEnds, std::abs(Distance(aPiece.centre, aPoint) - aPiece.radius));
}

Extents Bounds(const TravelledPiece& aPiece) {
  Extents box = EmptyExtents();
  Widen(box, aPiece.from);
  Widen(box, aPiece.to);
  if (!aPiece.isArc) return box;
  const double begin = LowestAngle(aPiece);
  const double end = begin + std::abs(aPiece.sweep);
  for (double angle = NextAngle(begin, kQuarterTurn, 0); angle < end; angle = NextAngle(angle, kQuarterTurn, 0)) {
    Widen(box, OnCircle(aPiece, angle));
  }
  return box;
}

void AddCrossings(const TravelledPiece& aPiece, double aY, std::vector<double>& aCrossings) {
  if (aPiece.isArc) return AddArcCrossings(aPiece, aY, aCrossings);
  AddLineCrossing(aPiece, aY, aCrossings);
}

double SignedArea(const Loop& aLoop) {
  if (aLoop.empty()) return 0;
  const Point origin = aLoop.front().from;  // near by, so that loops far from the drawing's origin lose no digits
  double area = 0;
  for (const TravelledPiece& piece : aLoop) {
    const Point a = piece.from - origin;
    const Point b = piece.to - origin;
    area += (a.x * b.y - b.x * a.y) / 2;
    if (piece.isArc) area += SegmentArea(piece);
  }
  return area;
}

// That of a sliver, whose area may be rounding alone, is brought back into the box.
Point Centroid(const Loop& aLoop) {
  if (aLoop.empty()) return {};
  const Extents box = Bounds(aLoop);
  const double area = SignedArea(aLoop);
  if (area == 0) return {(box.minX + box.maxX) / 2, (box.minY + box.maxY) / 2};
  const Point origin = aLoop.front().from;
  Point moment;
  for (const TravelledPiece& piece : aLoop) {
    const Point a = piece.from - origin;
    const Point b = piece.to - origin;
    moment = moment + (a.x * b.y - b.x * a.y) / 6 * (a + b);
    if (piece.isArc) moment = moment + SegmentMoment(piece, origin);
  }
  return {std::clamp(origin.x + moment.x / area, box.minX, box.maxX),
          std::clamp(origin.y + moment.y / area, box.minY, box.maxY)};
}

double Length(const Loop& aLoop) {
  double length = 0;
  for (const TravelledPiece& piece : aLoop) length += Length(piece);
  return length;
}

double Distance(const Loop& aLoop, const Point& aPoint) {
  double distance = kInfinity;
  for (const TravelledPiece& piece : aLoop) distance = std::min(distance, Distance(piece, aPoint));
  return distance;
}

Extents Bounds(const Loop& aLoop) {
  Extents box = EmptyExtents();
  for (const TravelledPiece& piece : aLoop) Widen(box, Bounds(piece));
  return box;
}

bool IsInside(const Loop& aLoop, const Point& aPoint) {
  std::vector<double> crossings;
  for (const TravelledPiece& piece : aLoop) AddCrossings(piece, aPoint.y, crossings);
  return IsInside(crossings, aPoint);
}

bool IsInside(const std::vector<double>& aCrossings, const Point& aPoint) {
  return std::count_if(aCrossings.begin(), aCrossings.end(), [&](double x) { return x > aPoint.x; }) % 2 != 0;
}

}  // namespace xsec

#include "xsec/transform/OffsetCorner.h"

#include <cmath>

namespace xsec {

namespace {

constexpr double kSmooth = 1e-4;  // sine of the angle between pieces that go on in one direction

Point Along(const Point& point, const Point& direction, double distance) {
  return {point.x + distance * direction.x, point.y + distance * direction.y};
}

Point Unit(const Point& vector) {
  const double length = std::hypot(vector.x, vector.y);
  return {vector.x / length, vector.y / length};
}

Point RightOf(const Point& direction) {
  return {direction.y, -direction.x};
}

/// The direction in which a piece is travelled at a point of it.
Point DirectionAt(const TravelledPiece& piece, const Point& point) {
  if (!piece.isArc) return Unit(piece.to - piece.from);
  const Point outwards = Unit(point - piece.centre);
  return piece.sweep > 0 ? Point{-outwards.y, outwards.x} : Point{outwards.y, -outwards.x};
}

Point Nearer(const Point& a, const Point& b, const Point& near) {
  return Distance(a, near) <= Distance(b, near) ? a : b;
}

/// Two points to both sides of the foot along a direction, as far as the square says.
std::optional<Point> NearerOfTwo(const Point& foot, const Point& direction, double square, const Point& near) {
  if (square < 0) return std::nullopt;
  const double reach = std::sqrt(square);
  return Nearer(Along(foot, direction, reach), Along(foot, direction, -reach), near);
}

std::optional<Point> LineWithCircle(const TravelledPiece& line, const TravelledPiece& arc, double distance,
                                    const Point& near) {
  const Point direction = DirectionAt(line, line.from);
  const Point on = Along(line.from, RightOf(direction), distance);
  const Point arm = on - arc.centre;
  const Point foot = Along(on, direction, -(arm.x * direction.x + arm.y * direction.y));
  const double away = Distance(foot, arc.centre);
  const double radius = OffsetRadius(arc, distance);
  return NearerOfTwo(foot, direction, radius * radius - away * away, near);
}

std::optional<Point> CircleWithCircle(const TravelledPiece& a, const TravelledPiece& b, double distance,
                                      const Point& near) {
  const double gap = Distance(a.centre, b.centre);
  if (!(gap > 0)) return std::nullopt;
  const Point direction = Unit(b.centre - a.centre);
  const double radius = OffsetRadius(a, distance);
  const double other = OffsetRadius(b, distance);
  const double along = (gap * gap + radius * radius - other * other) / (2 * gap);
  return NearerOfTwo(Along(a.centre, direction, along), RightOf(direction), radius * radius - along * along, near);
}

}  // namespace

double OffsetRadius(const TravelledPiece& aArc, double aDistance) {
  return aArc.radius + (aArc.sweep > 0 ? aDistance : -aDistance);
}

std::optional<Point> OffsetCorner(const TravelledPiece& aBefore, const TravelledPiece& aAfter, double aDistance,
                                  const Point& aNear) {
  const auto isLost = [&](const TravelledPiece& piece) { return piece.isArc && !(OffsetRadius(piece, aDistance) > 0); };
  if ((!aBefore.isArc && !aAfter.isArc) || isLost(aBefore) || isLost(aAfter)) return aNear;
  const Point& vertex = aAfter.from;
  const Point in = DirectionAt(aBefore, vertex);
  const Point out = DirectionAt(aAfter, vertex);
  const bool goesOn = std::abs(in.x * out.y - in.y * out.x) < kSmooth && in.x * out.x + in.y * out.y > 0;
  if (goesOn) return Along(vertex, RightOf(aBefore.isArc ? in : out), aDistance);
  if (aBefore.isArc && aAfter.isArc) return CircleWithCircle(aBefore, aAfter, aDistance, aNear);
  return aBefore.isArc ? LineWithCircle(aAfter, aBefore, aDistance, aNear)
                       : LineWithCircle(aBefore, aAfter, aDistance, aNear);
}

}  // namespace xsec

#include "xsec/prepare/Curves.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/host/Numerics.h"

namespace xsec {

using GeometryEngine::kDegreesPerRadian;
using GeometryEngine::kFullTurn;
using GeometryEngine::kHalfTurn;
using GeometryEngine::kRadiansPerDegree;
using GeometryEngine::TDXFEntity;

namespace {

constexpr double kHalfTurnSlack = 1e-6;  // degrees that rounding may put to a half turn or take from it

double AngleAt(const Point& centre, const Point& point) {
  const double angle = std::atan2(point.y - centre.y, point.x - centre.x) * kDegreesPerRadian;
  return GeometryEngine::GetAngleInRange(angle, 0, kFullTurn);
}

/// Degrees beyond the arc's start; from half of what the arc leaves of its circle on, degrees before it.
double AngleBeyondStart(const TDXFEntity& arc, const Point& point) {
  const double beyond =
      GeometryEngine::GetAngleInRange(AngleAt(arc.CentreCoords, point) - arc.startAngle, 0, kFullTurn);
  return beyond > (arc.ArcSweep() + kFullTurn) / 2 ? beyond - kFullTurn : beyond;
}

/// An arc like this one through points beside it: of the same radius while the chord is short, else about the centre
/// moved along the chord, as a circle of that radius may be far away from where a half circle has its middle.
TDXFEntity ArcThrough(const Point& start, const Point& end, const TDXFEntity& arc) {
  const Point chord = end - start;
  const Point middle = 0.5 * (start + end);
  const double length = Distance(start, end);
  const Point left = {-chord.y / length, chord.x / length};
  const Point arm = arc.CentreCoords - middle;
  const double height =
      length < arc.radius ? std::sqrt(arc.radius * arc.radius - length * length / 4) : arm.x * left.x + arm.y * left.y;
  const Point centre = middle + height * left;
  return ArcBetween(start, end, centre, Distance(centre, start));
}

}  // namespace

bool IsOnCurve(const TDXFEntity& aEntity, const Point& aEnd) {
  return !IsArc(aEntity) ||
         GeometryEngine::ValuesSame_DXFTolerance(Distance(aEntity.CentreCoords, aEnd), aEntity.radius);
}

double PositionOf(const TDXFEntity& aEntity, const Point& aPoint) {
  if (IsArc(aEntity)) return aEntity.radius * AngleBeyondStart(aEntity, aPoint) * kRadiansPerDegree;
  const Point along = aEntity.EndCoords - aEntity.StartCoords;
  const Point offset = aPoint - aEntity.StartCoords;
  return (offset.x * along.x + offset.y * along.y) / std::hypot(along.x, along.y);
}

void SortAlong(const TDXFEntity& aEntity, std::vector<Point>& aPoints) {
  std::vector<std::pair<double, Point>> placed;
  placed.reserve(aPoints.size());
  for (const Point& point : aPoints) placed.emplace_back(PositionOf(aEntity, point), point);
  std::sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::transform(placed.begin(), placed.end(), aPoints.begin(), [](const auto& place) { return place.second; });
}

bool AreHalves(const TDXFEntity& aFirst, const TDXFEntity& aSecond) {
  const TDXFEntity& a = aFirst;
  const TDXFEntity& b = aSecond;
  return IsArc(a) && IsArc(b) && a.CentreCoords.x == b.CentreCoords.x && a.CentreCoords.y == b.CentreCoords.y &&
         a.radius == b.radius && std::abs(a.ArcSweep() - kHalfTurn) < kHalfTurnSlack &&
         std::abs(b.ArcSweep() - kHalfTurn) < kHalfTurnSlack && a.EndCoords == b.StartCoords &&
         b.EndCoords == a.StartCoords;
}

double LengthOf(const TDXFEntity& aEntity) {
  return aEntity.EntityLength();
}

double DistanceTo(const TDXFEntity& aEntity, const Point& aPoint) {
  return Distance(Travel(aEntity, true), aPoint);
}

TDXFEntity ArcBetween(const Point& aStart, const Point& aEnd, const Point& aCentre, double aRadius) {
  return TDXFEntity::Arc(aStart, aEnd, aCentre, aRadius, AngleAt(aCentre, aStart), AngleAt(aCentre, aEnd));
}

TDXFEntity PieceBetween(const TDXFEntity& aEntity, const Point& aStart, const Point& aEnd) {
  if (!IsArc(aEntity)) return TDXFEntity::Line(aStart, aEnd);
  if ((IsOnCurve(aEntity, aStart) && IsOnCurve(aEntity, aEnd)) || IsSameBits(aStart, aEnd)) {
    return ArcBetween(aStart, aEnd, aEntity.CentreCoords, aEntity.radius);
  }
  return ArcThrough(aStart, aEnd, aEntity);
}

std::vector<TDXFEntity> PiecesAt(const TDXFEntity& aEntity, std::vector<Point> aCuts) {
  if (aCuts.empty()) return {aEntity};
  SortAlong(aEntity, aCuts);
  aCuts.push_back(aEntity.EndCoords);
  std::vector<TDXFEntity> pieces;
  Point from = aEntity.StartCoords;
  for (const Point& to : aCuts) {
    if (to == from) continue;
    pieces.push_back(PieceBetween(aEntity, from, to));
    from = to;
  }
  return pieces;
}

}  // namespace xsec

#include <algorithm>
#include <cmath>
#include <optional>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/check/Findings.h"
#include "xsec/prepare/Curves.h"
#include "xsec/prepare/EntityGrid.h"
#include "xsec/prepare/PairMeetings.h"
#include "xsec/prepare/PointCells.h"

namespace xsec {

namespace {

constexpr double kReachPerDiagonal = 5e-3;  // of the drawing: further off, nobody meant to meet
constexpr double kLeastReach = 10;          // tolerances
constexpr double kEndFirst = 2;             // times the distance to a side that an end may be away to be taken
constexpr double kMostTurnOn = 1;           // radians that an arc is followed beyond its end
constexpr double kOwnNeighbourhood = 1e-9;  // of the reach: an entity that ends here is the end's own

double ToleranceFor(const Point& a, const Point& b) {
  return std::max(std::abs(a.x - b.x), std::abs(a.y - b.y));
}

/// The point of the line or arc that is closest; one of its ends when that is nearly as close, as it was meant then.
Point ClosestPoint(const GeometryEngine::TDXFEntity& entity, const Point& point) {
  const bool isStart = Distance(entity.StartCoords, point) < Distance(entity.EndCoords, point);
  const Point& end = isStart ? entity.StartCoords : entity.EndCoords;
  if (Distance(end, point) <= kEndFirst * DistanceTo(entity, point)) return end;
  const double length = LengthOf(entity);
  const double position = std::clamp(PositionOf(entity, point), 0.0, length);
  if (position == 0) return entity.StartCoords;
  if (position == length) return entity.EndCoords;
  return PointAlong(Travel(entity, true), position / length);
}

bool IsEndOf(const GeometryEngine::TDXFEntity& entity, const Point& point) {
  return Distance(entity.StartCoords, point) == 0 || Distance(entity.EndCoords, point) == 0;
}

/// The way on, of some length, from the end of the entity that is closer to a point.
GeometryEngine::TDXFEntity WayOn(const GeometryEngine::TDXFEntity& entity, const Point& point, double length) {
  const bool isStart = Distance(entity.StartCoords, point) < Distance(entity.EndCoords, point);
  const Point& from = isStart ? entity.StartCoords : entity.EndCoords;
  if (!IsArc(entity)) {
    const Point& behind = isStart ? entity.EndCoords : entity.StartCoords;
    return GeometryEngine::TDXFEntity::Line(from, from + length / Distance(from, behind) * (from - behind));
  }
  const double angle = std::min(length / entity.radius, kMostTurnOn) * (isStart ? -1 : 1);
  const Point arm = from - entity.CentreCoords;
  const Point turned{arm.x * std::cos(angle) - arm.y * std::sin(angle),
                     arm.x * std::sin(angle) + arm.y * std::cos(angle)};
  const Point to = entity.CentreCoords + turned;
  return isStart ? ArcBetween(to, from, entity.CentreCoords, entity.radius)
                 : ArcBetween(from, to, entity.CentreCoords, entity.radius);
}

class MissFinder {
 public:
  MissFinder(const Drawing& drawing, const std::vector<OpenEnd>& ends, double tolerance)
      : fDrawing(drawing),
        fEnds(ends),
        fTolerance(tolerance),
        fReach(std::max(kReachPerDiagonal * Diagonal(drawing.extents), kLeastReach * tolerance)),
        fCells(fReach) {
    for (std::size_t i = 0; i < ends.size(); ++i) fCells.Add(ends[i].place, i);
  }

  std::vector<NearMiss> Find() {
    FindEntitiesNearEnds();
    std::vector<NearMiss> misses;
    for (std::size_t i = 0; i < fEnds.size(); ++i) {
      const auto miss = BestOf(i);
      if (miss && !IsKnown(*miss, misses)) misses.push_back(*miss);
    }
    std::stable_sort(misses.begin(), misses.end(),
                     [](const NearMiss& a, const NearMiss& b) { return a.tolerance < b.tolerance; });
    return misses;
  }

 private:
  /// Ends are looked up as short lines among the drawing's entities.
  void FindEntitiesNearEnds() {
    std::vector<Part> parts;
    for (const DrawingEntity& entity : fDrawing.entities) parts.push_back({entity.geometry, parts.size(), {}, {}});
    const std::size_t first = parts.size();
    for (const OpenEnd& end : fEnds) {
      const Point beside{end.place.x + fTolerance, end.place.y};
      parts.push_back({GeometryEngine::TDXFEntity::Line(end.place, beside), parts.size(), {}, {}});
    }
    fNear.resize(fEnds.size());
    for (const auto& [a, b] : NearPairs(parts, fReach)) {
      if (a < first && b >= first) fNear[b - first].push_back(a);
    }
  }

  NearMiss MissOf(std::size_t end, const Point& other, std::size_t entity, bool isEnd) const {
    const OpenEnd& from = fEnds[end];
    return {
        from.place, other, from.entity, entity, isEnd, Distance(from.place, other), ToleranceFor(from.place, other)};
  }

  void Offer(const NearMiss& miss, std::optional<NearMiss>& best) const {
    if (miss.tolerance < fTolerance || miss.gap > fReach) return;
    if (!best || miss.gap < best->gap || (miss.gap == best->gap && miss.isEnd)) best = miss;
  }

  std::optional<NearMiss> BestOf(std::size_t end) const {
    std::optional<NearMiss> best;
    fCells.Visit(fEnds[end].place, [&](std::size_t other) {
      if (other != end) Offer(MissOf(end, fEnds[other].place, fEnds[other].entity, true), best);
      return false;
    });
    for (const std::size_t entity : fNear[end]) {
      if (entity == fEnds[end].entity) continue;
      const Point place = PlaceToMeet(end, fDrawing.entities[entity].geometry);
      if (IsOwn(place, end)) continue;
      Offer(MissOf(end, place, entity, false), best);
    }
    return best;
  }

  /// The library lets two entities meet where they cross or would cross when they went on, if no end is further from
  /// there than the tolerance. Where nothing would cross soon, it is the closest point.
  Point PlaceToMeet(std::size_t end, const GeometryEngine::TDXFEntity& side) const {
    const Point& from = fEnds[end].place;
    const Point closest = ClosestPoint(side, from);
    if (IsEndOf(side, closest) || fEnds[end].entity == kNone) return closest;
    const Point* nearest = nullptr;
    const auto crossings = CrossingsOf(WayOn(fDrawing.entities[fEnds[end].entity].geometry, from, fReach), side);
    for (const Point& crossing : crossings) {
      if (nearest == nullptr || Distance(crossing, from) < Distance(*nearest, from)) nearest = &crossing;
    }
    return nearest == nullptr ? closest : *nearest;
  }

  /// What runs into the very end is no miss: it was found there already.
  bool IsOwn(const Point& closest, std::size_t end) const {
    return Distance(closest, fEnds[end].place) < kOwnNeighbourhood * fReach;
  }

  /// The same gap from its other side.
  static bool IsKnown(const NearMiss& miss, const std::vector<NearMiss>& misses) {
    return miss.isEnd && std::any_of(misses.begin(), misses.end(), [&](const NearMiss& known) {
             return known.isEnd && Distance(known.other, miss.end) == 0 && Distance(known.end, miss.other) == 0;
           });
  }

  const Drawing& fDrawing;
  const std::vector<OpenEnd>& fEnds;
  double fTolerance;
  double fReach;
  PointCells fCells;
  std::vector<std::vector<std::size_t>> fNear;  ///< entities near each end
};

}  // namespace

std::vector<NearMiss> FindNearMisses(const Drawing& aDrawing, const std::vector<OpenEnd>& aEnds, double aTolerance) {
  return aEnds.empty() ? std::vector<NearMiss>{} : MissFinder(aDrawing, aEnds, aTolerance).Find();
}

}  // namespace xsec

#include "xsec/InnerPoint.h"

#include <algorithm>

namespace xsec {

namespace {

/// The stretches of one scan line that are looked at: more would seldom be better and cost a distance each.
constexpr std::size_t kStretchesPerHeight = 4;

struct Stretch {
  double begin;
  double end;
};

bool IsWider(const Stretch& a, const Stretch& b) {
  return a.end - a.begin > b.end - b.begin;
}

/// The widest stretches of the horizontal line through y that lie inside the space, widest first.
std::vector<Stretch> WidestStretches(const RegionSpace& space, double y) {
  std::vector<double> crossings;
  for (const TravelledPiece& piece : *space.outline) AddCrossings(piece, y, crossings);
  for (const Loop* hole : space.holes) {
    for (const TravelledPiece& piece : *hole) AddCrossings(piece, y, crossings);
  }
  std::sort(crossings.begin(), crossings.end());
  std::vector<Stretch> stretches;
  for (std::size_t i = 0; i + 1 < crossings.size(); ++i) stretches.push_back({crossings[i], crossings[i + 1]});
  std::stable_sort(stretches.begin(), stretches.end(), IsWider);
  std::vector<Stretch> widest;
  for (const Stretch& stretch : stretches) {
    if (widest.size() == kStretchesPerHeight) break;
    if (IsInside(space, {(stretch.begin + stretch.end) / 2, y})) widest.push_back(stretch);
  }
  return widest;
}

}  // namespace

bool IsInside(const RegionSpace& aSpace, const Point& aPoint) {
  return IsInside(*aSpace.outline, aPoint) && std::none_of(aSpace.holes.begin(), aSpace.holes.end(),
                                                           [&](const Loop* hole) { return IsInside(*hole, aPoint); });
}

double Clearance(const RegionSpace& aSpace, const Point& aPoint) {
  double clearance = Distance(*aSpace.outline, aPoint);
  for (const Loop* hole : aSpace.holes) clearance = std::min(clearance, Distance(*hole, aPoint));
  return clearance;
}

std::vector<Point> FindInnerPoints(const RegionSpace& aSpace, std::size_t aHeights) {
  const Extents box = Bounds(*aSpace.outline);
  std::vector<Point> points;
  for (std::size_t k = 0; k < aHeights; ++k) {
    const double part = (static_cast<double>(k) + 0.5) / static_cast<double>(aHeights);
    const double y = box.minY + part * (box.maxY - box.minY);
    for (const Stretch& stretch : WidestStretches(aSpace, y)) points.push_back({(stretch.begin + stretch.end) / 2, y});
  }
  return points;
}

std::optional<InnerPoint> FindInnerPoint(const RegionSpace& aSpace, std::size_t aHeights) {
  std::optional<InnerPoint> best;
  for (const Point& point : FindInnerPoints(aSpace, aHeights)) {
    const double clearance = Clearance(aSpace, point);
    if (clearance > (best ? best->clearance : 0)) best = InnerPoint{point, clearance};
  }
  return best;
}

}  // namespace xsec

#include "xsec/output/PointGrid.h"

#include <algorithm>

namespace xsec {

namespace {

Extents BoxOf(const std::vector<Point>& points) {
  Extents box = EmptyExtents();
  for (const Point& point : points) Widen(box, point);
  return box;
}

}  // namespace

std::size_t PointNumbers::Number(const Point& aPoint) {
  const auto [place, isNew] = fNumbers.try_emplace({aPoint.x, aPoint.y}, fPoints.size());
  if (isNew) fPoints.push_back(aPoint);
  return place->second;
}

PointGrid::PointGrid(const std::vector<Point>& aPoints) : fPoints(aPoints), fGrid(BoxOf(aPoints), aPoints.size()) {
  for (std::size_t i = 0; i < fPoints.size(); ++i) fGrid.Add(BoxAt(fPoints[i]), i);
}

std::vector<std::size_t> PointGrid::Find(const Extents& aBox) const {
  std::vector<std::size_t> found;
  fGrid.Visit(aBox, [&](std::size_t i) {
    if (Contains(aBox, fPoints[i])) found.push_back(i);
  });
  std::sort(found.begin(), found.end());
  return found;
}

std::vector<std::size_t> PointGrid::FindAlong(const TravelledPiece& aPiece, double aDistance) const {
  std::vector<std::size_t> found;
  for (const Extents& box : fGrid.BoxesAlong(aPiece)) {
    for (const std::size_t point : Find(Widened(box, aDistance))) {
      if (Distance(aPiece, fPoints[point]) < aDistance) found.push_back(point);
    }
  }
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

}  // namespace xsec

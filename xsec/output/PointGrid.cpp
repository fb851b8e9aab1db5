#include "xsec/output/PointGrid.h"

#include <algorithm>
#include <cmath>

namespace xsec {

namespace {

constexpr std::size_t kSlicesPerSide = 4;  // no piece within the grid is longer than about so many of its sides

std::size_t CellAlong(double value, double min, double max, std::size_t side) {
  const double part = (value - min) / (max - min);
  if (!(part > 0)) return 0;
  return std::min(side - 1, static_cast<std::size_t>(std::min(part, 1.0) * static_cast<double>(side)));
}

}  // namespace

std::size_t PointNumbers::Number(const Point& aPoint) {
  const auto [place, isNew] = fNumbers.try_emplace({aPoint.x, aPoint.y}, fPoints.size());
  if (isNew) fPoints.push_back(aPoint);
  return place->second;
}

PointGrid::PointGrid(const std::vector<Point>& aPoints) : fPoints(aPoints), fBox(EmptyExtents()) {
  for (const Point& point : fPoints) Widen(fBox, Extents{point.x, point.y, point.x, point.y});
  fSide = static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(fPoints.size() + 1))));
  fCells.resize(fSide * fSide);
  for (std::size_t i = 0; i < fPoints.size(); ++i) {
    fCells[Row(fPoints[i].y) * fSide + Column(fPoints[i].x)].push_back(i);
  }
}

std::size_t PointGrid::Column(double aX) const {
  return CellAlong(aX, fBox.minX, fBox.maxX, fSide);
}

std::size_t PointGrid::Row(double aY) const {
  return CellAlong(aY, fBox.minY, fBox.maxY, fSide);
}

std::vector<std::size_t> PointGrid::Find(const Extents& aBox) const {
  std::vector<std::size_t> found;
  for (std::size_t row = Row(aBox.minY); row <= Row(aBox.maxY); ++row) {
    for (std::size_t column = Column(aBox.minX); column <= Column(aBox.maxX); ++column) {
      for (const std::size_t i : fCells[row * fSide + column]) {
        if (Contains(aBox, fPoints[i])) found.push_back(i);
      }
    }
  }
  std::sort(found.begin(), found.end());
  return found;
}

/// So many parts that each is about as long as a cell is wide.
std::size_t PointGrid::SlicesOf(const TravelledPiece& aPiece) const {
  const double cells = Length(aPiece) / Diagonal(fBox) * static_cast<double>(fSide);
  const double most = static_cast<double>(fSide * kSlicesPerSide);
  return static_cast<std::size_t>(std::clamp(std::ceil(cells), 1.0, most));
}

std::vector<std::size_t> PointGrid::FindAlong(const TravelledPiece& aPiece, double aDistance) const {
  std::vector<std::size_t> found;
  const std::size_t slices = SlicesOf(aPiece);
  for (std::size_t i = 0; i < slices; ++i) {
    const double count = static_cast<double>(slices);
    const Extents box = Bounds(PartOf(aPiece, static_cast<double>(i) / count, static_cast<double>(i + 1) / count));
    for (const std::size_t point : Find(Widened(box, aDistance))) {
      if (Distance(aPiece, fPoints[point]) < aDistance) found.push_back(point);
    }
  }
  std::sort(found.begin(), found.end());
  found.erase(std::unique(found.begin(), found.end()), found.end());
  return found;
}

}  // namespace xsec

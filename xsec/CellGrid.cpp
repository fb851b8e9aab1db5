#include "xsec/CellGrid.h"

#include <algorithm>
#include <cmath>

namespace xsec {

namespace {

constexpr std::size_t kBoxesPerSide = 4;  // no piece within the grid is longer than about so many of its sides

std::size_t CellAlong(double value, double min, double max, std::size_t side) {
  const double part = (value - min) / (max - min);
  if (!(part > 0)) return 0;
  return std::min(side - 1, static_cast<std::size_t>(std::min(part, 1.0) * static_cast<double>(side)));
}

}  // namespace

CellGrid::CellGrid(const Extents& aBox, std::size_t aThings)
    : fBox(aBox),
      fSide(static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(aThings + 1))))),
      fCells(fSide * fSide) {}

std::size_t CellGrid::Column(double aX) const {
  return CellAlong(aX, fBox.minX, fBox.maxX, fSide);
}

std::size_t CellGrid::Row(double aY) const {
  return CellAlong(aY, fBox.minY, fBox.maxY, fSide);
}

void CellGrid::Add(const Extents& aBox, std::size_t aNumber) {
  for (std::size_t row = Row(aBox.minY); row <= Row(aBox.maxY); ++row) {
    for (std::size_t column = Column(aBox.minX); column <= Column(aBox.maxX); ++column) {
      std::vector<std::size_t>& numbers = fCells[row * fSide + column];
      if (numbers.empty() || numbers.back() != aNumber) numbers.push_back(aNumber);
    }
  }
}

std::vector<Extents> CellGrid::BoxesAlong(const TravelledPiece& aPiece) const {
  const double cells = Length(aPiece) / Diagonal(fBox) * static_cast<double>(fSide);
  const double count = std::clamp(std::ceil(cells), 1.0, static_cast<double>(fSide * kBoxesPerSide));
  std::vector<Extents> boxes;
  for (double i = 0; i < count; ++i) boxes.push_back(Bounds(PartOf(aPiece, i / count, (i + 1) / count)));
  return boxes;
}

}  // namespace xsec

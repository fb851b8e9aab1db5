#include "xsec/CellGrid.h"

#include <algorithm>
#include <cmath>

namespace xsec {

namespace {

constexpr std::size_t kBoxesPerSide = 4;  // no piece within the grid is longer than about so many of its sides

/// How many of so many square cells stand in a row; all of them, or one, where the box is flat.
std::size_t CountColumns(const Extents& box, std::size_t cells) {
  const double width = box.maxX - box.minX;
  const double height = box.maxY - box.minY;
  if (!(width > 0)) return 1;
  const double columns = std::ceil(std::sqrt(static_cast<double>(cells) * (width / height)));
  return columns < static_cast<double>(cells) ? static_cast<std::size_t>(std::max(columns, 1.0)) : cells;
}

std::size_t CellAlong(double value, double min, double max, std::size_t side) {
  const double part = (value - min) / (max - min);
  if (!(part > 0)) return 0;
  return std::min(side - 1, static_cast<std::size_t>(std::min(part, 1.0) * static_cast<double>(side)));
}

}  // namespace

CellGrid::CellGrid(const Extents& aBox, std::size_t aThings)
    : fBox(aBox),
      fColumns(CountColumns(aBox, aThings + 1)),
      fRows((aThings + fColumns) / fColumns),
      fCells(fColumns * fRows) {}

std::size_t CellGrid::Column(double aX) const {
  return CellAlong(aX, fBox.minX, fBox.maxX, fColumns);
}

std::size_t CellGrid::Row(double aY) const {
  return CellAlong(aY, fBox.minY, fBox.maxY, fRows);
}

void CellGrid::Add(const Extents& aBox, std::size_t aNumber) {
  for (std::size_t row = Row(aBox.minY); row <= Row(aBox.maxY); ++row) {
    for (std::size_t column = Column(aBox.minX); column <= Column(aBox.maxX); ++column) {
      std::vector<std::size_t>& numbers = fCells[row * fColumns + column];
      if (numbers.empty() || numbers.back() != aNumber) numbers.push_back(aNumber);
    }
  }
}

std::vector<Extents> CellGrid::BoxesAlong(const TravelledPiece& aPiece) const {
  const double cell = std::hypot((fBox.maxX - fBox.minX) / static_cast<double>(fColumns),
                                 (fBox.maxY - fBox.minY) / static_cast<double>(fRows));
  const double most = static_cast<double>(std::max(fColumns, fRows) * kBoxesPerSide);
  const double count = std::clamp(std::ceil(Length(aPiece) / cell), 1.0, most);
  std::vector<Extents> boxes;
  for (double i = 0; i < count; ++i) boxes.push_back(Bounds(PartOf(aPiece, i / count, (i + 1) / count)));
  return boxes;
}

}  // namespace xsec

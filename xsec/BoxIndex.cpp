#include "xsec/BoxIndex.h"

#include <algorithm>
#include <cmath>

namespace xsec {

namespace {

constexpr int kFinestLevel = -100;  // boxes without size stand in cells of this size

/// The level whose cells are at least as large as the box and less than twice that.
int LevelOf(const Extents& box) {
  const double side = std::max(box.maxX - box.minX, box.maxY - box.minY);
  return side > 0 ? std::max(kFinestLevel, std::ilogb(side) + 1) : kFinestLevel;
}

/// Cell numbers so far out that they leave the range of integers share the outermost one.
std::int64_t CellAlong(double value, int level) {
  constexpr double kFurthest = 4e18;
  const double cell = std::floor(std::ldexp(value, -level));
  return cell == cell ? static_cast<std::int64_t>(std::clamp(cell, -kFurthest, kFurthest)) : 0;
}

}  // namespace

std::size_t BoxIndex::CellHash::operator()(const Cell& aCell) const {
  constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15U;
  const std::uint64_t mixed = (static_cast<std::uint64_t>(aCell.column) * kOdd) ^ static_cast<std::uint64_t>(aCell.row);
  return (mixed * kOdd) >> 16U;
}

BoxIndex::BoxIndex(const std::vector<Extents>& aBoxes) : fBoxes(aBoxes) {
  for (std::size_t i = 0; i < fBoxes.size(); ++i) Insert(i);
}

BoxIndex::Cell BoxIndex::CellOf(const Point& aPoint, int aLevel) {
  return {CellAlong(aPoint.x, aLevel), CellAlong(aPoint.y, aLevel)};
}

void BoxIndex::Insert(std::size_t aIndex) {
  const Extents& box = fBoxes[aIndex];
  const int level = LevelOf(box);
  const Cell low = CellOf({box.minX, box.minY}, level);
  const Cell high = CellOf({box.maxX, box.maxY}, level);
  Grid& grid = fGrids[level];
  for (std::int64_t column = low.column; column <= high.column; ++column) {
    for (std::int64_t row = low.row; row <= high.row; ++row) grid[{column, row}].push_back(aIndex);
  }
}

std::vector<std::size_t> BoxIndex::Find(const Point& aPoint) const {
  std::vector<std::size_t> found;
  for (const auto& [level, grid] : fGrids) {
    const auto cell = grid.find(CellOf(aPoint, level));
    if (cell == grid.end()) continue;
    std::copy_if(cell->second.begin(), cell->second.end(), std::back_inserter(found),
                 [&](std::size_t index) { return Contains(fBoxes[index], aPoint); });
  }
  return found;
}

}  // namespace xsec

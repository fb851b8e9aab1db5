#include "GeometryEngine/DXF_Regions_Detection/detail/PlaneOrder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <numeric>

namespace GeometryEngine::detail {

namespace {

constexpr std::size_t kPointsPerCell = 16;
constexpr int kMostBits = 15;  // of the number of a cell along an axis

std::uint32_t SpreadBits(std::uint32_t aValue) {
  std::uint32_t spread = aValue;
  spread = (spread | (spread << 8U)) & 0x00FF00FFU;
  spread = (spread | (spread << 4U)) & 0x0F0F0F0FU;
  spread = (spread | (spread << 2U)) & 0x33333333U;
  return (spread | (spread << 1U)) & 0x55555555U;
}

// Cells along one axis.
class TAxisCells {
 public:
  TAxisCells(double aLow, double aHigh, int aBits)
      : fLow(aLow), fLast(static_cast<double>((1 << aBits) - 1)), fPerUnit((fLast + 1) / (aHigh - aLow)) {}

  std::uint32_t CellOf(double aValue) const {
    const double cell = (aValue - fLow) * fPerUnit;
    return cell > 0 ? static_cast<std::uint32_t>(std::min(cell, fLast)) : 0;  // also when it is not a number
  }

 private:
  double fLow;
  double fLast;
  double fPerUnit;
};

int GetBits(std::size_t aPoints) {
  int bits = 0;
  while (bits < kMostBits && (kPointsPerCell << (2 * bits)) < aPoints) ++bits;
  return bits;
}

std::vector<std::uint32_t> GetCells(std::span<const TEntityCoordinate> aPoints, int aBits) {
  TEntityCoordinate low = aPoints.front();
  TEntityCoordinate high = low;
  for (const TEntityCoordinate& point : aPoints) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y)};
  }
  const TAxisCells columns(low.x, high.x, aBits);
  const TAxisCells rows(low.y, high.y, aBits);
  std::vector<std::uint32_t> cells;
  cells.reserve(aPoints.size());
  for (const TEntityCoordinate& point : aPoints) {
    cells.push_back(SpreadBits(columns.CellOf(point.x)) | (SpreadBits(rows.CellOf(point.y)) << 1U));
  }
  return cells;
}

}  // namespace

std::vector<TIndex> GetPlaneOrder(std::span<const TEntityCoordinate> aPoints) {
  std::vector<TIndex> places;
  if (aPoints.empty()) return places;
  const int bits = GetBits(aPoints.size());
  const std::vector<std::uint32_t> cells = GetCells(aPoints, bits);
  std::vector<TIndex> next(std::size_t{1} << (2 * bits), 0);
  for (const std::uint32_t cell : cells) ++next[cell];
  std::exclusive_scan(next.begin(), next.end(), next.begin(), TIndex{0});
  places.reserve(cells.size());
  for (const std::uint32_t cell : cells) places.push_back(next[cell]++);
  return places;
}

}  // namespace GeometryEngine::detail

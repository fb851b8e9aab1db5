#pragma once

// Cells on an axis, for searches of values that are the same under a tolerance. Private.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace GeometryEngine::detail {

/// Cells from the first to the last, both counted in.
struct TCellRange {
  std::int64_t fFirst = 0;
  std::int64_t fLast = 0;
};

/// Cuts an axis into cells much wider than the tolerance t, so that what is the same as a value lies in one or two.
///
/// No value is missed: when |a - b| < t holds as computed, it holds exactly, so a lies beyond the exact b - t, and,
/// since rounding keeps the order, not below the rounded b - t; likewise above. The cell of a value grows with the
/// value.
///
/// DEGENERATE: under a tolerance that is not above 0, or not a number, nothing is the same as anything. A value that is
/// not finite is the same as none. Under an infinite tolerance all finite values are the same, and there is one cell.
class TToleranceCells {
 public:
  explicit TToleranceCells(double aTolerance)
      : fTolerance(aTolerance),
        fScale(std::min(1 / (kTolerancesPerCell * aTolerance), std::numeric_limits<double>::max())) {}

  /// True when the same values are the same under this tolerance.
  bool ServesTolerance(double aTolerance) const {
    const bool neverMatches = !(fTolerance > 0) && !(aTolerance > 0);
    return fTolerance == aTolerance || neverMatches;
  }

  /// False when no value can be the same as this one.
  bool CanMatch(double aValue) const { return fTolerance > 0 && std::isfinite(aValue); }

  std::int64_t GetCell(double aValue) const {
    const double cell = aValue * fScale + kShift;
    if (cell >= kFarthestCell) return kFarthestCell;
    if (cell <= -kFarthestCell) return -kFarthestCell;
    if (std::isnan(cell)) return 0;
    const auto whole = static_cast<std::int64_t>(cell);  // towards zero
    return static_cast<double>(whole) > cell ? whole - 1 : whole;
  }

  /// The cells of all finite values that are the same as this one.
  TCellRange GetCellsAround(double aValue) const {
    constexpr double kLargest = std::numeric_limits<double>::max();
    return {GetCell(std::max(aValue - fTolerance, -kLargest)), GetCell(std::min(aValue + fTolerance, kLargest))};
  }

 private:
  static constexpr double kTolerancesPerCell = 32;
  /// Keeps the borders of cells away from round numbers, which many coordinates are; all searches round one of them
  /// would look into two cells.
  static constexpr double kShift = 0.4375;
  static constexpr std::int64_t kFarthestCell = std::int64_t{1} << 53;

  double fTolerance;
  double fScale;  ///< cells per unit of the axis
};

}  // namespace GeometryEngine::detail

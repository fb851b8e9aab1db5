#pragma once

// A range of heights. Private.

#include <algorithm>
#include <cmath>
#include <limits>

namespace GeometryEngine::detail {

/// A range of heights, its ends included.
struct THeightRange {
  double fLow;
  double fHigh;

  static constexpr THeightRange All() {
    return {-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
  }
  static THeightRange Of(double aHeight_A, double aHeight_B) {
    return {std::min(aHeight_A, aHeight_B), std::max(aHeight_A, aHeight_B)};
  }
  /// As far again beyond both ends. DEGENERATE: all heights when an end is not finite or the margin no number.
  THeightRange Widened(double aMargin) const {
    const THeightRange range{fLow - aMargin, fHigh + aMargin};
    return std::isfinite(fLow + fHigh) && range.fLow <= range.fHigh ? range : All();
  }
  bool Holds(double aHeight) const { return !(aHeight < fLow || aHeight > fHigh); }
  void Unite(const THeightRange& aOther) {
    fLow = std::min(fLow, aOther.fLow);
    fHigh = std::max(fHigh, aOther.fHigh);
  }
};

}  // namespace GeometryEngine::detail

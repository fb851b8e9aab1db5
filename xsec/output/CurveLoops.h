#pragma once

// Curves that stand once, and the loops that use them.

#include <cstddef>
#include <vector>

#include "xsec/TravelledPiece.h"

namespace xsec {

/// A line or arc between two points, by their indexes; an arc runs anticlockwise.
struct Curve {
  std::size_t from = 0;
  std::size_t to = 0;
  TravelledPiece piece;  ///< travelled from the one point to the other
};

/// A curve on the way round a region.
struct CurveUse {
  std::size_t curve = 0;
  bool forward = true;
};

using CurveLoop = std::vector<CurveUse>;

struct RegionLoops {
  CurveLoop outline;             ///< anticlockwise
  std::vector<CurveLoop> holes;  ///< clockwise
};

}  // namespace xsec

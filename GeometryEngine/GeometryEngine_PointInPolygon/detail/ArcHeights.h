#pragma once

// Between which heights an arc runs. Private.

#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/THeightRange.h"

namespace GeometryEngine::detail {

/// A part of a circle, from one direction to another. UNITS: degrees, either one the greater.
struct TCirclePart {
  double fCentre_Y = 0;
  double fRadius = 0;
  double fFrom = 0;
  double fTo = 0;
};

/// A range that holds the heights of the part and of all points computed on it.
/// DEGENERATE: all heights when the radius is not above 0 or a direction is so large that its rounding is not small.
THeightRange GetHeights(const TCirclePart& aPart);

}  // namespace GeometryEngine::detail

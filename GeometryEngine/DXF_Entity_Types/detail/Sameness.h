#pragma once

// Sameness under the linear tolerance, for loops that ask it of many values: the tolerance is read once, and nothing is
// called. Private; hosts, and tests of a single pair, use Tolerances.h. For points see PointSameness.h.

#include <cmath>

#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine::detail {

/// The setting as it is now, a plain load.
inline double ReadLinearTolerance() {
  return Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifLinearTolerance);
}

inline bool AreSame(double a, double b, double aTolerance) {
  return std::abs(a - b) < aTolerance;
}

}  // namespace GeometryEngine::detail

#pragma once

// Directions as numbers that are cheaper than angles. Private.

#include <cmath>
#include <optional>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::detail {

inline constexpr double kFullTurn_Direction = 4;  // in these numbers
inline constexpr double kHalfTurn_Direction = 2;

/// The direction of a vector as a number from 0 to 4 that grows with the angle from the x axis. Two directions differ
/// by their angles in radians at most, and by at least half of that.
/// DEGENERATE: not a number for the vector (0, 0), and where infinite components leave the angle to a convention.
inline double GetDirection(double aX, double aY) {
  const double slope = aY / (std::abs(aX) + std::abs(aY));
  if (aX < 0) return kHalfTurn_Direction - slope;
  return slope < 0 ? kFullTurn_Direction + slope : slope;
}

/// A direction, and by how much it may be missed.
struct TRoughDirection {
  double fDirection = 0;
  double fSlack = 0;
};

/// Far more than rounding adds to the slack.
inline constexpr double kRoughness = 1e-6;

/// The direction of an arc's first chord, as `GetEntityVector` has it, from the end where the arc begins or from the
/// other one; without counting the chords, which takes most of the time.
///
/// Nothing for arcs that are very small or large, far from the origin for their size, or have angles of many turns.
std::optional<TRoughDirection> GetRoughDirection_Arc(const TDXFEntity& aArc, bool aFromItsStart);

}  // namespace GeometryEngine::detail

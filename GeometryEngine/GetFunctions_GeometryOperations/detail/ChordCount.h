#pragma once

#include <algorithm>
#include <cstdint>

#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

/// How far chords stay from their arc where outlines, winding numbers and directions are concerned. UNITS: drawing
/// length units.
inline constexpr double kSurfChordTolerance = 0.01;

/// The number of chords for an arc that asks for `aWanted`, whole part: at least 3.
inline std::int32_t GetChordCount(double aWanted) {
  constexpr std::int32_t kLeastChords = 3;
  return std::max(ToInteger_Saturated(aWanted), kLeastChords);
}

}  // namespace GeometryEngine::detail

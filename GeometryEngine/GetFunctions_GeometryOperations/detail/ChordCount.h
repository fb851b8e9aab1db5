#pragma once

#include <algorithm>
#include <cstdint>

#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

/// The number of chords for an arc that asks for `aWanted`, whole part: at least 3 and at most a million. That many
/// differ from the arc by rounding only, and no setting or radius, not even an infinite one, takes a caller's time or
/// memory for ever.
inline std::int32_t GetChordCount(double aWanted) {
  constexpr std::int32_t kLeastChords = 3;
  constexpr std::int32_t kMostChords = 1'000'000;
  return std::clamp(ToInteger_Saturated(aWanted), kLeastChords, kMostChords);
}

}  // namespace GeometryEngine::detail

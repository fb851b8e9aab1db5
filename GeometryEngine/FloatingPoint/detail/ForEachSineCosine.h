#pragma once

// Loops over sines and cosines, some of which are computed at once. Private.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"

namespace GeometryEngine::detail {

/// Calls `aVisit` with the sine and cosine of each of the angles from `aFirst` to `aLast` in turn.
template <class TVisit>
void ForEachSineCosine(const TAngleSteps& aAngles, std::int64_t aFirst, std::int64_t aLast, const TVisit& aVisit) {
  constexpr auto kMost = static_cast<std::int64_t>(TSinesCosines::kMost);
  TSinesCosines found;
  for (std::int64_t first = aFirst; first <= aLast; first += kMost) {
    const auto count = static_cast<std::size_t>(std::min(kMost, aLast + 1 - first));
    GetSinesCosines(aAngles, first, count, found);
    for (std::size_t i = 0; i < count; ++i) aVisit(TSineCosine{found.fSines[i], found.fCosines[i]});
  }
}

}  // namespace GeometryEngine::detail

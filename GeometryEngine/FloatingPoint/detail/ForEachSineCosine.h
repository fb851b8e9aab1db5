#pragma once

// Loops over sines and cosines, some of which are computed at once. Private.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"

namespace GeometryEngine::detail {

/// Calls `aVisit` with the sine and cosine of `aRadiansOf(i)` for each i from `aFirst` to `aLast` in turn.
template <class TRadiansOf, class TVisit>
void ForEachSineCosine(std::int64_t aFirst, std::int64_t aLast, const TRadiansOf& aRadiansOf, const TVisit& aVisit) {
  constexpr std::int64_t kMost = 16;
  constexpr std::size_t kAtOnce = 4;
  std::array<double, kMost> radians;
  std::array<double, kMost> sines;
  std::array<double, kMost> cosines;
  for (std::int64_t first = aFirst; first <= aLast; first += kMost) {
    const auto count = static_cast<std::size_t>(std::min(kMost, aLast + 1 - first));
    const std::size_t whole = (count + kAtOnce - 1) / kAtOnce * kAtOnce;
    for (std::size_t i = 0; i < count; ++i) radians[i] = aRadiansOf(first + static_cast<std::int64_t>(i));
    for (std::size_t i = count; i < whole; ++i) radians[i] = 0;
    GetSinesCosines({radians.data(), whole}, sines, cosines);
    for (std::size_t i = 0; i < count; ++i) aVisit(TSineCosine{sines[i], cosines[i]});
  }
}

}  // namespace GeometryEngine::detail

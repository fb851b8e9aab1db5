#pragma once

// Sines and cosines of some angles at once. Private.

#include <array>
#include <cstddef>

#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"

namespace GeometryEngine::detail {

/// The sines and cosines of up to kMost angles, for loops that take them block by block.
class TSinesCosines {
 public:
  static constexpr std::size_t kMost = 16;

  /// Of as many angles, in radians, as `aRadiansOf` of 0, 1 and so on.
  template <class TRadiansOf>
  void Compute(std::size_t aCount, const TRadiansOf& aRadiansOf) {
    const std::size_t whole = (aCount + kAtOnce - 1) / kAtOnce * kAtOnce;
    for (std::size_t i = 0; i < aCount; ++i) fRadians[i] = aRadiansOf(i);
    for (std::size_t i = aCount; i < whole; ++i) fRadians[i] = 0;
    GetSinesCosines({fRadians.data(), whole}, fSines, fCosines);
  }

  TSineCosine operator[](std::size_t aPlace) const { return {fSines[aPlace], fCosines[aPlace]}; }

 private:
  static constexpr std::size_t kAtOnce = 4;

  std::array<double, kMost> fRadians;
  std::array<double, kMost> fSines;
  std::array<double, kMost> fCosines;
};

}  // namespace GeometryEngine::detail

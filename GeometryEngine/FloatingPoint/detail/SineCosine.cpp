#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"

#include <cstddef>

#include "GeometryEngine/FloatingPoint/detail/WideLoops.h"

namespace GeometryEngine::detail {

namespace {

inline void Compute(std::span<const double> aRadians, double* aSines, double* aCosines) {
  for (std::size_t i = 0; i < aRadians.size(); ++i) {
    const TSineCosine found = GetSineCosine_Reduced(aRadians[i]);
    aSines[i] = found.fSine;
    aCosines[i] = found.fCosine;
  }
}

void Compute_Common(std::span<const double> aRadians, double* aSines, double* aCosines) {
  Compute(aRadians, aSines, aCosines);
}

GEOMETRYENGINE_WIDE_LOOPS void Compute_Wide(std::span<const double> aRadians, double* aSines, double* aCosines) {
  Compute(aRadians, aSines, aCosines);
}

}  // namespace

void GetSinesCosines(std::span<const double> aRadians, std::span<double> aSines, std::span<double> aCosines) {
  static const auto compute = HasWideLoops() ? Compute_Wide : Compute_Common;
  compute(aRadians, aSines.data(), aCosines.data());
  for (std::size_t i = 0; i < aRadians.size(); ++i) {
    if (!IsBeyondReduction(aRadians[i])) continue;
    const TSineCosine found = GetSineCosine(aRadians[i]);
    aSines[i] = found.fSine;
    aCosines[i] = found.fCosine;
  }
}

}  // namespace GeometryEngine::detail

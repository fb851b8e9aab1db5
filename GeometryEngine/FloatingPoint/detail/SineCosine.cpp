#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"

#include <cstddef>

namespace GeometryEngine::detail {

namespace {

using TMethod = void (*)(std::span<const double>, double*, double*);

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

#if defined(__GNUC__) && defined(__x86_64__)

// Four angles at once. Without steps that multiply and add in one the bits are those of Compute_Common.
__attribute__((target("avx2"))) void Compute_Wide(std::span<const double> aRadians, double* aSines, double* aCosines) {
  Compute(aRadians, aSines, aCosines);
}

TMethod ChooseMethod() {
  return __builtin_cpu_supports("avx2") != 0 ? Compute_Wide : Compute_Common;
}

#else

TMethod ChooseMethod() {
  return Compute_Common;
}

#endif

}  // namespace

void GetSinesCosines(std::span<const double> aRadians, std::span<double> aSines, std::span<double> aCosines) {
  static const TMethod compute = ChooseMethod();
  compute(aRadians, aSines.data(), aCosines.data());
  for (std::size_t i = 0; i < aRadians.size(); ++i) {
    if (!IsBeyondReduction(aRadians[i])) continue;
    const TSineCosine found = GetSineCosine(aRadians[i]);
    aSines[i] = found.fSine;
    aCosines[i] = found.fCosine;
  }
}

}  // namespace GeometryEngine::detail

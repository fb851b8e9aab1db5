#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"

#include "GeometryEngine/FloatingPoint/detail/WideLoops.h"

namespace GeometryEngine::detail {

namespace {

constexpr std::array<double, TSinesCosines::kMost> kNumbers{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15};

// So many that the compiler knows of leave no loop, for which constants would have to be made ready each time.
template <std::size_t kCount>
[[gnu::always_inline]] inline void ComputeFixed(TAngleSteps aAngles, double aFirst, TSinesCosines& aFound) {
  for (std::size_t i = 0; i < kCount; ++i) {
    const auto [sine, cosine] = GetSineCosine_Reduced(aAngles.GetRadians(aFirst + kNumbers[i]));
    aFound.fSines[i] = sine;
    aFound.fCosines[i] = cosine;
  }
}

[[gnu::always_inline]] inline void Compute(const TAngleSteps& aAngles, double aFirst, std::size_t aCount,
                                           TSinesCosines& aFound) {
  if (aCount <= 4) return ComputeFixed<4>(aAngles, aFirst, aFound);
  if (aCount <= 8) return ComputeFixed<8>(aAngles, aFirst, aFound);
  if (aCount <= 12) return ComputeFixed<12>(aAngles, aFirst, aFound);
  return ComputeFixed<16>(aAngles, aFirst, aFound);
}

void Compute_Common(const TAngleSteps& aAngles, double aFirst, std::size_t aCount, TSinesCosines& aFound) {
  Compute(aAngles, aFirst, aCount, aFound);
}

GEOMETRYENGINE_WIDE_LOOPS void Compute_Wide(const TAngleSteps& aAngles, double aFirst, std::size_t aCount,
                                            TSinesCosines& aFound) {
  Compute(aAngles, aFirst, aCount, aFound);
}

void ComputeOneByOne(const TAngleSteps& aAngles, double aFirst, std::size_t aCount, TSinesCosines& aFound) {
  for (std::size_t i = 0; i < aCount; ++i) {
    const auto [sine, cosine] = GetSineCosine(aAngles.GetRadians(aFirst + static_cast<double>(i)));
    aFound.fSines[i] = sine;
    aFound.fCosines[i] = cosine;
  }
}

}  // namespace

void GetSinesCosines(const TAngleSteps& aAngles, std::int64_t aFirst, std::size_t aCount, TSinesCosines& aFound) {
  const auto first = static_cast<double>(aFirst);
  // The angles grow or fall all along: none is larger than those at the ends.
  const bool isBeyond = IsBeyondReduction(aAngles.GetRadians(first)) ||
                        IsBeyondReduction(aAngles.GetRadians(first + static_cast<double>(aCount - 1)));
  (isBeyond ? ComputeOneByOne : ChooseLoops(Compute_Wide, Compute_Common))(aAngles, first, aCount, aFound);
}

}  // namespace GeometryEngine::detail

#pragma once

// Sine and cosine with the same bits on every processor and with every C library. Private.

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace GeometryEngine::detail {

struct TSineCosine {
  double fSine;
  double fCosine;
};

/// Up to this size (radians, either sign) angles are computed here; beyond, where an angle is not known to better than
/// 1e-10 any more, the C library computes.
inline constexpr double kLargestReduced = 1e6;

inline bool IsBeyondReduction(double aRadians) {
  return std::abs(aRadians) > kLargestReduced;
}

/// Of an angle of at most kLargestReduced, and not a number of what is no number; else anything.
///
/// A multiple of a right angle is taken off in three parts of pi / 2, of which the first two have 33 bits each, so that
/// their products with the count are exact (Cody and Waite). For the rest, at most an eighth of a turn, and what its
/// rounding left over, stand polynomials that deviate least from sine and cosine there. Errors stay below 0.8 units in
/// the last place, 1.1 next to the zeros. No branch depends on the angle: a loop takes several angles at once.
inline TSineCosine GetSineCosine_Reduced(double aRadians) {
  constexpr double kRightAngles = 0.6366197723675814;      // in a radian
  constexpr double kToInteger = 6755399441055744.0;        // 1.5 * 2^52: a sum with it ends in an integer's bits
  constexpr double kRightAngle_1 = 0x1.921fb544p+0;        // pi / 2, its first bits,
  constexpr double kRightAngle_2 = 0x1.0b4611a6p-34;       // the next,
  constexpr double kRightAngle_3 = 0x1.3198a2e037073p-69;  // and the rest

  const double marked = aRadians * kRightAngles + kToInteger;
  const auto quarter = std::bit_cast<std::uint64_t>(marked);
  const double count = marked - kToInteger;
  const double first = aRadians - count * kRightAngle_1;
  const double second = first - count * kRightAngle_2;
  const double third = count * kRightAngle_3 - ((first - second) - count * kRightAngle_2);
  const double y = second - third;
  const double left = (second - y) - third;

  const double z = y * y;
  const double s = -0x1.5555555555549p-3 +
                   z * (0x1.111111110f877p-7 +
                        z * (-0x1.a01a019c1132ep-13 +
                             z * (0x1.71de357759166p-19 + z * (-0x1.ae5e65ee02ff3p-26 + z * 0x1.5d92e9e88fcc2p-33))));
  const double c = 0x1.555555555554cp-5 +
                   z * (-0x1.6c16c16c1517ap-10 +
                        z * (0x1.a01a019cb1656p-16 +
                             z * (-0x1.27e4f809ad8ecp-22 + z * (0x1.1ee9ebb98fa40p-29 + z * -0x1.8fae82d5ebe61p-37))));
  const double sine = y - ((0.5 * z * left - left) - z * y * s);
  const double half = 0.5 * z;
  const double most = 1 - half;
  const double cosine = most + (((1 - most) - half) + (z * z * c - y * left));

  // In odd quarters they change places; the signs follow.
  const auto sineBits = std::bit_cast<std::uint64_t>(sine);
  const auto cosineBits = std::bit_cast<std::uint64_t>(cosine);
  const std::uint64_t changed = (sineBits ^ cosineBits) & (0 - (quarter & 1));
  return {std::bit_cast<double>(sineBits ^ changed ^ ((quarter & 2) << 62)),
          std::bit_cast<double>(cosineBits ^ changed ^ (((quarter + 1) & 2) << 62))};
}

/// Sine and cosine of an angle in radians; not a number of an endless angle.
inline TSineCosine GetSineCosine(double aRadians) {
  if (IsBeyondReduction(aRadians)) return {std::sin(aRadians), std::cos(aRadians)};
  return GetSineCosine_Reduced(aRadians);
}

inline double GetSine(double aRadians) {
  return GetSineCosine(aRadians).fSine;
}

inline double GetCosine(double aRadians) {
  return GetSineCosine(aRadians).fCosine;
}

/// Angles in equal steps.
struct TAngleSteps {
  double fStart;
  double fStep;
  double fUnit = 1;  ///< in radians

  /// REQUIRES: a whole number.
  double GetRadians(double aIndex) const { return (fStart + aIndex * fStep) * fUnit; }
};

struct TSinesCosines {
  static constexpr std::size_t kMost = 16;

  std::array<double, kMost> fSines;
  std::array<double, kMost> fCosines;
};

/// Those of so many of the angles from `aFirst` on, with the bits of one by one in a third of the time; of the others
/// anything. REQUIRES: `aCount` from 1 to kMost.
void GetSinesCosines(const TAngleSteps& aAngles, std::int64_t aFirst, std::size_t aCount, TSinesCosines& aFound);

}  // namespace GeometryEngine::detail

#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <vector>

#include "GeometryEngine/FloatingPoint/detail/ForEachSineCosine.h"

namespace GeometryEngine::detail {

namespace {

static_assert(std::numeric_limits<long double>::digits >= 64,
              "errors are measured by numbers more exact than a double");

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr long double kRightAngle = 1.570796326794896619231321691639751442L;

bool HaveSameBits(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

// Both not a number or the same bits: what kind of not-a-number it is differs.
bool AreAlike(double a, double b) {
  return std::isnan(a) ? std::isnan(b) : HaveSameBits(a, b);
}

/// How far a number is from the exact one, in units of the last place of a double of that size.
double GetError(double aFound, long double aExact) {
  int exponent = 0;
  std::frexp(aExact, &exponent);
  return static_cast<double>(std::fabs(static_cast<long double>(aFound) - aExact) / std::ldexp(1.0L, exponent - 53));
}

double GetError(double aRadians) {
  const auto [sine, cosine] = GetSineCosine(aRadians);
  const auto exact = static_cast<long double>(aRadians);
  return std::max(GetError(sine, std::sin(exact)), GetError(cosine, std::cos(exact)));
}

std::vector<double> GetAngles(double aMost, std::size_t aCount) {
  std::mt19937_64 generator(7);
  std::uniform_real_distribution<double> angle(-aMost, aMost);
  std::vector<double> angles(aCount);
  for (double& one : angles) one = angle(generator);
  return angles;
}

}  // namespace

TEST(GetSineCosine, IsWithinEightTenthsOfTheLastPlaceForAnglesOfEverySize) {
  for (const double most : {1e-3, 0.7, 1.6, 7.0, 100.0, 1e4, 1e6}) {
    for (const double angle : GetAngles(most, 20'000)) EXPECT_LE(GetError(angle), 0.8) << angle;
  }
}

TEST(GetSineCosine, IsWithinElevenTenthsOfTheLastPlaceNextToItsZeros) {
  for (int quarter = -600'000; quarter <= 600'000; quarter += 7) {
    const double angle = static_cast<double>(quarter * kRightAngle);
    EXPECT_LE(GetError(angle), 1.1) << angle;
  }
}

TEST(GetSineCosine, HasTheseBitsOnEveryMachine) {
  EXPECT_EQ(GetSine(0.5), 0x1.eaee8744b05fp-2);
  EXPECT_EQ(GetCosine(0.5), 0x1.c1528065b7d5p-1);
  EXPECT_EQ(GetSine(0x1.921fb54442d18p+0), 1.0);
  EXPECT_EQ(GetCosine(0x1.921fb54442d18p+0), 0x1.1a62633145c07p-54);
  EXPECT_EQ(GetSine(-4), 0x1.837b9dddc1eaep-1);
  EXPECT_EQ(GetCosine(-4), -0x1.4eaa606db24c1p-1);
}

TEST(GetSineCosine, OfZeroIsZeroOfItsSignAndOne) {
  EXPECT_TRUE(HaveSameBits(GetSine(0.0), 0.0));
  EXPECT_TRUE(HaveSameBits(GetSine(-0.0), -0.0));
  EXPECT_EQ(GetCosine(0.0), 1);
  EXPECT_EQ(GetCosine(-0.0), 1);
}

TEST(GetSineCosine, OfTheSmallestAngleIsTheAngle) {
  const double smallest = std::numeric_limits<double>::denorm_min();
  EXPECT_EQ(GetSine(smallest), smallest);
  EXPECT_EQ(GetSine(-smallest), -smallest);
  EXPECT_EQ(GetCosine(smallest), 1);
}

TEST(GetSineCosine, BeyondAMillionRadiansIsTheLibrarys) {
  for (const double angle : {std::nextafter(1e6, 2e6), 1e7, -1e19, 1e300}) {
    EXPECT_EQ(GetSine(angle), std::sin(angle));
    EXPECT_EQ(GetCosine(angle), std::cos(angle));
  }
}

TEST(GetSineCosine, OfWhatIsNoAngleIsNoNumber) {
  for (const double angle : {kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_TRUE(std::isnan(GetSine(angle)));
    EXPECT_TRUE(std::isnan(GetCosine(angle)));
  }
}

TEST(GetSinesCosines, AreThoseOfOneByOneForEveryCount) {
  constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
  const std::vector<TAngleSteps> walks{{0.3, 0.7},     {-0.0, 0},      {350, 10, 0.0174}, {12, -7.5, 0.0174},
                                       {1e6 - 3, 1},   {-1e6, 0.5},    {3e6, -4e5},       {1e300, 1, 1e-299},
                                       {kInfinity, 1}, {0, kInfinity}, {1, kNoNumber, 2}};
  for (const TAngleSteps& walk : walks) {
    for (std::int64_t first = 0; first < 5; ++first) {
      for (std::size_t count = 1; count <= TSinesCosines::kMost; ++count) {
        TSinesCosines found;
        GetSinesCosines(walk, first, count, found);
        for (std::size_t i = 0; i < count; ++i) {
          const double angle = walk.GetRadians(static_cast<double>(first) + static_cast<double>(i));
          const auto [sine, cosine] = GetSineCosine(angle);
          ASSERT_TRUE(AreAlike(found.fSines[i], sine) && AreAlike(found.fCosines[i], cosine)) << angle;
        }
      }
    }
  }
}

TEST(ForEachSineCosine, VisitsEachInTurnWithTheBitsOfOneByOne) {
  const TAngleSteps walk{-2, 0.37};
  for (std::int64_t first = 0; first < 3; ++first) {
    for (std::int64_t last = first - 1; last < 50; ++last) {
      std::int64_t next = first;
      ForEachSineCosine(walk, first, last, [&](const TSineCosine& aFound) {
        const auto [sine, cosine] = GetSineCosine(walk.GetRadians(static_cast<double>(next++)));
        EXPECT_TRUE(HaveSameBits(aFound.fSine, sine) && HaveSameBits(aFound.fCosine, cosine));
      });
      EXPECT_EQ(next, last + 1);
    }
  }
}

}  // namespace GeometryEngine::detail

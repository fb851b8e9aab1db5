#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"

#include <cfenv>
#include <cstring>
#include <limits>
#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/support/HostEnvironment.h"

using namespace GeometryEngine;
using support::THostEnvironment;

namespace {

double Quotient(double aNumerator, double aDenominator) {
  volatile double numerator = aNumerator;
  volatile double denominator = aDenominator;
  return numerator / denominator;
}

class TFloatEnvironmentTest : public testing::TestWithParam<support::TEnvironmentKind> {};

}  // namespace

TEST_P(TFloatEnvironmentTest, ComputesAsUsualWithinAndLeavesTheHostsEnvironmentBehind) {
  const double third = Quotient(1, 3);
  const double denormal = std::numeric_limits<double>::min() / 2;
  double infinite = 0;
  double halved = 0;
  double guardedThird = 0;
  int rounding = -1;
  const THostEnvironment host(GetParam());
  {
    const TFloatEnvironment environment;
    rounding = std::fegetround();
    infinite = Quotient(1, 0);
    halved = Quotient(denormal, 2);
    guardedThird = Quotient(1, 3);
  }
  const bool same = host.IsUnchanged();
  host.End();
  EXPECT_TRUE(same);
  EXPECT_EQ(rounding, FE_TONEAREST);
  EXPECT_EQ(infinite, std::numeric_limits<double>::infinity());
  EXPECT_EQ(halved, denormal / 2);
  EXPECT_EQ(guardedThird, third);
}

TEST_P(TFloatEnvironmentTest, MayBeNested) {
  const THostEnvironment host(GetParam());
  double infinite = 0;
  {
    const TFloatEnvironment outer;
    { const TFloatEnvironment inner; }
    infinite = Quotient(1, 0);
  }
  const bool same = host.IsUnchanged();
  host.End();
  EXPECT_TRUE(same);
  EXPECT_EQ(infinite, std::numeric_limits<double>::infinity());
}

INSTANTIATE_TEST_SUITE_P(Hosts, TFloatEnvironmentTest, testing::ValuesIn(support::kEnvironmentKinds));

TEST(TFloatEnvironment, KeepsTheFlagsOfBeforeAndForgetsItsOwn) {
  std::feclearexcept(FE_ALL_EXCEPT);
  std::feraiseexcept(FE_OVERFLOW);
  {
    const TFloatEnvironment environment;
    EXPECT_EQ(std::fetestexcept(FE_ALL_EXCEPT), 0);
    Quotient(1, 0);
  }
  EXPECT_NE(std::fetestexcept(FE_OVERFLOW), 0);
  EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO), 0);
  std::feclearexcept(FE_ALL_EXCEPT);
}

TEST(TFloatEnvironment, IsGivenBackWhenSomethingIsThrown) {
  const THostEnvironment host({.name = "Upward", .rounding = FE_UPWARD});
  bool same = false;
  try {
    const TFloatEnvironment environment;
    throw std::runtime_error("on the way");
  } catch (const std::runtime_error&) {
    same = host.IsUnchanged();
  }
  host.End();
  EXPECT_TRUE(same);
}

TEST(THostEnvironment, ReallyRoundsTrapsAndFlushes) {
  const double third = Quotient(1, 3);
  const THostEnvironment upward({.name = "Upward", .rounding = FE_UPWARD});
  const double above = Quotient(1, 3);
  upward.End();
  EXPECT_GT(above, third);
#if defined(__x86_64__)
  const THostEnvironment flushing({.name = "Flushing", .flushesDenormals = true});
  const double flushed = Quotient(std::numeric_limits<double>::min(), 2);
  flushing.End();
  EXPECT_EQ(flushed, 0);
#endif
}

TEST(THostEnvironmentDeathTest, EndsTheProcessAtADivisionByZeroWithoutAGuard) {
  EXPECT_EXIT(
      {
        const THostEnvironment host({.name = "Traps", .traps = FE_DIVBYZERO});
        Quotient(1, 0);
      },
      testing::KilledBySignal(SIGFPE), "");
}

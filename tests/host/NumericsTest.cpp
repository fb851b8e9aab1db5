#include "GeometryEngine/host/Numerics.h"

#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLargest = std::numeric_limits<double>::max();
constexpr double kSmallest = std::numeric_limits<double>::denorm_min();

TEST(GetAngleInRange, LeavesValuesInTheRangeAsTheyAre) {
  EXPECT_EQ(GetAngleInRange(0, 0, 360), 0);
  EXPECT_EQ(GetAngleInRange(kSmallest, 0, 360), kSmallest);
  EXPECT_EQ(GetAngleInRange(123.456, 0, 360), 123.456);
  EXPECT_EQ(GetAngleInRange(std::nextafter(360, 0), 0, 360), std::nextafter(360, 0));
  EXPECT_EQ(GetAngleInRange(-180, -180, 180), -180);
}

TEST(GetAngleInRange, BringsTheUpperEndBackToTheLower) {
  EXPECT_EQ(GetAngleInRange(360, 0, 360), 0);
  EXPECT_EQ(GetAngleInRange(-360, 0, 360), 0);
  EXPECT_EQ(GetAngleInRange(180, -180, 180), -180);
}

TEST(GetAngleInRange, MovesByWholeTurns) {
  EXPECT_EQ(GetAngleInRange(-90, 0, 360), 270);
  EXPECT_EQ(GetAngleInRange(725.5, 0, 360), 5.5);
  EXPECT_EQ(GetAngleInRange(190, -180, 180), -170);
  EXPECT_EQ(GetAngleInRange(-190, -180, 180), 170);
  EXPECT_EQ(GetAngleInRange(10, 720, 1080), 730);
  EXPECT_EQ(GetAngleInRange(7, 1, 4), 1);
}

TEST(GetAngleInRange, NeverReturnsItsUpperEnd) {
  // One whole turn more than these rounds to 360.
  EXPECT_EQ(GetAngleInRange(-kSmallest, 0, 360), 0);
  EXPECT_EQ(GetAngleInRange(-1e-20, 0, 360), 0);
  EXPECT_LT(GetAngleInRange(-1e-13, 0, 360), 360);
}

TEST(GetAngleInRange, KeepsTheLastBitAtTheEndsOfTheRange) {
  EXPECT_EQ(GetAngleInRange(std::nextafter(-180, -360), -180, 180), std::nextafter(180, 0));
  EXPECT_EQ(GetAngleInRange(std::nextafter(180, 360), -180, 180), std::nextafter(-180, 0));
  EXPECT_EQ(GetAngleInRange(std::nextafter(540, 0), -180, 180), std::nextafter(540, 0) - 360);
  EXPECT_EQ(GetAngleInRange(std::nextafter(720, 0), 0, 360), std::nextafter(720, 0) - 360);
}

TEST(GetAngleInRange, IsExactForValuesOfAnySize) {
  const double turns = 360.0 * (std::int64_t{1} << 40);
  EXPECT_EQ(GetAngleInRange(turns, 0, 360), 0);
  EXPECT_EQ(GetAngleInRange(turns + 0.25, 0, 360), 0.25);
  EXPECT_EQ(GetAngleInRange(-turns - 0.25, 0, 360), 359.75);
  EXPECT_EQ(GetAngleInRange(kLargest, 0, 360), std::fmod(kLargest, 360));
  EXPECT_EQ(GetAngleInRange(-kLargest, 0, 360), 360 - std::fmod(kLargest, 360));
}

TEST(GetAngleInRange, StaysInTheRangeForRandomValues) {
  constexpr unsigned kSeed = 20240607;
  SCOPED_TRACE(kSeed);
  std::mt19937_64 random(kSeed);
  std::uniform_real_distribution<double> exponent(-330, 308);
  for (int i = 0; i < 20000; ++i) {
    const double value = (i % 2 == 0 ? 1 : -1) * std::pow(10.0, exponent(random));
    const double angle = GetAngleInRange(value, 0, 360);
    ASSERT_GE(angle, 0) << value;
    ASSERT_LT(angle, 360) << value;
  }
}

TEST(GetAngleInRange, StaysInTheRangeForSixtyFourSpecialValues) {
  const double magnitudes[] = {0,
                               kSmallest,
                               std::numeric_limits<double>::min(),
                               1e-300,
                               1e-20,
                               1e-14,
                               1e-13,
                               std::numeric_limits<double>::epsilon(),
                               1e-9,
                               1,
                               90,
                               std::nextafter(180, 0),
                               180,
                               std::nextafter(180, 360),
                               270,
                               std::nextafter(360, 0),
                               360,
                               std::nextafter(360, 720),
                               540,
                               std::nextafter(720, 0),
                               720,
                               1e6,
                               360e9,
                               2147483648,
                               9007199254740992,
                               1e15,
                               1e19,
                               1e22,
                               1e100,
                               kLargest,
                               kInfinity,
                               kNaN};
  static_assert(2 * std::size(magnitudes) == 64);
  for (const double magnitude : magnitudes) {
    for (const double value : {magnitude, -magnitude}) {
      const double angle = GetAngleInRange(value, 0, 360);
      EXPECT_TRUE(std::isfinite(value) ? angle >= 0 && angle < 360 : std::isnan(angle)) << value;
    }
  }
}

TEST(GetAngleInRange, KeepsNotANumber) {
  EXPECT_TRUE(std::isnan(GetAngleInRange(kNaN, 0, 360)));
  EXPECT_TRUE(std::isnan(GetAngleInRange(kInfinity, 0, 360)));
  EXPECT_TRUE(std::isnan(GetAngleInRange(-kInfinity, 0, 360)));
}

TEST(GetAngleInRange, GivesNotANumberForAnEmptyRange) {
  EXPECT_TRUE(std::isnan(GetAngleInRange(1, 0, 0)));
  EXPECT_TRUE(std::isnan(GetAngleInRange(1, 360, 0)));
  EXPECT_TRUE(std::isnan(GetAngleInRange(1, kNaN, 360)));
}

TEST(ArcTan2, GivesTheDirectionInRadians) {
  EXPECT_EQ(ArcTan2(0, 1), 0);
  EXPECT_DOUBLE_EQ(ArcTan2(1, 0), 90 * kRadiansPerDegree);
  EXPECT_DOUBLE_EQ(ArcTan2(0, -1), 180 * kRadiansPerDegree);
  EXPECT_DOUBLE_EQ(ArcTan2(-1, -1), -135 * kRadiansPerDegree);
  EXPECT_EQ(ArcTan2(0, 0), 0);
}

TEST(GetLinearEquation, RunsThroughBothPoints) {
  const auto [slope, intercept] = GetLinearEquation(1, 1, 3, 5);
  EXPECT_EQ(slope, 2);
  EXPECT_EQ(intercept, -1);
}

TEST(GetLinearEquation, IsNotFiniteForAnUprightLine) {
  EXPECT_EQ(GetLinearEquation(1, 1, 1, 5).aSlope, kInfinity);
  EXPECT_TRUE(std::isnan(GetLinearEquation(1, 1, 1, 1).aSlope));
}

TEST(GetLinearEquation_DXFTolerance, IsZeroUpToAndAtTheTolerance) {
  TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0.25);
  const auto [slope, intercept] = GetLinearEquation_DXFTolerance(1, 1, 1.25, 5);
  EXPECT_EQ(slope, 0);
  EXPECT_EQ(intercept, 0);
  EXPECT_EQ(GetLinearEquation_DXFTolerance(1.25, 1, 1, 5).aSlope, 0);
}

TEST(GetLinearEquation_DXFTolerance, IsThePlainOneBeyondTheTolerance) {
  TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0.25);
  const auto [slope, intercept] = GetLinearEquation_DXFTolerance(1, 1, 1.5, 5);
  EXPECT_EQ(slope, 8);
  EXPECT_EQ(intercept, -7);
}

TEST(GetLinearEquation_DXFTolerance, TakesAToleranceThatIsNoLength) {
  TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0);
  EXPECT_EQ(GetLinearEquation_DXFTolerance(1, 1, 1, 5).aSlope, 0);
  settings.With(ifLinearTolerance, kNaN);
  EXPECT_EQ(GetLinearEquation_DXFTolerance(1, 1, 3, 5).aSlope, 2);
  settings.With(ifLinearTolerance, kInfinity);
  EXPECT_EQ(GetLinearEquation_DXFTolerance(1, 1, 3, 5).aSlope, 0);
}

TEST(GetLinesIntersection, MeetsBothLines) {
  const auto [x, y] = GetLinesIntersection(2, -1, -1, 5);
  EXPECT_EQ(x, 2);
  EXPECT_EQ(y, 3);
}

TEST(GetLinesIntersection, IsNotFiniteForParallelLines) {
  EXPECT_FALSE(std::isfinite(GetLinesIntersection(2, 0, 2, 1).x));
  EXPECT_TRUE(std::isnan(GetLinesIntersection(2, 1, 2, 1).x));
}

TEST(RT_To_XY, TakesDegrees) {
  const auto [x, y] = RT_To_XY(2, 120);
  EXPECT_NEAR(x, -1, 1e-15);
  EXPECT_NEAR(y, std::sqrt(3), 1e-15);
  EXPECT_EQ(RT_To_XY(2, 0).x, 2);
  EXPECT_EQ(RT_To_XY(2, 0).y, 0);
}

TEST(XY_To_RT, GivesDistanceAndDegrees) {
  const auto [r, angle] = XY_To_RT(-3, -4);
  EXPECT_EQ(r, 5);
  EXPECT_NEAR(angle, -126.86989764584402, 1e-12);
  EXPECT_EQ(XY_To_RT(0, 0).r, 0);
  EXPECT_EQ(XY_To_RT(0, 0).angle, 0);
  EXPECT_EQ(XY_To_RT(0, -2).angle, -90);
}

TEST(XY_To_RT, RunsFromAboveMinus180UpTo180) {
  EXPECT_EQ(XY_To_RT(-1, 0).angle, 180);
  EXPECT_EQ(XY_To_RT(-1, -0.0).angle, 180);
  EXPECT_EQ(XY_To_RT(-1, -kSmallest).angle, 180);
  EXPECT_LT(XY_To_RT(-1, -1e-9).angle, -179);
}

TEST(GetDistanceBetweenCoords, IsTheLengthOfTheWay) {
  EXPECT_EQ(GetDistanceBetweenCoords(1, 2, 4, 6), 5);
  EXPECT_EQ(GetDistanceBetweenCoords(1, 2, 1, 2), 0);
  EXPECT_EQ(GetDistanceBetweenCoords(0, 0, kInfinity, 0), kInfinity);
}

TEST(ValuesClose_Standard, IsAbsoluteNearZero) {
  EXPECT_TRUE(ValuesClose_Standard(1e-12, 0));
  EXPECT_FALSE(ValuesClose_Standard(1.001e-12, 0));
  EXPECT_TRUE(ValuesClose_Standard(-5e-13, 5e-13));
  EXPECT_FALSE(ValuesClose_Standard(0.5, 0.5 + 2e-12));
}

TEST(ValuesClose_Standard, IsRelativeToTheSmallerMagnitudeFarFromZero) {
  EXPECT_TRUE(ValuesClose_Standard(1e6, 1e6 + 0.9e-6));
  EXPECT_FALSE(ValuesClose_Standard(1e6, 1e6 + 1.1e-6));
  EXPECT_FALSE(ValuesClose_Standard(1e6, -1e6));
}

TEST(ValuesClose_Standard, IsFalseWithoutANumber) {
  EXPECT_FALSE(ValuesClose_Standard(kNaN, 0));
  EXPECT_FALSE(ValuesClose_Standard(kNaN, kNaN));
  EXPECT_FALSE(ValuesClose_Standard(kInfinity, kInfinity));
  EXPECT_FALSE(ValuesClose_Standard(kInfinity, 0));
}

TEST(ToInteger_Saturated, TruncatesTowardsZero) {
  EXPECT_EQ(ToInteger_Saturated(2.9), 2);
  EXPECT_EQ(ToInteger_Saturated(-2.9), -2);
  EXPECT_EQ(ToInteger_Saturated(-0.5), 0);
}

TEST(ToInteger_Saturated, StopsAtTheEndsOfTheRange) {
  EXPECT_EQ(ToInteger_Saturated(2147483646.5), 2147483646);
  EXPECT_EQ(ToInteger_Saturated(2147483648.0), INT32_MAX);
  EXPECT_EQ(ToInteger_Saturated(-2147483649.0), INT32_MIN);
  EXPECT_EQ(ToInteger_Saturated(kInfinity), INT32_MAX);
  EXPECT_EQ(ToInteger_Saturated(-kInfinity), INT32_MIN);
}

TEST(ToInteger_Saturated, GivesZeroForNotANumber) {
  EXPECT_EQ(ToInteger_Saturated(kNaN), 0);
}

}  // namespace
}  // namespace GeometryEngine

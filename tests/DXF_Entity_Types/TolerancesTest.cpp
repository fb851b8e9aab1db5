#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Tolerances that are exact in binary, and unlike each other.
struct TolerancesTest : ::testing::Test {
  TSettingsGuard settings;
  TolerancesTest() { settings.With(ifLinearTolerance, 0.25).With(ifAngleTolerance, 0.5); }
};

TEST_F(TolerancesTest, GetLinearToleranceFollowsTheStore) {
  EXPECT_EQ(GetLinearTolerance(), 0.25);
  settings.With(ifLinearTolerance, 3);
  EXPECT_EQ(GetLinearTolerance(), 3);
}

TEST_F(TolerancesTest, ValuesSameBelowTheToleranceOnly) {
  EXPECT_TRUE(ValuesSame_DXFTolerance(1, std::nextafter(1.25, 0)));
  EXPECT_FALSE(ValuesSame_DXFTolerance(1, 1.25));
  EXPECT_FALSE(ValuesSame_DXFTolerance(1.25, 1));
  EXPECT_TRUE(ValuesSame_DXFTolerance(-0.1, 0.1));
}

TEST_F(TolerancesTest, ValueLessThanIsFalseWithinTheTolerance) {
  EXPECT_FALSE(ValueLessThan_DXFTolerance(1, 1.125));
  EXPECT_TRUE(ValueLessThan_DXFTolerance(1, 1.25));
  EXPECT_FALSE(ValueLessThan_DXFTolerance(1.25, 1));
  EXPECT_FALSE(ValueLessThan_DXFTolerance(1, 1));
}

TEST_F(TolerancesTest, ValueMoreThanIsFalseWithinTheTolerance) {
  EXPECT_FALSE(ValueMoreThan_DXFTolerance(1.125, 1));
  EXPECT_TRUE(ValueMoreThan_DXFTolerance(1.25, 1));
  EXPECT_FALSE(ValueMoreThan_DXFTolerance(1, 1.25));
}

TEST_F(TolerancesTest, ValuesSameAngleBelowTheAngleToleranceOnly) {
  EXPECT_TRUE(ValuesSame_DXFAngle(10, 10.25));
  EXPECT_FALSE(ValuesSame_DXFAngle(10, 10.5));
  EXPECT_FALSE(ValuesSame_DXFAngle(0, 360));
}

TEST_F(TolerancesTest, AnglesMoreThanOrEqualHoldAHairBelow) {
  EXPECT_TRUE(ValuesMoreThanOrEqual_DXFAngle(10, 10.25));
  EXPECT_FALSE(ValuesMoreThanOrEqual_DXFAngle(10, 10.5));
  EXPECT_TRUE(ValuesMoreThanOrEqual_DXFAngle(11, 10));
}

TEST_F(TolerancesTest, AnglesLessThanOrEqualHoldAHairAbove) {
  EXPECT_TRUE(ValuesLessThanOrEqual_DXFAngle(10.25, 10));
  EXPECT_FALSE(ValuesLessThanOrEqual_DXFAngle(10.5, 10));
  EXPECT_TRUE(ValuesLessThanOrEqual_DXFAngle(10, 11));
}

TEST_F(TolerancesTest, AChangeHoldsFromTheNextComparisonOn) {
  EXPECT_FALSE(ValuesSame_DXFTolerance(0, 1));
  EXPECT_FALSE(ValuesSame_DXFAngle(0, 1));
  settings.With(ifLinearTolerance, 2).With(ifAngleTolerance, 2);
  EXPECT_TRUE(ValuesSame_DXFTolerance(0, 1));
  EXPECT_TRUE(ValuesSame_DXFAngle(0, 1));
}

TEST_F(TolerancesTest, NothingIsTheSameUnderAToleranceThatIsNoLength) {
  for (const double tolerance : {0.0, -1.0, -kInfinity, kNaN}) {
    settings.With(ifLinearTolerance, tolerance).With(ifAngleTolerance, tolerance);
    EXPECT_FALSE(ValuesSame_DXFTolerance(1, 1)) << tolerance;
    EXPECT_FALSE(ValuesSame_DXFAngle(1, 1)) << tolerance;
    EXPECT_TRUE(ValueLessThan_DXFTolerance(1, 2)) << tolerance;
    EXPECT_FALSE(ValuesMoreThanOrEqual_DXFAngle(1, 1)) << tolerance;
  }
}

TEST_F(TolerancesTest, FiniteValuesAreTheSameUnderAnInfiniteTolerance) {
  settings.With(ifLinearTolerance, kInfinity);
  EXPECT_TRUE(ValuesSame_DXFTolerance(-1e300, 1e300));
  EXPECT_FALSE(ValueLessThan_DXFTolerance(-1e300, 1e300));
}

TEST_F(TolerancesTest, NotANumberIsNeitherSameNorLessNorMore) {
  for (const double other : {kNaN, 0.0, kInfinity}) {
    EXPECT_FALSE(ValuesSame_DXFTolerance(kNaN, other));
    EXPECT_FALSE(ValueLessThan_DXFTolerance(kNaN, other));
    EXPECT_FALSE(ValueMoreThan_DXFTolerance(kNaN, other));
    EXPECT_FALSE(ValuesSame_DXFAngle(other, kNaN));
    EXPECT_FALSE(ValuesLessThanOrEqual_DXFAngle(other, kNaN));
    EXPECT_FALSE(ValuesMoreThanOrEqual_DXFAngle(other, kNaN));
  }
}

TEST_F(TolerancesTest, EqualInfinitiesAreNotTheSame) {
  EXPECT_FALSE(ValuesSame_DXFTolerance(kInfinity, kInfinity));
  EXPECT_TRUE(ValueLessThan_DXFTolerance(0, kInfinity));
}

}  // namespace
}  // namespace GeometryEngine

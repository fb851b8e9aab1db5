#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine_Plane/TPlane.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::IsNear;
using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(TEntityCoordinate, NewTakesBothComponents) {
  EXPECT_THAT(TEntityCoordinate::New(1.5, -2), IsBits(1.5, -2));
  EXPECT_THAT(TEntityCoordinate{}, IsBits(0, 0));
}

TEST(TEntityCoordinate, XExactlyTheToleranceApartIsNotEqual) {
  TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0.25);
  EXPECT_FALSE((TEntityCoordinate{1, 2} == TEntityCoordinate{1.25, 2}));
  EXPECT_TRUE((TEntityCoordinate{1, 2} == TEntityCoordinate{1.125, 2}));
  EXPECT_FALSE((TEntityCoordinate{1, 2} == TEntityCoordinate{1, 2.25}));
}

TEST(TEntityCoordinate, EqualityTakesEachComponentByItself) {
  TSettingsGuard settings;
  settings.With(ifLinearTolerance, 1);
  EXPECT_TRUE((TEntityCoordinate{0, 0} == TEntityCoordinate{0.9, 0.9}));  // further apart than the tolerance
}

TEST(TEntityCoordinate, InequalityIsTheNegation) {
  TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0.25);
  EXPECT_TRUE((TEntityCoordinate{1, 2} != TEntityCoordinate{1.25, 2}));
  EXPECT_FALSE((TEntityCoordinate{1, 2} != TEntityCoordinate{1.125, 2}));
  const TEntityCoordinate nowhere{std::numeric_limits<double>::quiet_NaN(), 0};
  EXPECT_TRUE(nowhere != nowhere);
}

TEST(TEntityCoordinate, ArithmeticIsByComponents) {
  const TEntityCoordinate a{1, -2};
  const TEntityCoordinate b{0.5, 4};
  EXPECT_THAT(a + b, IsBits(1.5, 2));
  EXPECT_THAT(a - b, IsBits(0.5, -6));
  EXPECT_THAT(3 * a, IsBits(3, -6));
  EXPECT_THAT(b / 2, IsBits(0.25, 2));
}

TEST(TEntityCoordinate, ArithmeticKnowsNoTolerance) {
  EXPECT_THAT((TEntityCoordinate{1e-9, 0} - TEntityCoordinate{0, 1e-9}), IsBits(1e-9, -1e-9));
}

TEST(TEntityCoordinate, DivisionByZeroIsNotGuarded) {
  EXPECT_THAT((TEntityCoordinate{1, -1} / 0), IsBits(kInfinity, -kInfinity));
  EXPECT_THAT((TEntityCoordinate{0, 1} / 0), IsBits("nan,inf"));
}

struct GetCoordinateTest : ::testing::Test {
  TPlane plane;
  GetCoordinateTest() {
    plane.Origin({10, 20, 30});
    plane.Vector_X({0, 1, 0});
    plane.Vector_Y({0, 0, 1});
  }
};

TEST_F(GetCoordinateTest, GetCoordinate_3DIsOriginPlusMultiplesOfTheBasis) {
  const TCoordinate_3D point = TEntityCoordinate{3, 4}.GetCoordinate_3D(plane);
  EXPECT_EQ(point.x, 10);
  EXPECT_EQ(point.y, 23);
  EXPECT_EQ(point.z, 34);
}

TEST_F(GetCoordinateTest, GetCoordinate_2DUndoesItOnAnOrthonormalBasis) {
  EXPECT_THAT(GetCoordinate_2D(TEntityCoordinate{3, 4}.GetCoordinate_3D(plane), plane), IsBits(3, 4));
}

TEST_F(GetCoordinateTest, GetCoordinate_2DDropsWhatLiesOffThePlane) {
  EXPECT_THAT(GetCoordinate_2D({17, 23, 34}, plane), IsBits(3, 4));
}

TEST_F(GetCoordinateTest, TheBasisIsNotNormalised) {
  plane.Vector_X({0, 2, 0});
  EXPECT_EQ((TEntityCoordinate{3, 4}.GetCoordinate_3D(plane).y), 26);
  EXPECT_THAT(GetCoordinate_2D({10, 26, 34}, plane), IsBits(12, 4));
}

TEST_F(GetCoordinateTest, TheProjectionsAreInDoublePrecision) {
  constexpr double kFar = 123456789.123456;  // has no single-precision value near
  plane.Vector_X({1, 0, 0});
  const TCoordinate_3D point = TEntityCoordinate{kFar, 0}.GetCoordinate_3D(plane);
  EXPECT_EQ(point.x, 10 + kFar);
  EXPECT_THAT(GetCoordinate_2D(point, plane), IsNear(kFar, 0, 1e-7));
}

TEST_F(GetCoordinateTest, SinglePrecisionComponentsAreWidened) {
  plane.Origin({});
  plane.Vector_X({0.1F, 0, 0});
  EXPECT_EQ((TEntityCoordinate{1, 0}.GetCoordinate_3D(plane).x), static_cast<double>(0.1F));
}

TEST_F(GetCoordinateTest, AZeroBasisGivesTheOriginAndZero) {
  const TPlane fresh;
  EXPECT_EQ((TEntityCoordinate{3, 4}.GetCoordinate_3D(fresh).x), 0);
  EXPECT_THAT(GetCoordinate_2D({3, 4, 5}, fresh), IsBits(0, 0));
}

}  // namespace
}  // namespace GeometryEngine

#include "GeometryEngine/GeometryEngine_Plane/TPlane.h"

#include <limits>

#include <gtest/gtest.h>

#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

void ExpectVector(const TVector_Single& aVector, float aX, float aY, float aZ) {
  EXPECT_EQ(aVector.x, aX);
  EXPECT_EQ(aVector.y, aY);
  EXPECT_EQ(aVector.z, aZ);
}

void SetBasis(TPlane& aPlane, const TVector_Single& aVector_X, const TVector_Single& aVector_Y) {
  aPlane.Vector_X(aVector_X);
  aPlane.Vector_Y(aVector_Y);
}

double AngleBetween(const TVector_Single& aVector_X, const TVector_Single& aVector_Y) {
  TPlane plane;
  SetBasis(plane, aVector_X, aVector_Y);
  return plane.AngleBetweenBasisVectors();
}

/// The xy plane through the origin, and another plane of the same basis.
struct TPlaneTest : ::testing::Test {
  TSettingsGuard settings;
  TPlane plane;
  TPlane other;
  TPlaneTest() {
    SetBasis(plane, {1, 0, 0}, {0, 1, 0});
    SetBasis(other, {1, 0, 0}, {0, 1, 0});
  }
};

TEST_F(TPlaneTest, ANewPlaneStartsAtTheOriginWithoutABasis) {
  const TPlane fresh;
  EXPECT_EQ(fresh.Origin().x, 0);
  EXPECT_EQ(fresh.Origin().y, 0);
  EXPECT_EQ(fresh.Origin().z, 0);
  ExpectVector(fresh.Vector_X(), 0, 0, 0);
  ExpectVector(fresh.Vector_Y(), 0, 0, 0);
}

TEST_F(TPlaneTest, ANewPlaneHasNoNormalAndHoldsNothing) {
  const TPlane fresh;
  ExpectVector(fresh.NormalVector(), 0, 0, 0);
  EXPECT_EQ(fresh.AngleBetweenBasisVectors(), 0);
  EXPECT_FALSE(fresh.PointOnPlane({0, 0, 0}));
  EXPECT_FALSE(fresh.PointOnPlane({1, 0, 0}));
  EXPECT_FALSE(fresh.Coincident(plane));
  EXPECT_FALSE(plane.Coincident(fresh));
  EXPECT_FALSE(fresh.Coincident(fresh));
}

TEST_F(TPlaneTest, TheDrawingPlaneHasItsNormalAlongZ) {
  ExpectVector(plane.NormalVector(), 0, 0, 1);
  ExpectVector(plane.GetNormalVector(), 0, 0, 1);
  EXPECT_EQ(plane.AngleBetweenBasisVectors(), 90);
  EXPECT_EQ(plane.GetAngleBetweenBasisVectors(), 90);
}

TEST_F(TPlaneTest, PointOnPlaneAsksForTheRightAngle) {
  EXPECT_TRUE(plane.PointOnPlane({5, 3, 0}));
  EXPECT_FALSE(plane.PointOnPlane({1, 1, 1}));
  plane.Origin({0, 0, 2});
  EXPECT_TRUE(plane.PointOnPlane({5, 3, 2}));
  EXPECT_FALSE(plane.PointOnPlane({5, 3, 0}));
}

TEST_F(TPlaneTest, TheOwnOriginIsNotOnThePlaneKept) {
  EXPECT_FALSE(plane.PointOnPlane({0, 0, 0}));
  plane.Origin({7, 2, 1});
  EXPECT_FALSE(plane.PointOnPlane({7, 2, 1}));
}

TEST_F(TPlaneTest, PointOnPlaneTakesTheSinglePrecisionResolution) {
  EXPECT_TRUE(plane.PointOnPlane({5, 3, 9e-8}));
  EXPECT_FALSE(plane.PointOnPlane({5, 3, 2e-7}));
}

TEST_F(TPlaneTest, FarOriginsCostNoDigits) {
  plane.Origin({1e9, 1e9, 1e9});
  EXPECT_FALSE(plane.PointOnPlane({1e9 + 1, 1e9, 1e9 + 0.5}));
  EXPECT_TRUE(plane.PointOnPlane({1e9 + 1, 1e9, 1e9}));
}

TEST_F(TPlaneTest, PlanesOfOneBasisCoincideWhenTheOriginsLieInIt) {
  other.Origin({7, 2, 0});
  EXPECT_TRUE(plane.Coincident(other));
  EXPECT_TRUE(other.Coincident(plane));
  other.Origin({0, 0, 1});
  EXPECT_FALSE(plane.Coincident(other));
}

TEST_F(TPlaneTest, CoincidentHoldsForTheSameOrigin) {
  EXPECT_TRUE(plane.Coincident(plane));
  settings.With(ifLinearTolerance, 0.25);
  other.Origin({0, 0, 0.125});
  EXPECT_TRUE(plane.Coincident(other));
  other.Origin({0, 0, 0.25});
  EXPECT_FALSE(plane.Coincident(other));
}

TEST_F(TPlaneTest, CoincidentTakesTurnedAndOppositeBases) {
  SetBasis(other, {3, 1, 0}, {1, 2, 0});
  EXPECT_TRUE(plane.Coincident(other));
  SetBasis(other, {0, 1, 0}, {1, 0, 0});
  EXPECT_TRUE(plane.Coincident(other));
}

TEST_F(TPlaneTest, CrossingPlanesDoNotCoincide) {
  SetBasis(other, {1, 0, 0}, {0, 0, 1});
  EXPECT_FALSE(plane.Coincident(other));
  SetBasis(other, {1, 0, 0}, {0, 1, 1e-3F});
  EXPECT_FALSE(plane.Coincident(other));
  SetBasis(other, {1, 0, 0}, {0, 1, 9e-8F});
  EXPECT_TRUE(plane.Coincident(other));
}

TEST_F(TPlaneTest, ParallelBasisVectorsHaveNoNormal) {
  SetBasis(plane, {1, 2, 3}, {2, 4, 6});
  ExpectVector(plane.NormalVector(), 0, 0, 0);
  EXPECT_FALSE(plane.PointOnPlane({1, 0, 0}));
  EXPECT_FALSE(plane.Coincident(other));
}

TEST_F(TPlaneTest, TheNormalIsNotNormalised) {
  SetBasis(plane, {2, 0, 0}, {0, 3, 0});
  ExpectVector(plane.NormalVector(), 0, 0, 6);
}

TEST_F(TPlaneTest, TheNormalIsNeverTurnedKept) {
  // The angle stays within 0 to 180 for every order of the vectors, so the cross product stands as it is.
  SetBasis(plane, {0, 1, 0}, {1, 0, 0});
  EXPECT_EQ(plane.AngleBetweenBasisVectors(), 90);
  ExpectVector(plane.NormalVector(), 0, 0, -1);
  SetBasis(plane, {1, 0, 0}, {-1, -1, 0});
  EXPECT_NEAR(plane.AngleBetweenBasisVectors(), 135, 1e-5);
  ExpectVector(plane.NormalVector(), 0, 0, -1);
}

TEST(AngleBetweenBasisVectors, RunsFromZeroTo180) {
  EXPECT_EQ(AngleBetween({2, 0, 0}, {5, 0, 0}), 0);
  EXPECT_EQ(AngleBetween({2, 0, 0}, {-5, 0, 0}), 180);
  EXPECT_NEAR(AngleBetween({1, 0, 0}, {1, 1, 0}), 45, 1e-5);
  EXPECT_NEAR(AngleBetween({1, 0, 0}, {-1, 1, 0}), 135, 1e-5);
}

TEST(AngleBetweenBasisVectors, OfAVectorAndItselfIsANumber) {
  // Rounded lengths take some of these cosines a hair beyond 1.
  for (int i = 1; i < 1000; ++i) {
    const TVector_Single vector{0.1F * static_cast<float>(i), 0.7F, -0.3F};
    const double angle = AngleBetween(vector, vector);
    ASSERT_GE(angle, 0) << i;
    ASSERT_LT(angle, 0.1) << i;
  }
}

// The quotient of dot product and lengths is 1 in single precision, a little less in double.
TEST(AngleBetweenBasisVectors, IsOfASinglePrecisionCosine) {
  const TVector_Single vector{0.1F, 0.2F, 0};
  ASSERT_LT(static_cast<double>(vector.Dot(vector)),
            static_cast<double>(vector.Length()) * static_cast<double>(vector.Length()));
  EXPECT_EQ(AngleBetween(vector, vector), 0);
}

TEST(AngleBetweenBasisVectors, IsZeroWithoutALength) {
  EXPECT_EQ(AngleBetween({}, {1, 0, 0}), 0);
  EXPECT_EQ(AngleBetween({1, 0, 0}, {}), 0);
}

TEST_F(TPlaneTest, CopyParametersTakesOverOriginAndBasis) {
  plane.Origin({1, 2, 3});
  SetBasis(plane, {4, 5, 6}, {7, 8, 9});
  other.CopyParameters(plane);
  EXPECT_EQ(other.Origin().z, 3);
  ExpectVector(other.Vector_X(), 4, 5, 6);
  ExpectVector(other.Vector_Y(), 7, 8, 9);
  other.CopyParameters(other);
  ExpectVector(other.Vector_Y(), 7, 8, 9);
}

TEST_F(TPlaneTest, NotANumberLiesNowhere) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(plane.PointOnPlane({nan, 0, 0}));
  plane.Origin({nan, 0, 0});
  EXPECT_FALSE(plane.Coincident(plane));
}

}  // namespace
}  // namespace GeometryEngine

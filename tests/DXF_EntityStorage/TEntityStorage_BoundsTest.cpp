#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::MakeStorage;
using support::ParseEntity;
using support::TSettingsGuard;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(TEntityStorage_CalculateMinMaxValues, LeavesInfinitiesForAnEmptyStorage) {
  TEntityStorage empty;
  empty.CalculateMinMaxValues();
  EXPECT_EQ(empty.Min_X(), kInfinity);
  EXPECT_EQ(empty.Min_Y(), kInfinity);
  EXPECT_EQ(empty.Max_X(), -kInfinity);
  EXPECT_EQ(empty.Max_Y(), -kInfinity);
}

TEST(TEntityStorage_CalculateMinMaxValues, CoversLinesAndTheBulgeOfArcs) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L -1,0 3,0; A c 1,0 r 2 0..180");
  storage->CalculateMinMaxValues();
  EXPECT_EQ(storage->Min_X(), -1);
  EXPECT_EQ(storage->Max_X(), 3);
  EXPECT_EQ(storage->Min_Y(), 0);
  EXPECT_EQ(storage->Max_Y(), 2);
}

// The arc passes 0 and 180 degrees, yet its left-most coordinate is an end, and so is its lowest: the upper of the two.
TEST(TEntityStorage_CalculateMinMaxValues, FollowsTheExtremeCoordinatesToTheLetterKept) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("A c 0,0 r 1 300..200");
  storage->CalculateMinMaxValues();
  EXPECT_EQ(storage->Min_X(), ParseEntity("A c 0,0 r 1 300..200").EndCoords.x);
  EXPECT_EQ(storage->Min_Y(), ParseEntity("A c 0,0 r 1 300..200").EndCoords.y);
  EXPECT_EQ(storage->Max_X(), 1);
  EXPECT_EQ(storage->Max_Y(), 1);
}

TEST(TEntityStorage_CalculateMinMaxValues, TakesAnEntityWithoutGeometryForAPoint) {
  const TSettingsGuard settings;
  TEntityStorage storage;
  TDXFEntity point;
  point.CentreCoords = {5, -7};
  storage.AddEntity(point);
  storage.CalculateMinMaxValues();
  EXPECT_EQ(storage.Min_X(), 5);
  EXPECT_EQ(storage.Max_X(), 5);
  EXPECT_EQ(storage.Min_Y(), -7);
  EXPECT_EQ(storage.Max_Y(), -7);
}

TEST(TEntityStorage_CalculateMinMaxValues, PassesOverCoordinatesThatAreNoNumbers) {
  const TSettingsGuard settings;
  TEntityStorage storage;
  storage.AddEntity(ParseEntity("L 1,1 2,3"));
  storage.AddEntity(ParseEntity("A c 0,0 r nan 100..200"));
  storage.CalculateMinMaxValues();
  EXPECT_EQ(storage.Max_X(), 2);
  EXPECT_EQ(storage.Max_Y(), 3);
}

TEST(TEntityStorage_CalculateMinMaxValues, AreNotUpdatedByThemselves) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 0,0 1,1");
  storage->CalculateMinMaxValues();
  storage->AddEntity(ParseEntity("L 1,1 9,9"));
  EXPECT_EQ(storage->Max_X(), 1);
  storage->CalculateMinMaxValues();
  EXPECT_EQ(storage->Max_X(), 9);
}

TEST(TEntityStorage_CalculateMinMaxValues_RT, LeavesInfinitiesForAnEmptyStorage) {
  TEntityStorage empty;
  empty.CalculateMinMaxValues_RT();
  EXPECT_EQ(empty.Min_R(), kInfinity);
  EXPECT_EQ(empty.Min_T(), kInfinity);
  EXPECT_EQ(empty.Max_R(), -kInfinity);
  EXPECT_EQ(empty.Max_T(), -kInfinity);
}

TEST(TEntityStorage_CalculateMinMaxValues_RT, CountsTheMiddlesOfLines) {
  const TSettingsGuard settings;
  const auto triangle = MakeStorage("L 1,-1 1,1; L 1,1 3,0; L 3,0 1,-1");
  triangle->CalculateMinMaxValues_RT();
  EXPECT_DOUBLE_EQ(triangle->Min_R(), 1);
  EXPECT_DOUBLE_EQ(triangle->Max_R(), 3);
  EXPECT_DOUBLE_EQ(triangle->Min_T(), -45);
  EXPECT_DOUBLE_EQ(triangle->Max_T(), 45);
}

TEST(TEntityStorage_CalculateMinMaxValues_RT, CountsThePointsOfArcs) {
  const TSettingsGuard settings;
  const auto sector = MakeStorage(
      "L 2,0 4,0; A c 0,0 r 4 0..60; L 2,3.4641016151377544 1,1.7320508075688772; "
      "A c 0,0 r 2 0..60 from 2,0 to 1,1.7320508075688772");
  sector->CalculateMinMaxValues_RT();
  EXPECT_NEAR(sector->Min_R(), 2, 1e-12);
  EXPECT_NEAR(sector->Max_R(), 4, 1e-12);
  EXPECT_NEAR(sector->Min_T(), 0, 1e-12);
  EXPECT_NEAR(sector->Max_T(), 60, 1e-12);
}

TEST(TEntityStorage_GetRadius_Maximum, AndMinimumAreZeroForAnEmptyStorage) {
  EXPECT_EQ(TEntityStorage().GetRadius_Maximum(), 0);
  EXPECT_EQ(TEntityStorage().GetRadius_Minimum(), 0);
  EXPECT_EQ(TEntityStorage().GetRadius_MaximumSurf(), 0);
}

TEST(TEntityStorage_GetRadius_Maximum, TakesEveryEndOfEveryEntity) {
  const auto storage = MakeStorage("L 3,4 1,0; L 6,8 0,2");
  EXPECT_EQ(storage->GetRadius_Maximum(), 10);
  EXPECT_EQ(storage->GetRadius_Minimum(), 1);
}

TEST(TEntityStorage_GetRadius_Maximum, LeavesOutTheBulgeOfAnArcKept) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("A c 3,0 r 1 270..90 from 3,-1 to 3,1");
  EXPECT_DOUBLE_EQ(storage->GetRadius_Maximum(), std::sqrt(10));
  EXPECT_NEAR(storage->GetRadius_MaximumSurf(), 4, 0.01);
}

TEST(TEntityStorage_GetRadius_Minimum, AnswersNoMoreThanAThousandMillion) {
  EXPECT_EQ(MakeStorage("L 2e9,0 3e9,0")->GetRadius_Minimum(), 1e9);
  EXPECT_EQ(MakeStorage("L 2e9,0 3e9,0")->GetRadius_Maximum(), 3e9);
}

TEST(TEntityStorage_GetRadius_Minimum, PassesOverEndsThatAreNoNumbers) {
  const auto storage = MakeStorage("L nan,0 3,4");
  EXPECT_EQ(storage->GetRadius_Minimum(), 5);
  EXPECT_EQ(storage->GetRadius_Maximum(), 5);
}

TEST(TEntityStorage_GetRadius_MaximumSurf, IsNoNumberWithoutALineOrAnArc) {
  const TSettingsGuard settings;
  EXPECT_TRUE(std::isnan(MakeStorage("R")->GetRadius_MaximumSurf()));
}

TEST(TEntityStorage_GetRadius_MaximumSurf, PassesOverPointsThatAreNoNumbers) {
  const TSettingsGuard settings;
  TEntityStorage storage;
  storage.AddEntity(TDXFEntity::Line({3, 4}, {kNaN, 0}));
  storage.AddEntity(TDXFEntity::Line({kNaN, 0}, {3, 4}));
  storage.AddEntity(TDXFEntity::Line({3, 4}, {6, 8}));
  EXPECT_FALSE(std::isnan(storage.GetRadius_MaximumSurf()));
}

}  // namespace
}  // namespace GeometryEngine

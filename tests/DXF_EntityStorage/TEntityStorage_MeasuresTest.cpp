#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/host/TInputFields.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsNear;
using support::MakeChain;
using support::MakeStorage;
using support::TSettingsGuard;

constexpr double kPi = 3.14159265358979323846;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// Squares from (1,1) to (3,3), travelled either way, with records in both directions.
constexpr const char* kAntiClockwise = "L 1,1 3,1; L 3,3 3,1; L 3,3 1,3; L 1,1 1,3";
constexpr const char* kClockwise = "L 1,1 1,3; L 3,3 1,3; L 3,3 3,1; L 1,1 3,1";
/// Half a disc of radius 2 about (5, 1), above its diameter.
constexpr const char* kHalfDisc = "L 3,1 7,1; A c 5,1 r 2 0..180";

TEST(TEntityStorage_PointOnEntities, HoldsOnLinesAndArcs) {
  const TSettingsGuard settings;
  const auto half_disc = MakeStorage(kHalfDisc);
  EXPECT_TRUE(half_disc->PointOnEntities({4, 1}));
  EXPECT_TRUE(half_disc->PointOnEntities({5, 3}));
  EXPECT_FALSE(half_disc->PointOnEntities({5, 2}));
  EXPECT_FALSE(half_disc->PointOnEntities({5, -1}));  // on the circle, off the arc
}

TEST(TEntityStorage_PointOnEntities, SkipsEntitiesWithoutGeometry) {
  const TSettingsGuard settings;
  EXPECT_FALSE(MakeStorage("N; R")->PointOnEntities({0, 0}));
  EXPECT_FALSE(TEntityStorage().PointOnEntities({0, 0}));
}

TEST(TEntityStorage_PointInsideEntities, AnswersTheFlagOnTheBoundaryWhateverTheWinding) {
  const TSettingsGuard settings;
  for (const char* text : {kAntiClockwise, kClockwise, kHalfDisc}) {
    const auto chain = MakeChain(text);
    const TEntityCoordinate on_boundary = text == kHalfDisc ? TEntityCoordinate{5, 1} : TEntityCoordinate{2, 1};
    EXPECT_TRUE(chain->PointInsideEntities(on_boundary, true)) << text;
    EXPECT_FALSE(chain->PointInsideEntities(on_boundary, false)) << text;
  }
}

TEST(TEntityStorage_PointInsideEntities, TellsInsideFromOutside) {
  const TSettingsGuard settings;
  const auto square = MakeChain(kAntiClockwise);
  EXPECT_TRUE(square->PointInsideEntities({2, 2}, false));
  for (const TEntityCoordinate& outside : {TEntityCoordinate{0, 2}, {4, 2}, {2, 0}, {2, 4}, {kNaN, 2}}) {
    EXPECT_FALSE(square->PointInsideEntities(outside, true));
  }
  const auto half_disc = MakeChain(kHalfDisc);
  EXPECT_TRUE(half_disc->PointInsideEntities({5, 2.9}, false));
  EXPECT_FALSE(half_disc->PointInsideEntities({3.2, 2.8}, false));
}

TEST(TEntityStorage_PointInsideEntities, ReportsOutsideWithinAClockwiseChainKept) {
  const TSettingsGuard settings;
  EXPECT_FALSE(MakeChain(kClockwise)->PointInsideEntities({2, 2}, true));
}

TEST(TEntityStorage_PointInsideEntities, WalksFromTheStoredStartVertexKept) {
  const TSettingsGuard settings;
  const auto square = MakeStorage(kAntiClockwise);
  // From (0, 0), which no entity touches, every entity seems to end at (0, 0): nothing winds round anything.
  EXPECT_FALSE(square->PointInsideEntities({2, 2}, false));
  square->StartCoordinate(square->GetStartCoordinate());
  EXPECT_TRUE(square->PointInsideEntities({2, 2}, false));
}

TEST(TEntityStorage_PointInsideEntities, IsFalseForAnEmptyStorage) {
  const TSettingsGuard settings;
  EXPECT_FALSE(TEntityStorage().PointInsideEntities({0, 0}, true));
}

TEST(TEntityStorage_GetClosedArea, IsSignedByTheSenseOfTravel) {
  const TSettingsGuard settings;
  EXPECT_EQ(MakeStorage(kAntiClockwise)->GetClosedArea(), 4);
  EXPECT_EQ(MakeStorage(kClockwise)->GetClosedArea(), -4);
}

TEST(TEntityStorage_GetClosedArea, CountsArcsExactly) {
  const TSettingsGuard settings;
  EXPECT_NEAR(MakeStorage(kHalfDisc)->GetClosedArea(), 2 * kPi, 1e-12);
  // A square of side 2 with a bite: the half disc of radius 1 on its right side, travelled clockwise.
  const auto bitten = MakeStorage("L 0,0 2,0; A c 2,1 r 1 90..270 from 2,2 to 2,0; L 2,2 0,2; L 0,2 0,0");
  EXPECT_NEAR(bitten->GetClosedArea(), 4 - kPi / 2, 1e-12);
}

TEST(TEntityStorage_GetClosedArea, OfACircleOfTwoHalfArcsIsExact) {
  const TSettingsGuard settings;
  EXPECT_NEAR(MakeStorage("A c 3,4 r 2.5 0..180; A c 3,4 r 2.5 180..360")->GetClosedArea(), kPi * 6.25, 1e-12);
  EXPECT_NEAR(MakeStorage("A c 3,4 r 2.5 180..360; A c 3,4 r 2.5 0..180")->GetClosedArea(), kPi * 6.25, 1e-12);
}

TEST(TEntityStorage_GetClosedArea, IsZeroForAnEmptyStorage) {
  EXPECT_EQ(TEntityStorage().GetClosedArea(), 0);
}

TEST(TEntityStorage_GetClosedArea, PassesOverEntitiesWithoutGeometry) {
  const TSettingsGuard settings;
  EXPECT_EQ(MakeStorage("N; R")->GetClosedArea(), 0);
}

TEST(TEntityStorage_GetCentroid, OfStraightOutlinesIsExactEitherWayRound) {
  const TSettingsGuard settings;
  EXPECT_THAT(MakeStorage(kAntiClockwise)->GetCentroid(), IsNear(2, 2, 1e-14));
  EXPECT_THAT(MakeStorage(kClockwise)->GetCentroid(), IsNear(2, 2, 1e-14));
  EXPECT_THAT(MakeStorage("L 0,0 3,0; L 3,0 0,3; L 0,3 0,0")->GetCentroid(), IsNear(1, 1, 1e-14));
}

// The sum runs over chords, the area in the divisor is exact: the centre comes out short by the area of the polygon
// over that of the circle, sin(step) / step with chords of `step` radians.
TEST(TEntityStorage_GetCentroid, OfACircleIsItsCentreWithinTheChords) {
  for (const double resolution : {1.0, 5.0, 50.0}) {
    TSettingsGuard settings;
    settings.With(Maindataenum::TInputFields::ifArcResolution, resolution);
    const double step = kPi / 18 / resolution;
    const double shortfall = std::sin(step) / step;
    const auto circle = MakeStorage("A c 3,4 r 2.5 0..180; A c 3,4 r 2.5 180..360");
    EXPECT_THAT(circle->GetCentroid(), IsNear(3 * shortfall, 4 * shortfall, 1e-12)) << resolution;
    EXPECT_THAT(circle->GetCentroid(), IsNear(3, 4, 0.03 / (resolution * resolution))) << resolution;
  }
}

TEST(TEntityStorage_GetCentroid, IsNotFiniteWithoutAnArea) {
  const TSettingsGuard settings;
  const TEntityCoordinate of_empty = TEntityStorage().GetCentroid();
  EXPECT_FALSE(std::isfinite(of_empty.x) || std::isfinite(of_empty.y));
  const TEntityCoordinate of_flat = MakeStorage("L 1,1 3,3; L 3,3 1,1")->GetCentroid();
  EXPECT_FALSE(std::isfinite(of_flat.x) || std::isfinite(of_flat.y));
}

TEST(TEntityStorage_MinPointToEntitiesDistance, OfAVertexIsZero) {
  const TSettingsGuard settings;
  const auto square = MakeStorage(kAntiClockwise);
  for (const TEntityCoordinate& vertex : square->GetVertices()) {
    EXPECT_EQ(square->MinPointToEntitiesDistance(vertex), 0);
  }
}

TEST(TEntityStorage_MinPointToEntitiesDistance, IsTheLeastOverEverySideTheClosingOneToo) {
  const TSettingsGuard settings;
  const auto square = MakeStorage(kAntiClockwise);
  EXPECT_DOUBLE_EQ(square->MinPointToEntitiesDistance({2, 1.25}), 0.25);
  EXPECT_DOUBLE_EQ(square->MinPointToEntitiesDistance({2.5, 2}), 0.5);
  EXPECT_DOUBLE_EQ(square->MinPointToEntitiesDistance({1.25, 2}), 0.25);  // the side from the last vertex to the first
  EXPECT_DOUBLE_EQ(square->MinPointToEntitiesDistance({6, 7}), 5);
}

TEST(TEntityStorage_MinPointToEntitiesDistance, MeasuresAnArcByItsChords) {
  const TSettingsGuard settings;
  const double distance = MakeStorage(kHalfDisc)->MinPointToEntitiesDistance({5, 6});
  EXPECT_NEAR(distance, 3, 0.01);
  EXPECT_GE(distance, 3);
}

TEST(TEntityStorage_MinPointToEntitiesDistance, FollowsAVertexThatIsPassedTwiceByItsPlace) {
  const TSettingsGuard settings;
  const auto bow = MakeStorage("L 0,0 2,0; L 2,0 2,2; L 2,2 0,0; L 0,0 -2,0; L -2,0 -2,-2; L -2,-2 0,0");
  EXPECT_DOUBLE_EQ(bow->MinPointToEntitiesDistance({-1, 0.5}), 0.5);
}

TEST(TEntityStorage_MinPointToEntitiesDistance, IsInfiniteBelowTwoVertices) {
  const TSettingsGuard settings;
  for (const char* text : {"", "L 0,0 1,0", "N; R; N"}) {
    EXPECT_EQ(MakeStorage(text)->MinPointToEntitiesDistance({0, 0}), kInfinity) << text;
  }
}

TEST(TEntityStorage_MinPointToEntitiesDistance, OfAPointThatIsNoNumberStaysInfinite) {
  const TSettingsGuard settings;
  EXPECT_EQ(MakeStorage(kAntiClockwise)->MinPointToEntitiesDistance({kNaN, kNaN}), kInfinity);
}

TEST(TEntityStorage_Measures, AnswerWithAnyTolerance) {
  for (const double tolerance : {0.0, -1.0, kInfinity, -kInfinity, kNaN, 1e300}) {
    TSettingsGuard settings;
    settings.With(Maindataenum::TInputFields::ifLinearTolerance, tolerance)
        .With(Maindataenum::TInputFields::ifAngleTolerance, tolerance)
        .With(Maindataenum::TInputFields::ifArcResolution, tolerance);
    const auto chain = MakeChain(kHalfDisc);
    chain->PointInsideEntities({5, 2}, false);
    chain->GetClosedArea();
    chain->GetCentroid();
    chain->CalculateMinMaxValues();
    chain->CalculateMinMaxValues_RT();
    chain->QuickSortArray(0, 1);
    EXPECT_EQ(chain->GetCount(), 2) << tolerance;
  }
}

}  // namespace
}  // namespace GeometryEngine

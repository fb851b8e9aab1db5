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

using support::IsBits;
using support::IsNear;
using support::MakeChain;
using support::MakeStorage;
using support::TSettingsGuard;

constexpr double kSingle = 1e-6;  // normals are single precision
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

constexpr const char* kUnitSquare = "L 0,0 1,0; L 1,0 1,1; L 1,1 0,1; L 0,1 0,0";
constexpr const char* kCircle = "A c 0,0 r 2 0..180; A c 0,0 r 2 180..360";

TEST(TEntityStorage_Offset, UnitSquareByOneHasSideThree) {
  const TSettingsGuard settings;
  const auto square = MakeChain(kUnitSquare);
  square->Offset(1);
  EXPECT_THAT(square->EntityArray(), IsNear("L -1,-1 2,-1; L 2,-1 2,2; L 2,2 -1,2; L -1,2 -1,-1", kSingle));
}

TEST(TEntityStorage_Offset, UnitSquareByMinusAQuarterHasSideHalf) {
  const TSettingsGuard settings;
  const auto square = MakeChain(kUnitSquare);
  square->Offset(-0.25);
  EXPECT_THAT(
      square->EntityArray(),
      IsNear("L 0.25,0.25 0.75,0.25; L 0.75,0.25 0.75,0.75; L 0.75,0.75 0.25,0.75; L 0.25,0.75 0.25,0.25", kSingle));
}

TEST(TEntityStorage_Offset, ZeroDoesNotEvenRebuild) {
  const TSettingsGuard settings;
  const auto square = MakeChain("L 0,0 1,0 name \"tagged\"; L 1,1 1,0; L 1,1 0,1; L 0,1 0,0");
  const TEntityArray before = square->EntityArray();
  square->Offset(0);
  square->Offset(-0.0);
  EXPECT_THAT(square->EntityArray(), IsBits(before));
}

TEST(TEntityStorage_Offset, CircleOutwardsKeepsItsCentreAndGrowsByTheDistanceAndTheMitreExcess) {
  const TSettingsGuard settings;
  const auto circle = MakeChain(kCircle);
  circle->Offset(1);
  ASSERT_EQ(circle->GetCount(), 2);
  for (const TDXFEntity& arc : circle->EntityArray()) {
    EXPECT_EQ(arc.EntityType, DXFArc);
    EXPECT_THAT(arc.CentreCoords, IsNear(0, 0, kSingle));
    EXPECT_GT(arc.radius, 3);
    EXPECT_LT(arc.radius, 3.01);
  }
}

TEST(TEntityStorage_Offset, ArcsNoLargerThanTheDistanceBecomeLinesBothWaysKept) {
  const TSettingsGuard settings;
  for (const double distance : {2.0, -2.0, 5.0}) {
    const auto circle = MakeChain(kCircle);
    circle->Offset(distance);
    ASSERT_EQ(circle->GetCount(), 2);
    EXPECT_EQ(circle->Entities(0).EntityType, DXFLine) << distance;
    EXPECT_EQ(circle->Entities(1).EntityType, DXFLine) << distance;
  }
}

TEST(TEntityStorage_Offset, ArcPassedClockwiseBecomesItsComplementKept) {
  const TSettingsGuard settings;
  // A rectangle with a hollow half circle in its upper side, which an anticlockwise walk passes clockwise.
  const auto hollow = MakeChain("L -4,-4 4,-4; L 4,-4 4,0; L 4,0 2,0; A c 0,0 r 2 180..360; L -2,0 -4,0; L -4,0 -4,-4");
  hollow->Offset(0.5);
  const TDXFEntity arc = hollow->Entities(3);
  ASSERT_EQ(arc.EntityType, DXFArc);
  EXPECT_THAT(arc.CentreCoords, IsNear(0, 0, kSingle));
  EXPECT_GT(arc.StartCoords.x, 0);  // begins where the walk enters, not where the hollow's own record began
  EXPECT_LT(arc.EndCoords.x, 0);
}

TEST(TEntityStorage_Offset, ClockwiseChainShrinksWithAPositiveDistance) {
  const TSettingsGuard settings;
  const auto square = MakeChain("L 0,0 0,1; L 0,1 1,1; L 1,1 1,0; L 1,0 0,0");
  square->Offset(0.25);
  EXPECT_NEAR(square->GetClosedArea(), -0.25, kSingle);
}

TEST(TEntityStorage_Offset, CollinearNeighboursMoveAlongTheirCommonNormal) {
  const TSettingsGuard settings;
  const auto square = MakeChain("L 0,0 1,0; L 1,0 2,0; L 2,0 2,2; L 2,2 0,2; L 0,2 0,0");
  square->Offset(1);
  EXPECT_THAT(square->Entities(0).EndCoords, IsNear(1, -1, kSingle));
}

TEST(TEntityStorage_Offset, ReversalOfDirectionHasNoMitreAndEndsAtTheOrigin) {
  const TSettingsGuard settings;
  const auto back = MakeChain("L 0,0 2,0; L 2,0 1,0; L 1,0 1,1; L 1,1 0,0");
  back->Offset(1);
  ASSERT_EQ(back->GetCount(), 4);
  EXPECT_THAT(back->Entities(0).EndCoords, IsBits(0, 0));  // not a number, which a new line turns into 0
}

TEST(TEntityStorage_Offset, KeepsTheStoredStartVertex) {
  const TSettingsGuard settings;
  const auto square = MakeChain(kUnitSquare);
  square->Offset(1);
  EXPECT_THAT(square->StartCoordinate(), IsBits(0, 0));
}

TEST(TEntityStorage_Offset, ChainsThatAreNoneEndSomehow) {
  for (const char* text :
       {"", "L 0,0 1,0", "R", "N; N", "A c 0,0 r 1 0..0", "A c 0,0 r 1 0..90", "L 0,0 1,0; L 1,0 0,0",
        "A c 0,0 r 1 0..180; L -1,0 1,0", "L 0,0 1,0; L 5,5 6,6; N", "N; N; A c 0,0 r 1 0..90",
        "L 0,0 0,0; L 0,0 0,0; L 0,0 0,0", "L 0,0 4,0; L 4,0 0,0; L 0,0 4,0; L 4,0 0,0",
        "L 0,0 nan,0; L nan,0 1,1; L 1,1 0,0", "L nan,nan 1,0; A c 0,0 r 1 0..nan; L nan,0 0,nan"}) {
    for (const double tolerance : {1e-4, 0.0, 1e300, kNaN}) {
      for (const double distance : {1.0, -1.0, kNaN, std::numeric_limits<double>::infinity()}) {
        TSettingsGuard settings;
        const auto chain = MakeStorage(text);
        settings.With(Maindataenum::TInputFields::ifLinearTolerance, tolerance);
        const TIndex vertices = static_cast<TIndex>(chain->GetVertices().size());
        chain->Offset(distance);
        EXPECT_EQ(chain->GetCount(), vertices) << text << " under " << tolerance;
      }
    }
  }
}

}  // namespace
}  // namespace GeometryEngine

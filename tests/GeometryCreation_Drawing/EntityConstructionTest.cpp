#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"

#include <cmath>
#include <limits>

#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;
using Maindataenum::TInputFields;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(CreateEntity_Line, StoresItsEnds) {
  EXPECT_THAT(CreateEntity_Line(1, 2, 3, 4), IsBits("L 1,2 3,4"));
  EXPECT_THAT(CreateEntity_Line({1, 2}, {3, 4}), IsBits("L 1,2 3,4"));
}

TEST(CreateEntity_Line, KeepsInfinitiesAndValuesNearZeroKept) {
  TSettingsGuard settings;
  const TDXFEntity line = CreateEntity_Line(kInfinity, 1e-12, -kInfinity, -1e-5);
  EXPECT_THAT(line, IsBits("L inf,1e-12 -inf,-1e-5"));
}

TEST(CreateEntity_Line, NotANumberIsStoredAsZero) {
  EXPECT_THAT(CreateEntity_Line(kNaN, 2, 3, kNaN), IsBits("L 0,2 3,0"));
  EXPECT_THAT(CreateEntity_Line({1, kNaN}, {kNaN, 4}), IsBits("L 1,0 0,4"));
}

TEST(CreateEntity_Arc, ComputesItsEndsFromCentreRadiusAndAngles) {
  TSettingsGuard settings;
  const TDXFEntity arc = CreateEntity_Arc(10, 20, 2, 0, 90);
  EXPECT_THAT(arc, IsBits("A c 10,20 r 2 0..90"));
  EXPECT_THAT(arc.StartCoords, IsBits(12, 20));
  EXPECT_THAT(arc.EndCoords, IsNear(10, 22, 1e-14));
}

TEST(CreateEntity_Arc, ModeZeroSnapsACentreBelowOneBillionth) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifSnappingMode, 0);
  const TDXFEntity arc = CreateEntity_Arc(1e-10, 5, 2, 0, 90);
  EXPECT_THAT(arc.CentreCoords, IsBits(0, 5));
  EXPECT_THAT(arc.StartCoords, IsNear(2, 5, 1e-14));
  EXPECT_THAT(arc.EndCoords, IsNear(0, 7, 1e-14));
  EXPECT_THAT(CreateEntity_Arc(5, -1e-10, 2, 0, 90).CentreCoords, IsBits(5, 0));
}

TEST(CreateEntity_Arc, ModeZeroLeavesACentreOfExactlyOneBillionth) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifSnappingMode, 0);
  EXPECT_THAT(CreateEntity_Arc(1e-9, -1e-9, 2, 0, 90).CentreCoords, IsBits(1e-9, -1e-9));
}

TEST(CreateEntity_Arc, ModeOneSnapsByTheToleranceAlone) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 1e-12);
  EXPECT_EQ(CreateEntity_Arc(1e-10, 5, 2, 0, 90).CentreCoords.x, 1e-10);
}

TEST(CreateEntity_Arc, AnyOtherModeSnapsNothing) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifSnappingMode, 2);
  EXPECT_EQ(CreateEntity_Arc(1e-10, 5, 2, 0, 90).CentreCoords.x, 1e-10);
}

TEST(CreateEntity_Arc, StoresRadiusAndAnglesAsGiven) {
  TSettingsGuard settings;
  const TDXFEntity arc = CreateEntity_Arc(0, 0, 1e-5, -30, 750);
  EXPECT_EQ(arc.radius, 1e-5);
  EXPECT_EQ(arc.startAngle, -30);
  EXPECT_EQ(arc.endAngle, 750);
  EXPECT_TRUE(std::isnan(CreateEntity_Arc(0, 0, kNaN, 0, 90).radius));
}

TEST(CreateEntity_Arc, CleansItsCentreButNotItsEnds) {
  TSettingsGuard settings;
  const TDXFEntity arc = CreateEntity_Arc(kNaN, kInfinity, 1, 90, 180);
  EXPECT_THAT(arc.CentreCoords, IsBits(0, 0));
  EXPECT_NE(arc.StartCoords.x, 0);
  EXPECT_NEAR(arc.StartCoords.x, 0, 1e-15);
}

TEST(CreateEntity_Arc_StartEnd, TakesRadiusAndAnglesFromItsEnds) {
  TSettingsGuard settings;
  const TDXFEntity arc = CreateEntity_Arc_StartEnd(1, 1, 1, -1, 3, 1);
  EXPECT_THAT(arc, IsNear("A c 1,1 r 2 -90..0 from 1,-1 to 3,1", 1e-12));
}

TEST(CreateEntity_Arc_StartEnd, RadiusIsTheMeanOfTwoThatDiffer) {
  TSettingsGuard settings;
  const TDXFEntity arc = CreateEntity_Arc_StartEnd(0, 0, 3, 0, 0, 4);
  EXPECT_EQ(arc.radius, 3.5);
  EXPECT_THAT(arc.StartCoords, IsBits(3, 0));
  EXPECT_THAT(arc.EndCoords, IsBits(0, 4));
}

TEST(CreateEntity_Arc_StartEnd, CleansAllSixValues) {
  TSettingsGuard settings;
  const TDXFEntity arc = CreateEntity_Arc_StartEnd(1e-5, kNaN, 2, 1e-5, -1e-5, kInfinity);
  EXPECT_THAT(arc.CentreCoords, IsBits(0, 0));
  EXPECT_THAT(arc.StartCoords, IsBits(2, 0));
  EXPECT_THAT(arc.EndCoords, IsBits(0, 0));
  EXPECT_EQ(arc.radius, 1);
}

TEST(CreateEntity_Arc_StartEnd, RadiusAndAnglesComeFromTheCentreBeforeItsOwnSnapping) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifSnappingMode, 0);
  const TDXFEntity arc = CreateEntity_Arc_StartEnd(5e-10, 5e-10, 1, 0, 1, 0);
  EXPECT_THAT(arc.CentreCoords, IsBits(0, 0));
  EXPECT_LT(arc.radius, 1);
  EXPECT_LT(arc.startAngle, 0);
}

TEST(CreateEntity_Arc_StartEnd_Radius, PositiveRadiusRunsFromStartToEnd) {
  TSettingsGuard settings;
  const TDXFEntity arc = CreateEntity_Arc_StartEnd_Radius({0, 0}, {2, 0}, 1);
  EXPECT_THAT(arc, IsBits("A c 1,0 r 1 180..0 from 0,0 to 2,0"));
  EXPECT_EQ(arc.ArcSweep(), 180);
}

TEST(CreateEntity_Arc_StartEnd_Radius, NegativeRadiusSwapsTheEnds) {
  TSettingsGuard settings;
  const TDXFEntity arc = CreateEntity_Arc_StartEnd_Radius({0, 0}, {2, 0}, -1);
  EXPECT_THAT(arc, IsBits("A c 1,0 r 1 0..180 from 2,0 to 0,0"));
  EXPECT_EQ(arc.ArcSweep(), 180);
}

TEST(CreateEntity_Arc_StartEnd_Radius, SignChoosesTheSideAndNeverTheLongerArc) {
  TSettingsGuard settings;
  const TDXFEntity left = CreateEntity_Arc_StartEnd_Radius({0, 0}, {2, 0}, 5);
  const TDXFEntity right = CreateEntity_Arc_StartEnd_Radius({0, 0}, {2, 0}, -5);
  EXPECT_THAT(left.CentreCoords, IsNear(1, std::sqrt(24), 1e-14));
  EXPECT_THAT(right.CentreCoords, IsNear(1, -std::sqrt(24), 1e-14));
  EXPECT_LT(left.ArcSweep(), 180);
  EXPECT_LT(right.ArcSweep(), 180);
  EXPECT_NEAR(left.radius, 5, 1e-14);
}

TEST(CreateEntity_Arc_StartEnd_Radius, CoincidentEndsGiveALine) {
  EXPECT_THAT(CreateEntity_Arc_StartEnd_Radius({3, 4}, {3, 4}, 5), IsBits("L 3,4 3,4"));
  EXPECT_THAT(CreateEntity_Arc_StartEnd_Radius({3, 4}, {3, 4 + 8e-13}, 5), IsBits("L 3,4 3,4.0000000000008"));
}

TEST(CreateEntity_Arc_StartEnd_Radius, RadiusOfZeroOrNotANumberGivesALine) {
  EXPECT_THAT(CreateEntity_Arc_StartEnd_Radius({1, 2}, {3, 4}, 0), IsBits("L 1,2 3,4"));
  EXPECT_THAT(CreateEntity_Arc_StartEnd_Radius({1, 2}, {3, 4}, kNaN), IsBits("L 1,2 3,4"));
}

TEST(CreateEntity_Arc_StartEnd_Radius, RadiusShorterThanHalfTheChordGetsTheMeanDistance) {
  TSettingsGuard settings;
  const TDXFEntity arc = CreateEntity_Arc_StartEnd_Radius({0, 0}, {4, 0}, 1);
  EXPECT_THAT(arc.CentreCoords, IsNear(2, std::sqrt(3), 1e-14));
  EXPECT_NEAR(arc.radius, std::sqrt(7), 1e-14);
}

TEST(GetArcCentre, PositiveRadiusLiesLeftOfTheChord) {
  EXPECT_THAT(GetArcCentre({0, 0}, {6, 0}, 5), IsBits(3, 4));
  EXPECT_THAT(GetArcCentre({0, 0}, {0, 6}, 5), IsBits(-4, 3));
  EXPECT_GT(IsPointLeft_Line(GetArcCentre({1, 1}, {4, 5}, 7), {1, 1}, {4, 5}), 0);
}

TEST(GetArcCentre, NegativeRadiusAndZeroLieRightOfTheChord) {
  EXPECT_THAT(GetArcCentre({0, 0}, {6, 0}, -5), IsBits(3, -4));
  EXPECT_THAT(GetArcCentre({0, 0}, {6, 0}, 0), IsBits(3, -3));
}

TEST(GetArcCentre, ShortRadiusStaysOffTheChordKept) {
  EXPECT_THAT(GetArcCentre({0, 0}, {4, 0}, 1), IsBits(2, std::sqrt(3.0)));
}

TEST(GetArcCentre, CoincidentPointsAreNotGuarded) {
  const TEntityCoordinate centre = GetArcCentre({1, 1}, {1, 1}, 5);
  EXPECT_TRUE(std::isnan(centre.x));
  EXPECT_TRUE(std::isnan(centre.y));
}

}  // namespace
}  // namespace GeometryEngine

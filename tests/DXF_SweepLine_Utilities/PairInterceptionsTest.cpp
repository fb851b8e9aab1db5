#include "GeometryEngine/DXF_SweepLine_Utilities/PairInterceptions.h"

#include <cmath>
#include <limits>

#include "GeometryEngine/DXF_SweepLine_Utilities/detail/AngleOnArc.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;
using Maindataenum::TInputFields;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// The points of a pair, after checking that the answer says whether there are any.
TCoordinateArray Meet(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B) {
  TInterceptionPoints points;
  const bool isMet = CheckIntercepts(aEntity_A, aEntity_B, points);
  EXPECT_EQ(isMet, !points.IsEmpty());
  return points.Points();
}

TCoordinateArray Meet(std::string_view aEntity_A, std::string_view aEntity_B) {
  return Meet(ParseEntity(aEntity_A), ParseEntity(aEntity_B));
}

TDXFEntity WithRadius(TDXFEntity aArc, double aRadius) {
  aArc.radius = aRadius;
  return aArc;
}

TEST(CheckIntercepts, TakesALineAndAnArcInEitherOrder) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 0,-2 0,2", "A c 0,0 r 1 0..180"), IsNear("0,1", 1e-15));
  EXPECT_THAT(Meet("A c 0,0 r 1 0..180", "L 0,-2 0,2"), IsNear("0,1", 1e-15));
}

TEST(CheckIntercepts, HandsEachPairToItsOwnCheckInTheOrderGiven) {
  TSettingsGuard settings;
  struct {
    const char* a;
    const char* b;
    bool (*check)(const TDXFEntity&, const TDXFEntity&, TInterceptionPoints&);
  } const pairs[] = {{"L 0,0 3,0", "L 1,0 4,0", CheckLineLineInterceptions},
                     {"L -2,0 2,0.5", "A c 0,0 r 1 0..200", CheckLineArcInterceptions},
                     {"A c 0,0 r 1 0..200", "L -2,0 2,0.5", CheckLineArcInterceptions},
                     {"A c 0,0 r 1 0..200", "A c 0,1 r 1 100..80", CheckArcArcInterceptions}};
  for (const auto& [a, b, check] : pairs) {
    TInterceptionPoints points;
    EXPECT_TRUE(check(ParseEntity(a), ParseEntity(b), points)) << a << " and " << b;
    EXPECT_EQ(points.Points().size(), 2U) << a << " and " << b;
    EXPECT_THAT(Meet(a, b), IsBits(points.Points())) << a << " and " << b;
  }
}

TEST(CheckLineArcInterceptions, FindsOnlyTheSharedEndsOfTwoLines) {
  TSettingsGuard settings;
  TInterceptionPoints points;
  EXPECT_FALSE(CheckLineArcInterceptions(ParseEntity("L 5,5 7,7"), ParseEntity("L 5,7 7,5"), points));
  EXPECT_TRUE(points.IsEmpty());
  EXPECT_TRUE(CheckLineArcInterceptions(ParseEntity("L 5,5 6,6"), ParseEntity("L 6,6 7,5"), points));
  EXPECT_THAT(points.Points(), IsBits("6,6"));
}

TEST(CheckLineArcInterceptions, TakesTheSecondOfTwoArcsAsItsChord) {
  TSettingsGuard settings;
  TInterceptionPoints points;
  const TDXFEntity second = ParseEntity("A c -5,1 r 5.0990195135927845 348.69..11.31 from 0,0 to 0,2");
  EXPECT_TRUE(CheckLineArcInterceptions(ParseEntity("A c 0,0 r 1 0..180"), second, points));
  EXPECT_THAT(points.Points(), IsNear("0,1", 1e-15));
}

TEST(CheckIntercepts, OtherTypesLeaveTheListUntouched) {
  TSettingsGuard settings;
  TInterceptionPoints points;
  points.AddUnique({9, 9});
  TDXFEntity region = ParseEntity("L 0,0 1,1");
  region.EntityType = DXFRegion;
  for (const char* other : {"L 0,0 1,1", "A c 0,0 r 1 0..90"}) {
    EXPECT_FALSE(CheckIntercepts(region, ParseEntity(other), points));
    EXPECT_FALSE(CheckIntercepts(ParseEntity(other), region, points));
  }
  EXPECT_FALSE(CheckIntercepts(region, region, points));
  EXPECT_THAT(points.Points(), IsBits("9,9"));
}

TEST(CheckIntercepts, TrueEvenWhenThePointIsListedAlready) {
  TSettingsGuard settings;
  TInterceptionPoints points;
  points.AddUnique({1, 1});
  EXPECT_TRUE(CheckIntercepts(ParseEntity("L 0,0 2,2"), ParseEntity("L 0,2 2,0"), points));
  EXPECT_THAT(points.Points(), IsBits("1,1"));
}

TEST(CheckLineLineInterceptions, CrossingYieldsOnePoint) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 0,0 2,2", "L 0,2 2,0"), IsBits("1,1"));
}

TEST(CheckLineLineInterceptions, SecondLineBeyondTheRightEndOfTheFirstYieldsNothing) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 0,0 2,2", "L 3,2 5,0"), IsBits(TCoordinateArray{}));
  EXPECT_THAT(Meet("L 0,0 2,0", "L 2.00001,0 5,0"), IsBits(TCoordinateArray{})) << "the comparison is exact";
}

TEST(CheckLineLineInterceptions, OnlyTheRightSideIsTurnedAwayKept) {
  TSettingsGuard settings;
  // The sloped line ends left of the vertical one: turned away as the second, taken as the first argument's partner.
  EXPECT_THAT(Meet("L 0,0 4,4", "L 5,0 5,10"), IsBits(TCoordinateArray{}));
  EXPECT_THAT(Meet("L 5,0 5,10", "L 0,0 4,4"), IsBits("5,5"));
}

TEST(CheckLineLineInterceptions, VerticalAndSlopedMeetOnTheVerticalLinesExtent) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 2,0 2,3", "L 0,0 4,4"), IsBits("2,2"));
  EXPECT_THAT(Meet("L 0,0 4,4", "L 2,0 2,3"), IsBits("2,2"));
  EXPECT_THAT(Meet("L 2,0 2,1", "L 0,0 4,4"), IsBits(TCoordinateArray{}));
}

TEST(CheckLineLineInterceptions, SlopedLinesExtentIsNotTestedAgainstAVerticalOneKept) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 5,0 5,10", "L 0,0 4,4"), IsBits("5,5"));
  EXPECT_THAT(Meet("L 6,6 10,10", "L 5,0 5,10"), IsBits("5,5"));
}

TEST(CheckLineLineInterceptions, TwoSlopedLinesMustBothHoldThePoint) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 0,0 4,4", "L 0,10 4,6"), IsBits(TCoordinateArray{}));
  EXPECT_THAT(Meet("L 0,0 4,4", "L 3,7 9,1"), IsBits(TCoordinateArray{})) << "would meet at (5, 5)";
  EXPECT_THAT(Meet("L 0,0 5,5", "L 3,7 9,1"), IsNear("5,5", 1e-14));
}

TEST(CheckLineLineInterceptions, CrossingAHairBeyondASteepLinesEndDoesNotCount) {
  TSettingsGuard settings;
  for (const char* steep : {"L 2,0.001 2.01,10.001", "L 2.01,10.001 2,0.001"}) {
    EXPECT_THAT(Meet("L 0,0 4,0", steep), IsBits(TCoordinateArray{}));
    EXPECT_THAT(Meet(steep, "L 0,0 4,0"), IsBits(TCoordinateArray{}));
  }
}

TEST(CheckLineLineInterceptions, EndNearTheOtherLineCountsWithinTheTolerance) {
  TSettingsGuard settings;
  EXPECT_EQ(Meet("L 0,0 4,0", "L 2,0.00005 3,5").size(), 1U);
  EXPECT_EQ(Meet("L 0,0 4,0", "L 2,0.0005 3,5").size(), 0U);
}

TEST(CheckLineLineInterceptions, OverlapYieldsItsEndsTheSecondLinesFirst) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 0,0 2,0", "L 1,0 3,0"), IsBits("1,0 2,0"));
  EXPECT_THAT(Meet("L 1,1 3,3", "L 2,2 0,0"), IsBits("2,2 1,1"));
  EXPECT_THAT(Meet("L 0,0 3,0", "L 2,0 1,0"), IsBits("2,0 1,0"));
  EXPECT_THAT(Meet("L 2,0 1,0", "L 0,0 3,0"), IsBits("2,0 1,0"));
}

TEST(CheckLineLineInterceptions, VerticalLinesOverlapLikeOthers) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 1,0 1,2", "L 1,1 1,3"), IsBits("1,1 1,2"));
  EXPECT_THAT(Meet("L 1,0 1,2", "L 1,3 1,4"), IsBits(TCoordinateArray{}));
}

TEST(CheckLineLineInterceptions, LinesEndToEndYieldTheSharedPointOnce) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 0,0 1,1", "L 1,1 2,2"), IsBits("1,1"));
  EXPECT_THAT(Meet("L 0,0 1,1", "L 2,2.00005 1,1.00005"), IsBits("1,1.00005"));
}

TEST(CheckLineLineInterceptions, ParallelLinesApartYieldNothing) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 0,0 2,2", "L 0,1 2,3"), IsBits(TCoordinateArray{}));
}

TEST(CheckLineLineInterceptions, SlopesWithinAMillionthAreParallel) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 1e-12);
  EXPECT_EQ(Meet("L -1,0 1,0", "L -1,-0.0000009 1,0.0000009").size(), 0U) << "crosses at the origin, unnoticed";
  EXPECT_EQ(Meet("L -1,0 1,0", "L -1,-0.0000011 1,0.0000011").size(), 1U);
}

TEST(CheckLineLineInterceptions, DegenerateCoordinatesAndTolerancesYieldNothing) {
  TSettingsGuard settings;
  EXPECT_TRUE(Meet(TDXFEntity::Line({kNaN, 0}, {1, 1}), ParseEntity("L 0,1 1,0")).empty());
  EXPECT_TRUE(Meet(TDXFEntity::Line({-kInfinity, 0}, {kInfinity, kInfinity}), ParseEntity("L 0,1 1,0")).empty());
  for (const double tolerance : {0.0, -1.0, kNaN}) {
    settings.With(TInputFields::ifLinearTolerance, tolerance);
    EXPECT_TRUE(Meet("L 0,0 2,2", "L 1,0 1,2").empty()) << tolerance;
  }
}

TEST(CheckLineArcInterceptions, LineThroughTheCentreYieldsTheLargerXFirst) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L -2,0 2,0", "A c 0,0 r 1 300..200"), IsBits("1,0 -1,0"));
  EXPECT_THAT(Meet("L 2,2 -2,-2", "A c 0,0 r 1 300..290"),
              IsNear("0.7071067811865475,0.7071067811865475 -0.7071067811865475,-0.7071067811865475", 1e-14));
}

TEST(CheckLineArcInterceptions, VerticalLineYieldsTheUpperPointFirst) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 3,-9 3,9", "A c 3,1 r 2 300..290"), IsBits("3,3 3,-1"));
}

TEST(CheckLineArcInterceptions, OnlyPointsWithinTheSweepCount) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L -2,0 2,0", "A c 0,0 r 1 90..270"), IsBits("-1,0"));
  EXPECT_THAT(Meet("L -2,0 2,0", "A c 0,0 r 1 350..10"), IsBits("1,0"));
  EXPECT_THAT(Meet("L -2,0 2,0", "A c 0,0 r 1 10..170"), IsBits(TCoordinateArray{}));
}

TEST(CheckLineArcInterceptions, OnlyPointsOnTheSegmentCount) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 0,0 2,0", "A c 0,0 r 1 300..200"), IsBits("1,0"));
  EXPECT_THAT(Meet("L -0.5,0 0.5,0", "A c 0,0 r 1 300..200"), IsBits(TCoordinateArray{}));
}

TEST(CheckLineArcInterceptions, LineThatMissesTheCircleYieldsNothing) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L -2,1.5 2,1.5", "A c 0,0 r 1 0..180"), IsBits(TCoordinateArray{}));
  EXPECT_THAT(Meet("L 1.5,-2 1.5,2", "A c 0,0 r 1 270..90"), IsBits(TCoordinateArray{}));
}

TEST(CheckLineArcInterceptions, TangentWithinAThousandthOfTheDiscriminantYieldsOnePoint) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L -2,1 2,1", "A c 0,0 r 1 0..180"), IsBits("-0,1"));
  EXPECT_THAT(Meet("L -2,0.9999 2,0.9999", "A c 0,0 r 1 0..180"), IsBits("-0,0.9999"));
  EXPECT_THAT(Meet("L -2,1.0001 2,1.0001", "A c 0,0 r 1 0..180"), IsBits("-0,1.0001")) << "just off the circle";
  EXPECT_EQ(Meet("L -2,0.9997 2,0.9997", "A c 0,0 r 1 0..180").size(), 2U);
  EXPECT_EQ(Meet("L -2,1.0003 2,1.0003", "A c 0,0 r 1 0..180").size(), 0U);
}

TEST(CheckLineArcInterceptions, TangentThresholdIsInclusive) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 1e-6);
  const TDXFEntity line = ParseEntity("L -2,0.00005 2,0.00005");
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 300..290");
  const double radius = 0.01581146735758576;  // makes the discriminant 0.001 to the bit
  EXPECT_EQ(Meet(line, WithRadius(arc, radius)).size(), 1U);
  EXPECT_EQ(Meet(line, WithRadius(arc, std::nextafter(radius, 1))).size(), 2U);
}

TEST(CheckLineArcInterceptions, VerticalTangentYieldsTheHeightOfTheCentre) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 1.0001,-2 1.0001,2", "A c 0,0.5 r 1 300..200"), IsBits("1.0001,0.5"));
  EXPECT_EQ(Meet("L 0.9997,-2 0.9997,2", "A c 0,0.5 r 1 300..200").size(), 2U);
  EXPECT_EQ(Meet("L 1.0003,-2 1.0003,2", "A c 0,0.5 r 1 300..200").size(), 0U);
}

TEST(CheckLineArcInterceptions, SharedEndIsYieldedOnceAndFirst) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 1,0 3,0", "A c 0,0 r 1 0..90"), IsBits("1,0"));
  EXPECT_THAT(Meet("A c 0,0 r 1 90..180", "L -1,0 2,0"), IsNear("-1,0", 1e-15));
  EXPECT_THAT(Meet("L -1,0 2,0", "A c 0,0 r 1 0..180"), IsNear("-1,0 1,0", 1e-15)) << "the end before the larger x";
}

TEST(CheckLineArcInterceptions, SharedEndsAnswerTheFirstArgumentsOwnPoints) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("L 1.00005,0 3,0", "A c 0,0 r 1 0..90"), IsBits("1.00005,0"));
  EXPECT_THAT(Meet("A c 0,0 r 1 0..90", "L 1.00005,0 3,0"), IsBits("1,0"));
}

TEST(IsAngleOnArc, StartIsHeldAgainst360InPlaceOfTheAngleKept) {
  TSettingsGuard settings;
  EXPECT_FALSE(detail::IsAngleOnArc(360, {350, 10}));
  EXPECT_TRUE(detail::IsAngleOnArc(360, {359.99995, 10}));
}

TEST(IsAngleOnArc, BothEndsCountWithinTheAngleTolerance) {
  TSettingsGuard settings;
  EXPECT_TRUE(detail::IsAngleOnArc(19.99995, {20, 30}));
  EXPECT_TRUE(detail::IsAngleOnArc(30.00005, {20, 30}));
  EXPECT_FALSE(detail::IsAngleOnArc(19.9998, {20, 30}));
  EXPECT_FALSE(detail::IsAngleOnArc(30.0002, {20, 30}));
  EXPECT_TRUE(detail::IsAngleOnArc(349.99995, {350, 10}));
  EXPECT_TRUE(detail::IsAngleOnArc(10.00005, {350, 10}));
  EXPECT_TRUE(detail::IsAngleOnArc(0, {350, 10}));
  EXPECT_FALSE(detail::IsAngleOnArc(180, {350, 10}));
  EXPECT_FALSE(detail::IsAngleOnArc(kNaN, {350, 10}));
  EXPECT_FALSE(detail::IsAngleOnArc(kNaN, {10, 350}));
}

TEST(IsAngleOnArc, NoEndCountsUnderAToleranceOfZero) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifAngleTolerance, 0);
  EXPECT_FALSE(detail::IsAngleOnArc(0, {350, 10}));
  EXPECT_FALSE(detail::IsAngleOnArc(20, {20, 30}));
  EXPECT_TRUE(detail::IsAngleOnArc(5, {350, 10}));
}

TEST(CheckLineArcInterceptions, ArcThatStartsAHairBelow360StillHoldsItsStart) {
  TSettingsGuard settings;
  EXPECT_EQ(Meet("L 0,-0.0000008 2,-0.0000008", "A c 0,0 r 1 359.99995..90").size(), 1U);
}

TEST(CheckLineArcInterceptions, DegenerateRadiiYieldNothing) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 300..200");
  for (const double radius : {kInfinity, kNaN})
    for (const char* line : {"L -2,0.5 2,0.5", "L 0.5,-2 0.5,2"})
      EXPECT_TRUE(Meet(ParseEntity(line), WithRadius(arc, radius)).empty()) << line << " radius " << radius;
}

TEST(CheckArcArcInterceptions, OverlapOnOneCircleYieldsItsEndsTheSecondArcsFirst) {
  TSettingsGuard settings;
  const TDXFEntity first = ParseEntity("A c 1,1 r 2 0..90");
  const TDXFEntity second = ParseEntity("A c 1,1 r 2 45..180");
  EXPECT_THAT(Meet(first, second), IsBits(TCoordinateArray{second.StartCoords, first.EndCoords}));
  EXPECT_THAT(Meet(second, first), IsBits(TCoordinateArray{first.EndCoords, second.StartCoords}));
}

TEST(CheckArcArcInterceptions, HalvesOfOneCircleYieldTheirSharedEnds) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 0..180", "A c 0,0 r 1 180..360"), IsNear("-1,0 1,0", 1e-15));
}

TEST(CheckArcArcInterceptions, ConcentricArcsYieldNothing) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 300..200", "A c 0,0 r 2 300..200"), IsBits(TCoordinateArray{}));
  EXPECT_THAT(Meet("A c 5,5 r 1 300..200", "A c 5,5 r 1.00001 310..190"), IsBits(TCoordinateArray{}))
      << "radii are compared exactly";
}

TEST(CheckArcArcInterceptions, CentresThatAreTheSameOnlyWithinTheToleranceCrossUpperFirst) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 300..290", "A c 0.00005,0 r 1.00003 310..280"), IsNear("-0.6,0.8 -0.6,-0.8", 1e-3));
}

TEST(CheckArcArcInterceptions, LowerCrossingOfSuchCentresIsFoundWithoutTheUpperOne) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 190..350", "A c 0.00005,0 r 1.00003 200..340"), IsNear("-0.6,-0.8", 1e-3));
}

TEST(CheckArcArcInterceptions, UpperCrossingOfSuchCentresAtHeightZeroIsTheOnlyOne) {
  TSettingsGuard settings;
  TDXFEntity A = ParseEntity("A c 0,0 r 1 300..290");
  TDXFEntity B = ParseEntity("A c 0.00005,0 r 1.00003 310..280");
  const double xB = B.CentreCoords.x;
  const double x = (-(xB * xB) - 1 + B.radius * B.radius) / (2 * -xB);
  A.CentreCoords.y = B.CentreCoords.y = -std::sqrt(1 - x * x);
  EXPECT_THAT(Meet(A, B), IsBits(TCoordinateArray{{x, 0}}));
}

TEST(CheckArcArcInterceptions, OuterTouchingYieldsThePointOnTheLineOfCentres) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 300..60", "A c 3,0 r 2 90..270"), IsBits("1,0"));
  EXPECT_THAT(Meet("A c 0,0 r 1 300..60", "A c 3.00005,0 r 2 90..270"), IsBits("1,0")) << "a gap within the tolerance";
  EXPECT_THAT(Meet("A c 0,0 r 2 30..60", "A c 3,4 r 3 180..270"), IsNear("1.2,1.6", 1e-14));
}

TEST(CheckArcArcInterceptions, TouchingPointMustLieOnBothArcs) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 60..300", "A c 3,0 r 2 90..270"), IsBits(TCoordinateArray{}));
  EXPECT_THAT(Meet("A c 0,0 r 1 300..60", "A c 3,0 r 2 270..90"), IsBits(TCoordinateArray{}));
}

TEST(CheckArcArcInterceptions, InnerTouchingYieldsThePointBeyondTheCentres) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 2 300..200", "A c 1,0 r 1 270..90"), IsBits("2,0"));
  EXPECT_THAT(Meet("A c 1,0 r 1 300..200", "A c 0,0 r 2 270..90"), IsBits("2,0"));
  EXPECT_THAT(Meet("A c 0,0 r 10 0..90", "A c 3,4 r 5 0..90"), IsNear("6,8", 1e-13));
}

TEST(CheckArcArcInterceptions, ArcFilterTakesInTheWholeListKept) {
  TSettingsGuard settings;
  const TDXFEntity A = ParseEntity("A c 0,0 r 2 300..60");
  const TDXFEntity B = ParseEntity("A c 1,0 r 1 270..90");
  TInterceptionPoints points;
  points.AddUnique({100, 100});
  EXPECT_TRUE(CheckArcArcInterceptions(A, B, points));
  EXPECT_THAT(points.Points(), IsBits("2,0"));
  // The touching point isn't on this arc, but the listed one is on B and makes the answer true.
  EXPECT_TRUE(CheckArcArcInterceptions(ParseEntity("A c 0,0 r 2 60..300"), B, points));
  points.Clear();
  EXPECT_FALSE(CheckArcArcInterceptions(ParseEntity("A c 0,0 r 2 60..300"), B, points));
}

TEST(CheckArcArcInterceptions, CentresAtOneHeightYieldNoCrossingKept) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 300..290", "A c 1,0 r 1 300..290"), IsBits(TCoordinateArray{}));
  EXPECT_THAT(Meet("A c 0,7 r 2 300..290", "A c 1,7 r 1.5 300..290"), IsBits(TCoordinateArray{}));
}

TEST(CheckArcArcInterceptions, CentresAtOneHeightAndNearlyOnePointYieldTheCrossings) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 10 300..290", "A c 0.00005,0 r 10.00002 80..70"),
              IsNear("-4,9.16515138991168 -4,-9.16515138991168", 1e-4));
}

TEST(CheckArcArcInterceptions, CentresOneAboveTheOtherYieldTheLargerXFirst) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 300..290", "A c 0,1 r 1 300..290"),
              IsNear("0.8660254037844386,0.5 -0.8660254037844386,0.5", 1e-14));
}

TEST(CheckArcArcInterceptions, CrossingMustLieOnBothArcs) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 300..90", "A c 0,1 r 1 300..290"), IsNear("0.8660254037844386,0.5", 1e-14));
  EXPECT_THAT(Meet("A c 0,0 r 1 300..90", "A c 0,1 r 1 90..270"), IsBits(TCoordinateArray{}));
}

TEST(CheckArcArcInterceptions, CirclesApartOrInsideEachOtherYieldNothing) {
  TSettingsGuard settings;
  EXPECT_THAT(Meet("A c 0,0 r 1 300..290", "A c 3,4 r 1 300..290"), IsBits(TCoordinateArray{}));
  EXPECT_THAT(Meet("A c 0,0 r 9 300..290", "A c 1,2 r 1 300..290"), IsBits(TCoordinateArray{}));
}

/// How many points two unit circles with centres this far apart, one above the other, have in common.
std::size_t CountCrossings(double aDistance) {
  TDXFEntity upper = ParseEntity("A c 0,0 r 1 190..350");
  upper.CentreCoords = {0, aDistance};
  return Meet(ParseEntity("A c 0,0 r 1 10..170"), upper).size();
}

TEST(CheckArcArcInterceptions, DiscriminantWithinABillionthYieldsOnePoint) {
  TSettingsGuard settings;
  // With unit circles the discriminant is about four times what the distance lacks to 2. The tolerance stays below that
  // lack, so that the pair doesn't count as touching.
  settings.With(TInputFields::ifLinearTolerance, 1.5e-10);
  EXPECT_EQ(CountCrossings(2 - 2e-10), 1U);
  EXPECT_EQ(CountCrossings(2 + 2e-10), 1U);
  settings.With(TInputFields::ifLinearTolerance, 2e-10);
  EXPECT_EQ(CountCrossings(2 - 3e-10), 2U);
  EXPECT_EQ(CountCrossings(2 + 3e-10), 0U);
}

TEST(CheckArcArcInterceptions, SharedEndsAreAlwaysYieldedAndLast) {
  TSettingsGuard settings;
  const TDXFEntity first = ParseEntity("A c 0,0 r 5 0..90");
  const TDXFEntity second = ParseEntity("A c 6,0 r 5 126.86989764584402..200");
  EXPECT_EQ(Meet(first, second).size(), 0U) << "one height, no shared end";
  const TDXFEntity shared = ParseEntity("A c 6,0 r 5 126.86989764584402..200 from 3,4 to 1.3,-1.71");
  const TDXFEntity meeting = ParseEntity("A c 0,0 r 5 53.13010235415598..90 from 3,4 to 0,5");
  EXPECT_THAT(Meet(meeting, shared), IsBits("3,4"));
}

TEST(CheckArcArcInterceptions, CrossingsComeBeforeSharedEnds) {
  TSettingsGuard settings;
  const TDXFEntity lower = ParseEntity("A c 0,0 r 5 0..143.13010235415598 from 5,0 to -4,3");
  const TDXFEntity upper = ParseEntity("A c 0,6 r 5 216.86989764584402..350 from -4.00005,3 to 4.9,5.1");
  EXPECT_THAT(Meet(lower, upper), IsNear("4,3 -4,3", 1e-12));
  EXPECT_THAT(Meet(upper, lower), IsNear("4,3 -4,3", 1e-12));
}

TEST(CheckArcArcInterceptions, DegenerateRadiiAndTolerancesYieldNothing) {
  TSettingsGuard settings;
  const TDXFEntity A = ParseEntity("A c 0,0 r 1 300..200");
  const TDXFEntity B = ParseEntity("A c 0,1 r 1 300..200");
  for (const double radius : {kInfinity, kNaN, -1.0}) EXPECT_TRUE(Meet(WithRadius(A, radius), B).empty()) << radius;
  for (const double tolerance : {0.0, -1.0, kNaN}) {
    settings.With(TInputFields::ifLinearTolerance, tolerance);
    EXPECT_TRUE(Meet(A, B).empty()) << tolerance;
    EXPECT_TRUE(Meet(A, A).empty()) << tolerance;
  }
}

TEST(GetArcInterceptAngle, EndsGiveTheSuppliedValuesUnchanged) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..90");
  EXPECT_EQ(GetArcInterceptAngle({1, 0.00005}, arc, 777, 888), 777);
  EXPECT_EQ(GetArcInterceptAngle({0, 1}, arc, 777, 888), 888);
}

TEST(GetArcInterceptAngle, OtherPointsGiveTheirDirectionIn0To360) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 2,3 r 1 0..90");
  EXPECT_DOUBLE_EQ(GetArcInterceptAngle({1, 2}, arc, 0, 90), 225);
  EXPECT_DOUBLE_EQ(GetArcInterceptAngle({2, 2}, arc, 0, 90), 270);
}

TEST(GetArcInterceptAngle, OffsetsWithinTheToleranceCountAsZero) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 90..180");
  EXPECT_EQ(GetArcInterceptAngle({1, -0.00005}, arc, 0, 90), 0);
  EXPECT_EQ(GetArcInterceptAngle({0.00005, -1}, arc, 0, 90), 270);
  EXPECT_NE(GetArcInterceptAngle({1, -0.0002}, arc, 0, 90), 0);
}

}  // namespace
}  // namespace GeometryEngine

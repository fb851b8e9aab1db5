#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"

#include <cmath>
#include <limits>
#include <numbers>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;
using Maindataenum::TInputFields;
using std::numbers::pi;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

double SignedArea(const TDXFEntity& aEntity) {
  return GetSignedArea_Entity(aEntity.StartCoords, aEntity.EndCoords, aEntity);
}
double SignedArea_Reversed(const TDXFEntity& aEntity) {
  return GetSignedArea_Entity(aEntity.EndCoords, aEntity.StartCoords, aEntity);
}

/// The exact area term of a true arc walked from start to end.
double ExactArcTerm(const TDXFEntity& aArc) {
  const double sweep = aArc.ArcSweep() * pi / 180;
  const TEntityCoordinate& c = aArc.CentreCoords;
  const TEntityCoordinate chord = aArc.EndCoords - aArc.StartCoords;
  return (aArc.radius * aArc.radius * sweep + c.x * chord.y - c.y * chord.x) / 2;
}

void ExpectVector(const TVector_Single& aVector, float x, float y) {
  EXPECT_EQ(aVector.x, x);
  EXPECT_EQ(aVector.y, y);
  EXPECT_EQ(aVector.z, 0);
}

TEST(GetSignedArea_Entity, LineIsHalfTheCrossProduct) {
  EXPECT_EQ(SignedArea(ParseEntity("L 1,2 3,7")), 0.5);
}

TEST(GetSignedArea_Entity, LineTermGoesByTheWalkAndNotByTheRecord) {
  EXPECT_EQ(GetSignedArea_Entity({3, 7}, {1, 2}, ParseEntity("L 1,2 3,7")), -0.5);
}

TEST(GetSignedArea_Entity, TwoHalfArcsMakeTheCircle) {
  TSettingsGuard settings;
  const double area =
      SignedArea(ParseEntity("A c 7,-3 r 2.5 0..180")) + SignedArea(ParseEntity("A c 7,-3 r 2.5 180..360"));
  EXPECT_NEAR(area, pi * 2.5 * 2.5, 1e-12);
}

TEST(GetSignedArea_Entity, ArcTermIsExact) {
  TSettingsGuard settings;
  for (const char* text : {"A c 0,0 r 1 0..90", "A c 5,6 r 2 350..10", "A c -3,1 r 4 10..350", "A c 2,2 r 9 40..43"}) {
    const TDXFEntity arc = ParseEntity(text);
    EXPECT_NEAR(SignedArea(arc), ExactArcTerm(arc), 1e-12 * (1 + arc.radius * arc.radius)) << text;
  }
}

TEST(GetSignedArea_Entity, ReversedTravelNegatesTheTerm) {
  TSettingsGuard settings;
  for (const char* text : {"L 1,2 3,7", "A c 5,6 r 2 350..10", "A c -3,1 r 4 10..250"}) {
    const TDXFEntity entity = ParseEntity(text);
    EXPECT_NEAR(SignedArea_Reversed(entity), -SignedArea(entity), 1e-12) << text;
  }
}

TEST(GetSignedArea_Entity, OtherTypesContributeNothing) {
  TDXFEntity point = ParseEntity("L 1,2 3,7");
  for (const DXFEntityType type : {DXFNoLineType, DXFRegion}) {
    point.EntityType = type;
    EXPECT_EQ(SignedArea(point), 0);
  }
}

TEST(GetSignedArea_Entity, ArcOfSweepZeroIsNotANumber) {
  TSettingsGuard settings;
  EXPECT_TRUE(std::isnan(SignedArea(ParseEntity("A c 0,0 r 1 30..390"))));
}

TEST(GetArea_Arc, IsTwiceTheTermForAnySegmentCountAboveTwo) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 5,6 r 2 20..140");
  for (const int segments : {3, 4, 5, 50})
    EXPECT_NEAR(GetArea_Arc(arc.StartCoords, arc.EndCoords, arc, segments, 0), 2 * ExactArcTerm(arc), 1e-11);
  EXPECT_NEAR(GetArea_Arc(arc.EndCoords, arc.StartCoords, arc, 5, 1), -2 * ExactArcTerm(arc), 1e-11);
}

TEST(GetArea_Arc, FewerThanTwoSegmentsAreTheChord) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 2 0..90 from 2,0 to 0,2");
  for (const int segments : {1, 0, -7, std::numeric_limits<int>::min()})
    EXPECT_EQ(GetArea_Arc({2, 0}, {0, 2}, arc, segments, 0), 4);
}

TEST(GetCentroidComponent_Entity, LineIsTheSumOfItsEndsTimesTheCrossProduct) {
  EXPECT_THAT(GetCentroidComponent_Entity({1, 2}, {3, 7}, ParseEntity("L 3,7 1,2")), IsBits(4, 9));
}

TEST(GetCentroidComponent_Entity, ArcIsItsChordPolygonAtTheResolutionOfTheHost) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifArcResolution, 1);
  const TDXFEntity arc = ParseEntity("A c 4,0 r 2 0..30");
  TEntityCoordinate sum;
  for (int k = 0; k < 3; ++k) {
    const TEntityCoordinate a = GetArc_LineSegmentCoord(arc, k, Travel_AntiClockwise, 0, 10);
    const TEntityCoordinate b = GetArc_LineSegmentCoord(arc, k + 1, Travel_AntiClockwise, 0, 10);
    sum = sum + (a.x * b.y - a.y * b.x) * (a + b);
  }
  EXPECT_THAT(GetCentroidComponent_Entity(arc.StartCoords, arc.EndCoords, arc), IsNear(sum, 1e-13));
}

TEST(GetCentroidComponent_Entity, FinerResolutionComesNearerToTheTrueArc) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..180");
  const double exact = 4;  // 6 times the first moment 2/3 of the half disc
  const auto error = [&](double aFactor) {
    settings.With(TInputFields::ifArcResolution, aFactor);
    return std::abs(GetCentroidComponent_Entity(arc.StartCoords, arc.EndCoords, arc).y - exact);
  };
  EXPECT_GT(error(1), 1e-2);
  EXPECT_LT(error(5), 1e-2);
  EXPECT_LT(error(50), 1e-4);
}

TEST(GetCentroidComponent_Entity, ReversedTravelNegatesTheTerm) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 5,6 r 2 350..60");
  const TEntityCoordinate there = GetCentroidComponent_Entity(arc.StartCoords, arc.EndCoords, arc);
  const TEntityCoordinate back = GetCentroidComponent_Entity(arc.EndCoords, arc.StartCoords, arc);
  EXPECT_THAT(back, IsNear(-1 * there, 1e-10));
}

TEST(GetCentroidComponent_Entity, OtherTypesContributeNothing) {
  TDXFEntity point = ParseEntity("L 1,2 3,7");
  for (const DXFEntityType type : {DXFNoLineType, DXFRegion}) {
    point.EntityType = type;
    EXPECT_THAT(GetCentroidComponent_Entity({1, 2}, {3, 7}, point), IsBits(0, 0));
  }
}

TEST(GetCentroidComponent_Entity, ResolutionsThatAreNoCountsStillGiveThreeChords) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 4,0 r 2 0..30");
  const auto term = [&](double aFactor) {
    settings.With(TInputFields::ifArcResolution, aFactor);
    return GetCentroidComponent_Entity(arc.StartCoords, arc.EndCoords, arc);
  };
  const TEntityCoordinate threeChords = term(1);
  for (const double factor : {0.0, -5.0, kNaN, -kInfinity}) EXPECT_THAT(term(factor), IsBits(threeChords)) << factor;
}

TEST(GetArcSegment_Step, DividesTheSweep) {
  EXPECT_EQ(GetArcSegment_Step(ParseEntity("A c 0,0 r 1 30..90"), 4), 15);
  EXPECT_EQ(GetArcSegment_Step(ParseEntity("A c 0,0 r 1 350..10"), 4), 5);
  EXPECT_EQ(GetArcSegment_Step(ParseEntity("A c 0,0 r 1 -30..390"), 6), 10);
}

TEST(GetArcSegmentPoints_Step, FactorCountsSegmentsPerTenDegrees) {
  const auto [count, step] = GetArcSegmentPoints_Step(ParseEntity("A c 0,0 r 1 300..60"), 5);
  EXPECT_EQ(count, 60);
  EXPECT_EQ(step, 2);
}

TEST(GetArcSegmentPoints_Step, ShortArcStillGetsThreeSegments) {
  const auto [count, step] = GetArcSegmentPoints_Step(ParseEntity("A c 0,0 r 1 0..5"), 1);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(step, 5.0 / 3);
}

TEST(GetArcSegmentPoints_Step, HalvesRoundToTheEvenCount) {
  EXPECT_EQ(GetArcSegmentPoints_Step(ParseEntity("A c 0,0 r 1 0..45"), 1).aCount, 4);
  EXPECT_EQ(GetArcSegmentPoints_Step(ParseEntity("A c 0,0 r 1 0..55"), 1).aCount, 6);
  EXPECT_EQ(GetArcSegmentPoints_Step(ParseEntity("A c 0,0 r 1 0..65"), 1).aCount, 6);
}

TEST(GetArcSegmentPoints_Step, FactorsOutOfRangeSaturate) {
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..90");
  for (const double factor : {0.0, -1.0, kNaN, -kInfinity}) EXPECT_EQ(GetArcSegmentPoints_Step(arc, factor).aCount, 3);
  for (const double factor : {kInfinity, 1e300, 1e10}) {
    EXPECT_EQ(GetArcSegmentPoints_Step(arc, factor).aCount, std::numeric_limits<std::int32_t>::max());
  }
}

TEST(GetVectorFromCoordinates, IsTheDifferenceNarrowedToSinglePrecision) {
  ExpectVector(GetVectorFromCoordinates({1, 5}, {3, 2}), 2, -3);
  ExpectVector(GetVectorFromCoordinates({0, 0}, {0.1, -0.1}), 0.1F, -0.1F);
}

TEST(GetVectorFromCoordinates, OfZerosOfEitherSignHasNoNegativeZero) {
  const TVector_Single vector = GetVectorFromCoordinates({1, 0.0}, {0, -0.0});
  EXPECT_FALSE(std::signbit(vector.y));
  EXPECT_EQ(GetAngleBetweenVectors(vector, {-1, 0, 0}), 0);
  EXPECT_FALSE(std::signbit(GetVectorFromCoordinates({0.0, 1}, {-0.0, 0}).x));
}

TEST(GetVectorFromCoordinates, SubtractsBeforeItNarrows) {
  ExpectVector(GetVectorFromCoordinates({1e8, 1e8}, {1e8 + 1, 1e8 - 1}), 1, -1);
}

TEST(GetEntityVector, LineLeavesItsFirstCoordinateOrItsFarEnd) {
  const TDXFEntity line = ParseEntity("L 9,9 8,8");
  ExpectVector(GetEntityVector({0, 0}, {2, 1}, line, 1), 2, 1);
  ExpectVector(GetEntityVector({0, 0}, {2, 1}, line, 0), -2, -1);
  ExpectVector(GetEntityVector({0, 0}, {2, 1}, line, 2), 0, 0);
  ExpectVector(GetEntityVector({0, 0}, {2, 1}, {}, 1), 2, 1);
}

TEST(GetEntityVector, ArcLeavesAlongItsFirstOrBackAlongItsLastChord) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..90");
  const TArcSegments segments = GetArcSegmentPoints_Surf(arc, 0.01);
  const auto point = [&](int k) { return GetArc_LineSegmentCoord(arc, k, Travel_AntiClockwise, 0, segments.aStep); };
  const TVector_Single first = GetVectorFromCoordinates(point(0), point(1));
  const TVector_Single last = GetVectorFromCoordinates(point(segments.aCount), point(segments.aCount - 1));
  const TVector_Single leaving = GetEntityVector(arc.StartCoords, arc.EndCoords, arc, 1);
  ExpectVector(leaving, first.x, first.y);
  EXPECT_GT(leaving.y, 0);
  const TVector_Single back = GetEntityVector(arc.StartCoords, arc.EndCoords, arc, 0);
  ExpectVector(back, last.x, last.y);
  EXPECT_GT(back.x, 0);
}

TEST(GetEntityVector, ArcEnteredAtItsEndIsWalkedClockwise) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..90");
  const TVector_Single leaving = GetEntityVector(arc.EndCoords, arc.StartCoords, arc, 1);
  EXPECT_GT(leaving.x, 0);
  EXPECT_LT(leaving.y, 0);
  EXPECT_GT(leaving.x, -leaving.y) << "flatter at the top";
  const TVector_Single back = GetEntityVector(arc.EndCoords, arc.StartCoords, arc, 0);
  EXPECT_LT(back.x, 0);
  EXPECT_GT(back.y, -back.x) << "steeper at the right";
}

TEST(GetEntityVector, ArcOfAnotherCoordinateOrModeIsTheZeroVector) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..90");
  ExpectVector(GetEntityVector({5, 5}, arc.EndCoords, arc, 1), 0, 0);
  ExpectVector(GetEntityVector(arc.StartCoords, arc.EndCoords, arc, 2), 0, 0);
}

TEST(GetAngleBetweenVectors, IsTheAnticlockwiseTurn) {
  EXPECT_DOUBLE_EQ(GetAngleBetweenVectors({1, 0, 0}, {0, -1, 0}), 3 * pi / 2);
  EXPECT_DOUBLE_EQ(GetAngleBetweenVectors({1, 0, 0}, {0, 1, 0}), pi / 2);
  EXPECT_DOUBLE_EQ(GetAngleBetweenVectors({0, -1, 0}, {-1, 0, 0}), 3 * pi / 2);
  EXPECT_EQ(GetAngleBetweenVectors({1, 2, 0}, {1, 2, 0}), 0);
}

TEST(GetAngleBetweenVectors, FullTurnIsLeftAsItIsKept) {
  EXPECT_EQ(GetAngleBetweenVectors({-1, -0.0F, 0}, {-1, 0.0F, 0}), 2 * pi);
}

TEST(GetAngleBetweenVectors, TakesArctangentsInDoublePrecision) {
  const double third = static_cast<double>(1.0F / 3);
  EXPECT_EQ(GetAngleBetweenVectors({1, 0, 0}, {1, 1.0F / 3, 0}), std::atan2(third, 1.0));
}

}  // namespace
}  // namespace GeometryEngine

// Loops of two entities: both run between the same two vertices, so neither tells where the chain begins. The rule is
// that the first record is walked from its own start, and everything else follows from that: an arc first is walked
// anticlockwise, a line first as it is stored.

#include <cmath>
#include <cstdint>
#include <numbers>
#include <ostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "tests/properties/ExactSettings.h"
#include "tests/properties/Fingerprint.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"

namespace GeometryEngine::properties {
namespace {

using support::IsBits;
using support::IsNear;

constexpr double kRounding = 1e-9;
constexpr double kChords = 1e-5;  // centroids are those of finely chorded arcs

/// What a chord cuts off a circle.
double SegmentArea(double aRadius, double aSweep) {
  return aRadius * aRadius / 2 * (aSweep - std::sin(aSweep));
}

/// How far from the circle's centre the centroid of that piece lies.
double SegmentReach(double aRadius, double aSweep) {
  return 4 * aRadius * std::pow(std::sin(aSweep / 2), 3) / (3 * (aSweep - std::sin(aSweep)));
}

const double kSweep5 = 2 * std::atan2(4, 3);          // of the arcs with radius 5 between (0, -4) and (0, 4)
const double kSweep8 = 2 * std::atan2(4, 7.5);        // of those with radius 8.5
const double kSegment5 = SegmentArea(5, kSweep5);     // cut off by their chord
const double kSegment8 = SegmentArea(8.5, kSweep8);   // cut off by their chord
const double kCrescent = kSegment5 - kSegment8;       // between the two
const double kReach5 = SegmentReach(5, kSweep5) - 3;  // centroids, along x
const double kReach8 = SegmentReach(8.5, kSweep8) - 7.5;
const double kReachCrescent = (kSegment5 * kReach5 - kSegment8 * kReach8) / kCrescent;
constexpr double kCircle = 4 * std::numbers::pi;

struct Loop {
  const char* name;
  const char* first;
  const char* second;
  double area;           ///< signed, as it is stored
  double area_reversed;  ///< after ReverseEntities
  double area_mirrored;  ///< after Mirror
  double centroid_x;     ///< its y is 0
};

void PrintTo(const Loop& aLoop, std::ostream* aStream) {
  *aStream << aLoop.name;
}

constexpr const char* kUpper = "A c 0,0 r 2 0..180";
constexpr const char* kLower = "A c 0,0 r 2 180..0 from -2,0 to 2,0";
constexpr const char* kShort = "A c 0,0 r 2 30..120";
constexpr const char* kLong = "A c 0,0 r 2 120..30";
constexpr const char* kRight = "A c -3,0 r 5 306.86989764584402..53.13010235415598 from 0,-4 to 0,4";
constexpr const char* kLeft = "A c 3,0 r 5 126.86989764584402..233.13010235415598 from 0,4 to 0,-4";
constexpr const char* kFlat = "A c -7.5,0 r 8.5 331.92751306414704..28.07248693585296 from 0,-4 to 0,4";
constexpr const char* kUp = "L 0,-4 0,4";
constexpr const char* kDown = "L 0,4 0,-4";

const Loop kLoops[] = {
    {"CircleOfHalves", kUpper, kLower, kCircle, kCircle, kCircle, 0},
    {"CircleOfHalvesLowerFirst", kLower, kUpper, kCircle, kCircle, kCircle, 0},
    {"CircleOfUnequalArcs", kShort, kLong, kCircle, kCircle, kCircle, 0},
    {"CircleOfUnequalArcsLongFirst", kLong, kShort, kCircle, kCircle, kCircle, 0},
    {"Lens", kRight, kLeft, 2 * kSegment5, 2 * kSegment5, 2 * kSegment5, 0},
    {"LensLeftFirst", kLeft, kRight, 2 * kSegment5, 2 * kSegment5, 2 * kSegment5, 0},
    {"CrescentOuterFirst", kRight, kFlat, kCrescent, -kCrescent, -kCrescent, kReachCrescent},
    {"CrescentInnerFirst", kFlat, kRight, -kCrescent, kCrescent, kCrescent, kReachCrescent},
    {"ArcThenChordAhead", kRight, kDown, kSegment5, kSegment5, -kSegment5, kReach5},
    {"ArcThenChordStoredBack", kRight, kUp, kSegment5, -kSegment5, kSegment5, kReach5},
    {"ChordThenArcAhead", kDown, kRight, kSegment5, kSegment5, kSegment5, kReach5},
    {"ChordThenArcStoredBack", kUp, kRight, -kSegment5, kSegment5, kSegment5, kReach5},
};

class TwoEntityLoop : public testing::TestWithParam<Loop> {
 protected:
  TwoEntityLoop() : fEntities(support::ParseEntities(std::string(GetParam().first) + ";" + GetParam().second)) {
    fChain.AddEntities(fEntities);
    fChain.StartCoordinate(fChain.GetStartCoordinate());
  }

  bool HoldsItsCentroid() const { return fChain.PointInsideEntities({GetParam().centroid_x, 0}, false); }

  ExactSettings fSettings;
  TEntityArray fEntities;
  TEntityStorage fChain;
};

TEST_P(TwoEntityLoop, RunsFromTheFirstRecordsStartToItsEnd) {
  EXPECT_THAT(fChain.GetStartCoordinate(), IsBits(fEntities[0].StartCoords));
  EXPECT_THAT(fChain.GetEndCoordinate(), IsBits(fEntities[0].EndCoords));
  EXPECT_THAT(fChain.GetVertices(),
              IsNear(TCoordinateArray{fEntities[0].StartCoords, fEntities[0].EndCoords}, kRounding));
}

TEST_P(TwoEntityLoop, HasTheAreaOfItsFirstRecordsSense) {
  EXPECT_NEAR(fChain.GetClosedArea(), GetParam().area, kRounding);
}

TEST_P(TwoEntityLoop, HasItsCentroidInEitherSense) {
  EXPECT_THAT(fChain.GetCentroid(), IsNear(GetParam().centroid_x, 0, kChords));
}

TEST_P(TwoEntityLoop, HoldsAPointWhenItRunsAnticlockwise) {
  EXPECT_EQ(HoldsItsCentroid(), GetParam().area > 0);
  EXPECT_FALSE(fChain.PointInsideEntities({6, 0.5}, true));
  EXPECT_FALSE(fChain.PointInsideEntities({-6, 0.5}, true));
  EXPECT_TRUE(fChain.PointInsideEntities(fEntities[0].StartCoords, true));
}

TEST_P(TwoEntityLoop, ReversedIsWalkedInTheSenseOfTheOtherRecord) {
  fChain.ReverseEntities();
  EXPECT_NEAR(fChain.GetClosedArea(), GetParam().area_reversed, kRounding);
  EXPECT_THAT(fChain.GetStartCoordinate(), IsBits(fEntities[1].StartCoords));
  fChain.ReverseEntities();
  EXPECT_THAT(fChain.EntityArray(), IsBits(fEntities));
}

TEST_P(TwoEntityLoop, ReorderedIsWalkedFromTheOtherRecordsOwnStart) {
  fChain.ReOrderEntities(fEntities[0].EndCoords);
  EXPECT_THAT(fChain.GetStartCoordinate(), IsBits(fEntities[1].StartCoords));
  EXPECT_NEAR(fChain.GetClosedArea(), GetParam().area_reversed, kRounding);
}

TEST_P(TwoEntityLoop, MirroredHasTheSameSizeOnTheOtherSide) {
  fChain.Mirror(CreateEntity_Line(10, 0, 10, 1));
  EXPECT_NEAR(fChain.GetClosedArea(), GetParam().area_mirrored, kRounding);
  EXPECT_THAT(fChain.GetCentroid(), IsNear(20 - GetParam().centroid_x, 0, 10 * kChords));
  fChain.Mirror(CreateEntity_Line(10, 0, 10, 1));
  EXPECT_THAT(fChain.EntityArray(), IsNear(fEntities, kRounding));
}

TEST_P(TwoEntityLoop, MovedKeepsItsAreaAndItsInside) {
  fChain.Translate(-3, 7);
  EXPECT_NEAR(fChain.GetClosedArea(), GetParam().area, kRounding);
  EXPECT_THAT(fChain.GetCentroid(), IsNear(GetParam().centroid_x - 3, 7, kChords));
  EXPECT_EQ(fChain.PointInsideEntities({GetParam().centroid_x - 3, 7}, false), GetParam().area > 0);
}

TEST_P(TwoEntityLoop, IsDetectedOnceInEachSense) {
  const std::vector<Fingerprint> faces = Fingerprints(fEntities, 1);
  const std::vector<Fingerprint> outlines = Fingerprints(fEntities, 2);
  ASSERT_EQ(faces.size(), 1U);
  ASSERT_EQ(outlines.size(), 1U);
  EXPECT_EQ(faces[0].entities, 2U);
  EXPECT_NEAR(faces[0].area, std::abs(GetParam().area), kRounding);
  EXPECT_NEAR(outlines[0].area, -std::abs(GetParam().area), kRounding);
  EXPECT_THAT(faces[0].centroid, IsNear(GetParam().centroid_x, 0, kChords));
}

INSTANTIATE_TEST_SUITE_P(Loops, TwoEntityLoop, testing::ValuesIn(kLoops),
                         [](const auto& aInfo) { return std::string(aInfo.param.name); });

TEST(TwoEntityLoop_Mirror, StartIsStoredBeforeTheReversalAndACircleHoldsNoPointThenKept) {
  const ExactSettings settings;
  const auto circle = support::MakeChain("A c 0,0 r 2 0..180; A c 0,0 r 2 180..360");
  ASSERT_TRUE(circle->PointInsideEntities({0.5, 0.5}, false));
  circle->Mirror(CreateEntity_Line(0, 0, 0, 1));
  EXPECT_THAT(circle->StartCoordinate(), IsNear(2, 0, kRounding));
  EXPECT_THAT(circle->GetStartCoordinate(), IsNear(-2, 0, kRounding));
  EXPECT_FALSE(circle->PointInsideEntities({0.5, 0.5}, false));
  circle->StartCoordinate(circle->GetStartCoordinate());
  EXPECT_TRUE(circle->PointInsideEntities({0.5, 0.5}, false));
}

}  // namespace
}  // namespace GeometryEngine::properties

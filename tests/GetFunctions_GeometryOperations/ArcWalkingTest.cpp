#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"

#include <cmath>
#include <limits>
#include <utility>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kRadian = 0.017453292519943295;

TDXFEntity WithRadius(double aRadius) {
  TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..90");
  arc.radius = aRadius;
  return arc;
}

TEST(GetEntityStartAngle_Arc, IsTheStoredAngleOfTheEndThatIsEntered) {
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 -90..450");
  EXPECT_EQ(GetEntityStartAngle_Arc({0, -1}, arc), -90);
  EXPECT_EQ(GetEntityStartAngle_Arc({0, 1}, arc), 450);
}

TEST(GetEntityStartAngle_Arc, CoordinateThatIsNeitherEndGivesZero) {
  EXPECT_EQ(GetEntityStartAngle_Arc({5, 5}, ParseEntity("A c 0,0 r 1 90..180")), 0);
}

TEST(GetEntityStartAngle_Arc, StartGoesBeforeAnEndAtTheSamePlace) {
  EXPECT_EQ(GetEntityStartAngle_Arc({1, 0}, ParseEntity("A c 0,0 r 1 0..360")), 0);
  EXPECT_EQ(GetEntityEndAngle_Arc({1, 0}, ParseEntity("A c 0,0 r 1 0..360")), 360);
}

TEST(GetEntityEndAngle_Arc, IsTheStoredAngleOfTheEndThatIsLeft) {
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 -90..450");
  EXPECT_EQ(GetEntityEndAngle_Arc({0, -1}, arc), 450);
  EXPECT_EQ(GetEntityEndAngle_Arc({0, 1}, arc), -90);
  EXPECT_EQ(GetEntityEndAngle_Arc({5, 5}, arc), 0);
}

TEST(GetArcTravelDirection, IsAnticlockwiseOnlyFromExactlyTheStartAngle) {
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 30..60");
  EXPECT_EQ(GetArcTravelDirection(30, arc), Travel_AntiClockwise);
  EXPECT_EQ(GetArcTravelDirection(std::nextafter(30, 31), arc), Travel_Clockwise);
  EXPECT_EQ(GetArcTravelDirection(390, arc), Travel_Clockwise);
  EXPECT_EQ(GetArcTravelDirection(60, arc), Travel_Clockwise);
}

TEST(GetArcSegmentPoints_Surf, CutsTheSweepByTheAngleOfOneChord) {
  const double chordAngle = std::acos(1 - 0.01 / 50) * 57.29577951308232;
  const auto [count, step] = GetArcSegmentPoints_Surf(ParseEntity("A c 0,0 r 50 350..80"), 0.01);
  EXPECT_EQ(count, static_cast<int>(90 / chordAngle));
  EXPECT_EQ(count, 78);
  EXPECT_EQ(step, 90.0 / 78);
}

TEST(GetArcSegmentPoints_Surf, ChordsStayWithinTheToleranceOfTheArc) {
  const auto [count, step] = GetArcSegmentPoints_Surf(ParseEntity("A c 0,0 r 50 0..180"), 0.01);
  EXPECT_LT(50 * (1 - std::cos(step / 2 * kRadian)), 0.01);
}

TEST(GetArcSegmentPoints_Surf, NeverFewerThanThreeChords) {
  EXPECT_EQ(GetArcSegmentPoints_Surf(ParseEntity("A c 0,0 r 1 0..10"), 0.01).aCount, 3);
  EXPECT_EQ(GetArcSegmentPoints_Surf(ParseEntity("A c 0,0 r 1 0..10"), 0.01).aStep, 10.0 / 3);
}

TEST(GetArcSegmentPoints_Surf, SweepOfZeroGivesThreeChordsOfStepZero) {
  const auto [count, step] = GetArcSegmentPoints_Surf(ParseEntity("A c 0,0 r 5 30..390"), 0.01);
  EXPECT_EQ(count, 3);
  EXPECT_EQ(step, 0);
}

TEST(GetArcSegmentPoints_Surf, DegenerateRadiiAndTolerancesGiveThreeChords) {
  for (const double radius : {0.0, 0.004, -1.0, 1e30, kInfinity, -kInfinity, kNaN})
    EXPECT_EQ(GetArcSegmentPoints_Surf(WithRadius(radius), 0.01).aCount, 3) << "radius " << radius;
  for (const double tolerance : {0.0, -1.0, 3.0, 1e-30, kInfinity, kNaN})
    EXPECT_EQ(GetArcSegmentPoints_Surf(WithRadius(1), tolerance).aCount, 3) << "tolerance " << tolerance;
}

TEST(GetArcSegmentPoints_Surf, AnglesThatAreNoneGiveThreeChords) {
  for (const double angle : {kInfinity, -kInfinity, kNaN}) {
    TDXFEntity arc = WithRadius(50);
    arc.startAngle = angle;
    EXPECT_EQ(GetArcSegmentPoints_Surf(arc, 0.01).aCount, 3) << angle;
    std::swap(arc.startAngle, arc.endAngle);
    EXPECT_EQ(GetArcSegmentPoints_Surf(arc, 0.01).aCount, 3) << angle;
  }
}

TEST(GetArcSegmentPoints_Surf, ChordsOfHugeCirclesStayBelowTheFinestAngleThereIs) {
  for (const double radius : {1e10, 1e12, 4e13}) {
    const auto [count, step] = GetArcSegmentPoints_Surf(WithRadius(radius), 0.01);
    EXPECT_GT(count, 1'000'000) << "radius " << radius;
    EXPECT_LE(count, 421'657'428) << "radius " << radius;
    EXPECT_EQ(step, WithRadius(radius).ArcSweep() / count) << "radius " << radius;
  }
}

TEST(GetArc_LineSegmentCoord, StepsWithAndAgainstTheArc) {
  const TDXFEntity arc = ParseEntity("A c 1,2 r 2 0..90");
  EXPECT_THAT(GetArc_LineSegmentCoord(arc, 0, Travel_AntiClockwise, 0, 30), IsBits(3, 2));
  EXPECT_THAT(GetArc_LineSegmentCoord(arc, 3, Travel_AntiClockwise, 0, 30), IsNear(1, 4, 1e-15));
  EXPECT_THAT(GetArc_LineSegmentCoord(arc, 2, Travel_Clockwise, 90, 30),
              IsNear(1 + 2 * std::cos(30 * kRadian), 3, 1e-15));
}

TEST(GetArc_LineSegmentCoord, UnknownDirectionIsTheAngleZero) {
  const auto unknown = static_cast<TTravelDirection>(7);
  EXPECT_THAT(GetArc_LineSegmentCoord(ParseEntity("A c 1,2 r 2 0..90"), 2, unknown, 90, 30), IsBits(3, 2));
}

TEST(GetArc_LineSegmentCoord, GreatestIndexIsAbsorbed) {
  const auto point = GetArc_LineSegmentCoord(ParseEntity("A c 0,0 r 1 0..90"), std::numeric_limits<std::int32_t>::max(),
                                             Travel_AntiClockwise, 0, 1e9);
  EXPECT_NEAR(point.x * point.x + point.y * point.y, 1, 1e-12);
}

}  // namespace
}  // namespace GeometryEngine

#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"

#include <cmath>
#include <limits>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;
using Maindataenum::TInputFields;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(IsPointLeft_Line, IsPositiveLeftAndNegativeRight) {
  EXPECT_EQ(IsPointLeft_Line({1, 3}, {0, 0}, {2, 0}), 6);
  EXPECT_EQ(IsPointLeft_Line({1, -3}, {0, 0}, {2, 0}), -6);
  EXPECT_EQ(IsPointLeft_Line({1, 3}, {2, 0}, {0, 0}), -6);
  EXPECT_EQ(IsPointLeft_Line({7, 0}, {0, 0}, {2, 0}), 0);
}

TEST(IsPointLeft_Line, DeadBandIsOpenAndIndependentOfTheTolerance) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 1);
  EXPECT_EQ(IsPointLeft_Line({0.5, 9e-6}, {0, 0}, {1, 0}), 0);
  EXPECT_EQ(IsPointLeft_Line({0.5, -9e-6}, {0, 0}, {1, 0}), 0);
  EXPECT_EQ(IsPointLeft_Line({0.5, 1e-5}, {0, 0}, {1, 0}), 1e-5);
  EXPECT_EQ(IsPointLeft_Line({0.5, -1e-5}, {0, 0}, {1, 0}), -1e-5);
}

TEST(IsPointInside_Arc, ShortArcHoldsTheSegmentCutOffByItsChord) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 2 0..90");
  EXPECT_TRUE(IsPointInside_Arc({1.2, 1.2}, arc));
  EXPECT_TRUE(IsPointInside_Arc({1, 1}, arc)) << "on the chord";
  EXPECT_FALSE(IsPointInside_Arc({0.9, 0.9}, arc)) << "between chord and centre";
  EXPECT_FALSE(IsPointInside_Arc({1.5, 1.5}, arc)) << "beyond the circle";
  EXPECT_FALSE(IsPointInside_Arc({-1.2, 1.2}, arc)) << "beside the sweep";
}

TEST(IsPointInside_Arc, LongArcHoldsItsSector) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 2 90..0");
  EXPECT_TRUE(IsPointInside_Arc({-0.1, -0.1}, arc));
  EXPECT_FALSE(IsPointInside_Arc({0.1, 0.1}, arc));
}

TEST(IsPointInside_Arc, PointOnTheCircleIsOutside) {
  TSettingsGuard settings;
  EXPECT_FALSE(IsPointInside_Arc({0, 2}, ParseEntity("A c 0,0 r 2 0..180")));
  EXPECT_TRUE(IsPointInside_Arc({0, std::nextafter(2, 0)}, ParseEntity("A c 0,0 r 2 0..180")));
}

TEST(PointTouchingArc, IsTrueOnTheArcAlone) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 1,1 r 2 0..90");
  EXPECT_TRUE(PointTouchingArc(arc, {1 + std::sqrt(2), 1 + std::sqrt(2)}));
  EXPECT_TRUE(PointTouchingArc(arc, {3 + 5e-5, 1}));
  EXPECT_FALSE(PointTouchingArc(arc, {1 - std::sqrt(2), 1 + std::sqrt(2)})) << "on the circle, beside the sweep";
  EXPECT_FALSE(PointTouchingArc(arc, {2, 2})) << "off the circle";
}

TEST(PointTouchingArc, EndWithinTheToleranceTouchesEvenBeyondTheSweep) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..90");
  EXPECT_FALSE(PointWithinArcSweep({1, -5e-5}, arc));
  EXPECT_TRUE(PointTouchingArc(arc, {1, -5e-5}));
}

TEST(PointTouchingArc, EndThatIsOffTheCircleDoesNotTouch) {
  TSettingsGuard settings;
  EXPECT_FALSE(PointTouchingArc(ParseEntity("A c 0,0 r 1 0..90 from 3,0 to 0,1"), {3, 0}));
}

TEST(PointOnLine, HoldsBothEndsAndTheMiddleButNothingBeyond) {
  TSettingsGuard settings;
  for (const char* text : {"L 1,1 5,3", "L 5,3 1,1"}) {
    const TDXFEntity line = ParseEntity(text);
    EXPECT_TRUE(PointOnLine(line, {1, 1}));
    EXPECT_TRUE(PointOnLine(line, {5, 3}));
    EXPECT_TRUE(PointOnLine(line, {3, 2}));
    EXPECT_FALSE(PointOnLine(line, {7, 4}));
    EXPECT_FALSE(PointOnLine(line, {-1, 0}));
    EXPECT_FALSE(PointOnLine(line, {3, 2.5}));
  }
}

TEST(PointOnLine, VerticalLineGoesByItsHeights) {
  TSettingsGuard settings;
  for (const char* text : {"L 2,0 2,3", "L 2,3 2,0"}) {
    const TDXFEntity line = ParseEntity(text);
    EXPECT_TRUE(PointOnLine(line, {2, 1}));
    EXPECT_TRUE(PointOnLine(line, {2 + 5e-5, 1}));
    EXPECT_FALSE(PointOnLine(line, {2.1, 1}));
    EXPECT_FALSE(PointOnLine(line, {2, 4}));
  }
}

TEST(PointOnLine, ExtentAlongXHasNoToleranceKept) {
  TSettingsGuard settings;
  const TDXFEntity steep = ParseEntity("L 0,0 1,1000");
  EXPECT_TRUE(PointOnLine(steep, {1 - 1e-6, 1000 * (1 - 1e-6)}));
  EXPECT_FALSE(PointOnLine(steep, {1 + 1e-6, 1000 * (1 + 1e-6)})) << "far enough above the end not to be it";
}

TEST(AngleWithinArcSweep, ArcThatPassesZero) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 350..10");
  EXPECT_TRUE(AngleWithinArcSweep(5, arc));
  EXPECT_TRUE(AngleWithinArcSweep(355, arc));
  EXPECT_TRUE(AngleWithinArcSweep(-5, arc));
  EXPECT_TRUE(AngleWithinArcSweep(360, arc));
  EXPECT_FALSE(AngleWithinArcSweep(180, arc));
  EXPECT_FALSE(AngleWithinArcSweep(11, arc));
}

TEST(AngleWithinArcSweep, BothEndsCountWithinTheAngleTolerance) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..10");
  EXPECT_TRUE(AngleWithinArcSweep(10 + 0.5e-4, arc));
  EXPECT_FALSE(AngleWithinArcSweep(10 + 2e-4, arc));
  EXPECT_TRUE(AngleWithinArcSweep(20 - 0.5e-4, ParseEntity("A c 0,0 r 1 20..30")));
  EXPECT_TRUE(AngleWithinArcSweep(350 - 0.5e-4, ParseEntity("A c 0,0 r 1 350..10")));
  EXPECT_TRUE(AngleWithinArcSweep(10 + 0.5e-4, ParseEntity("A c 0,0 r 1 350..10")));
}

TEST(AngleWithinArcSweep, NotANumberIsNeverWithin) {
  TSettingsGuard settings;
  EXPECT_FALSE(AngleWithinArcSweep(kNaN, ParseEntity("A c 0,0 r 1 350..10")));
  EXPECT_FALSE(AngleWithinArcSweep(kNaN, ParseEntity("A c 0,0 r 1 10..350")));
}

TEST(PointWithinArcSweep, GoesByTheDirectionFromTheCentre) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 5,5 r 1 300..60");
  EXPECT_TRUE(PointWithinArcSweep({100, 5}, arc));
  EXPECT_FALSE(PointWithinArcSweep({5, 6}, arc));
}

TEST(GetEntityMidPoint, LineIsTheMeanOfItsEnds) {
  EXPECT_THAT(GetEntityMidPoint(ParseEntity("L 1,2 5,10")), IsBits(3, 6));
}

TEST(GetEntityMidPoint, ArcIsThePointHalfWayAlong) {
  EXPECT_THAT(GetEntityMidPoint(ParseEntity("A c 1,1 r 2 0..180")), IsNear(1, 3, 1e-15));
  EXPECT_THAT(GetEntityMidPoint(ParseEntity("A c 0,0 r 1 350..10")), IsNear(1, 0, 1e-15));
  EXPECT_THAT(GetEntityMidPoint(ParseEntity("A c 0,0 r 1 -90..90")), IsNear(1, 0, 1e-15));
}

TEST(GetEntityMidPoint, ArcOfRadiusZeroIsItsStart) {
  EXPECT_THAT(GetEntityMidPoint(ParseEntity("A c 1,1 r 0 0..180 from 7,8 to 9,9")), IsBits(7, 8));
}

TEST(GetEntityMidPoint, AnyOtherTypeIsTheOrigin) {
  TDXFEntity region = ParseEntity("L 1,2 5,10");
  region.EntityType = DXFRegion;
  EXPECT_THAT(GetEntityMidPoint(region), IsBits(0, 0));
  EXPECT_THAT(GetEntityMidPoint({}), IsBits(0, 0));
}

TEST(PointToSegmentDistance, IsPerpendicularBesideAndToTheEndBeyond) {
  EXPECT_EQ(PointToSegmentDistance({3, 4}, {0, 0}, {10, 0}), 4);
  EXPECT_EQ(PointToSegmentDistance({13, 4}, {0, 0}, {10, 0}), 5);
  EXPECT_EQ(PointToSegmentDistance({-3, -4}, {0, 0}, {10, 0}), 5);
}

TEST(PointToSegmentDistance, SegmentOfLengthZeroIsItsStart) {
  EXPECT_EQ(PointToSegmentDistance({4, 5}, {1, 1}, {1, 1}), 5);
}

}  // namespace
}  // namespace GeometryEngine

#include "xsec/transform/OffsetOutline.h"

#include <cmath>
#include <numbers>

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/RegionDetection.h"
#include "xsec/transform/TransformDrawing.h"

namespace xsec {

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double kPi = std::numbers::pi;

/// The regions of the outlines of a drawing, each offset.
Detection OffsetBy(double distance, std::string_view entities) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Drawing drawing = DrawingOf(entities);
  const Settings settings = ApplySettings({}, drawing);
  const Drawing moved = Offset(drawing, DetectRegions(drawing, settings).regions, distance, settings);
  return DetectRegions(moved, settings);
}

double AreaOf(const Detection& detection) {
  double area = 0;
  for (const Region& region : detection.regions) area += region.netArea;
  return area;
}

TEST(OffsetOutline, SquareGrowsWithItsCornersAndShrinks) {
  EXPECT_NEAR(AreaOf(OffsetBy(1, Rectangle(0, 0, 4, 4))), 36, 1e-5);
  EXPECT_NEAR(AreaOf(OffsetBy(-1, Rectangle(0, 0, 4, 4))), 4, 1e-5);
}

TEST(OffsetOutline, WhatIsNarrowerThanTwiceTheDistanceVanishes) {
  EXPECT_THAT(OffsetBy(-2.5, Rectangle(0, 0, 4, 4)).regions, IsEmpty());
  EXPECT_THAT(OffsetBy(-6, Rectangle(0, 0, 10, 10)).regions, IsEmpty());
  EXPECT_THAT(OffsetBy(-3, Circle(0, 0, 2)).regions, IsEmpty());
}

TEST(OffsetOutline, CircleStaysACircleAlsoWhenItIsSmallerThanTheDistance) {
  EXPECT_NEAR(AreaOf(OffsetBy(1, Circle(3, 2, 2))), 9 * kPi, 1e-4);
  EXPECT_NEAR(AreaOf(OffsetBy(5, Circle(3, 2, 2))), 49 * kPi, 1e-3);
  EXPECT_NEAR(AreaOf(OffsetBy(-1, Circle(3, 2, 2))), kPi, 1e-4);
}

/// A rectangle of 10 by 8 with a half round notch of radius 2 in its upper side.
const std::string kNotched = "L 0,0 10,0; L 10,0 10,8; L 10,8 7,8; A c 5,8 r 2 180..360; L 3,8 0,8; L 0,8 0,0";

TEST(OffsetOutline, ArcPassedClockwiseKeepsItsSense) {
  // Inwards the notch grows to radius 3 round its centre; its ends are where the moved upper side meets it.
  const double rise = 1, radius = 3;
  const double segment = radius * radius * std::acos(rise / radius) - rise * std::sqrt(radius * radius - rise * rise);
  const Detection found = OffsetBy(-1, kNotched);
  ASSERT_THAT(found.regions, SizeIs(1));
  // The corner between side and notch is drawn out to its point, which lies below the side.
  EXPECT_LT(AreaOf(found), 8 * 6 - segment + 1e-3);
  EXPECT_GT(AreaOf(found), 8 * 6 - segment - 1.5);
  for (const TravelledPiece& piece : found.regions[0].outline) {
    if (piece.isArc) {
      EXPECT_NEAR(piece.radius, 3, 1e-4);
      EXPECT_LT(std::abs(piece.sweep), 180);
    }
  }
}

TEST(OffsetOutline, NotchThatClosesLeavesNothingBehind) {
  const Detection found =
      OffsetBy(1.5, "L 0,0 10,0; L 10,0 10,8; L 10,8 6,8; L 6,8 6,3; L 6,3 4,3; L 4,3 4,8; L 4,8 0,8; L 0,8 0,0");
  ASSERT_THAT(found.regions, SizeIs(1));
  EXPECT_NEAR(AreaOf(found), 13 * 11, 1e-4);
}

TEST(OffsetOutline, NeckThatClosesPartsTheOutline) {
  const Detection found = OffsetBy(-1,
                                   "L 0,0 20,0; L 20,0 20,6; L 20,6 12,6; L 12,6 12,1.5; L 12,1.5 8,1.5; L 8,1.5 8,6; "
                                   "L 8,6 0,6; L 0,6 0,0");
  ASSERT_THAT(found.regions, SizeIs(2));
  EXPECT_NEAR(found.regions[0].netArea, 24, 1e-4);
  EXPECT_NEAR(found.regions[1].netArea, 24, 1e-4);
}

/// What an offset is refused with.
std::string RefusalOf(double distance, std::string_view entities) {
  try {
    OffsetBy(distance, entities);
  } catch (const OffsetError& error) {
    return error.what();
  }
  return "";
}

TEST(Offset, NeighboursThatWouldOverlapAreRefusedWithThePlace) {
  const std::string apart = Rectangle(0, 0, 4, 4) + "; " + Rectangle(6, 0, 10, 4);
  EXPECT_EQ(RefusalOf(0.9, apart), "");
  EXPECT_THAT(RefusalOf(1.5, apart), HasSubstr("region 1 (0) overlaps region 2 (0_1) at (5, 2)"));
  EXPECT_THAT(RefusalOf(20, apart), HasSubstr("region 1 (0) overlaps region 2 (0_1) at (2, 2)"));
  EXPECT_THAT(RefusalOf(0.5, Rectangle(0, 0, 4, 4) + "; L 2,0 2,4"), HasSubstr(" at (2, "));
  EXPECT_EQ(RefusalOf(-0.5, Rectangle(0, 0, 4, 4) + "; L 2,0 2,4"), "");
}

TEST(Offset, RegionsWithinRegionsMoveWithThem) {
  const std::string nested = Rectangle(0, 0, 10, 10) + "; " + Rectangle(1, 1, 9, 9);
  EXPECT_EQ(RefusalOf(3, nested), "");
  EXPECT_EQ(RefusalOf(-3, nested), "");
}

TEST(WindingNumber, CountsTurnsRoundAPointAlsoBetweenArcAndChord) {
  const auto half = [](double start, double end) {
    return Travel(GeometryEngine::CreateEntity_Arc(0, 0, 2, start, end), true);
  };
  const Loop circle = {half(0, 180), half(180, 360)};
  EXPECT_EQ(WindingNumber(circle, {0, 1.9}), 1);
  EXPECT_EQ(WindingNumber(circle, {0.3, -1.9}), 1);
  EXPECT_EQ(WindingNumber(circle, {1.9, 1.9}), 0);
  const Loop clockwise = {Reversed(circle[1]), Reversed(circle[0])};
  EXPECT_EQ(WindingNumber(clockwise, {0.1, 1.9}), -1);
}

TEST(Mirrored, ReflectsLinesArcsAndWords) {
  Drawing drawing = DrawingOf("A c 5,0 r 2 0..90; L 1,1 2,3");
  drawing.texts = {{4, 1, "words", "0", 0}};
  const Drawing mirrored = Mirrored(drawing, {0, 0}, {0, 1});
  EXPECT_NEAR(mirrored.entities[0].geometry.CentreCoords.x, -5, 1e-12);
  EXPECT_NEAR(mirrored.entities[0].geometry.startAngle, 90, 1e-9);
  EXPECT_NEAR(mirrored.entities[0].geometry.endAngle, 180, 1e-9);
  EXPECT_NEAR(mirrored.texts[0].x, -4, 1e-12);
  EXPECT_NEAR(mirrored.extents.minX, -7, 1e-9);
}

TEST(CopiedRound, QuarterBecomesAWhole) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Drawing whole = CopiedRound(DrawingOf("A c 0,0 r 4 0..90; A c 0,0 r 2 0..90; L 2,0 4,0; L 0,2 0,4"), 4);
  const Detection found = DetectRegions(whole, ApplySettings({}, whole));
  ASSERT_THAT(found.regions, SizeIs(5));  // four quarters, and the space that they leave in the middle
  EXPECT_NEAR(AreaOf(found), 16 * kPi, 1e-9);
}

}  // namespace

}  // namespace xsec

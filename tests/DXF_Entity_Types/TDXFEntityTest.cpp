#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/DXF_Entity_Types/DXFRecords.h"
#include "GeometryEngine/host/Numerics.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::ParseEntity;
using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

bool Equal(const char* aText_A, const char* aText_B) {
  return ParseEntity(aText_A) == ParseEntity(aText_B);
}

TDXFEntity ArcOf(double aStartAngle, double aEndAngle) {
  return TDXFEntity::Arc({4, 0}, {0, 4}, {0, 0}, 4, aStartAngle, aEndAngle);
}

void ExpectStartingTags(const TDXFEntity& aEntity) {
  EXPECT_EQ(aEntity.ConductorCol, 0);
  EXPECT_EQ(aEntity.ConductorRow, 0);
  EXPECT_EQ(aEntity.SlotSide, NoSide);
  EXPECT_EQ(aEntity.Colour, "");
  EXPECT_EQ(aEntity.RegionName, "");
  EXPECT_EQ(aEntity.SourceDXF, nullptr);
}

TEST(TDXFEntity, IsEmptyAtFirst) {
  const TDXFEntity entity;
  EXPECT_EQ(entity.EntityType, DXFNoLineType);
  EXPECT_THAT(entity.StartCoords, IsBits(0, 0));
  EXPECT_THAT(entity.CentreCoords, IsBits(0, 0));
  EXPECT_EQ(entity.radius, 0);
  ExpectStartingTags(entity);
}

TEST(TDXFEntity, LineSetsKindAndEndsOnly) {
  const TDXFEntity line = TDXFEntity::Line({1, 2}, {3, kNaN});
  EXPECT_THAT(line, IsBits("L 1,2 3,nan"));
  EXPECT_THAT(line.CentreCoords, IsBits(0, 0));
  EXPECT_EQ(line.radius, 0);
  EXPECT_EQ(line.startAngle, 0);
  EXPECT_EQ(line.endAngle, 0);
  ExpectStartingTags(line);
}

TEST(TDXFEntity, ArcTakesItsNumbersAsGiven) {
  const TDXFEntity arc = TDXFEntity::Arc({1, 2}, {3, 4}, {5, 6}, -7, 400, -800);
  EXPECT_THAT(arc, IsBits("A c 5,6 r -7 400..-800 from 1,2 to 3,4"));
  ExpectStartingTags(arc);
}

TEST(TDXFEntity, CopiesStringsByValueAndTheSourceByReference) {
  int source = 0;
  TDXFEntity entity = TDXFEntity::Line({0, 0}, {1, 0});
  entity.Colour = "red";
  entity.SourceDXF = &source;
  const TDXFEntity copy = entity;
  entity.Colour[0] = 'b';
  EXPECT_EQ(copy.Colour, "red");
  EXPECT_EQ(copy.SourceDXF, &source);
}

TEST(EntityLength, OfALineIsTheDistanceOfItsEnds) {
  EXPECT_EQ(TDXFEntity::Line({1, 2}, {4, 6}).EntityLength(), 5);
  EXPECT_EQ(TDXFEntity::Line({1, 2}, {1, 2}).EntityLength(), 0);
}

TEST(EntityLength, OfAnArcIsSweepTimesRadius) {
  EXPECT_EQ(ArcOf(0, 90).EntityLength(), 90 * kRadiansPerDegree * 4);
  EXPECT_EQ(ArcOf(350, 10).EntityLength(), 20 * kRadiansPerDegree * 4);
  EXPECT_EQ(ArcOf(30, 30).EntityLength(), 0);
}

TEST(EntityLength, OfOtherKindsIsZero) {
  TDXFEntity entity = ArcOf(0, 90);
  entity.EntityType = DXFRegion;
  EXPECT_EQ(entity.EntityLength(), 0);
  entity.EntityType = DXFNoLineType;
  EXPECT_EQ(entity.EntityLength(), 0);
}

TEST(ArcSweep, RunsAnticlockwiseFromStartToEnd) {
  EXPECT_EQ(ArcOf(350, 10).ArcSweep(), 20);
  EXPECT_EQ(ArcOf(10, 350).ArcSweep(), 340);
  EXPECT_EQ(ArcOf(0, 90).ArcSweep(), 90);
}

TEST(ArcSweep, OfEqualAnglesIsZeroKept) {
  EXPECT_EQ(ArcOf(30, 30).ArcSweep(), 0);
  EXPECT_EQ(ArcOf(0, 360).ArcSweep(), 0);
  EXPECT_EQ(ArcOf(-90, 270).ArcSweep(), 0);
}

TEST(ArcSweep, TakesAnglesOfAnySize) {
  EXPECT_EQ(ArcOf(-90, 450).ArcSweep(), 180);
  EXPECT_EQ(ArcOf(725, -355).ArcSweep(), 0);
  EXPECT_TRUE(std::isnan(ArcOf(kNaN, 10).ArcSweep()));
}

TEST(ArcSweep, ComparesAnglesWithoutTolerance) {
  EXPECT_EQ(ArcOf(std::nextafter(10, 11), 10).ArcSweep(), 360);
}

TEST(ArcSweep, OfOtherKindsIsZero) {
  TDXFEntity entity = ArcOf(0, 90);
  entity.EntityType = DXFLine;
  EXPECT_EQ(entity.ArcSweep(), 0);
}

struct TDXFEntityEqualityTest : ::testing::Test {
  TSettingsGuard settings;
  TDXFEntityEqualityTest() { settings.With(ifLinearTolerance, 0.25); }
};

TEST_F(TDXFEntityEqualityTest, ALineEqualsItsReverse) {
  EXPECT_TRUE(Equal("L 0,0 4,1", "L 0,0 4,1"));
  EXPECT_TRUE(Equal("L 0,0 4,1", "L 4,1 0,0"));
  EXPECT_TRUE(Equal("L 0,0 4,1", "L 4.2,1 0,0.2"));
  EXPECT_FALSE(Equal("L 0,0 4,1", "L 4.25,1 0,0"));
  EXPECT_FALSE(Equal("L 0,0 4,1", "L 0,0 4,0"));
  EXPECT_FALSE(Equal("L 0,0 4,1", "L 0,0 0,0"));
}

TEST_F(TDXFEntityEqualityTest, AnArcWithSwappedEndsIsAnother) {
  EXPECT_TRUE(Equal("A c 0,0 r 4 0..90", "A c 0,0 r 4 0..90"));
  EXPECT_FALSE(Equal("A c 0,0 r 4 0..90", "A c 0,0 r 4 0..90 from 0,4 to 4,0"));
  EXPECT_FALSE(Equal("A c 0,0 r 4 0..90", "A c 0,0 r 4 90..0"));
}

TEST_F(TDXFEntityEqualityTest, ArcsAgreeInEveryMeasure) {
  const char* const arc = "A c 0,0 r 4 0..90 from 4,0 to 0,4";
  EXPECT_TRUE(Equal(arc, "A c 0.2,0.2 r 4.2 0.2..90.2 from 4.2,0.2 to 0.2,4.2"));
  EXPECT_FALSE(Equal(arc, "A c 0,0 r 4 0..90 from 4.25,0 to 0,4"));
  EXPECT_FALSE(Equal(arc, "A c 0,0 r 4 0..90 from 4,0 to 0,4.25"));
  EXPECT_FALSE(Equal(arc, "A c 0.25,0 r 4 0..90 from 4,0 to 0,4"));
  EXPECT_FALSE(Equal(arc, "A c 0,0 r 4.25 0..90 from 4,0 to 0,4"));
  EXPECT_FALSE(Equal(arc, "A c 0,0 r 4 0.25..90 from 4,0 to 0,4"));
  EXPECT_FALSE(Equal(arc, "A c 0,0 r 4 0..90.25 from 4,0 to 0,4"));
}

TEST_F(TDXFEntityEqualityTest, AnglesAreTheSameAWholeTurnApart) {
  EXPECT_TRUE(ArcOf(0, 90) == ArcOf(360, 90));
  EXPECT_TRUE(ArcOf(-360, 450) == ArcOf(0, 90));
}

TEST_F(TDXFEntityEqualityTest, AnglesOnEitherSideOfZeroDiffer) {
  EXPECT_FALSE(ArcOf(0.01, 90) == ArcOf(359.99, 90));
}

TEST_F(TDXFEntityEqualityTest, AnglesAreComparedUnderTheLinearToleranceKept) {
  settings.With(ifLinearTolerance, 0.25).With(ifAngleTolerance, 1e-9);
  EXPECT_TRUE(ArcOf(0, 90) == ArcOf(0.2, 90.2));
  settings.With(ifLinearTolerance, 1e-9).With(ifAngleTolerance, 10);
  EXPECT_FALSE(ArcOf(0, 90) == ArcOf(0.2, 90));
  EXPECT_FALSE(ArcOf(0, 90) == ArcOf(0, 90.2));
}

TEST_F(TDXFEntityEqualityTest, KindsDiffer) {
  TDXFEntity line = ArcOf(0, 90);
  line.EntityType = DXFLine;
  EXPECT_FALSE(line == ArcOf(0, 90));
}

TEST_F(TDXFEntityEqualityTest, EntitiesWithoutGeometryAreNeverEqual) {
  const TDXFEntity nothing = ParseEntity("N");
  const TDXFEntity region = ParseEntity("R");
  EXPECT_FALSE(nothing == nothing);
  EXPECT_FALSE(region == region);
  EXPECT_FALSE(nothing == region);
}

TEST_F(TDXFEntityEqualityTest, TagsTakeNoPart) {
  int source = 0;
  TDXFEntity tagged = ParseEntity(R"(L 0,0 4,1 col 1 row 2 side 3 colour "red" name "Magnet")");
  tagged.SourceDXF = &source;
  EXPECT_TRUE(tagged == ParseEntity("L 0,0 4,1"));
}

TEST_F(TDXFEntityEqualityTest, InequalityIsTheNegation) {
  EXPECT_FALSE(ArcOf(0, 90) != ArcOf(360, 90));
  EXPECT_TRUE(ArcOf(0, 90) != ArcOf(10, 90));
  EXPECT_TRUE(ParseEntity("R") != ParseEntity("R"));
}

TEST(EntityEnumerations, HaveTheirOrdinals) {
  EXPECT_EQ(DXFNoLineType, DXFEntityType{0});
  EXPECT_EQ(DXFArc, DXFEntityType{1});
  EXPECT_EQ(DXFLine, DXFEntityType{2});
  EXPECT_EQ(DXFRegion, DXFEntityType{3});
  EXPECT_EQ(NoSide, TSlotSide{0});
  EXPECT_EQ(LeftSide, TSlotSide{1});
  EXPECT_EQ(RightSide, TSlotSide{2});
  EXPECT_EQ(LeftTopSide, TSlotSide{3});
  EXPECT_EQ(LeftBottomSide, TSlotSide{4});
  EXPECT_EQ(RightTopSide, TSlotSide{5});
  EXPECT_EQ(RightBottomSide, TSlotSide{6});
  EXPECT_EQ(Travel_AntiClockwise, TTravelDirection{0});
  EXPECT_EQ(Travel_Clockwise, TTravelDirection{1});
  EXPECT_EQ(gpRadial, TGeometryPlane{0});
  EXPECT_EQ(gpAxial, TGeometryPlane{1});
}

TEST(DXFRecords, AreZeroAtFirst) {
  const TDXFArc arc;
  EXPECT_EQ(arc.centre.x, 0);
  EXPECT_EQ(arc.startAngle, 0);
  EXPECT_EQ(arc.endAngle, 0);
  EXPECT_EQ(arc.radius, 0);
  EXPECT_EQ(arc.endPoint.y, 0);
  EXPECT_EQ(TDXFPoint{}.x, 0);
  EXPECT_EQ(TDXFPoint{}.y, 0);
  EXPECT_EQ(TDXFLine{}.point1, 0);
  EXPECT_EQ(TDXFLine{}.point2, 0);
}

}  // namespace
}  // namespace GeometryEngine

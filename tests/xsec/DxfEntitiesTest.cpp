// Lines, arcs, circles: what the library gets, and where it came from.
#include <gmock/gmock.h>

#include <string>

#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Geometry.h"
#include "tests/xsec/DxfTexts.h"

namespace xsec {
namespace {

using GeometryEngine::support::IsBits;
using GeometryEngine::support::IsNear;

TEST(ReadDrawingText, LineKeepsItsCoordinatesBitForBit) {
  const Drawing drawing = ReadEntities("0 LINE | 10 0.1 | 20 123456.78901234567 | 11 -1e-7 | 21 0.30000000000000004");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 0.1,123456.78901234567 -1e-7,0.30000000000000004"));
}

TEST(ReadDrawingText, CoordinatesWithoutAGroupAreZero) {
  EXPECT_THAT(GeometryOf(ReadEntities("0 LINE | 11 4")), IsBits("L 0,0 4,0"));
}

TEST(ReadDrawingText, ArcRunsAnticlockwiseFromItsFirstAngle) {
  const Drawing drawing = ReadEntities("0 ARC | 10 1 | 20 2 | 40 3 | 50 350 | 51 80");
  EXPECT_THAT(GeometryOf(drawing), IsBits("A c 1,2 r 3 350..80"));
}

TEST(ReadDrawingText, ArcOfMoreThanAHalfCircleBecomesTwoEqualArcs) {
  const Drawing drawing = ReadEntities("0 ARC | 40 5 | 50 300 | 51 200");
  EXPECT_THAT(GeometryOf(drawing), IsBits("A c 0,0 r 5 300..70; A c 0,0 r 5 70..200"));
  EXPECT_THAT(drawing.entities[0].geometry.EndCoords, IsBits(drawing.entities[1].geometry.StartCoords));
}

TEST(ReadDrawingText, ArcOfExactlyAHalfCircleStaysOne) {
  EXPECT_THAT(GeometryOf(ReadEntities("0 ARC | 40 5 | 50 90 | 51 270")), IsBits("A c 0,0 r 5 90..270"));
}

TEST(ReadDrawingText, CircleBecomesTwoHalfCirclesThatShareTheirEnds) {
  const Drawing drawing = ReadEntities("0 CIRCLE | 10 7 | 20 0.1 | 40 2.5");
  EXPECT_THAT(GeometryOf(drawing), IsBits("A c 7,0.1 r 2.5 0..180; A c 7,0.1 r 2.5 180..0"));
  const auto& [first, second] = std::tie(drawing.entities[0].geometry, drawing.entities[1].geometry);
  EXPECT_THAT(first.StartCoords, IsBits(9.5, 0.1));
  EXPECT_THAT(first.EndCoords, IsBits(second.StartCoords));
  EXPECT_THAT(second.EndCoords, IsBits(first.StartCoords));
}

TEST(ReadDrawingText, ArcWithEqualOrWrappedAnglesIsACircle) {
  for (const char* angles : {"50 30 | 51 30", "50 0 | 51 360", "50 0 | 51 359.99999999", "50 -180 | 51 180"}) {
    EXPECT_THAT(GeometryOf(ReadEntities(std::string("0 ARC | 40 1 | ") + angles)),
                IsBits("A c 0,0 r 1 0..180; A c 0,0 r 1 180..0"))
        << angles;
  }
}

TEST(ReadDrawingText, NoToleranceOfTheHostMovesWhatIsRead) {
  const double tolerance = Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifLinearTolerance);
  Kelvaralinks::dataStore.SetValue(Maindataenum::TInputFields::ifLinearTolerance, 0.5);
  const Drawing drawing = ReadEntities("0 ARC | 10 0.25 | 20 0.125 | 40 3 | 50 0 | 51 90");
  EXPECT_EQ(Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifSnappingMode), 1);
  Kelvaralinks::dataStore.SetValue(Maindataenum::TInputFields::ifLinearTolerance, tolerance);
  EXPECT_THAT(drawing.entities.at(0).geometry.CentreCoords, IsBits(0.25, 0.125));
}

TEST(ReadDrawingText, DegenerateEntitiesAreSkippedWithTheReason) {
  const Drawing drawing = ReadEntities(
      "0 LINE | 8 a | 10 1 | 20 2 | 11 1 | 21 2 | 0 ARC | 8 a | 40 0 | 50 0 | 51 90 | 0 CIRCLE | 8 b | 40 -1 |"
      "0 LINE | 8 b | 10 1e99 | 11 0");
  EXPECT_EQ(SkippedCount(drawing, "LINE", "a", "its length is 0"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "ARC", "a", "its radius is not above 0"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "CIRCLE", "b", "its radius is not above 0"), 1U);
  EXPECT_EQ(drawing.entities.size(), 1U);
}

TEST(ReadDrawingText, CoordinatesThatOverflowInMillimetresAreSkipped) {
  const ReadOptions metres{DrawingUnits{"m", 1000, ""}, std::nullopt};
  const Drawing drawing = ReadEntities("0 LINE | 11 1e307 | 0 CIRCLE | 40 1e306 | 0 ARC | 40 9e307 | 51 9", metres);
  EXPECT_EQ(SkippedCount(drawing, "LINE", "0", "its coordinates are out of range"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "CIRCLE", "0", "its coordinates are out of range"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "ARC", "0", "its coordinates are out of range"), 1U);
  EXPECT_TRUE(drawing.entities.empty());
}

TEST(ReadDrawingText, CoordinatesWhoseProductsWouldOverflowAreSkipped) {
  const Drawing drawing = ReadEntities("0 LINE | 11 1e100 | 0 LINE | 21 -1.01e100 | 0 CIRCLE | 40 1.01e100");
  EXPECT_EQ(SkippedCount(drawing, "LINE", "0", "its coordinates are out of range"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "CIRCLE", "0", "its coordinates are out of range"), 1U);
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 0,0 1e100,0"));
}

TEST(ReadDrawingText, EntityKnowsWhereItStandsInTheFile) {
  const Drawing drawing = ReadEntities(
      "0 LINE | 5 1A | 8 outline | 62 3 | 11 1 | 999 a comment | 0 TEXT | 8 notes | 1 words | 0 CIRCLE | 8 hole | 40 "
      "1");
  ASSERT_EQ(drawing.entities.size(), 3U);
  const DrawingEntity& line = drawing.entities[0];
  EXPECT_EQ(line.type, "LINE");
  EXPECT_EQ(line.layer, "outline");
  EXPECT_EQ(line.handle, "1A");
  EXPECT_EQ(line.line, 6U);
  EXPECT_EQ(line.colour, 3);
  EXPECT_EQ(line.block, "");
  const DrawingEntity& half = drawing.entities[2];
  EXPECT_EQ(half.type, "CIRCLE");
  EXPECT_EQ(half.layer, "hole");
  EXPECT_EQ(half.handle, "");
  EXPECT_EQ(half.line, 24U);
  EXPECT_EQ(half.colour, 256);
}

TEST(ReadDrawingText, GroupsOfApplicationsAreNotTheEntitys) {
  const Drawing drawing = ReadEntities(
      "0 LINE | 5 2B | 102 {SOMEONE | 5 99 | 10 50 | 102 } | 10 1 | 11 2 | 1001 SOMEONE | 1010 7 | 1040 8");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 1,0 2,0"));
  EXPECT_EQ(drawing.entities.at(0).handle, "2B");
}

TEST(ReadDrawingText, ExtrusionAlongMinusZMirrorsArcsButNotLines) {
  const Drawing drawing = ReadEntities(
      "0 ARC | 10 5 | 20 1 | 40 2 | 50 0 | 51 60 | 210 0 | 220 0 | 230 -1 |"
      "0 LINE | 10 1 | 20 2 | 11 3 | 21 4 | 230 -1 | 0 CIRCLE | 10 3 | 40 1 | 230 -1");
  EXPECT_THAT(GeometryOf(drawing),
              IsNear("A c -5,1 r 2 120..180; L 1,2 3,4; A c -3,0 r 1 0..180; A c -3,0 r 1 180..0", 1e-12));
}

TEST(ReadDrawingText, ObliqueExtrusionIsSkipped) {
  const Drawing drawing = ReadEntities(
      "0 ARC | 8 a | 40 2 | 51 60 | 210 1 | 220 0 | 230 0 | 0 CIRCLE | 8 a | 40 2 | 210 0.1 | 230 1 |"
      "0 LINE | 11 1 | 210 1 | 230 0");
  EXPECT_EQ(SkippedCount(drawing, "ARC", "a", "it is drawn in a plane that is not the xy plane"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "CIRCLE", "a", "it is drawn in a plane that is not the xy plane"), 1U);
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 0,0 1,0"));
}

TEST(ReadDrawingText, ExtrusionAlongNothingIsSkipped) {
  const Drawing drawing = ReadEntities("0 ARC | 40 2 | 51 60 | 210 0 | 220 0 | 230 0 | 0 CIRCLE | 40 2 | 230 0");
  EXPECT_EQ(SkippedCount(drawing, "ARC", "0", "it is drawn in a plane that is not the xy plane"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "CIRCLE", "0", "it is drawn in a plane that is not the xy plane"), 1U);
}

TEST(ReadDrawingText, ExtrusionOfOneEntityDoesNotReachTheNext) {
  EXPECT_THAT(GeometryOf(ReadEntities("0 CIRCLE | 40 1 | 230 -1 | 0 ARC | 10 5 | 40 1 | 50 0 | 51 90")),
              IsBits("A c 0,0 r 1 0..180; A c 0,0 r 1 180..0; A c 5,0 r 1 0..90"));
}

TEST(ReadDrawingText, WarnsOfPointsThatDifferInHeight) {
  const Drawing drawing = ReadEntities("0 LINE | 11 9 | 31 1 | 0 LINE | 11 1 | 21 9 | 30 2 | 31 2");
  EXPECT_THAT(drawing.warnings,
              ::testing::ElementsAre("entities whose points differ in z: 1; they are read as seen along z"));
}

TEST(ReadDrawingText, ExtentsAreThoseOfTheArcNotOfItsEnds) {
  const Extents extents = ReadEntities("0 ARC | 10 1 | 20 1 | 40 2 | 50 45 | 51 135").extents;
  EXPECT_DOUBLE_EQ(extents.maxY, 3);
  EXPECT_NEAR(extents.minX, 1 - std::sqrt(2), 1e-12);
  EXPECT_NEAR(extents.maxX, 1 + std::sqrt(2), 1e-12);
  EXPECT_NEAR(extents.minY, 1 + std::sqrt(2), 1e-12);
}

TEST(ReadDrawingText, DrawingWithoutEntitiesIsEmpty) {
  const Drawing drawing = ReadDrawingText(Pairs("0 EOF"), "test.dxf");
  EXPECT_TRUE(drawing.entities.empty());
  EXPECT_EQ(drawing.extents.maxX, 0);
}

}  // namespace
}  // namespace xsec

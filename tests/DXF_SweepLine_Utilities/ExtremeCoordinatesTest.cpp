#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"

#include <limits>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(GetLeftMostCoordinate, HorizontalLineAnswersItsEndsAndItsStartForBothHeights) {
  TSettingsGuard settings;
  const TDXFEntity line = ParseEntity("L 5,0 1,0");
  EXPECT_THAT(GetLeftMostCoordinate(line), IsBits(1, 0));
  EXPECT_THAT(GetRightMostCoordinate(line), IsBits(5, 0));
  EXPECT_THAT(GetUpperMostCoordinate(line), IsBits(5, 0));
  EXPECT_THAT(GetLowerMostCoordinate(line), IsBits(5, 0));
}

TEST(GetLeftMostCoordinate, SlopedLineAnswersItsTrueExtremesInEitherDirection) {
  TSettingsGuard settings;
  for (const char* text : {"L 1,7 4,2", "L 4,2 1,7"}) {
    const TDXFEntity line = ParseEntity(text);
    EXPECT_THAT(GetLeftMostCoordinate(line), IsBits(1, 7));
    EXPECT_THAT(GetRightMostCoordinate(line), IsBits(4, 2));
    EXPECT_THAT(GetRightMostCoordinate_Line(line), IsBits(4, 2));
    EXPECT_THAT(GetUpperMostCoordinate(line), IsBits(1, 7));
    EXPECT_THAT(GetLowerMostCoordinate(line), IsBits(4, 2));
  }
}

TEST(GetLeftMostCoordinate, PointAnswersItsCentreForAllFour) {
  TDXFEntity point;
  point.CentreCoords = {7, 8};
  point.StartCoords = {1, 1};
  for (const DXFEntityType type : {DXFNoLineType, DXFRegion}) {
    point.EntityType = type;
    EXPECT_THAT(GetLeftMostCoordinate(point), IsBits(7, 8));
    EXPECT_THAT(GetRightMostCoordinate(point), IsBits(7, 8));
    EXPECT_THAT(GetUpperMostCoordinate(point), IsBits(7, 8));
    EXPECT_THAT(GetLowerMostCoordinate(point), IsBits(7, 8));
  }
}

TEST(GetRightMostCoordinate, VerticalLineAnswersTheEndOppositeToItsLeftMost) {
  TSettingsGuard settings;
  const TDXFEntity line = ParseEntity("L 2,0 2,3");
  EXPECT_THAT(GetLeftMostCoordinate(line), IsBits(2, 0));
  EXPECT_THAT(GetRightMostCoordinate(line), IsBits(2, 3));
  EXPECT_THAT(GetRightMostCoordinate_Line(line), IsBits(2, 0));
  EXPECT_THAT(GetUpperMostCoordinate(line), IsBits(2, 3));
  EXPECT_THAT(GetLowerMostCoordinate(line), IsBits(2, 0));
}

TEST(GetLeftMostCoordinate_Line, XIsComparedExactlyAndYUnderTheToleranceKept) {
  TSettingsGuard settings;
  const TDXFEntity line = ParseEntity("L 1,1 0.99995,1.00005");
  EXPECT_THAT(GetLeftMostCoordinate_Line(line), IsBits(line.EndCoords));
  EXPECT_THAT(GetRightMostCoordinate_Line(line), IsBits(line.StartCoords));
  EXPECT_THAT(GetUpperMostCoordinate_Line(line), IsBits(line.StartCoords));
  EXPECT_THAT(GetLowerMostCoordinate_Line(line), IsBits(line.StartCoords));
}

TEST(GetLeftMostCoordinate_Line, LineOfLengthZeroAnswersItsStart) {
  TSettingsGuard settings;
  const TDXFEntity line = ParseEntity("L 3,4 3,4");
  EXPECT_THAT(GetLeftMostCoordinate(line), IsBits(3, 4));
  EXPECT_THAT(GetRightMostCoordinate(line), IsBits(3, 4));
  EXPECT_THAT(GetUpperMostCoordinate(line), IsBits(3, 4));
  EXPECT_THAT(GetLowerMostCoordinate(line), IsBits(3, 4));
}

TEST(GetLeftMostCoordinate_Line, NotANumberFallsThroughToTheOrigin) {
  TSettingsGuard settings;
  const TDXFEntity line = TDXFEntity::Line({1, 2}, {kNaN, kNaN});
  EXPECT_THAT(GetLeftMostCoordinate_Line(line), IsBits(0, 0));
  EXPECT_THAT(GetRightMostCoordinate_Line(line), IsBits(0, 0));
  EXPECT_THAT(GetUpperMostCoordinate_Line(line), IsBits(0, 0));
  EXPECT_THAT(GetLowerMostCoordinate_Line(line), IsBits(0, 0));
}

TEST(GetLeftMostCoordinate, ArcAnswersByTheRulesOfArcs) {
  TSettingsGuard settings;
  for (const char* text :
       {"A c 3,4 r 2 100..280", "A c 3,4 r 2 350..100", "A c 3,4 r 2 20..70", "A c 3,4 r 2 300..200"}) {
    const TDXFEntity arc = ParseEntity(text);
    EXPECT_THAT(GetLeftMostCoordinate(arc), IsBits(GetLeftMostCoordinate_Arc(arc))) << text;
    EXPECT_THAT(GetRightMostCoordinate(arc), IsBits(GetRightMostCoordinate_Arc(arc))) << text;
    EXPECT_THAT(GetUpperMostCoordinate(arc), IsBits(GetUpperMostCoordinate_Arc(arc))) << text;
    EXPECT_THAT(GetLowerMostCoordinate(arc), IsBits(GetLowerMostCoordinate_Arc(arc))) << text;
  }
}

TEST(GetRightMostCoordinate_Arc, ArcThroughZeroAnswersTheCircle) {
  TSettingsGuard settings;
  EXPECT_THAT(GetRightMostCoordinate_Arc(ParseEntity("A c 0,0 r 1 350..10")), IsBits(1, 0));
  EXPECT_THAT(GetRightMostCoordinate_Arc(ParseEntity("A c 3,4 r 2 -10..370")), IsBits(5, 4));
}

TEST(GetRightMostCoordinate_Arc, ArcThatEndsAtZeroAnswersItsEnd) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 10..0 from 0.98,0.17 to 0.999,0.01");
  EXPECT_THAT(GetRightMostCoordinate_Arc(arc), IsBits(0.999, 0.01));
}

TEST(GetRightMostCoordinate_Arc, ArcThatStartsAtZeroAnswersItsStart) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 0..90 from 0.999,0.01 to 0,1");
  EXPECT_THAT(GetRightMostCoordinate_Arc(arc), IsBits(0.999, 0.01));
}

TEST(GetLeftMostCoordinate_Arc, ArcThrough180AnswersTheCircle) {
  TSettingsGuard settings;
  EXPECT_THAT(GetLeftMostCoordinate_Arc(ParseEntity("A c 3,4 r 2 100..200")), IsBits(1, 4));
}

TEST(GetLeftMostCoordinate_Arc, ArcThatEndsAt180AnswersItsEnd) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 90..180");
  EXPECT_THAT(GetLeftMostCoordinate_Arc(arc), IsBits(arc.EndCoords));
  EXPECT_THAT(GetUpperMostCoordinate_Arc(arc), IsBits(arc.StartCoords));
}

TEST(GetLeftMostCoordinate_Arc, WrappingArcPast180AnswersItsLeftMostEndKept) {
  TSettingsGuard settings;
  const TDXFEntity late = ParseEntity("A c 0,0 r 1 300..200");
  EXPECT_THAT(GetLeftMostCoordinate_Arc(late), IsBits(late.EndCoords));
  const TDXFEntity early = ParseEntity("A c 0,0 r 1 170..10");
  EXPECT_THAT(GetLeftMostCoordinate_Arc(early), IsBits(early.StartCoords));
}

TEST(GetUpperMostCoordinate_Arc, ArcThrough90AnswersTheCircle) {
  TSettingsGuard settings;
  EXPECT_THAT(GetUpperMostCoordinate_Arc(ParseEntity("A c 3,4 r 2 80..100")), IsBits(3, 6));
  EXPECT_THAT(GetUpperMostCoordinate_Arc(ParseEntity("A c 3,4 r 2 350..100")), IsBits(3, 6));
}

TEST(GetUpperMostCoordinate_Arc, ArcThatMisses90AnswersItsUpperEnd) {
  TSettingsGuard settings;
  const TDXFEntity plain = ParseEntity("A c 0,0 r 1 100..260");
  EXPECT_THAT(GetUpperMostCoordinate_Arc(plain), IsBits(plain.StartCoords));
  const TDXFEntity wrapping = ParseEntity("A c 0,0 r 1 350..80");
  EXPECT_THAT(GetUpperMostCoordinate_Arc(wrapping), IsBits(wrapping.EndCoords));
  const TDXFEntity wrappingFrom80 = ParseEntity("A c 0,0 r 1 80..70");
  EXPECT_THAT(GetUpperMostCoordinate_Arc(wrappingFrom80), IsBits(wrappingFrom80.StartCoords))
      << "passes 90, but not both angles lie above it";
}

TEST(GetLowerMostCoordinate_Arc, ArcThrough270AnswersTheCircle) {
  TSettingsGuard settings;
  EXPECT_THAT(GetLowerMostCoordinate_Arc(ParseEntity("A c 3,4 r 2 200..300")), IsBits(3, 2));
  EXPECT_THAT(GetLowerMostCoordinate_Arc(ParseEntity("A c 3,4 r 2 300..280")), IsBits(3, 2));
}

TEST(GetLowerMostCoordinate_Arc, PlainArcThatMisses270AnswersItsLowerEnd) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 10..260");
  EXPECT_THAT(GetLowerMostCoordinate_Arc(arc), IsBits(arc.EndCoords));
}

TEST(GetLowerMostCoordinate_Arc, WrappingArcThatMisses270AnswersItsUpperEndKept) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 0,0 r 1 300..200");
  EXPECT_LT(arc.StartCoords.y, arc.EndCoords.y);
  EXPECT_THAT(GetLowerMostCoordinate_Arc(arc), IsBits(arc.EndCoords));
}

TEST(GetAngleFromCoordinate, IsTheDirectionFromTheSecondPointToTheFirst) {
  TSettingsGuard settings;
  EXPECT_DOUBLE_EQ(GetAngleFromCoordinate({0, -1}, {0, 0}), -90);
  EXPECT_DOUBLE_EQ(GetAngleFromCoordinate({5, 5}, {3, 3}), 45);
  EXPECT_DOUBLE_EQ(GetAngleFromCoordinate({2, 3}, {3, 3}), 180);
}

TEST(GetAngleFromCoordinate, DirectionWithinTheAngleToleranceOfTheXAxisIsZero) {
  TSettingsGuard settings;
  EXPECT_EQ(GetAngleFromCoordinate({1, 1e-6}, {0, 0}), 0);
  EXPECT_EQ(GetAngleFromCoordinate({1, -1e-6}, {0, 0}), 0);
  EXPECT_GT(GetAngleFromCoordinate({1, 1e-5}, {0, 0}), 0);
}

}  // namespace
}  // namespace GeometryEngine

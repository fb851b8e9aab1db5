#include "tests/support/Geometry.h"

#include <limits>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace GeometryEngine::support {
namespace {

using ::testing::ElementsAre;
using ::testing::Not;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(ParseEntities, ReadsLinesAndArcs) {
  const TEntityArray entities = ParseEntities("L 0,0 4,0.5; A c 1,2 r 4 -90..0\nN; R");
  ASSERT_EQ(entities.size(), 4U);
  EXPECT_EQ(entities[0].EntityType, DXFLine);
  EXPECT_EQ(entities[0].EndCoords.x, 4);
  EXPECT_EQ(entities[0].EndCoords.y, 0.5);
  EXPECT_EQ(entities[1].EntityType, DXFArc);
  EXPECT_EQ(entities[1].CentreCoords.y, 2);
  EXPECT_EQ(entities[1].radius, 4);
  EXPECT_EQ(entities[1].startAngle, -90);
  EXPECT_EQ(entities[1].endAngle, 0);
  EXPECT_EQ(entities[2].EntityType, DXFNoLineType);
  EXPECT_EQ(entities[3].EntityType, DXFRegion);
}

TEST(ParseEntities, ComputesTheEndsOfAnArcFromItsAngles) {
  const TDXFEntity arc = ParseEntity("A c 1,2 r 4 0..90");
  EXPECT_THAT(arc.StartCoords, IsBits(5, 2));
  EXPECT_THAT(arc.EndCoords, IsNear(1, 6, 1e-15));
}

TEST(ParseEntities, TakesGivenEndsAsTheyStand) {
  const TDXFEntity arc = ParseEntity("A c 0,0 r 4 0..90 from 4,0.25 to 0,4");
  EXPECT_THAT(arc.StartCoords, IsBits(4, 0.25));
  EXPECT_THAT(arc.EndCoords, IsBits(0, 4));
}

TEST(ParseEntities, ReadsTags) {
  const TDXFEntity line = ParseEntity(R"(L 0,0 1,0 col 3 row -2 side 4 colour "red" name "Magnet; 1")");
  EXPECT_EQ(line.ConductorCol, 3);
  EXPECT_EQ(line.ConductorRow, -2);
  EXPECT_EQ(line.SlotSide, LeftBottomSide);
  EXPECT_EQ(line.Colour, "red");
  EXPECT_EQ(line.RegionName, "Magnet; 1");
}

TEST(ParseEntities, RefusesOtherText) {
  for (const char* text : {"X 0,0 1,0", "L 0,0", "L 0;0 1,1", "L 0,0 1,", "L 0,0 1,1 2,2", "A c 0,0 r 1 90",
                           "A r 1 c 0,0 0..90", "A c 0,0 r 1 0..90 from 1,0", "L 0,0 1,0 name Magnet", "L 0,0 1x,0"}) {
    EXPECT_THROW(ParseEntities(text), std::invalid_argument) << text;
  }
  EXPECT_THROW(ParseEntity("L 0,0 1,0; L 1,0 2,0"), std::invalid_argument);
  EXPECT_THROW(ParseCoordinates("0,0 4"), std::invalid_argument);
}

TEST(ToText, IsReadBackToTheSameBits) {
  for (const char* text :
       {"L 0.1,-0 1e-300,4", "A c 0.1,0.2 r 0.30000000000000004 10..350", "N", "R", "L nan,inf -inf,0",
        "A c 0,0 r 4 0..90 from 4,0 to 0,4", R"(L 0,0 1,0 col 1 row 2 side 3 colour "a b" name "c")"}) {
    EXPECT_EQ(ToText(ParseEntities(text)), text);
  }
  EXPECT_EQ(ToText(ParseCoordinates("0,0  4,-0.5\n")), "0,0 4,-0.5");
}

TEST(IsBits, TellsTheLastBitAndTheSignOfZero) {
  const TEntityCoordinate coordinate{0.1, 0};
  EXPECT_THAT(coordinate, IsBits(0.1, 0));
  EXPECT_THAT(coordinate, Not(IsBits(0.10000000000000002, 0)));
  EXPECT_THAT(coordinate, Not(IsBits(0.1, -0.0)));
  EXPECT_THAT((TEntityCoordinate{kNaN, kInfinity}), IsBits(-kNaN, kInfinity));
}

TEST(IsBits, ComparesEveryFieldOfAnEntity) {
  const TDXFEntity arc = ParseEntity("A c 0,0 r 4 0..90");
  EXPECT_THAT(arc, IsBits("A c 0,0 r 4 0..90"));
  for (const char* other : {"A c 0,1 r 4 0..90", "A c 0,0 r 5 0..90", "A c 0,0 r 4 1..90", "A c 0,0 r 4 0..91",
                            "A c 0,0 r 4 0..90 from 4,0 to 0,4", R"(A c 0,0 r 4 0..90 name "a")", "L 4,0 0,4", "N"}) {
    EXPECT_THAT(arc, Not(IsBits(other))) << other;
  }
  TDXFEntity taken = arc;
  int source = 0;
  taken.SourceDXF = &source;
  EXPECT_THAT(taken, Not(IsBits(arc)));
}

TEST(IsBits, TellsALineFromItsReverse) {
  EXPECT_THAT(ParseEntity("L 0,0 4,0"), Not(IsBits("L 4,0 0,0")));
}

TEST(IsBits, ComparesArraysInOrder) {
  const TEntityArray entities = ParseEntities("L 0,0 4,0; L 4,0 4,4");
  EXPECT_THAT(entities, IsBits("L 0,0 4,0; L 4,0 4,4"));
  EXPECT_THAT(entities, Not(IsBits("L 4,0 4,4; L 0,0 4,0")));
  EXPECT_THAT(entities, Not(IsBits("L 0,0 4,0")));
  EXPECT_THAT(entities, ElementsAre(IsBits("L 0,0 4,0"), IsNear("L 4,0 4,4", 0)));
  EXPECT_THAT(ParseCoordinates("0,0 4,0"), IsBits("0,0 4,0"));
  EXPECT_THAT(TEntityArray{}, IsBits(""));
}

TEST(IsNear, HoldsUpToAndAtTheDistance) {
  const TEntityCoordinate coordinate{1, 2};
  EXPECT_THAT(coordinate, IsNear(1.25, 2, 0.25));
  EXPECT_THAT(coordinate, Not(IsNear(1.5, 2, 0.25)));
  EXPECT_THAT(coordinate, Not(IsNear(1, 1.5, 0.25)));
}

TEST(IsNear, ComparesTheNumbersOfTheKind) {
  EXPECT_THAT(ParseEntity("A c 0,0 r 4 0..90"), IsNear("A c 0,0 r 4 0..90 from 4,0 to 0,4", 1e-12));
  EXPECT_THAT(ParseEntity("A c 0,0 r 4 0..90"), Not(IsNear("A c 0,0 r 4 360..90", 1e-12)));
  EXPECT_THAT(ParseEntity("A c 0,0 r 4 0..90"), Not(IsNear("A c 0,0.1 r 4 0..90 from 4,0 to 0,4", 1e-12)));
  EXPECT_THAT(ParseEntity("A c 0,0 r 4 0..90"), Not(IsNear("L 4,0 0,4", 10)));
  EXPECT_THAT(ParseEntity("L 0,0 4,0"), Not(IsNear("L 4,0 0,0", 1)));
  EXPECT_THAT(ParseEntity(R"(L 0,0 4,0 name "a")"), IsNear("L 0,0 4,0", 0));
  EXPECT_THAT(ParseEntities("L 0,0 4,0; N"), Not(IsNear("L 0,0 4,0", 1)));
}

TEST(IsNear, HoldsForEqualInfinitiesAndForNoNotANumber) {
  EXPECT_THAT((TEntityCoordinate{kInfinity, 0}), IsNear(kInfinity, 0, 1));
  EXPECT_THAT((TEntityCoordinate{kInfinity, 0}), Not(IsNear(-kInfinity, 0, 1)));
  EXPECT_THAT((TEntityCoordinate{kNaN, 0}), Not(IsNear(kNaN, 0, 1)));
}

TEST(TGeometryMatcher, PrintsBothSidesAsText) {
  ::testing::StringMatchResultListener explanation;
  EXPECT_FALSE(::testing::ExplainMatchResult(IsBits("L 0,0 5,0"), ParseEntity("L 0,0 4,0"), &explanation));
  EXPECT_EQ(explanation.str(), "as text: L 0,0 4,0");
  EXPECT_EQ(::testing::DescribeMatcher<TDXFEntity>(IsBits("L 0,0 5,0")), "has the bits of: L 0,0 5,0");
  EXPECT_EQ(::testing::PrintToString(ParseEntity("L 0,0 4,0")), "L 0,0 4,0");
}

}  // namespace
}  // namespace GeometryEngine::support

// INSERT: where blocks are placed, and which cannot be.
#include <gmock/gmock.h>

#include <cmath>
#include <string>

#include "tests/support/Geometry.h"
#include "tests/xsec/DxfTexts.h"

namespace xsec {
namespace {

using GeometryEngine::support::IsBits;
using GeometryEngine::support::IsNear;
using ::testing::HasSubstr;
using ::testing::StartsWith;

constexpr double kNear = 1e-12;

std::string Block(const std::string& name, const std::string& entities, const std::string& groups = "70 0") {
  return "0 BLOCK | 2 " + name + " | " + groups + " | " + entities + " | 0 ENDBLK | ";
}

const std::string kBar = Block("bar", "0 LINE | 10 1 | 20 0 | 11 3 | 21 0");
const std::string kArc = Block("arc", "0 ARC | 10 2 | 20 0 | 40 1 | 50 0 | 51 90");

TEST(ReadInsert, PlacesTheBlock) {
  const Drawing drawing = ReadBlocks(kBar, "0 INSERT | 2 bar | 10 10 | 20 5");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 11,5 13,5"));
  EXPECT_EQ(drawing.entities.at(0).block, "bar");
  EXPECT_EQ(drawing.entities.at(0).type, "LINE");
}

TEST(ReadInsert, BlockAloneIsNotInTheDrawing) {
  const Drawing drawing = ReadBlocks(kBar, "");
  EXPECT_TRUE(drawing.entities.empty());
  EXPECT_THAT(drawing.warnings,
              ::testing::ElementsAre("the drawing itself is empty; blocks that are defined but not placed: 1"));
}

TEST(ReadInsert, NameOfTheBlockMayDifferInCase) {
  EXPECT_EQ(ReadBlocks(kBar, "0 INSERT | 2 BAR").entities.size(), 1U);
}

TEST(ReadInsert, QuarterTurnsAreExact) {
  EXPECT_THAT(GeometryOf(ReadBlocks(kBar, "0 INSERT | 2 bar | 50 90")), IsBits("L 0,1 0,3"));
  EXPECT_THAT(GeometryOf(ReadBlocks(kBar, "0 INSERT | 2 bar | 50 -180")), IsNear("L -1,0 -3,0", 0));
}

TEST(ReadInsert, ScalesTurnsAndShiftsInThisOrder) {
  EXPECT_THAT(GeometryOf(ReadBlocks(kBar, "0 INSERT | 2 bar | 10 1 | 20 1 | 41 2 | 42 2 | 50 30")),
              IsNear("L 2.7320508075688772,2 6.196152422706632,4", kNear));
  EXPECT_THAT(GeometryOf(ReadBlocks(kArc, "0 INSERT | 2 arc | 10 1 | 41 2 | 42 2 | 50 90")),
              IsNear("A c 1,4 r 2 90..180", kNear));
}

TEST(ReadInsert, BasePointLandsOnTheInsertionPoint) {
  const std::string block = Block("b", "0 LINE | 10 10 | 20 10 | 11 12 | 21 10", "10 10 | 20 10");
  EXPECT_THAT(GeometryOf(ReadBlocks(block, "0 INSERT | 2 b | 10 1 | 20 2 | 41 3 | 42 3 | 50 90")),
              IsNear("L 1,2 1,8", kNear));
}

TEST(ReadInsert, MirroredArcsStayAnticlockwiseAndRound) {
  EXPECT_THAT(GeometryOf(ReadBlocks(kArc, "0 INSERT | 2 arc | 41 -1")), IsNear("A c -2,0 r 1 90..180", kNear));
  EXPECT_THAT(GeometryOf(ReadBlocks(kArc, "0 INSERT | 2 arc | 42 -1")), IsNear("A c 2,0 r 1 270..0", kNear));
  EXPECT_THAT(GeometryOf(ReadBlocks(kArc, "0 INSERT | 2 arc | 41 -2 | 42 -2")), IsNear("A c -4,0 r 2 180..270", kNear));
  EXPECT_THAT(GeometryOf(ReadBlocks(kArc, "0 INSERT | 2 arc | 41 -1 | 50 90")), IsNear("A c 0,-2 r 1 180..270", kNear));
}

TEST(ReadInsert, MirroredBulgesKeepTheirVerticesAndTurnTheOtherWay) {
  const std::string block = Block("b", "0 LWPOLYLINE | 10 2 | 42 1 | 10 0");
  EXPECT_THAT(GeometryOf(ReadBlocks(block, "0 INSERT | 2 b | 42 -1")),
              IsNear("A c 1,0 r 1 180..0 from 0,0 to 2,0", kNear));
}

TEST(ReadInsert, InsertWithExtrusionAlongMinusZIsMirrored) {
  EXPECT_THAT(GeometryOf(ReadBlocks(kArc, "0 INSERT | 2 arc | 10 1 | 20 5 | 230 -1")),
              IsNear("A c -3,5 r 1 90..180", kNear));
}

TEST(ReadInsert, UnequalScalesMakeChordsOfArcsButNotOfLines) {
  const Drawing arc = ReadBlocks(kArc, "0 INSERT | 2 arc | 41 100 | 42 300");
  EXPECT_EQ(arc.flattened.at("ARC"), 1U);
  EXPECT_GT(arc.entities.size(), 8U);
  EXPECT_THAT(arc.entities.front().geometry.StartCoords, IsNear(300, 0, 1e-9));
  EXPECT_THAT(arc.entities.back().geometry.EndCoords, IsNear(200, 300, 1e-9));
  for (const DrawingEntity& entity : arc.entities) {
    const auto& end = entity.geometry.EndCoords;
    EXPECT_NEAR(std::hypot((end.x - 200) / 100, end.y / 300), 1, 1e-12);
  }
  const Drawing bar = ReadBlocks(kBar, "0 INSERT | 2 bar | 41 2 | 42 3");
  EXPECT_THAT(GeometryOf(bar), IsBits("L 2,0 6,0"));
  EXPECT_TRUE(bar.flattened.empty());
}

TEST(ReadInsert, UnequalScalesKeepTheVerticesOfBulges) {
  const std::string block = Block("b", "0 LWPOLYLINE | 10 0.1 | 42 0.5 | 10 7.3 | 20 1 | 42 -2 | 10 9");
  const auto chords = GeometryOf(ReadBlocks(block, "0 INSERT | 2 b | 41 3 | 42 1"));
  std::size_t hits = 0;
  for (const auto& chord : chords) {
    for (const auto& end : {chord.StartCoords, chord.EndCoords}) {
      hits += (end.x == 3 * 0.1 && end.y == 0) || (end.x == 3 * 7.3 && end.y == 1) || (end.x == 27 && end.y == 0);
    }
  }
  EXPECT_EQ(hits, 4U);
}

TEST(ReadInsert, RowsAndColumnsAreTurnedButNotScaled) {
  const Drawing drawing = ReadBlocks(kBar, "0 INSERT | 2 bar | 41 2 | 42 2 | 50 90 | 70 2 | 71 3 | 44 10 | 45 100");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 0,2 0,6; L 0,12 0,16; L -100,2 -100,6; L -100,12 -100,16;"
                                          "L -200,2 -200,6; L -200,12 -200,16"));
}

TEST(ReadInsert, CountsBelowOneAreOne) {
  EXPECT_EQ(ReadBlocks(kBar, "0 INSERT | 2 bar | 70 0 | 71 -3").entities.size(), 1U);
}

TEST(ReadInsert, BlocksNest) {
  const std::string blocks = kBar + Block("pair", "0 INSERT | 2 bar | 10 10 | 0 INSERT | 2 bar | 50 90") +
                             Block("quad", "0 INSERT | 2 pair | 41 2 | 42 2");
  const Drawing drawing = ReadBlocks(blocks, "0 INSERT | 2 quad | 20 1");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 22,1 26,1; L 0,3 0,7"));
  EXPECT_EQ(drawing.entities.at(0).block, "bar");
}

TEST(ReadInsert, BlockMayBeDefinedAfterItsUse) {
  EXPECT_EQ(ReadBlocks(Block("a", "0 INSERT | 2 z") + Block("z", "0 LINE | 11 1"), "0 INSERT | 2 a").entities.size(),
            1U);
}

TEST(ReadInsert, LayerZeroAndColourByBlockAreThoseOfTheInsert) {
  const std::string blocks = Block("in", "0 LINE | 8 0 | 62 0 | 11 1 | 0 LINE | 8 own | 62 5 | 11 2 | 0 HATCH | 8 0") +
                             Block("out", "0 INSERT | 2 in | 8 0 | 62 0");
  const Drawing drawing = ReadBlocks(blocks, "0 INSERT | 2 out | 8 steel | 62 3");
  ASSERT_EQ(drawing.entities.size(), 2U);
  EXPECT_EQ(drawing.entities[0].layer, "steel");
  EXPECT_EQ(drawing.entities[0].colour, 3);
  EXPECT_EQ(drawing.entities[1].layer, "own");
  EXPECT_EQ(drawing.entities[1].colour, 5);
  EXPECT_EQ(SkippedCount(drawing, "HATCH", "steel", "this type is not read"), 1U);
}

TEST(ReadInsert, WhatCannotBePlacedIsSkippedWithTheReason) {
  const Drawing drawing = ReadBlocks(
      kBar + Block("far", "0 LINE | 11 1", "70 4 | 1 far.dxf"),
      "0 INSERT | 8 a | 2 none | 0 INSERT | 8 a | 2 far | 0 INSERT | 8 a | 2 bar | 41 0 | 0 INSERT | 8 a | 10 1");
  EXPECT_EQ(SkippedCount(drawing, "INSERT", "a", "block none is not defined"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "INSERT", "a", "block far stands for another file"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "INSERT", "a", "its scale is 0"), 1U);
  EXPECT_EQ(SkippedCount(drawing, "INSERT", "a", "it is incomplete"), 1U);
  EXPECT_TRUE(drawing.entities.empty());
}

TEST(ReadInsert, AttributesOfAnInsertAreWords) {
  const Drawing drawing =
      ReadBlocks(kBar, "0 INSERT | 2 bar | 66 1 | 0 ATTRIB | 8 t | 1 x | 2 y | 0 SEQEND | 0 LINE | 11 1");
  EXPECT_TRUE(drawing.skipped.empty());
  ASSERT_EQ(drawing.texts.size(), 1U);
  EXPECT_EQ(drawing.texts[0].text, "x");
  EXPECT_EQ(drawing.texts[0].layer, "t");
  EXPECT_EQ(drawing.entities.size(), 2U);
}

std::string RefusalOfBlocks(const std::string& blocks, const std::string& entities) {
  return RefusalOf(DxfOf({entities, blocks, "", ""}));
}

TEST(ReadInsert, BlockThatContainsItselfIsRefusedByName) {
  EXPECT_EQ(RefusalOfBlocks(Block("a", "0 INSERT | 2 A"), "0 LINE | 11 1"),
            "12: block a contains itself (a > a); remove that insert from the block");
  EXPECT_THAT(RefusalOfBlocks(Block("a", "0 INSERT | 2 b") + Block("b", "0 LINE | 11 1 | 0 INSERT | 2 c") +
                                  Block("c", "0 INSERT | 2 a"),
                              "0 INSERT | 2 a"),
              HasSubstr(": block a contains itself (a > b > c > a); "));
}

TEST(ReadInsert, NestingOf16IsReadAndOf17Refused) {
  std::string blocks = Block("n1", "0 LINE | 11 1");
  for (int i = 2; i <= 17; ++i) {
    blocks += Block("n" + std::to_string(i), "0 INSERT | 2 n" + std::to_string(i - 1));
  }
  EXPECT_EQ(RefusalOfBlocks(blocks, "0 INSERT | 2 n16"), "");
  EXPECT_THAT(RefusalOfBlocks(blocks, "0 INSERT | 2 n17"), HasSubstr(": block n17 nests 17 deep, more than 16; "));
}

TEST(ReadInsert, VeryDeepNestingThatIsNotPlacedIsHarmless) {
  std::string blocks = Block("n1", "0 LINE | 11 1");
  for (int i = 2; i <= 50000; ++i) {
    blocks += Block("n" + std::to_string(i), "0 INSERT | 2 n" + std::to_string(i - 1));
  }
  EXPECT_EQ(RefusalOfBlocks(blocks, "0 LINE | 11 1"), "");
}

TEST(ReadInsert, ExpansionIsBounded) {
  EXPECT_THAT(RefusalOfBlocks(kBar, "0 INSERT | 2 bar | 70 32767 | 71 32767"),
              HasSubstr(": placing block bar here makes more than 2000000 entities; "));
  std::string blocks = Block("n1", "0 HATCH | 1 nothing to draw");
  for (int i = 2; i <= 12; ++i) {
    blocks += Block("n" + std::to_string(i), "0 INSERT | 70 1000 | 71 1000 | 2 n" + std::to_string(i - 1));
  }
  EXPECT_THAT(RefusalOfBlocks(blocks, "0 INSERT | 2 n12"), HasSubstr(" makes more than 2000000 entities; "));
  EXPECT_THAT(RefusalOfBlocks(Block("e", "0 HATCH"), "0 INSERT | 2 e | 70 2147483647 | 71 2147483647"),
              HasSubstr(" makes more than 2000000 entities; "));
}

TEST(ReadInsert, TenLevelsOfTenInsertsAreCountedNotPlaced) {
  std::string blocks = Block("n1", "0 LINE | 11 1");
  for (int i = 2; i <= 11; ++i) {
    std::string ten = "0 INSERT | 2 n" + std::to_string(i - 1);
    for (int k = 1; k < 10; ++k) ten += " | 0 INSERT | 2 n" + std::to_string(i - 1);
    blocks += Block("n" + std::to_string(i), ten);
  }
  EXPECT_EQ(ReadBlocks(blocks, "0 INSERT | 2 n5").entities.size(), 10'000U);
  EXPECT_THAT(RefusalOfBlocks(blocks, "0 INSERT | 2 n11"), HasSubstr(" makes more than 2000000 entities; "));
}

TEST(ReadInsert, ScalesThatLeaveTheRangeOfNumbersAreSkipped) {
  const Drawing drawing = ReadBlocks(kBar, "0 INSERT | 2 bar | 41 1e308 | 42 1e308 | 0 INSERT | 2 bar | 41 1e90");
  EXPECT_EQ(SkippedCount(drawing, "LINE", "0", "its coordinates are out of range"), 1U);
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 1e90,0 3e90,0"));
}

TEST(ReadInsert, SecondDefinitionOfABlockIsUsedAndReported) {
  const Drawing drawing = ReadBlocks(kBar + Block("BAR", "0 LINE | 11 7"), "0 INSERT | 2 bar");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 0,0 7,0"));
  EXPECT_THAT(drawing.warnings,
              ::testing::ElementsAre(StartsWith("block BAR is defined twice; the definition on line ")));
}

TEST(ReadInsert, BlockWithoutANameDoesNotSpillItsEntities) {
  EXPECT_THAT(GeometryOf(ReadBlocks("0 BLOCK | 70 0 | 0 LINE | 11 5 | 0 ENDBLK", "0 LINE | 11 1")),
              IsBits("L 0,0 1,0"));
}

}  // namespace
}  // namespace xsec

// Nothing of a drawing goes missing without being counted.
#include <gmock/gmock.h>

#include <random>
#include <string>

#include "tests/support/Geometry.h"
#include "tests/xsec/DxfTexts.h"
#include "xsec/Errors.h"

namespace xsec {
namespace {

using GeometryEngine::support::IsBits;

constexpr const char* kNotRead = "this type is not read";

TEST(SkippedEntities, OtherTypesAreCountedByTypeAndLayer) {
  const Drawing drawing = ReadEntities(
      "0 HATCH | 8 notes | 1 a | 0 LINE | 11 1 | 0 HATCH | 8 notes | 1 b | 0 HATCH | 8 frame | 0 LEADER | 8 notes | 3 "
      "c |"
      "0 POINT | 8 a | 0 SOLID | 8 a | 0 HATCH | 8 a | 91 1 | 92 1 | 93 1 | 72 1 | 10 0 | 0 DIMENSION | 8 a | 70 32 |"
      "0 LEADER | 8 a | 76 2000000000 | 0 RAY | 8 a | 0 XLINE | 8 a | 0 3DFACE | 8 a | 0 IMAGE | 8 a | 0 MLINE | 8 a |"
      "0 ACAD_PROXY_ENTITY | 8 a | 0 ATTDEF | 8 a");
  EXPECT_EQ(SkippedCount(drawing, "HATCH", "notes", kNotRead), 2U);
  EXPECT_EQ(SkippedCount(drawing, "HATCH", "frame", kNotRead), 1U);
  EXPECT_EQ(SkippedCount(drawing, "LEADER", "notes", kNotRead), 1U);
  for (const char* type : {"POINT", "SOLID", "HATCH", "DIMENSION", "LEADER", "RAY", "XLINE", "3DFACE", "IMAGE", "MLINE",
                           "ACAD_PROXY_ENTITY", "ATTDEF"}) {
    EXPECT_EQ(SkippedCount(drawing, type, "a", kNotRead), 1U) << type;
  }
  EXPECT_EQ(drawing.skipped.size(), 15U);
  EXPECT_EQ(drawing.entities.size(), 1U);
}

TEST(SkippedEntities, PaperSpaceIsCountedWhetherInEntitiesOrInItsBlock) {
  const Drawing drawing = ReadBlocks(
      "0 BLOCK | 2 *Paper_Space0 | 0 LINE | 8 b | 11 1 | 0 ENDBLK | 0 BLOCK | 2 $PAPER_SPACE | 0 HATCH | 8 b | 0 "
      "ENDBLK",
      "0 LINE | 8 a | 67 1 | 11 1 | 0 POLYLINE | 8 a | 67 1 | 0 VERTEX | 10 1 | 67 1 | 0 VERTEX | 10 2 | 67 1 |"
      "0 SEQEND | 0 VIEWPORT | 8 a | 67 1 | 0 LINE | 8 a | 67 0 | 11 1");
  constexpr const char* kPaper = "it stands in paper space";
  EXPECT_EQ(SkippedCount(drawing, "LINE", "a", kPaper), 1U);
  EXPECT_EQ(SkippedCount(drawing, "POLYLINE", "a", kPaper), 1U);
  EXPECT_EQ(SkippedCount(drawing, "VIEWPORT", "a", kPaper), 1U);
  EXPECT_EQ(SkippedCount(drawing, "LINE", "b", kPaper), 1U);
  EXPECT_EQ(SkippedCount(drawing, "HATCH", "b", kPaper), 1U);
  EXPECT_EQ(drawing.entities.size(), 1U);
}

TEST(SkippedEntities, ModelSpaceBlockIsTheDrawingItself) {
  EXPECT_THAT(GeometryOf(ReadBlocks("0 BLOCK | 2 *Model_Space | 0 LINE | 11 3 | 0 ENDBLK", "0 LINE | 11 1")),
              IsBits("L 0,0 3,0; L 0,0 1,0"));
}

TEST(SkippedEntities, ThoseOfABlockAreCountedForEachPlace) {
  const Drawing drawing =
      ReadBlocks("0 BLOCK | 2 b | 0 HATCH | 8 t | 0 LINE | 8 t | 0 ENDBLK", "0 INSERT | 2 b | 70 3 | 0 INSERT | 2 b");
  EXPECT_EQ(SkippedCount(drawing, "HATCH", "t", kNotRead), 4U);
  EXPECT_EQ(SkippedCount(drawing, "LINE", "t", "its length is 0"), 4U);
}

TEST(SkippedEntities, SectionsThatSayNothingOfTheGeometryAreNotEntities) {
  const std::string text = Pairs("0 SECTION | 2 CLASSES | 0 CLASS | 1 X | 0 ENDSEC") +
                           Pairs("0 SECTION | 2 OBJECTS | 0 DICTIONARY | 0 XRECORD | 280 1 | 10 5 | 0 ENDSEC") +
                           DxfOf({"0 LINE | 11 1", "", "9 $ACADVER | 1 AC1015",
                                  "0 TABLE | 2 LTYPE | 70 9 | 0 LTYPE |"
                                  "2 dashed | 49 1.5 | 0 ENDTAB"});
  const Drawing drawing = ReadDrawingText(text, "test.dxf");
  EXPECT_TRUE(drawing.skipped.empty());
  EXPECT_EQ(drawing.entities.size(), 1U);
}

TEST(Layers, AreReadWithTheirColoursWhetherFrozenOrOff) {
  const Drawing drawing = ReadDrawingText(
      DxfOf({"0 LINE | 8 frozen | 11 1 | 0 LINE | 8 off | 11 2", "", "",
             "0 TABLE | 2 LAYER | 70 3 | 0 LAYER | 2 frozen | 70 1 | 62 4 | 0 LAYER | 2 off | 70 0 | 62 -6 | 0 LAYER |"
             "2 plain | 70 0 | 0 ENDTAB"}),
      "test.dxf");
  EXPECT_EQ(drawing.entities.size(), 2U);
  EXPECT_THAT(drawing.layerColours, ::testing::ElementsAre(::testing::Pair("frozen", 4), ::testing::Pair("off", 6),
                                                           ::testing::Pair("plain", 7)));
}

TEST(Layers, NamesAreUtf8WhateverTheFileHolds) {
  const Drawing drawing = ReadEntities(
      "0 LINE | 8 L\xFCnette | 11 1 | 0 LINE | 8 L\xC3\xBCnette | 11 2 | 0 LINE |"
      "8 L\\U+00FCnette | 11 3");
  for (const DrawingEntity& entity : drawing.entities) {
    EXPECT_EQ(entity.layer, "L\xC3\xBCnette");
  }
  EXPECT_EQ(drawing.entities.size(), 3U);
}

TEST(Layers, VeryLongNamesAreCutNotEndless) {
  const Drawing drawing = ReadEntities("0 LINE | 8 " + std::string(5000, 'x') + " | 11 1");
  EXPECT_EQ(drawing.entities.at(0).layer, std::string(1000, 'x'));
}

// Overwrites, cuts out, doubles or adds a few bytes.
void Damage(std::string& text, const std::string& sound, std::mt19937& random) {
  const std::size_t place = random() % text.size();
  switch (random() % 4) {
    case 0:
      text[place] = "0123456789-.\nE"[random() % 14];
      break;
    case 1:
      text.erase(place, 1 + random() % 8);
      break;
    case 2:
      text.insert(place, sound.substr(random() % sound.size(), random() % 20));
      break;
    default:
      text.insert(place, 1, "0123456789"[random() % 10]);
      break;
  }
}

// Whatever is done to a text, it is read or refused; nothing else happens. The sanitizers watch over it.
TEST(ReadDrawingText, DamagedTextIsReadOrRefused) {
  const std::string sound = DxfOf(
      {"0 LINE | 5 1A | 11 4 | 0 LWPOLYLINE | 90 3 | 70 1 | 10 1 | 20 2 | 42 0.5 | 10 3 | 20 4 | 10 5 | 0 INSERT | 2 b "
       "|"
       "70 2 | 71 2 | 44 5 | 0 SPLINE | 70 8 | 71 2 | 72 6 | 73 3 | 40 0 | 40 0 | 40 0 | 40 1 | 40 1 | 40 1 | 10 0 | "
       "10 1 |"
       "20 1 | 10 2 | 0 ELLIPSE | 11 5 | 40 0.5 | 41 0 | 42 6.283185 | 0 POLYLINE | 66 1 | 0 VERTEX | 10 1 | 0 VERTEX |"
       "10 2 | 0 SEQEND | 0 HATCH | 91 1 | 92 2 | 93 4",
       "0 BLOCK | 2 b | 10 1 | 0 ARC | 40 1 | 50 0 | 51 200 | 0 ENDBLK", "9 $INSUNITS | 70 4",
       "0 TABLE | 2 LAYER | 0 LAYER | 2 a | 70 0 | 0 ENDTAB"});
  ASSERT_EQ(RefusalOf(sound), "");
  std::mt19937 random(20240607);
  std::size_t readCount = 0;
  for (int round = 0; round < 20000; ++round) {
    std::string text = sound;
    for (auto changes = 1 + random() % 3; changes > 0; --changes) {
      Damage(text, sound, random);
    }
    readCount += RefusalOf(text).empty() ? 1U : 0U;
  }
  EXPECT_GT(readCount, 1000U);
  EXPECT_LT(readCount, 19000U);
}

}  // namespace
}  // namespace xsec

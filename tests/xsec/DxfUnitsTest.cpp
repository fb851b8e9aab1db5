// Everything is in millimetres once it is read.
#include "xsec/Units.h"

#include <gmock/gmock.h>

#include <string>

#include "tests/support/Geometry.h"
#include "tests/xsec/DxfTexts.h"
#include "xsec/Utf8.h"

namespace xsec {
namespace {

using GeometryEngine::support::IsBits;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

Drawing ReadWithUnits(const std::string& insUnits, const std::string& entities, const ReadOptions& options = {}) {
  return ReadDrawingText(DxfOf({entities, "", insUnits.empty() ? "" : "9 $INSUNITS | 70 " + insUnits, ""}), "test.dxf",
                         options);
}

TEST(DrawingUnits, FilesOwnUnitIsConverted) {
  const Drawing drawing = ReadWithUnits("1", "0 LINE | 10 1 | 11 2 | 0 ARC | 10 10 | 40 0.5 | 50 10 | 51 20");
  EXPECT_EQ(drawing.units.name, "in");
  EXPECT_EQ(drawing.units.millimetres, 25.4);
  EXPECT_EQ(drawing.units.source, "file");
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 25.4,0 50.8,0; A c 254,0 r 12.7 10..20"));
}

TEST(DrawingUnits, GivenUnitWinsOverTheFilesOwn) {
  const Drawing drawing = ReadWithUnits("1", "0 LINE | 11 0.25", ReadOptions{FindUnit("m"), std::nullopt});
  EXPECT_THAT(GeometryOf(drawing), IsBits("L 0,0 250,0"));
  EXPECT_EQ(drawing.units.source, "--units");
}

TEST(DrawingUnits, WithoutAUnitMillimetresAreAssumed) {
  for (const char* none : {"", "0"}) {
    const Drawing drawing = ReadWithUnits(none, "0 LINE | 11 25");
    EXPECT_EQ(drawing.units.name, "mm");
    EXPECT_EQ(drawing.units.source, "assumed");
    EXPECT_THAT(GeometryOf(drawing), IsBits("L 0,0 25,0"));
    EXPECT_THAT(drawing.warnings, IsEmpty());
  }
}

TEST(DrawingUnits, AssumedMillimetresThatLookLikeAnotherUnitAreReported) {
  EXPECT_THAT(
      ReadWithUnits("", "0 LINE | 11 0.16").warnings,
      ElementsAre("the file names no unit; taken as millimetres the drawing is 0.16 mm across, so it is probably "
                  "drawn in another unit: give it with --units, for example --units m"));
  EXPECT_THAT(ReadWithUnits("", "0 LINE | 21 160000").warnings, ElementsAre(HasSubstr("--units um")));
  EXPECT_THAT(ReadWithUnits("4", "0 LINE | 11 0.16").warnings, IsEmpty());
}

TEST(DrawingUnits, NumberThatMeansNoUnitIsReported) {
  const Drawing drawing = ReadWithUnits("77", "0 LINE | 11 25");
  EXPECT_EQ(drawing.units.source, "assumed");
  EXPECT_THAT(drawing.warnings, ElementsAre("$INSUNITS is 77, which stands for no unit; taken as millimetres"));
}

TEST(FindUnit, KnowsNamesInAnyCaseAndNumbers) {
  EXPECT_EQ(FindUnit("MM")->millimetres, 1);
  EXPECT_EQ(FindUnit("Metres")->millimetres, 1000);
  EXPECT_EQ(FindUnit("ft")->millimetres, 304.8);
  EXPECT_EQ(FindUnit(13)->name, "um");
  EXPECT_DOUBLE_EQ(FindUnit(21)->millimetres, 304.8006096012192);
  EXPECT_FALSE(FindUnit("furlong").has_value());
  EXPECT_FALSE(FindUnit("").has_value());
  EXPECT_FALSE(FindUnit(0).has_value());
  EXPECT_FALSE(FindUnit(25).has_value());
}

TEST(FindUnit, EveryNumberOfAFileFrom1To24HasItsUnit) {
  for (std::int32_t number = 1; number <= 24; ++number) {
    ASSERT_TRUE(FindUnit(number).has_value()) << number;
    EXPECT_EQ(FindUnit(FindUnit(number)->name)->millimetres, FindUnit(number)->millimetres);
    EXPECT_THAT(UnitNames(), HasSubstr(FindUnit(number)->name));
  }
}

TEST(ToUtf8, KeepsUtf8AndMendsTheRest) {
  EXPECT_EQ(ToUtf8("plain"), "plain");
  EXPECT_EQ(ToUtf8("\xE2\x82\xAC \xF0\x9F\x94\xA9"), "\xE2\x82\xAC \xF0\x9F\x94\xA9");
  EXPECT_EQ(ToUtf8("\xE4"), "\xC3\xA4");
  EXPECT_EQ(ToUtf8("\xE2\x82"), "\xC3\xA2\xC2\x82");              // cut off
  EXPECT_EQ(ToUtf8("\xC0\xAF"), "\xC3\x80\xC2\xAF");              // longer than need be
  EXPECT_EQ(ToUtf8("\xED\xA0\x80"), "\xC3\xAD\xC2\xA0\xC2\x80");  // half of a pair of UTF-16
  EXPECT_EQ(ToUtf8("\xF8\xFF"), "\xC3\xB8\xC3\xBF");
  EXPECT_EQ(ToUtf8("a\x01\x1B\x7F"), "a???");
}

TEST(ToUtf8, DecodesEscapes) {
  EXPECT_EQ(ToUtf8("\\U+00E4\\U+20AC"), "\xC3\xA4\xE2\x82\xAC");
  EXPECT_EQ(ToUtf8("\\U+0009"), "?");
  EXPECT_EQ(ToUtf8("\\U+00G4"), "\\U+00G4");
  EXPECT_EQ(ToUtf8("\\U+D800"), "\\U+D800");
  EXPECT_EQ(ToUtf8("\\U+00"), "\\U+00");
}

}  // namespace
}  // namespace xsec

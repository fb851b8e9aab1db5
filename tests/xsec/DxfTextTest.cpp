// What a text must be like before anything is read from it, and what its refusal says.
#include "xsec/DxfText.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <random>
#include <string>

#include "tests/xsec/DxfTexts.h"

namespace xsec {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::string kSound = DxfOf({"0 LINE | 10 0 | 20 0 | 11 4 | 21 0", "", "", ""});

// The text of a drawing whose only entity is given in pairs.
std::string WithEntity(std::string_view pairs) {
  return DxfOf({std::string(pairs), "", "", ""});
}

TEST(ParseNumber, TakesDecimalNumbersWithBlanksAndPlusInFront) {
  EXPECT_EQ(ParseNumber("  1.5").value(), 1.5);
  EXPECT_EQ(ParseNumber("+2").value(), 2);
  EXPECT_EQ(ParseNumber("-.25e2 ").value(), -25);
  EXPECT_EQ(ParseNumber("7.").value(), 7);
}

TEST(ParseNumber, RefusesEverythingElse) {
  for (const char* text :
       {"", " ", "+", "+-1", "++1", "1,5", "1.5mm", "0x10", "nan", "inf", "-infinity", "1e999", "1 2"}) {
    EXPECT_FALSE(ParseNumber(text).has_value()) << text;
  }
}

TEST(ParseNumber, TakesAThousandDigitsAsTheNumberThatTheyAre) {
  EXPECT_EQ(ParseNumber("0." + std::string(1000, '3')).value(), 1.0 / 3);
  EXPECT_EQ(ParseNumber(std::string(1000, '0') + "25").value(), 25);
  EXPECT_EQ(ParseNumber("1" + std::string(1000, '0') + "e-1000").value(), 1);
  EXPECT_FALSE(ParseNumber(std::string(1000, '9')).has_value());
  EXPECT_FALSE(ParseNumber("1e" + std::string(1000, '9')).has_value());
}

TEST(KindOfCode, TellsNumbersFromText) {
  EXPECT_EQ(KindOfCode(8), DxfValueKind::Text);
  EXPECT_EQ(KindOfCode(10), DxfValueKind::Real);
  EXPECT_EQ(KindOfCode(59), DxfValueKind::Real);
  EXPECT_EQ(KindOfCode(70), DxfValueKind::Whole);
  EXPECT_EQ(KindOfCode(100), DxfValueKind::Text);
  EXPECT_EQ(KindOfCode(1040), DxfValueKind::Real);
}

TEST(CheckDxfText, SoundTextPasses) {
  EXPECT_EQ(RefusalOf(kSound), "");
}

TEST(CheckDxfText, CarriageReturnsAtLineEndsAreNotPartOfTheText) {
  std::string text;
  for (const char c : kSound) {
    text += c == '\n' ? std::string("\r\n") : std::string(1, c);
  }
  EXPECT_EQ(RefusalOf(text), "");
  EXPECT_EQ(ReadDrawingText(text, "").entities.size(), 1U);
}

TEST(CheckDxfText, CommentsBlanksAndByteOrderMarkInFrontPass) {
  EXPECT_EQ(RefusalOf("\xEF\xBB\xBF" + Pairs("999 made by hand | 999 twice") + kSound), "");
  EXPECT_EQ(RefusalOf("  0\nSECTION\n  2\nENTITIES\n 0\n ENDSEC \n0\nEOF\n\n\x1A"), "");
}

TEST(CheckDxfText, LastLineNeedsNoEnd) {
  EXPECT_EQ(RefusalOf(kSound.substr(0, kSound.size() - 1)), "");
}

TEST(CheckDxfText, EmptyTextIsRefused) {
  EXPECT_THAT(RefusalOf(""), StartsWith("0: the file is empty; "));
}

TEST(CheckDxfText, BinaryDrawingsAreRefusedWithAHint) {
  EXPECT_EQ(RefusalOf(std::string("AutoCAD Binary DXF\r\n\x1A\0", 22)),
            "0: this is a binary DXF file; save the drawing as a DXF text (ASCII) file");
  EXPECT_EQ(RefusalOf(std::string("AC1032\0\0", 8)), "0: this is a DWG file; save the drawing as a DXF text file");
}

TEST(CheckDxfText, ZeroByteIsRefusedWithItsLine) {
  EXPECT_THAT(RefusalOf(Pairs("0 SECTION | 2 ENTITIES") + std::string("0\nLI\0E\n", 7)),
              StartsWith("6: the file holds a zero byte"));
}

TEST(CheckDxfText, LinesThatEndWithACarriageReturnAloneAreRefused) {
  EXPECT_THAT(RefusalOf("0\rSECTION\r"), StartsWith("1: lines end with a carriage return alone; convert"));
}

TEST(CheckDxfText, OverlongLineIsRefusedWithItsLine) {
  const std::string line(64 * 1024 + 1, 'x');
  EXPECT_THAT(RefusalOf(WithEntity("0 TEXT | 1 " + line)), StartsWith("8: the line has more than 65536 bytes"));
  EXPECT_EQ(RefusalOf(WithEntity("0 TEXT | 1 " + line.substr(1))), "");
}

TEST(CheckDxfText, GroupCodeThatIsNoWholeNumberIsRefused) {
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | ten 4")),
              StartsWith("7: \"ten\" stands where a group code (a whole number) belongs; "));
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 10.0 4")), StartsWith("7: \"10.0\" stands where"));
  EXPECT_THAT(RefusalOf("\n" + kSound), StartsWith("1: \"\" stands where"));
}

TEST(CheckDxfText, GroupCodeOutOfRangeIsRefused) {
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 1072 4")), StartsWith("7: group code \"1072\" is not in 0 to 1071; "));
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | -5 4")), StartsWith("7: group code \"-5\" is not in"));
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 99999999999999999999 4")), HasSubstr("is not in 0 to 1071"));
}

TEST(CheckDxfText, NumberWithACommaIsRefusedWithTheCure) {
  EXPECT_EQ(RefusalOf(WithEntity("0 LINE | 10 1,5")),
            "8: group 10 holds \"1,5\", which is not a finite number; write numbers with a point, not a comma");
}

TEST(CheckDxfText, ValuesThatAreNoFiniteNumbersAreRefused) {
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 10 nan")), StartsWith("8: group 10 holds \"nan\""));
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 10 inf")), StartsWith("8: group 10 holds \"inf\""));
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 10 1e400")), StartsWith("8: group 10 holds \"1e400\""));
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 10 ")), StartsWith("8: group 10 holds \"\""));
  EXPECT_THAT(RefusalOf(WithEntity("0 TEXT | 1040 left")), StartsWith("8: group 1040 holds \"left\""));
}

TEST(CheckDxfText, WholeNumbersMayBearAPointButNoFraction) {
  EXPECT_EQ(RefusalOf(WithEntity("0 LINE | 62 7.0 | 10 0 | 11 1")), "");
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 62 7.5")),
              StartsWith("8: group 62 holds \"7.5\", which is not a whole number"));
}

TEST(CheckDxfText, MessagesShowBytesOfTheFileSafely) {
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 10 \x1B[31m\xFF")), StartsWith("8: group 10 holds \"?[31m?\""));
  EXPECT_THAT(RefusalOf(WithEntity("0 LINE | 10 " + std::string(100, 'z'))),
              HasSubstr("\"" + std::string(40, 'z') + "...\""));
}

TEST(CheckDxfText, GroupCodeWithoutValueIsRefused) {
  EXPECT_THAT(RefusalOf(Pairs("0 SECTION | 2 ENTITIES") + "0\n"),
              StartsWith("5: the file ends after group code 0 without its value; "));
}

TEST(CheckDxfText, TextThatDoesNotStartWithASectionIsRefused) {
  EXPECT_THAT(RefusalOf(Pairs("0 LINE | 10 0")), StartsWith("2: LINE stands outside any section; "));
  EXPECT_THAT(RefusalOf(Pairs("10 0 | 0 EOF")), StartsWith("1: group code 10 stands outside any section; "));
  EXPECT_THAT(RefusalOf("solid cube\nfacet normal 0 0 0\n"), StartsWith("1: \"solid cube\" stands where a group code"));
}

TEST(CheckDxfText, SectionsNeedANameAndAnEndAndDoNotNest) {
  EXPECT_THAT(RefusalOf(Pairs("0 SECTION | 0 ENDSEC | 0 EOF")), StartsWith("3: a section begins without its name"));
  EXPECT_THAT(RefusalOf(Pairs("0 SECTION | 2 ENTITIES | 0 EOF")),
              StartsWith("6: EOF stands inside section ENTITIES that begins on line 2; "));
  EXPECT_THAT(RefusalOf(Pairs("0 SECTION | 2 ENTITIES | 0 SECTION | 2 BLOCKS")),
              StartsWith("6: a section begins inside section ENTITIES that begins on line 2; "));
  EXPECT_THAT(RefusalOf(Pairs("0 SECTION | 2 ENTITIES | 0 ENDSEC | 0 ENDSEC | 0 EOF")),
              StartsWith("8: ENDSEC stands outside any section; "));
}

TEST(CheckDxfText, BlocksNeedAnEndAndDoNotNest) {
  const std::string open = Pairs("0 SECTION | 2 BLOCKS | 0 BLOCK | 2 a");
  EXPECT_THAT(RefusalOf(open + Pairs("0 ENDSEC | 0 EOF")),
              StartsWith("10: the block that begins on line 6 is not closed; "));
  EXPECT_THAT(RefusalOf(open + Pairs("0 BLOCK | 2 b")),
              StartsWith("10: a block begins inside the one that begins on line 6; "));
  EXPECT_THAT(RefusalOf(open + Pairs("0 ENDBLK | 0 LINE")), StartsWith("12: LINE stands between blocks; "));
}

TEST(CheckDxfText, TextThatIsCutOffIsRefused) {
  EXPECT_THAT(RefusalOf(Pairs("0 SECTION | 2 ENTITIES | 0 LINE | 10 0")),
              StartsWith("8: the file ends inside section ENTITIES that begins on line 2; it was cut off"));
  EXPECT_THAT(RefusalOf(Pairs("0 SECTION | 2 ENTITIES | 0 ENDSEC")),
              StartsWith("6: the file ends without EOF; it was cut off"));
}

TEST(CheckDxfText, TextBehindEofIsRefused) {
  EXPECT_THAT(RefusalOf(kSound + kSound), StartsWith("19: there is text behind EOF; "));
}

TEST(CheckDxfText, JunkIsRefused) {
  std::mt19937 random(20240607);
  for (int round = 0; round < 1000; ++round) {
    std::string junk;
    for (std::size_t length = 1 + random() % 300; length > 0; --length) junk += static_cast<char>(random() % 256);
    ASSERT_NE(RefusalOf(junk), "") << round;
    ASSERT_NE(RefusalOf(kSound.substr(0, random() % kSound.size()) + junk), "") << round;
  }
}

TEST(CheckDxfText, EveryPrefixOfADrawingIsRefused) {
  for (std::size_t length = 0; length + 1 < kSound.size(); ++length) {
    EXPECT_NE(RefusalOf(kSound.substr(0, length)), "") << length;
  }
}

}  // namespace
}  // namespace xsec

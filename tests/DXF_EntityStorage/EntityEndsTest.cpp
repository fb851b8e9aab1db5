#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;

TEST(GetCommonCoordinate, IsTheEndThatTheTwoShareInAnyDirection) {
  TSettingsGuard settings;
  for (const char* first : {"L 0,0 1,0", "L 1,0 0,0"}) {
    for (const char* second : {"L 1,0 2,5", "L 2,5 1,0"}) {
      const auto [coordinate, index] = GetCommonCoordinate(ParseEntity(first), ParseEntity(second));
      EXPECT_THAT(coordinate, IsBits(1, 0)) << first << " with " << second;
      EXPECT_EQ(index, 0);
    }
  }
}

TEST(GetCommonCoordinate, AnswersTheFirstEntitysOwnPoint) {
  TSettingsGuard settings;
  const TDXFEntity second = ParseEntity("L 1.00005,0 2,5");
  EXPECT_THAT(GetCommonCoordinate(ParseEntity("L 0,0 1,0"), second).aCoordinate, IsBits(1, 0));
}

TEST(GetCommonCoordinate, PrefersTheStartWhenBothEndsTouch) {
  TSettingsGuard settings;
  const TDXFEntity upper = ParseEntity("A c 0,0 r 1 0..180");
  const TDXFEntity lower = ParseEntity("A c 0,0 r 1 180..360");
  EXPECT_THAT(GetCommonCoordinate(upper, lower).aCoordinate, IsBits(upper.StartCoords));
  EXPECT_THAT(GetCommonCoordinate(lower, upper).aCoordinate, IsBits(lower.StartCoords));
}

TEST(GetCommonCoordinate, NothingSharedGivesTheOriginAndNotFound) {
  TSettingsGuard settings;
  const auto [coordinate, index] = GetCommonCoordinate(ParseEntity("L 1,1 2,2"), ParseEntity("L 3,3 4,4"));
  EXPECT_THAT(coordinate, IsBits(0, 0));
  EXPECT_EQ(index, kNotFound);
}

TEST(GetEntityEndCoordinate, IsTheOtherEnd) {
  TSettingsGuard settings;
  const TDXFEntity line = ParseEntity("L 1,2 3,4");
  EXPECT_THAT(GetEntityEndCoordinate({1, 2}, line), IsBits(3, 4));
  EXPECT_THAT(GetEntityEndCoordinate({3, 4.00005}, line), IsBits(1, 2));
}

TEST(GetEntityEndCoordinate, CoincidentEndsAnswerTheEnd) {
  TSettingsGuard settings;
  EXPECT_THAT(GetEntityEndCoordinate({1, 1}, ParseEntity("L 1,1 1.00005,1")), IsBits(1.00005, 1));
  EXPECT_THAT(GetEntityEndCoordinate({1.00005, 1}, ParseEntity("L 1,1 1.00005,1")), IsBits(1.00005, 1));
}

TEST(GetEntityEndCoordinate, NeitherEndGivesTheOrigin) {
  TSettingsGuard settings;
  EXPECT_THAT(GetEntityEndCoordinate({9, 9}, ParseEntity("L 1,2 3,4")), IsBits(0, 0));
}

}  // namespace
}  // namespace GeometryEngine

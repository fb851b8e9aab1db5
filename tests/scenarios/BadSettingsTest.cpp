// No setting, however senseless, crashes the whole path or keeps it from ending.

#include <limits>
#include <string>

#include <gmock/gmock.h>

#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using enum Maindataenum::TInputFields;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kSenseless[] = {0, -1, 1e-300, 1e300, kInfinity, -kInfinity, kNotANumber};

constexpr const char* kSquares =
    "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L 1,1 2,1; L 2,1 2,2; L 2,2 1,2; L 1,2 1,1";
constexpr const char* kMixed =
    "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; A c 4,4 r 2 0..180; A c 4,4 r 2 180..360; L 2,-1 2,5; L 7,7 9,9;"
    "A c 2,2 r 1 300..60; N";

/// Everything that a driver does, one after the other; the loops of both signs.
std::vector<support::TLoop> RunEverything(const char* aDrawing) {
  TEntityBaseClass driver;
  support::RunEveryPass(driver, support::ParseEntities(aDrawing));
  return support::GetLoops(driver);
}

class BadSettings : public testing::TestWithParam<double> {
 protected:
  support::TSettingsGuard fSettings;
};

}  // namespace

TEST_P(BadSettings, LinearToleranceUnderWhichNothingMeetsGivesNoRegion) {
  fSettings.With(ifLinearTolerance, GetParam());
  const bool exactMatchesPass = GetParam() == 1e-300;
  EXPECT_EQ(RunEverything(kSquares).size(), exactMatchesPass ? 4U : 0U);
  EXPECT_EQ(RunEverything(kMixed).empty(), !exactMatchesPass);
}

TEST_P(BadSettings, AngleToleranceDoesNotTouchLines) {
  fSettings.With(ifAngleTolerance, GetParam());
  EXPECT_EQ(RunEverything(kSquares).size(), 4U);
  EXPECT_LE(RunEverything(kMixed).size(), 20U);
}

TEST_P(BadSettings, SnappingModeDoesNotTouchCoordinatesFarFromZero) {
  fSettings.With(ifSnappingMode, GetParam());
  EXPECT_EQ(RunEverything(kSquares).size(), 4U);
  EXPECT_GT(RunEverything(kMixed).size(), 4U);
}

TEST_P(BadSettings, MinimumLabelAreaDoesNotTouchTheRegions) {
  fSettings.With(ifMinimumLabelArea, GetParam());
  EXPECT_EQ(RunEverything(kSquares).size(), 4U);
  EXPECT_GT(RunEverything(kMixed).size(), 4U);
}

TEST_P(BadSettings, ArcResolutionDoesNotTouchTheRegions) {
  fSettings.With(ifArcResolution, GetParam());
  EXPECT_EQ(RunEverything(kSquares).size(), 4U);
  EXPECT_GT(RunEverything(kMixed).size(), 4U);
}

// The far end of every line is looked up among the vertices, and none is found.
TEST_P(BadSettings, LinearToleranceUnderWhichNothingMeetsEndsChainsOfOneLine) {
  fSettings.With(ifLinearTolerance, GetParam());
  support::TDetection apart("L 0,0 1,0; L 2,0 3,0");
  apart.driver.DetectOrphanEntities(apart.driver.CoordinateTree());
  for (const support::TLoop& chain : support::GetLoops(apart.driver)) EXPECT_EQ(chain.count, 1);
  TEntityBaseClass driver;
  driver.AddEntityToCoordinateTree(driver.CoordinateTree(), support::ParseEntity("L 0,0 1,0"));
  driver.DetectOrphanEntities(driver.CoordinateTree());
  for (const support::TLoop& chain : support::GetLoops(driver)) EXPECT_EQ(chain.count, 1);
}

INSTANTIATE_TEST_SUITE_P(Values, BadSettings, testing::ValuesIn(kSenseless));

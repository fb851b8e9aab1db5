// Settings of every kind, in pairs, and changed between every two calls of a detection: each call ends, and what it
// leaves can be used.

#include <algorithm>
#include <functional>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "GeometryEngine/host/TDataStore.h"
#include "tests/everything/Observations.h"
#include "tests/support/Detection.h"
#include "tests/support/Repetitions.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using enum Maindataenum::TInputFields;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kValues[] = {1e-4, 0, -1, 1e-300, 0.5, 1e9, 1e300, kInfinity, -kInfinity, kNotANumber};
constexpr Maindataenum::TInputFields kFields[] = {ifLinearTolerance,  ifSnappingMode,     ifAngleTolerance,
                                                  ifMinimumLabelArea, ifArcResolution,    ifUniqueRegionNames,
                                                  ifSlotDuplications, ifPoleDuplications, ifBarDuplications};

// Huge resolutions, with a million chords an arc, are left to BadSettings.
double ValueFor(Maindataenum::TInputFields aField, double aValue) {
  return aField == ifArcResolution && aValue > 1000 ? 1000 : aValue;
}

TEntityArray SmallDrawing() {
  TEntityArray drawing = everything::RoundedChain(1, 1, 4);
  drawing.push_back(CreateEntity_Line(0, 2.25, 9, 2.75));
  drawing.push_back(CreateEntity_Line(0, 2.25, 9, 2.75));
  drawing.push_back(CreateEntity_Line(2, 0, 3, 9));
  drawing.push_back(CreateEntity_Line(40, 0, 41, 0));
  return drawing;
}

// The number of regions.
TIndex DetectAll(
    const TEntityArray& aDrawing, const std::function<void()>& aBetween = [] {}) {
  TEntityBaseClass driver;
  support::RunEveryPass(driver, aDrawing, aBetween);
  for (const TMachineLocation location : {mlShaft, mlArmature, mlField}) GetDuplicationNumber_Regions(location);
  return driver.RegionTree().RootNode()->Count();
}

class SettingsMatrix : public testing::TestWithParam<Maindataenum::TInputFields> {
 protected:
  support::TSettingsGuard fSettings;
};

std::string NameOf(const testing::TestParamInfo<Maindataenum::TInputFields>& aInfo) {
  return "Field" + std::to_string(static_cast<int>(aInfo.param));
}

}  // namespace

TEST_P(SettingsMatrix, OfTwoFieldsEndsAndLeavesADriverThatDetectsAgain) {
  const TEntityArray drawing = SmallDrawing();
  const TIndex expected = DetectAll(drawing);
  ASSERT_GT(expected, 3);
  for (const auto other : kFields) {
    for (const double value : kValues) {
      for (const double second : {-1.0, 0.3, kNotANumber}) {
        fSettings.With(GetParam(), ValueFor(GetParam(), value)).With(other, second);
        EXPECT_LE(DetectAll(drawing), 200);
        Kelvaralinks::dataStore.Reset();
      }
    }
  }
  EXPECT_EQ(DetectAll(drawing), expected);
}

TEST_P(SettingsMatrix, ChangedBetweenEveryTwoCallsEnds) {
  const TEntityArray drawing = SmallDrawing();
  for (const double value : kValues) {
    for (std::size_t first = 0; first < std::size(kValues); ++first) {
      std::size_t next = first;
      DetectAll(drawing, [&] {
        const double changed = next % 2 == 0 ? value : kValues[next / 2 % std::size(kValues)];
        fSettings.With(GetParam(), ValueFor(GetParam(), changed));
        ++next;
      });
      Kelvaralinks::dataStore.Reset();
    }
  }
  EXPECT_GT(DetectAll(drawing), 3);
}

INSTANTIATE_TEST_SUITE_P(Fields, SettingsMatrix, testing::ValuesIn(kFields), NameOf);

// The two tolerances, the snapping mode and the resolution of arcs, each at every value with every value of the others:
// every ninety-seventh of the 5184, all with tools/reliability.
TEST(LongRun, EveryFourFieldsTogetherEnd) {
  constexpr double kTolerances[] = {1e-4, 0,   -1,    1e-300,    5e-324,     1e-12,
                                    0.5,  1e9, 1e300, kInfinity, -kInfinity, kNotANumber};
  constexpr double kModes[] = {0, 1, 2, kNotANumber};
  constexpr double kResolutions[] = {5, 0, -1, 1e-300, 0.3, 50, 1000, -kInfinity, kNotANumber};
  constexpr std::size_t kAll = 12 * 12 * 4 * 9;
  support::TSettingsGuard settings;
  const TEntityArray drawing = SmallDrawing();
  const TIndex expected = DetectAll(drawing);
  const auto step = static_cast<std::size_t>(std::max(1, 97 / support::Repetitions(1)));
  for (std::size_t i = 0; i < kAll; i += step) {
    settings.With(ifLinearTolerance, kTolerances[i % 12]).With(ifAngleTolerance, kTolerances[i / 12 % 12]);
    settings.With(ifSnappingMode, kModes[i / 144 % 4]).With(ifArcResolution, kResolutions[i / 576]);
    EXPECT_LE(DetectAll(drawing), 200) << i;
  }
  Kelvaralinks::dataStore.Reset();
  EXPECT_EQ(DetectAll(drawing), expected);
}

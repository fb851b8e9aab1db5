// Settings of every kind, in pairs, and changed between every two calls of a detection: each call ends, and what it
// leaves can be used.

#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "GeometryEngine/host/TDataStore.h"
#include "tests/everything/Observations.h"
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

// The passes of a detection, with `aBetween` called between each two of them; the number of regions.
template <typename TBetween>
TIndex DetectAll(const TEntityArray& aDrawing, const TBetween& aBetween) {
  TEntityStorage drawing;
  drawing.AddEntities(aDrawing);
  TEntityBaseClass driver;
  driver.DetermineInterceptions(&drawing);
  aBetween();
  driver.DetermineRegions(driver.CoordinateTree(), 0);
  aBetween();
  driver.IdentifySubRegions(driver.CoordinateTree());
  aBetween();
  driver.RemoveDuplicatedSubRegions();
  TTree_Geometry tree;
  const TIndex regions = driver.RegionTree().RootNode()->Count();
  for (TIndex i = 0; i < regions; ++i) {
    auto node = tree.CreateTreeNode();
    auto* region = TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node));
    driver.AddRegionEntities(region, i);
    aBetween();
    region->UpdateGeometry_Outputs();
    region->SetRegionName("Region");
  }
  aBetween();
  driver.DetermineInterceptions(&drawing);
  aBetween();
  driver.DetectOrphanEntities(driver.CoordinateTree());
  for (const TMachineLocation location : {mlShaft, mlArmature, mlField}) GetDuplicationNumber_Regions(location);
  return regions;
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
  const TIndex expected = DetectAll(drawing, [] {});
  ASSERT_GT(expected, 3);
  for (const auto other : kFields) {
    for (const double value : kValues) {
      for (const double second : {-1.0, 0.3, kNotANumber}) {
        fSettings.With(GetParam(), ValueFor(GetParam(), value)).With(other, second);
        EXPECT_LE(DetectAll(drawing, [] {}), 200);
        Kelvaralinks::dataStore.Reset();
      }
    }
  }
  EXPECT_EQ(DetectAll(drawing, [] {}), expected);
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
  EXPECT_GT(DetectAll(drawing, [] {}), 3);
}

INSTANTIATE_TEST_SUITE_P(Fields, SettingsMatrix, testing::ValuesIn(kFields), NameOf);

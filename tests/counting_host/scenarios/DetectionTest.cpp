// A whole detection request against a store that counts and fails.

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Chains.h"
#include "tests/support/DetectedRegions.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Kelvaralinks::dataStore;
using Maindataenum::TInputFields;
using support::DetectRegions;
using support::ToText;
using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

// A plate with a slot across its right edge, a round hole, and a C-shaped pocket whose label is not its centroid.
constexpr const char* kDrawing =
    "L 0,0 40,0; L 40,0 40,26; A c 36,26 r 4 0..90; L 36,30 0,30; L 0,30 0,0; L 30,20 50,20; L 50,20 50,24; "
    "L 50,24 30,24; L 30,24 30,20; A c 8,8 r 3 0..180; A c 8,8 r 3 180..360; L 16,4 28,4; L 28,4 28,6; L 28,6 18,6; "
    "L 18,6 18,14; L 18,14 28,14; L 28,14 28,16; L 28,16 16,16; L 16,16 16,4; L 100,0 101,0";

std::vector<std::string> Summary(const std::vector<support::DetectedRegion>& aRegions) {
  std::vector<std::string> summary;
  for (const support::DetectedRegion& region : aRegions) {
    summary.push_back(ToText(region.netArea) + " at " + ToText(region.centroid) + " label " + ToText(region.label));
  }
  return summary;
}

struct TDetectionCountedTest : ::testing::Test {
  TSettingsGuard settings;
  TEntityStorage storage;
  TEntityBaseClass driver;
  TDetectionCountedTest() { support::AddText(storage, kDrawing); }

  std::vector<std::string> Detect() { return Summary(DetectRegions(driver, storage)); }

  // Lets the field fail at about `aTimes` places of a detection, and detects again after each failure.
  void ExpectUsableAfterFailuresOf(TInputFields aField, std::size_t aTimes) {
    const std::vector<std::string> expected = Detect();
    dataStore.ForgetReads();
    Detect();
    const std::size_t reads = dataStore.Reads(aField);
    ASSERT_GT(reads, 0U);
    for (std::size_t place = 0; place < reads; place += 1 + reads / aTimes) {
      dataStore.FailAfter(aField, place);
      EXPECT_THROW(Detect(), Kelvaralinks::TStoreFailure) << place;
      dataStore.Reset();
      ASSERT_EQ(Detect(), expected) << place;
    }
  }
};

TEST_F(TDetectionCountedTest, FindsTheRegionsOfTheDrawing) {
  EXPECT_EQ(Detect().size(), 5U);
}

TEST_F(TDetectionCountedTest, ReadsNoFieldButThoseOfTheTable) {
  Detect();
  std::set<TInputFields> fields;
  for (const auto& [field, reads] : dataStore.AllReads()) fields.insert(field);
  EXPECT_THAT(fields, ::testing::IsSubsetOf({ifLinearTolerance, ifSnappingMode, ifAngleTolerance, ifMinimumLabelArea,
                                             ifArcResolution, ifUniqueRegionNames, ifSlotDuplications,
                                             ifPoleDuplications, ifBarDuplications}));
  EXPECT_GT(dataStore.Reads(ifLinearTolerance), 100U);  // afresh for many comparisons, not once
  EXPECT_EQ(dataStore.Reads(ifMinimumLabelArea), 5U);
  EXPECT_EQ(dataStore.Reads(ifUniqueRegionNames), 0U);
}

TEST_F(TDetectionCountedTest, TextSettingsGiveTheSameRegions) {
  const std::vector<std::string> expected = Detect();
  for (const auto& [field, text] : {std::pair{ifLinearTolerance, "1e-4"},
                                    {ifSnappingMode, "1"},
                                    {ifAngleTolerance, "0.0001"},
                                    {ifMinimumLabelArea, "0"},
                                    {ifArcResolution, "5.0"}}) {
    dataStore.SetValue(field, text);
  }
  EXPECT_EQ(Detect(), expected);
}

TEST_F(TDetectionCountedTest, IsUsableAfterFailuresOfTheLinearTolerance) {
  ExpectUsableAfterFailuresOf(ifLinearTolerance, 60);
}

TEST_F(TDetectionCountedTest, IsUsableAfterFailuresOfTheAngleTolerance) {
  ExpectUsableAfterFailuresOf(ifAngleTolerance, 20);
}

TEST_F(TDetectionCountedTest, IsUsableAfterFailuresOfTheMinimumLabelArea) {
  ExpectUsableAfterFailuresOf(ifMinimumLabelArea, 5);
}

TEST_F(TDetectionCountedTest, IsUsableAfterFailuresOfTheArcResolution) {
  ExpectUsableAfterFailuresOf(ifArcResolution, 20);
}

TEST_F(TDetectionCountedTest, EndsWithoutANumberInAnySetting) {
  for (const auto& field : {ifLinearTolerance, ifSnappingMode, ifAngleTolerance, ifMinimumLabelArea, ifArcResolution}) {
    dataStore.SetValue(field, "none");
    EXPECT_NO_THROW(Detect());
  }
}

}  // namespace
}  // namespace GeometryEngine

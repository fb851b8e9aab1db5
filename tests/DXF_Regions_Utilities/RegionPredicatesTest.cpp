#include "GeometryEngine/DXF_Regions_Utilities/RegionPredicates.h"

#include <array>

#include <gtest/gtest.h>

#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::TSettingsGuard;

TEST(IsSYNCRotorWinding_Region, FindsRotorPoleAnywhereInTheName) {
  TSettingsGuard settings;
  settings.WithMachineType(6);
  EXPECT_TRUE(IsSYNCRotorWinding_Region("RotorPole"));
  EXPECT_TRUE(IsSYNCRotorWinding_Region("Old RotorPole_3"));
  for (const char* name : {"", "Rotor Pole", "rotorpole", "Rotor", "RotorPol"}) {
    EXPECT_FALSE(IsSYNCRotorWinding_Region(name)) << name;
  }
}

TEST(IsSYNCRotorWinding_Region, IsFalseForAnyOtherMachine) {
  for (int type = 0; type < 256; ++type) {
    TSettingsGuard settings;
    settings.WithMachineType(static_cast<std::uint8_t>(type));
    EXPECT_EQ(IsSYNCRotorWinding_Region("RotorPole"), type == 6) << type;
  }
}

TEST(RegionMerged, HoldsForAnIndexInTheList) {
  const std::array<std::int32_t, 3> merged{4, -1, 7};
  EXPECT_TRUE(RegionMerged(4, merged));
  EXPECT_TRUE(RegionMerged(7, merged));
  EXPECT_FALSE(RegionMerged(5, merged));
  EXPECT_FALSE(RegionMerged(0, {}));
}

}  // namespace
}  // namespace GeometryEngine

#include "tests/support/Settings.h"

#include <gtest/gtest.h>

#include "GeometryEngine/host/TDataStore.h"
#include "GeometryEngine/host/TInputData.h"

namespace GeometryEngine::support {
namespace {

using enum Maindataenum::TInputFields;

TEST(TSettingsGuard, GivesAndPutsBackTheStartingValues) {
  Kelvaralinks::dataStore.SetValue(ifArcResolution, 17);
  {
    TSettingsGuard settings;
    EXPECT_EQ(Kelvaralinks::dataStore.GetValue(ifArcResolution), 5);
    settings.With(ifLinearTolerance, 0.5).With(ifSnappingMode, 0).WithMachineType(6);
    EXPECT_EQ(Kelvaralinks::dataStore.GetValue(ifLinearTolerance), 0.5);
    EXPECT_EQ(Kelvaralinks::dataStore.GetValue(ifSnappingMode), 0);
    EXPECT_EQ(Kelvaralinks::InputData.MachineType, 6);
  }
  EXPECT_EQ(Kelvaralinks::dataStore.GetValue(ifLinearTolerance), 1e-4);
  EXPECT_EQ(Kelvaralinks::dataStore.GetValue(ifSnappingMode), 1);
  EXPECT_EQ(Kelvaralinks::InputData.MachineType, 0);
}

}  // namespace
}  // namespace GeometryEngine::support

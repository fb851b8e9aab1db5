#include "GeometryEngine/DXF_Regions_Utilities/RegionPoints.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/host/TInputFields.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::IsNear;
using support::TSettingsGuard;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(GetRegionPoint, StepsAHundredTolerancesTowardsC) {
  const TSettingsGuard settings;
  EXPECT_THAT(GetRegionPoint({0, 0}, {4, 0}, {6, 2}), IsNear(2.01, 0.005, 1e-12));   // C on the right
  EXPECT_THAT(GetRegionPoint({0, 0}, {4, 0}, {-2, 2}), IsNear(1.99, 0.005, 1e-12));  // C on the left
}

TEST(GetRegionPoint, FollowsTheHostsTolerance) {
  TSettingsGuard settings;
  settings.With(Maindataenum::TInputFields::ifLinearTolerance, 1e-3);
  EXPECT_THAT(GetRegionPoint({0, 0}, {4, 0}, {6, 2}), IsNear(2.1, 0.05, 1e-12));
}

TEST(GetRegionPoint, IsAWithCStraightAboveTheMiddle) {
  const TSettingsGuard settings;
  EXPECT_THAT(GetRegionPoint({0, 0}, {4, 0}, {2, 5}), IsBits(0, 0));
  EXPECT_THAT(GetRegionPoint({0, 0}, {4, 0}, {2, -5}), IsBits(0, 0));
}

TEST(GetRegionPoint, IsAWhenCIsNearerThanTheStep) {
  const TSettingsGuard settings;
  EXPECT_THAT(GetRegionPoint({0, 1}, {4, 1}, {2.005, 1.1}), IsBits(0, 1));
}

TEST(GetRegionPoint, IsAForAToleranceThatGivesNoStep) {
  for (const double tolerance : {0.0, -1.0, kNaN, kInfinity}) {
    TSettingsGuard settings;
    settings.With(Maindataenum::TInputFields::ifLinearTolerance, tolerance);
    EXPECT_THAT(GetRegionPoint({1, 0}, {4, 0}, {6, 2}), IsBits(1, 0)) << tolerance;
  }
}

TEST(GetRegionPoint, IsAForCoordinatesThatAreNoNumbers) {
  const TSettingsGuard settings;
  EXPECT_THAT(GetRegionPoint({1, 0}, {4, 0}, {kNaN, 2}), IsBits(1, 0));
  EXPECT_THAT(GetRegionPoint({1, 0}, {kNaN, 0}, {6, 2}), IsBits(1, 0));
}

}  // namespace
}  // namespace GeometryEngine

#include "GeometryEngine/GeometryCreation_Drawing/CoordinateCleaning.h"

#include <cmath>
#include <limits>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;
using Maindataenum::TInputFields;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(CheckCoordinateValue, NotANumberAndInfinitiesAreZeroWhateverTheSettings) {
  TSettingsGuard settings;
  for (const double mode : {0.0, 1.0, 2.0, kNaN}) {
    settings.With(TInputFields::ifSnappingMode, mode);
    for (const double value : {kNaN, kInfinity, -kInfinity})
      EXPECT_EQ(CheckCoordinateValue(value), 0) << value << " in mode " << mode;
  }
}

TEST(CheckCoordinateValue, ModeOneSnapsUpToTheToleranceInclusiveKept) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 1e-6);
  EXPECT_EQ(CheckCoordinateValue(1e-6), 0);
  EXPECT_EQ(CheckCoordinateValue(-1e-6), 0);
  EXPECT_FALSE(ValuesSame_DXFTolerance(1e-6, 0));
  EXPECT_EQ(CheckCoordinateValue(std::nextafter(1e-6, 1)), std::nextafter(1e-6, 1));
  EXPECT_EQ(CheckCoordinateValue(2e-6), 2e-6);
}

TEST(CheckCoordinateValue, ModeZeroSnapsNothing) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifSnappingMode, 0).With(TInputFields::ifLinearTolerance, 1e-6);
  EXPECT_EQ(CheckCoordinateValue(1e-6), 1e-6);
  EXPECT_EQ(CheckCoordinateValue(2e-6), 2e-6);
}

TEST(CheckCoordinateValue, AnyOtherModeSnapsNothing) {
  TSettingsGuard settings;
  for (const double mode : {2.0, -1.0, 0.5, kNaN}) {
    settings.With(TInputFields::ifSnappingMode, mode);
    EXPECT_EQ(CheckCoordinateValue(1e-12), 1e-12) << "mode " << mode;
  }
}

TEST(CheckCoordinateValue, ToleranceOfZeroSnapsWithinTheStandardResolution) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 0);
  EXPECT_EQ(CheckCoordinateValue(1e-12), 0);
  EXPECT_EQ(CheckCoordinateValue(2e-12), 2e-12);
}

TEST(CheckCoordinateValue, NegativeOrNotANumberToleranceSnapsNothing) {
  TSettingsGuard settings;
  for (const double tolerance : {-1.0, kNaN}) {
    settings.With(TInputFields::ifLinearTolerance, tolerance);
    EXPECT_EQ(CheckCoordinateValue(1e-15), 1e-15) << "tolerance " << tolerance;
  }
}

TEST(CheckCoordinateValue, InfiniteToleranceSnapsEverything) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, kInfinity);
  EXPECT_EQ(CheckCoordinateValue(1e300), 0);
}

TEST(CheckCoordinate, CleansBothComponents) {
  TSettingsGuard settings;
  EXPECT_THAT(CheckCoordinate({kNaN, 3}), IsBits(0, 3));
  EXPECT_THAT(CheckCoordinate({-7, 5e-5}), IsBits(-7, 0));
}

}  // namespace
}  // namespace GeometryEngine

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"

#include <limits>
#include <variant>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/GeometryCreation_Drawing/CoordinateCleaning.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Kelvaralinks::dataStore;
using support::IsBits;
using support::IsNear;
using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct TConstructionCountedTest : ::testing::Test {
  TSettingsGuard settings;

  static void ExpectReads(std::size_t aMode, std::size_t aTolerance) {
    EXPECT_EQ(dataStore.Reads(ifSnappingMode), aMode);
    EXPECT_EQ(dataStore.Reads(ifLinearTolerance), aTolerance);
    dataStore.ForgetReads();
  }
};

TEST_F(TConstructionCountedTest, CheckCoordinateValueReadsTheModeAndThenTheTolerance) {
  EXPECT_EQ(CheckCoordinateValue(1e-5), 0);
  ExpectReads(1, 1);
  settings.With(ifSnappingMode, 0);
  EXPECT_EQ(CheckCoordinateValue(1e-5), 1e-5);
  ExpectReads(1, 0);
}

TEST_F(TConstructionCountedTest, CheckCoordinateValueReadsNothingForWhatIsNotFinite) {
  EXPECT_EQ(CheckCoordinateValue(kInfinity), 0);
  EXPECT_EQ(CheckCoordinateValue(std::numeric_limits<double>::quiet_NaN()), 0);
  ExpectReads(0, 0);
}

TEST_F(TConstructionCountedTest, LinesReadNothing) {
  EXPECT_THAT(CreateEntity_Line(1e-5, 0, 1, 1), IsBits("L 1e-05,0 1,1"));
  ExpectReads(0, 0);
}

TEST_F(TConstructionCountedTest, ArcsReadTheModeTwiceForEachComponentOfTheCentre) {
  CreateEntity_Arc(1, 2, 3, 0, 90);
  ExpectReads(4, 2);
  settings.With(ifSnappingMode, 0);
  CreateEntity_Arc(1, 2, 3, 0, 90);
  ExpectReads(4, 0);
}

TEST_F(TConstructionCountedTest, ArcsFromEndsReadTheModeOnceMoreForEachEndComponent) {
  CreateEntity_Arc_StartEnd(0, 0, 4, 0, 0, 4);
  ExpectReads(8, 6);
  settings.With(ifSnappingMode, 0);
  CreateEntity_Arc_StartEnd(0, 0, 4, 0, 0, 4);
  ExpectReads(8, 0);
}

TEST_F(TConstructionCountedTest, TheModeMayBeText) {
  dataStore.SetValue(ifSnappingMode, "1");
  EXPECT_EQ(CheckCoordinateValue(1e-5), 0);
  dataStore.SetValue(ifSnappingMode, "on");
  EXPECT_EQ(CheckCoordinateValue(1e-5), 1e-5);
  EXPECT_EQ(CreateEntity_Arc(1e-10, 5, 2, 0, 90).CentreCoords.x, 1e-10);
}

TEST_F(TConstructionCountedTest, NothingIsModeZero) {
  dataStore.SetValue(ifSnappingMode, std::monostate{});
  EXPECT_EQ(CheckCoordinateValue(1e-10), 1e-10);
  EXPECT_THAT(CreateEntity_Arc(1e-10, 5, 2, 0, 90), IsNear("A c 0,5 r 2 0..90", 1e-15));
}

TEST_F(TConstructionCountedTest, AToleranceOfNothingOrNonsenseSnapsByTheStandardOrNotAtAll) {
  dataStore.SetValue(ifLinearTolerance, std::monostate{});
  EXPECT_EQ(CheckCoordinateValue(1e-13), 0);
  EXPECT_EQ(CheckCoordinateValue(1e-11), 1e-11);
  dataStore.SetValue(ifLinearTolerance, "wide");
  EXPECT_EQ(CheckCoordinateValue(1e-13), 1e-13);
}

TEST_F(TConstructionCountedTest, CheckCoordinateValueSwallowsAFailureAndReturnsTheValue) {
  dataStore.FailAfter(ifSnappingMode, 0);
  EXPECT_EQ(CheckCoordinateValue(1e-5), 1e-5);
  EXPECT_EQ(CheckCoordinateValue(kInfinity), 0);
  dataStore.Reset();
  dataStore.FailAfter(ifLinearTolerance, 0);
  EXPECT_EQ(CheckCoordinateValue(1e-5), 1e-5);
  EXPECT_THAT(CheckCoordinate({1e-5, -kInfinity}), IsBits(1e-5, 0));
}

TEST_F(TConstructionCountedTest, ArcsLetAFailureThroughThatIsNotCheckCoordinateValues) {
  dataStore.FailAfter(ifSnappingMode, 0);
  EXPECT_THROW(CreateEntity_Arc(1, 2, 3, 0, 90), Kelvaralinks::TStoreFailure);
  EXPECT_THROW(CreateEntity_Arc_StartEnd(0, 0, 4, 0, 0, 4), Kelvaralinks::TStoreFailure);
  EXPECT_NO_THROW(CreateEntity_Line(0, 0, 1, 1));
  dataStore.Reset();
  dataStore.FailAfter(ifLinearTolerance, 0);
  EXPECT_NO_THROW(CreateEntity_Arc(1, 2, 3, 0, 90));
}

}  // namespace
}  // namespace GeometryEngine

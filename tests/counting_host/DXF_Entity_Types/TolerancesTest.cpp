#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"

#include <cstddef>
#include <variant>

#include <gtest/gtest.h>

#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Kelvaralinks::dataStore;
using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

struct TTolerancesCountedTest : ::testing::Test {
  TSettingsGuard settings;
};

TEST_F(TTolerancesCountedTest, EachComparisonReadsItsToleranceOnce) {
  std::size_t comparisons = 0;
  for (const auto compare : {ValuesSame_DXFTolerance, ValueLessThan_DXFTolerance, ValueMoreThan_DXFTolerance}) {
    compare(1, 2);
    compare(1, 1);
    comparisons += 2;
    EXPECT_EQ(dataStore.Reads(ifLinearTolerance), comparisons);
  }
  EXPECT_EQ(dataStore.AllReads().size(), 1U);
}

TEST_F(TTolerancesCountedTest, EachComparisonOfAnglesReadsTheAngleToleranceOnce) {
  std::size_t comparisons = 0;
  for (const auto compare : {ValuesSame_DXFAngle, ValuesLessThanOrEqual_DXFAngle, ValuesMoreThanOrEqual_DXFAngle}) {
    compare(1, 2);
    compare(1, 1);
    comparisons += 2;
    EXPECT_EQ(dataStore.Reads(ifAngleTolerance), comparisons);
  }
  EXPECT_EQ(dataStore.AllReads().size(), 1U);
}

TEST_F(TTolerancesCountedTest, AChangeHoldsFromTheNextComparisonOn) {
  EXPECT_FALSE(ValuesSame_DXFTolerance(0, 1));
  dataStore.SetValue(ifLinearTolerance, 2.0);
  EXPECT_TRUE(ValuesSame_DXFTolerance(0, 1));
}

TEST_F(TTolerancesCountedTest, ATextIsReadAsItsNumber) {
  dataStore.SetValue(ifLinearTolerance, "0.001");
  EXPECT_TRUE(ValuesSame_DXFTolerance(0, 0.0009));
  EXPECT_FALSE(ValuesSame_DXFTolerance(0, 0.0011));
  EXPECT_EQ(GetLinearEquation_DXFTolerance(0, 0, 0.0009, 1).aSlope, 0);
}

TEST_F(TTolerancesCountedTest, NothingIsTheSameUnderNothingOrNonsense) {
  dataStore.SetValue(ifLinearTolerance, std::monostate{});
  EXPECT_FALSE(ValuesSame_DXFTolerance(1, 1));
  dataStore.SetValue(ifLinearTolerance, "wide");
  EXPECT_FALSE(ValuesSame_DXFTolerance(1, 1));
  EXPECT_TRUE(ValueLessThan_DXFTolerance(1, 2));
}

TEST_F(TTolerancesCountedTest, AFailureOfTheStoreComesThrough) {
  dataStore.FailAfter(ifLinearTolerance, 0);
  dataStore.FailAfter(ifAngleTolerance, 0);
  EXPECT_THROW(ValuesSame_DXFTolerance(1, 1), Kelvaralinks::TStoreFailure);
  EXPECT_THROW(ValueMoreThan_DXFTolerance(1, 1), Kelvaralinks::TStoreFailure);
  EXPECT_THROW(ValuesLessThanOrEqual_DXFAngle(1, 1), Kelvaralinks::TStoreFailure);
  EXPECT_THROW(GetLinearEquation_DXFTolerance(0, 0, 1, 1), Kelvaralinks::TStoreFailure);
}

}  // namespace
}  // namespace GeometryEngine

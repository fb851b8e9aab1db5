#include "GeometryEngine/host/TDataStore.h"

#include <clocale>
#include <cmath>
#include <variant>

#include <gtest/gtest.h>

#include "tests/support/Settings.h"

namespace Kelvaralinks {
namespace {

using GeometryEngine::support::TSettingsGuard;
using enum Maindataenum::TInputFields;

struct TCountingStoreTest : ::testing::Test {
  TSettingsGuard settings;
};

TEST_F(TCountingStoreTest, StartsWithTheSameValuesAsTheLibrarysOwn) {
  EXPECT_EQ(dataStore.GetValue(ifLinearTolerance), 1e-4);
  EXPECT_EQ(dataStore.GetValue(ifArcResolution), 5);
  EXPECT_EQ(dataStore.GetValue(Maindataenum::TInputFields{17}), 0);
}

TEST_F(TCountingStoreTest, CountsTheReadingsOfEachField) {
  dataStore.GetValue(ifLinearTolerance);
  dataStore.GetValue(ifLinearTolerance);
  dataStore.GetValue(ifSnappingMode);
  EXPECT_EQ(dataStore.Reads(ifLinearTolerance), 2U);
  EXPECT_EQ(dataStore.Reads(ifSnappingMode), 1U);
  EXPECT_EQ(dataStore.Reads(ifAngleTolerance), 0U);
  EXPECT_EQ(dataStore.AllReads().size(), 2U);
  dataStore.ForgetReads();
  EXPECT_EQ(dataStore.Reads(ifLinearTolerance), 0U);
}

TEST_F(TCountingStoreTest, ReadsTextAsANumber) {
  dataStore.SetValue(ifLinearTolerance, "0.001");
  EXPECT_EQ(dataStore.GetValue(ifLinearTolerance), 0.001);
}

TEST_F(TCountingStoreTest, ReadsTextWhateverTheLocaleIs) {
  ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);  // with decimal commas
  dataStore.SetValue(ifLinearTolerance, "0.001");
  EXPECT_EQ(dataStore.GetValue(ifLinearTolerance), 0.001);
  dataStore.SetValue(ifLinearTolerance, "0,001");
  EXPECT_TRUE(std::isnan(dataStore.GetValue(ifLinearTolerance)));
  std::setlocale(LC_ALL, "C");
}

TEST_F(TCountingStoreTest, ReadsOtherTextAsNotANumber) {
  for (const char* text : {"", "wide", "1 mm", "1e", " 1"}) {
    dataStore.SetValue(ifLinearTolerance, text);
    EXPECT_TRUE(std::isnan(dataStore.GetValue(ifLinearTolerance))) << text;
  }
}

TEST_F(TCountingStoreTest, ReadsNothingAsZero) {
  dataStore.SetValue(ifLinearTolerance, std::monostate{});
  EXPECT_EQ(dataStore.GetValue(ifLinearTolerance), 0);
}

TEST_F(TCountingStoreTest, FailsFromTheGivenReadingOn) {
  dataStore.FailAfter(ifLinearTolerance, 1);
  EXPECT_NO_THROW(dataStore.GetValue(ifLinearTolerance));
  EXPECT_THROW(dataStore.GetValue(ifLinearTolerance), TStoreFailure);
  EXPECT_THROW(dataStore.GetValue(ifLinearTolerance), TStoreFailure);
  EXPECT_NO_THROW(dataStore.GetValue(ifAngleTolerance));
  dataStore.Reset();
  EXPECT_NO_THROW(dataStore.GetValue(ifLinearTolerance));
}

}  // namespace
}  // namespace Kelvaralinks

#include "xsec/Settings.h"

#include <gmock/gmock.h>

#include "GeometryEngine/host/TDataStore.h"
#include "GeometryEngine/host/TInputData.h"
#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/Errors.h"

namespace xsec {
namespace {

using enum Maindataenum::TInputFields;
using Kelvaralinks::dataStore;

double ValueIn(const Settings& settings, std::uint16_t field) {
  for (const FieldValue& value : settings.fields) {
    if (value.field == field) return value.value;
  }
  ADD_FAILURE() << "field " << field << " is not listed";
  return 0;
}

TEST(DefaultTolerance, IsAMillionthOfTheDiagonal) {
  EXPECT_DOUBLE_EQ(DefaultTolerance(DrawingOf(Rectangle(-1, -1, 2, 3))), 5e-6);
}

TEST(DefaultTolerance, OfPartsSideBySideIsThatOfTheLargest) {
  EXPECT_DOUBLE_EQ(DefaultTolerance(DrawingOf(Rectangle(0, 0, 3, 4) + Rectangle(9, 0, 10, 1) + Circle(50, 70, 1))),
                   5e-6);
  EXPECT_DOUBLE_EQ(DefaultTolerance(DrawingOf(Rectangle(0, 0, 30, 40) + Rectangle(9, 0, 10, 1))), 5e-5);
}

TEST(DefaultTolerance, EdgesThatNearlyMeetAreOnePart) {
  EXPECT_DOUBLE_EQ(DefaultTolerance(DrawingOf("L 0,0 30,0; L 0,5e-5 30,40")), 5e-5);
}

TEST(DefaultTolerance, OfADrawingWithoutSizeIsThatOfTheHost) {
  EXPECT_EQ(DefaultTolerance({}), 1e-4);
  EXPECT_EQ(DefaultTolerance(DrawingOf("L 5,5 5,5")), 1e-4);
}

TEST(ToleranceOrigin, SaysWhatTheToleranceIsTakenFrom) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Drawing one = DrawingOf(Rectangle(0, 0, 30, 40));
  const Drawing two = DrawingOf(Rectangle(0, 0, 30, 40) + Rectangle(50, 0, 51, 1));
  EXPECT_EQ(ToleranceOrigin(ApplySettings({}, one), one), ", a millionth of the drawing's diagonal");
  EXPECT_EQ(ToleranceOrigin(ApplySettings({}, two), two), ", a millionth of the diagonal of its largest part");
  EXPECT_EQ(ToleranceOrigin(ApplySettings({0.25, {}, 0}, two), two), "");
}

TEST(ApplySettings, SetsTheToleranceFromTheDrawingUnlessItIsGiven) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Settings byDefault = ApplySettings({}, DrawingOf(Rectangle(0, 0, 30, 40)));
  EXPECT_DOUBLE_EQ(dataStore.GetValue(ifLinearTolerance), 5e-5);
  EXPECT_DOUBLE_EQ(byDefault.tolerance, 5e-5);
  EXPECT_FALSE(byDefault.toleranceGiven);

  const Settings given = ApplySettings({0.25, {}, 0}, DrawingOf(Rectangle(0, 0, 30, 40)));
  EXPECT_EQ(dataStore.GetValue(ifLinearTolerance), 0.25);
  EXPECT_EQ(given.tolerance, 0.25);
  EXPECT_TRUE(given.toleranceGiven);
}

TEST(ApplySettings, SetsFieldsByNumberAndTheMachineType) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Settings settings = ApplySettings({{}, {{6529, 9}, {77, 1.5}, {6525, 0.5}, {6529, 11}}, 6}, {});
  EXPECT_EQ(dataStore.GetValue(ifArcResolution), 11);
  EXPECT_EQ(dataStore.GetValue(static_cast<Maindataenum::TInputFields>(77)), 1.5);
  EXPECT_EQ(Kelvaralinks::InputData.MachineType, 6);
  EXPECT_EQ(settings.tolerance, 0.5);
  EXPECT_TRUE(settings.toleranceGiven);
  EXPECT_EQ(settings.machineType, 6);
  EXPECT_EQ(ValueIn(settings, 6529), 11);
  EXPECT_EQ(ValueIn(settings, 77), 1.5);
  EXPECT_EQ(ValueIn(settings, 12096), 1);
}

TEST(ApplySettings, ForgetsWhatAFormerCallSet) {
  const GeometryEngine::support::TSettingsGuard guard;
  ApplySettings({{}, {{6529, 9}}, 6}, {});
  ApplySettings({}, {});
  EXPECT_EQ(dataStore.GetValue(ifArcResolution), 5);
  EXPECT_EQ(Kelvaralinks::InputData.MachineType, 0);
}

TEST(ParseFieldValue, ReadsANumberedField) {
  const FieldValue value = ParseFieldValue("6527=-1.5e-3");
  EXPECT_EQ(value.field, 6527);
  EXPECT_EQ(value.value, -1.5e-3);
}

TEST(ParseFieldValue, RefusesEverythingElse) {
  for (const char* text : {"", "=", "6525", "6525=", "=1", "x=1", "6525=1mm", "6525 = 1", "-1=1", "65536=1", "1.5=1",
                           "6525=nan", "6525=inf", "6525=1e999", "6525=1=2"}) {
    EXPECT_THROW(ParseFieldValue(text), UsageError) << text;
  }
}

}  // namespace
}  // namespace xsec

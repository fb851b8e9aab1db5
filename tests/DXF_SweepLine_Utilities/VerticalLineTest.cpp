#include "GeometryEngine/DXF_SweepLine_Utilities/VerticalLine.h"

#include <cmath>
#include <limits>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;
using Maindataenum::TInputFields;

TEST(GetIfVerticalLine, ToleranceItselfStillCounts) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 0.25);
  EXPECT_FALSE(ValuesSame_DXFTolerance(1, 1.25));
  EXPECT_TRUE(GetIfVerticalLine(ParseEntity("L 1,0 1.25,9")));
  EXPECT_TRUE(GetIfVerticalLine(ParseEntity("L 1.25,0 1,9")));
  EXPECT_FALSE(GetIfVerticalLine(TDXFEntity::Line({1, 0}, {std::nextafter(1.25, 2), 9})));
}

TEST(GetIfVerticalLine, ExactlyVerticalLineIsVerticalAtToleranceZero) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 0);
  EXPECT_TRUE(GetIfVerticalLine(ParseEntity("L 1,0 1,9")));
  EXPECT_FALSE(GetIfVerticalLine(ParseEntity("L 1,0 1.0000001,9")));
}

TEST(GetIfVerticalLine, EntityTypeIsNotLookedAt) {
  TSettingsGuard settings;
  EXPECT_TRUE(GetIfVerticalLine(ParseEntity("A c 0,0 r 2 300..60")));
  EXPECT_FALSE(GetIfVerticalLine(ParseEntity("A c 0,0 r 2 0..60")));
}

TEST(GetIfVerticalLine, TwoNumbersGoByTheStandardResolution) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 10);
  EXPECT_TRUE(GetIfVerticalLine(0.0, 1e-12));
  EXPECT_FALSE(GetIfVerticalLine(0.0, 1.1e-12));
  EXPECT_TRUE(GetIfVerticalLine(1e6, 1e6 + 5e-7));
  EXPECT_FALSE(GetIfVerticalLine(1e6, 1e6 + 2e-6));
  EXPECT_FALSE(GetIfVerticalLine(1.0, std::numeric_limits<double>::quiet_NaN()));
}

}  // namespace
}  // namespace GeometryEngine

#include "GeometryEngine/DXF_EntityStorage/AngularDuplication.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "GeometryEngine/host/TInputFields.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::ParseEntity;
using support::TSettingsGuard;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// The radial line from radius 1 to 2 at an angle.
TDXFEntity MakeRadial(double aDegrees) {
  const double angle = aDegrees * 3.14159265358979323846 / 180;
  return TDXFEntity::Line({std::cos(angle), std::sin(angle)}, {2 * std::cos(angle), 2 * std::sin(angle)});
}

/// Whether a ring of copies of 90 degrees keeps a radial line of copy k.
bool KeepsRadial(std::int32_t aCopies, std::int32_t aFull, std::int32_t k, double aDegrees) {
  return IncludeDuplicatedEntity(aCopies, aFull, k, 90.0 * k, 90, MakeRadial(aDegrees));
}

TEST(GetTheta, GoesRoundAnticlockwiseFromTheXAxis) {
  const TSettingsGuard settings;
  EXPECT_EQ(GetTheta(1, 0), 0);
  EXPECT_DOUBLE_EQ(GetTheta(1, 1), 45);
  EXPECT_DOUBLE_EQ(GetTheta(0, 1), 90);
  EXPECT_DOUBLE_EQ(GetTheta(-1, 0), 180);
  EXPECT_DOUBLE_EQ(GetTheta(0, -1), 270);
  EXPECT_DOUBLE_EQ(GetTheta(1, -1), 315);
}

TEST(GetTheta, TakesANegativeZeroForZero) {
  const TSettingsGuard settings;
  EXPECT_EQ(GetTheta(-0.0, 0.0), 0);
  EXPECT_EQ(GetTheta(-0.0, -0.0), 0);
  EXPECT_EQ(GetTheta(1, -0.0), 0);
  EXPECT_DOUBLE_EQ(GetTheta(-1, -0.0), 180);
}

TEST(GetTheta, StaysBelowAFullTurn) {
  const TSettingsGuard settings;
  for (const double y : {-1e-300, -1e-20, -1e-10, -1e-3}) {
    EXPECT_GE(GetTheta(1, y), 0) << y;
    EXPECT_LT(GetTheta(1, y), 360) << y;
  }
}

TEST(GetTheta, OfNoNumberIsNoNumber) {
  const TSettingsGuard settings;
  EXPECT_TRUE(std::isnan(GetTheta(kNaN, 1)));
  EXPECT_TRUE(std::isnan(GetTheta(1, kNaN)));
}

TEST(IncludeDuplicatedEntity, KeepsWhatIsNotRadial) {
  const TSettingsGuard settings;
  for (const char* text : {"A c 0,0 r 1 0..90", "A c 1.5,0 r 0.5 0..180", "L 1,0 0,1", "N", "R"}) {
    EXPECT_TRUE(IncludeDuplicatedEntity(4, 4, 0, 0, 90, ParseEntity(text))) << text;
    EXPECT_TRUE(IncludeDuplicatedEntity(2, 4, 0, 0, 90, ParseEntity(text))) << text;
  }
}

TEST(IncludeDuplicatedEntity, DropsBothEdgesOfEveryCopyInAFullRing) {
  const TSettingsGuard settings;
  for (std::int32_t k = 0; k < 4; ++k) {
    EXPECT_FALSE(KeepsRadial(4, 4, k, 90.0 * k)) << k;
    EXPECT_FALSE(KeepsRadial(4, 4, k, 90.0 * (k + 1) - (k == 3 ? 360 : 0))) << k;
    EXPECT_TRUE(KeepsRadial(4, 4, k, 90.0 * k + 30)) << k;
  }
}

TEST(IncludeDuplicatedEntity, KeepsTheOwnEdgesOfAPartialRing) {
  const TSettingsGuard settings;
  EXPECT_TRUE(KeepsRadial(3, 4, 0, 0));
  EXPECT_FALSE(KeepsRadial(3, 4, 0, 90));
  EXPECT_FALSE(KeepsRadial(3, 4, 1, 90));
  EXPECT_FALSE(KeepsRadial(3, 4, 1, 180));
  EXPECT_FALSE(KeepsRadial(3, 4, 2, 180));
  EXPECT_TRUE(KeepsRadial(3, 4, 2, 270));
  EXPECT_TRUE(KeepsRadial(3, 4, 1, 120));
}

TEST(IncludeDuplicatedEntity, GivesAnEndAtTheOriginTheOtherEndsDirection) {
  const TSettingsGuard settings;
  EXPECT_FALSE(IncludeDuplicatedEntity(4, 4, 0, 0, 90, ParseEntity("L 0,0 0,2")));
  EXPECT_FALSE(IncludeDuplicatedEntity(4, 4, 0, 0, 90, ParseEntity("L 0,2 0,0")));
  EXPECT_FALSE(IncludeDuplicatedEntity(4, 4, 0, 0, 90, ParseEntity("L 0,2 5e-5,-5e-5")));  // within the tolerance
  EXPECT_TRUE(IncludeDuplicatedEntity(4, 4, 0, 0, 90, ParseEntity("L 0,0 1,1")));
}

TEST(IncludeDuplicatedEntity, KeepsALineThatRunsThroughTheOrigin) {
  const TSettingsGuard settings;
  EXPECT_TRUE(IncludeDuplicatedEntity(4, 4, 0, 0, 90, ParseEntity("L 0,-1 0,1")));
}

TEST(IncludeDuplicatedEntity, ComparesWithinTheAngleTolerance) {
  TSettingsGuard settings;
  settings.With(Maindataenum::TInputFields::ifAngleTolerance, 0.01);
  EXPECT_FALSE(KeepsRadial(4, 4, 1, 90.009));
  EXPECT_TRUE(KeepsRadial(4, 4, 1, 90.011));
}

TEST(IncludeDuplicatedEntity, TakesAFarEdgeNearAFullTurnForZero) {
  TSettingsGuard settings;
  settings.With(Maindataenum::TInputFields::ifAngleTolerance, 0.01);
  EXPECT_FALSE(IncludeDuplicatedEntity(4, 4, 3, 270, 89.995, MakeRadial(0)));
  EXPECT_TRUE(IncludeDuplicatedEntity(4, 4, 3, 270, 89.98, MakeRadial(0)));
}

TEST(IncludeDuplicatedEntity, AnswersForAnyNumbers) {
  const TSettingsGuard settings;
  EXPECT_FALSE(IncludeDuplicatedEntity(INT32_MIN, INT32_MAX, INT32_MAX, 0, 90, MakeRadial(90)));
  EXPECT_TRUE(IncludeDuplicatedEntity(INT32_MAX, 0, INT32_MAX - 1, 0, 90, MakeRadial(90)));
  EXPECT_TRUE(IncludeDuplicatedEntity(4, 4, 0, kNaN, kNaN, MakeRadial(90)));
}

}  // namespace
}  // namespace GeometryEngine

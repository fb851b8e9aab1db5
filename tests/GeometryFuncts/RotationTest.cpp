#include "GeometryEngine/GeometryFuncts/Rotation.h"

#include <cmath>
#include <limits>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;
using Maindataenum::TInputFields;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(GetRotationMatrix, TurnsAnticlockwise) {
  const TRotationMatrix matrix = GetRotationMatrix(30);
  EXPECT_DOUBLE_EQ(matrix[0][0], std::sqrt(3) / 2);
  EXPECT_DOUBLE_EQ(matrix[0][1], -0.5);
  EXPECT_DOUBLE_EQ(matrix[1][0], 0.5);
  EXPECT_DOUBLE_EQ(matrix[1][1], std::sqrt(3) / 2);
}

TEST(RotateByAngle, NoTurnLeavesEvenNotANumberUntouched) {
  TSettingsGuard settings;
  EXPECT_THAT(RotateByAngle(0, kNaN, 1e-5), IsBits(kNaN, 1e-5));
  EXPECT_THAT(RotateByAngle(360, kNaN, 1e-5), IsBits(kNaN, 1e-5));
}

TEST(RotateByAngle, QuarterTurnCleansBothResults) {
  TSettingsGuard settings;
  EXPECT_THAT(RotateByAngle(90, kNaN, 1), IsBits(0, 0));
  EXPECT_THAT(RotateByAngle(90, 1e-5, -1e-5), IsBits(0, 0));
}

TEST(RotateByAngle, QuarterTurnOfTheXAxisIsExactOnlyWhenSnapped) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifSnappingMode, 0);
  const TEntityCoordinate unsnapped = RotateByAngle(90, 1, 0);
  EXPECT_NEAR(unsnapped.x, 6.1e-17, 1e-18);
  EXPECT_EQ(unsnapped.y, 1);
  settings.With(TInputFields::ifSnappingMode, 1).With(TInputFields::ifLinearTolerance, 1e-16);
  EXPECT_THAT(RotateByAngle(90, 1, 0), IsBits(0, 1));
}

TEST(RotateByAngle_Matrix, FirstElementOfOneIsTheIdentityKept) {
  TSettingsGuard settings;
  const TRotationMatrix matrix{{{1.0, 5}, {7, 9}}};
  EXPECT_THAT(RotateByAngle_Matrix(matrix, {3, kNaN}), IsBits(3, kNaN));
}

TEST(RotateByAngle_Matrix, AppliesRowsToTheCoordinate) {
  TSettingsGuard settings;
  EXPECT_THAT(RotateByAngle_Matrix({{{2, 3}, {5, 7}}}, {11, 13}), IsBits(61, 146));
}

TEST(RotateByAngle_AboutPoint_Matrix, KeepsThePivotAndTurnsTheRest) {
  TSettingsGuard settings;
  const TRotationMatrix matrix = GetRotationMatrix(90);
  EXPECT_THAT(RotateByAngle_AboutPoint_Matrix(matrix, {2, 3}, {2, 3}), IsBits(2, 3));
  EXPECT_THAT(RotateByAngle_AboutPoint_Matrix(matrix, {2, 3}, {5, 3}), IsBits(2, 6));
}

}  // namespace
}  // namespace GeometryEngine

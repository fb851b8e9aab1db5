#include "GeometryEngine/GeometryEngine_Definitions/TCoordinate_3D.h"

#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine_Definitions/TRotationMatrix.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::TSettingsGuard;
using enum Maindataenum::TInputFields;

void ExpectPoint(const TCoordinate_3D& aPoint, double aX, double aY, double aZ) {
  EXPECT_EQ(aPoint.x, aX);
  EXPECT_EQ(aPoint.y, aY);
  EXPECT_EQ(aPoint.z, aZ);
}

TEST(TCoordinate_3D, SetValuesSetsAllThree) {
  TCoordinate_3D point;
  ExpectPoint(point, 0, 0, 0);
  point.SetValues(1, 2, 3);
  ExpectPoint(point, 1, 2, 3);
}

TEST(TCoordinate_3D, MoveAlongVectorGoesTheDistanceWhateverTheVectorsLength) {
  TCoordinate_3D point{1, 2, 3};
  point.MoveAlongVector({0, 0, 17}, 2.5);
  ExpectPoint(point, 1, 2, 5.5);
  point.MoveAlongVector({-0.5F, 0, 0}, 4);
  ExpectPoint(point, -3, 2, 5.5);
}

TEST(TCoordinate_3D, MoveAlongVectorKeepsTheDistancesDigits) {
  TCoordinate_3D point;
  point.MoveAlongVector({0, 3, 0}, 123456789.123456);
  ExpectPoint(point, 0, 123456789.123456, 0);
}

TEST(TCoordinate_3D, MoveAlongVectorStaysForAZeroVector) {
  TCoordinate_3D point{1, 2, 3};
  point.MoveAlongVector({}, 4);
  ExpectPoint(point, 1, 2, 3);
}

TEST(TCoordinate_3D, CopyCoordinate_3DIsACopy) {
  TCoordinate_3D point{1, 2, 3};
  const TCoordinate_3D copy = point.CopyCoordinate_3D();
  point.SetValues(0, 0, 0);
  ExpectPoint(copy, 1, 2, 3);
}

TEST(TCoordinate_3D, EqualityIsUnderTheLinearTolerance) {
  TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0.25);
  const TCoordinate_3D point{1, 2, 3};
  EXPECT_TRUE((point == TCoordinate_3D{1.125, 2.125, 3.125}));
  EXPECT_FALSE((point == TCoordinate_3D{1.25, 2, 3}));
  EXPECT_FALSE((point == TCoordinate_3D{1, 2.25, 3}));
  EXPECT_FALSE((point == TCoordinate_3D{1, 2, 3.25}));
  EXPECT_TRUE((point != TCoordinate_3D{1, 2, 3.25}));
  EXPECT_FALSE((point != TCoordinate_3D{1, 2, 3.125}));
}

TEST(TRotationMatrix, IsTwoByTwo) {
  const TRotationMatrix matrix{};
  EXPECT_EQ(matrix.size(), 2U);
  EXPECT_EQ(matrix[1].size(), 2U);
  EXPECT_EQ(matrix[1][1], 0);
}

}  // namespace
}  // namespace GeometryEngine

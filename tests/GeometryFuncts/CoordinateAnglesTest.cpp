#include "GeometryEngine/GeometryFuncts/CoordinateAngles.h"

#include "tests/support/Geometry.h"

namespace GeometryEngine {
namespace {

using namespace support;

TEST(GetCoordinateAngle, IsThePolarAngleInDegrees) {
  EXPECT_DOUBLE_EQ(GetCoordinateAngle({1, 1}), 45);
  EXPECT_DOUBLE_EQ(GetCoordinateAngle({-1, 1}), 135);
  EXPECT_DOUBLE_EQ(GetCoordinateAngle({-1, -1}), -135);
  EXPECT_DOUBLE_EQ(GetCoordinateAngle({0, -1}), -90);
  EXPECT_EQ(GetCoordinateAngle({0, 0}), 0);
}

TEST(GetCoordinateAngle, NeverExceeds180) {
  EXPECT_LE(GetCoordinateAngle({-1, 0}), 180);
  EXPECT_DOUBLE_EQ(GetCoordinateAngle({-1, 0}), 180);
  EXPECT_LE(GetCoordinateAngle({-1e300, 1e-300}), 180);
}

TEST(GetCoordinateAngle_AboutPoint, MeasuresFromThePoint) {
  EXPECT_DOUBLE_EQ(GetCoordinateAngle_AboutPoint({5, 8}, {5, 3}), 90);
  EXPECT_DOUBLE_EQ(GetCoordinateAngle_AboutPoint({4, 2}, {5, 3}), -135);
}

TEST(RT_To_XY_Coordinate, TurnsPolarIntoCartesian) {
  EXPECT_THAT(RT_To_XY_Coordinate(2, 0), IsBits(2, 0));
  EXPECT_THAT(RT_To_XY_Coordinate(2, 150), IsNear(-1.7320508075688772, 1, 1e-15));
}

TEST(GetLinesIntersection_Coordinate, MeetsTwoLinesGivenBySlopeAndIntercept) {
  EXPECT_THAT(GetLinesIntersection_Coordinate(1, 0, -1, 4), IsBits(2, 2));
}

}  // namespace
}  // namespace GeometryEngine

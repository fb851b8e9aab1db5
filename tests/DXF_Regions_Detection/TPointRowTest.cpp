#include "GeometryEngine/DXF_Regions_Detection/detail/TPointRow.h"

#include <gmock/gmock.h>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::TPointRow;
using detail::TRowPoint;
using enum Maindataenum::TInputFields;

namespace {

std::vector<std::size_t> Arrange(const TDXFEntity& aEntity, const TCoordinateArray& aPoints) {
  std::vector<TRowPoint> points;
  for (const TEntityCoordinate& point : aPoints) points.push_back({point, &aEntity});
  TPointRow row;
  const std::span<const std::size_t> arranged = row.Arrange(points);
  return {arranged.begin(), arranged.end()};
}

}  // namespace

// What it answers for many points is held against recording one by one in TRecordedPointsTest.
TEST(TPointRow, PutsPointsOfALineInDescendingXThenDescendingY) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0.1);
  const TDXFEntity line = support::ParseEntity("L 0,0 4,4");
  EXPECT_THAT(Arrange(line, support::ParseCoordinates("1,1 3,3 1.05,2 2,2")), testing::ElementsAre(1, 3, 2, 0));
}

TEST(TPointRow, PutsPointsOfAnArcInAscendingAngleFromItsStart) {
  support::TSettingsGuard settings;
  const TDXFEntity arc = support::ParseEntity("A c 0,0 r 1 270..90");
  EXPECT_THAT(Arrange(arc, support::ParseCoordinates("0,1 0.6,0.8 0.6,-0.8 1,0 0,-1")),
              testing::ElementsAre(4, 2, 3, 1, 0));
}

TEST(TPointRow, KeepsTheFirstOfPointsThatAreTheSame) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0.1);
  const TDXFEntity line = support::ParseEntity("L 0,0 4,0");
  EXPECT_THAT(Arrange(line, support::ParseCoordinates("1,0 1.09,0 1.18,0 0.5,0")), testing::ElementsAre(2, 0, 3));
}

TEST(TPointRow, ArrangesManyPointsOfAnUprightLineByY) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, 0.1);
  const TDXFEntity line = support::ParseEntity("L 0,0 0,100");
  TCoordinateArray points;
  for (int i = 0; i < 50; ++i) points.push_back({i % 3 * 0.04, 1.0 * (i * 7 % 50)});
  const std::vector<std::size_t> arranged = Arrange(line, points);
  ASSERT_EQ(arranged.size(), 50U);
  for (std::size_t i = 0; i < arranged.size(); ++i) EXPECT_EQ(points[arranged[i]].y, 49.0 - static_cast<double>(i));
}

TEST(TPointRow, WithoutPointsIsEmpty) {
  EXPECT_THAT(TPointRow().Arrange({}), testing::IsEmpty());
}

}  // namespace GeometryEngine

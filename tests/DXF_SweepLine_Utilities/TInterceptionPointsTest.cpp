#include "GeometryEngine/DXF_SweepLine_Utilities/TInterceptionPoints.h"

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;

TEST(TInterceptionPoints, KeepsTheOrderInWhichPointsWereFound) {
  TSettingsGuard settings;
  TInterceptionPoints points;
  EXPECT_TRUE(points.IsEmpty());
  for (const TEntityCoordinate& point : ParseCoordinates("3,0 1,0 2,0")) points.AddUnique(point);
  EXPECT_EQ(points.GetCount(), 3);
  EXPECT_THAT(points.Points(), IsBits("3,0 1,0 2,0"));
}

TEST(TInterceptionPoints, DropsAPointThatIsTheSameInXAndInY) {
  TSettingsGuard settings;
  TInterceptionPoints points;
  for (const TEntityCoordinate& point : ParseCoordinates("1,1 1.00005,0.99995 1.00005,2 2,1.00005"))
    points.AddUnique(point);
  EXPECT_THAT(points.Points(), IsBits("1,1 1.00005,2 2,1.00005"));
}

TEST(TInterceptionPoints, FilterRemovesWhatDoesNotTouchTheArc) {
  TSettingsGuard settings;
  TInterceptionPoints points;
  for (const TEntityCoordinate& point : ParseCoordinates("1,0 0,0 0,1 -1,0 1.00005,0.1")) points.AddUnique(point);
  points.RemoveNotTouching(ParseEntity("A c 0,0 r 1 0..90"));
  EXPECT_THAT(points.Points(), IsBits("1,0 0,1"));
}

TEST(TInterceptionPoints, ClearLeavesNothing) {
  TSettingsGuard settings;
  TInterceptionPoints points;
  points.AddUnique({1, 2});
  points.Clear();
  EXPECT_TRUE(points.IsEmpty());
  EXPECT_EQ(points.GetCount(), 0);
}

TEST(TInterceptionPoints, PlaceOutsideTheListIsTheOrigin) {
  TSettingsGuard settings;
  TInterceptionPoints points;
  points.AddUnique({1, 2});
  EXPECT_THAT(points.GetPoint(0), IsBits(1, 2));
  for (const TIndex index : {-1, 1, INT32_MAX, INT32_MIN}) EXPECT_THAT(points.GetPoint(index), IsBits(0, 0)) << index;
}

}  // namespace
}  // namespace GeometryEngine

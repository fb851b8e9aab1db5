#include "GeometryEngine/DXF_Regions_Detection/InterceptionRecording.h"

#include <gmock/gmock.h>

#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::IsBits;
using support::ParseCoordinates;
using support::ParseEntity;

namespace {

class AddInterceptionTest : public testing::Test {
 protected:
  /// A drawing and an empty intercept tree above it.
  void Draw(std::string_view aDrawing) {
    support::AddText(fDrawing, aDrawing);
    fTree.pEntityStorage(&fDrawing);
  }
  TTreeNode* Add(TIndex aIndex, const TEntityCoordinate& aPoint) {
    return AddInterception(fTree, fDrawing.GetEntityFromIndex(aIndex), aIndex, aPoint);
  }
  /// The points of the first entity of the tree after these were recorded, in order along it.
  TCoordinateArray PointsAfter(std::string_view aPoints) {
    for (const TEntityCoordinate& point : ParseCoordinates(aPoints)) Add(0, point);
    return PointsOf(0);
  }
  TCoordinateArray PointsOf(TIndex aNode) const {
    TCoordinateArray points;
    for (const TTreeNode* child : fTree.RootNode()->GetNode(aNode)->Children()) points.push_back(child->Coordinates());
    return points;
  }

  support::TSettingsGuard fSettings;
  TEntityStorage fDrawing;
  TEntityTree fTree{"Intercepts"};
};

using AddInterception_Line = AddInterceptionTest;
using AddInterception_Arc = AddInterceptionTest;
using AddInterceptionsTest = AddInterceptionTest;

}  // namespace

TEST_F(AddInterceptionTest, FirstPointMakesTheEntitysNode) {
  Draw("L 0,0 1,0; L 0,0 4,0");
  const TTreeNode* point = Add(1, {3, 0});
  ASSERT_EQ(fTree.RootNode()->Count(), 1);
  const TTreeNode* entity = fTree.RootNode()->GetNode(0);
  EXPECT_EQ(entity->EntityIndex(), 1);
  EXPECT_THAT(entity->Children(), testing::ElementsAre(point));
  EXPECT_THAT(point->Coordinates(), IsBits(3, 0));
}

TEST_F(AddInterceptionTest, KnownPointIsAnsweredAndNotAddedAgain) {
  Draw("L 0,0 4,0");
  const TTreeNode* point = Add(0, {3, 0});
  EXPECT_EQ(Add(0, {3.00005, 0.00005}), point);
  EXPECT_EQ(fTree.RootNode()->GetNode(0)->Count(), 1);
  EXPECT_THAT(point->Coordinates(), IsBits(3, 0));
}

TEST_F(AddInterceptionTest, EqualEntitiesShareOneNode) {
  Draw("L 0,0 4,0; L 4,0 0,0");
  Add(0, {1, 0});
  Add(1, {2, 0});
  ASSERT_EQ(fTree.RootNode()->Count(), 1);
  EXPECT_EQ(fTree.RootNode()->GetNode(0)->EntityIndex(), 0);
  EXPECT_THAT(PointsOf(0), IsBits("2,0 1,0"));
}

TEST_F(AddInterceptionTest, EntityWithoutGeometryNeverFindsItsNodeAgain) {
  Draw("N");
  Add(0, {1, 0});
  Add(0, {2, 0});
  EXPECT_EQ(fTree.RootNode()->Count(), 2);
}

TEST_F(AddInterception_Line, PointsStandInDescendingX) {
  Draw("L 0,0 4,0");
  EXPECT_THAT(PointsAfter("1,0 3,0 2,0"), IsBits("3,0 2,0 1,0"));
}

TEST_F(AddInterception_Line, OrderDoesNotDependOnTheDirectionOfTheRecord) {
  Draw("L 4,0 0,0");
  EXPECT_THAT(PointsAfter("1,0 3,0 2,0"), IsBits("3,0 2,0 1,0"));
}

TEST_F(AddInterception_Line, VerticalLineOrdersByDescendingY) {
  Draw("L 2,0 2,4");
  EXPECT_THAT(PointsAfter("2,1 2,3 2,2"), IsBits("2,3 2,2 2,1"));
}

TEST_F(AddInterception_Line, EqualXWithinToleranceIsOrderedByY) {
  Draw("L 2,0 2.00005,4");
  EXPECT_THAT(PointsAfter("2.00005,1 2,3"), IsBits("2,3 2.00005,1"));
}

TEST_F(AddInterception_Line, FirstPointThatComesLaterEndsTheSearch) {
  Draw("L 0,0 4,4");
  EXPECT_THAT(PointsAfter("4,4 0,0 2,2 3,3 1,1"), IsBits("4,4 3,3 2,2 1,1 0,0"));
}

TEST_F(AddInterception_Arc, PointsStandInAscendingAngle) {
  Draw("A c 0,0 r 5 0..180");
  EXPECT_THAT(PointsAfter("-3,4 5,0 0,5 3,4"), IsBits("5,0 3,4 0,5 -3,4"));
}

TEST_F(AddInterception_Arc, ThroughZeroDegreesTenComesAfterThreeHundredAndThirty) {
  Draw("A c 0,0 r 5 300..60");
  const TCoordinateArray at = ParseCoordinates(
      "4.92403876506104,0.8682408883346517 4.330127018922194,-2.4999999999999996");  // 10 and 330 degrees
  Add(0, at[0]);
  Add(0, at[1]);
  EXPECT_THAT(PointsOf(0), IsBits(TCoordinateArray{at[1], at[0]}));
}

TEST_F(AddInterception_Arc, ThroughZeroDegreesRunsFromItsStartToItsEnd) {
  Draw("A c 0,0 r 5 270..90 from 0,-5 to 0,5");
  EXPECT_THAT(PointsAfter("0,5 3,4 5,0 4,-3 0,-5"), IsBits("0,-5 4,-3 5,0 3,4 0,5"));
}

TEST_F(AddInterception_Arc, EndingAtZeroDegreesHasItsEndLast) {
  Draw("A c 0,0 r 5 180..360 from -5,0 to 5,0");
  EXPECT_THAT(PointsAfter("5,0 -5,0 0,-5"), IsBits("-5,0 0,-5 5,0"));
}

TEST_F(AddInterception_Arc, StartingAHairBelowZeroDegreesStartsAtZero) {
  Draw("A c 0,0 r 5 -0.00005..90 from 5,0 to 0,5");
  EXPECT_THAT(PointsAfter("0,5 3,4 5,0"), IsBits("5,0 3,4 0,5"));
}

TEST_F(AddInterceptionsTest, EveryPointGoesToBothEntities) {
  Draw("L 0,0 4,0; A c 2,0 r 1 0..180");
  TInterceptionPoints points;
  points.AddUnique({3, 0});
  points.AddUnique({1, 0});
  AddInterceptions(fTree, points, fDrawing.GetEntityFromIndex(0), fDrawing.GetEntityFromIndex(1), 0, 1);
  ASSERT_EQ(fTree.RootNode()->Count(), 2);
  EXPECT_THAT(PointsOf(0), IsBits("3,0 1,0"));
  EXPECT_THAT(PointsOf(1), IsBits("3,0 1,0"));
  EXPECT_EQ(fTree.RootNode()->GetNode(1)->EntityIndex(), 1);
}

TEST_F(AddInterceptionsTest, WithoutPointsRecordsNothing) {
  Draw("L 0,0 4,0; L 0,1 4,1");
  AddInterceptions(fTree, {}, fDrawing.GetEntityFromIndex(0), fDrawing.GetEntityFromIndex(1), 0, 1);
  EXPECT_EQ(fTree.RootNode()->Count(), 0);
}

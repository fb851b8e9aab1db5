#include "GeometryEngine/DXF_Regions_Detection/RegionTracing.h"

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_EntityStorage/EntityEnds.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::IsNear;
using support::ParseEntities;

namespace {

constexpr double kRounding = 1e-9;

constexpr const char* kSquareWithMiddleLine =
    "L 0,0 2,0; L 2,0 4,0; L 4,0 4,4; L 4,4 2,4; L 2,4 0,4; L 0,4 0,0; L 2,0 2,4";
// A spur leaves (4, 0) to the inside; a walk that arrives from (0, 0) turns into it first.
constexpr const char* kTriangleWithSpur = "L 0,0 4,0; L 4,0 3,1; L 4,0 4,4; L 4,4 0,0";
constexpr const char* kTwoTrianglesWithBridge =
    "L 0,0 0,4; L 0,4 2,2; L 2,2 0,0; L 2,2 6,2; L 6,2 8,4; L 8,4 8,0; L 8,0 6,2";

class RegionWalkTest : public testing::Test {
 protected:
  void Draw(std::string_view aPieces) {
    fTree.pEntityStorage(&fPieces);
    for (const TDXFEntity& piece : ParseEntities(aPieces)) fDriver.AddEntityToCoordinateTree(fTree, piece);
  }
  TTreeNode* Vertex(const TEntityCoordinate& aPoint) const { return fTree.Search_L1_Coords(aPoint); }
  TTreeNode* HalfEdge(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) const {
    for (TTreeNode* end : Vertex(aFrom)->Children()) {
      if (GetEntityEndCoordinate(aFrom, fTree.GetNodeEntity(*end)) == aTo) return end;
    }
    return nullptr;
  }
  const TRegionWalk& Walk(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo, bool aBacktracking) {
    fWalk = {};
    fWalk.fStart = aFrom;
    fWalk.fBacktracking = aBacktracking;
    FindNextRegionEntity(fTree, Vertex(aFrom), HalfEdge(aFrom, aTo), fWalk);
    return fWalk;
  }
  /// The entities of the path, in order.
  TEntityArray Walked() const {
    TEntityArray entities;
    for (const std::int32_t index : fWalk.fPath) {
      entities.push_back(fTree.GetNodeEntity(*fTree.GetNodeFromIndex(index)));
    }
    return entities;
  }
  TIndex CountTravelled() const {
    TIndex travelled = 0;
    for (TIndex i = 0; i < fTree.Count(); ++i) travelled += fTree.GetNodeFromIndex(i)->Travelled() ? 1 : 0;
    return travelled;
  }

  support::TSettingsGuard fSettings;
  TEntityBaseClass fDriver;
  TEntityStorage fPieces;
  TEntityTree fTree{"Coordinates_SlotPole"};
  TRegionWalk fWalk;
};

using FindNextRegionEntityTest = RegionWalkTest;
using StepBackRegionEntityTest = RegionWalkTest;
using IsEntityInRegionPathTest = RegionWalkTest;

}  // namespace

TEST_F(FindNextRegionEntityTest, AlongTheBottomToTheRightClosesAroundTheLeftHalf) {
  Draw(kSquareWithMiddleLine);
  const TRegionWalk& walk = Walk({0, 0}, {2, 0}, true);
  EXPECT_THAT(Walked(), IsNear("L 0,0 2,0; L 2,0 2,4; L 2,4 0,4; L 0,4 0,0", kRounding));
  EXPECT_NEAR(walk.fArea, 8, kRounding);
  EXPECT_THAT(walk.fCentroid, IsNear(1, 2, kRounding));
}

TEST_F(FindNextRegionEntityTest, FromTheMiddleToTheLeftClosesAroundTheWholeOutlineClockwise) {
  Draw(kSquareWithMiddleLine);
  const TRegionWalk& walk = Walk({2, 0}, {0, 0}, true);
  EXPECT_THAT(Walked(), IsNear("L 0,0 2,0; L 0,4 0,0; L 2,4 0,4; L 4,4 2,4; L 4,0 4,4; L 2,0 4,0", kRounding));
  EXPECT_NEAR(walk.fArea, -16, kRounding);
  EXPECT_THAT(walk.fCentroid, IsNear(2, 2, kRounding));
}

TEST_F(FindNextRegionEntityTest, MarksTheHalfEdgesThatItWalksAndNoOther) {
  Draw(kSquareWithMiddleLine);
  Walk({0, 0}, {2, 0}, true);
  EXPECT_EQ(CountTravelled(), 4);
  EXPECT_TRUE(HalfEdge({0, 0}, {2, 0})->Travelled());
  EXPECT_TRUE(HalfEdge({2, 0}, {2, 4})->Travelled());
  EXPECT_FALSE(HalfEdge({2, 4}, {2, 0})->Travelled());
}

TEST_F(FindNextRegionEntityTest, ClosesAroundACircleOfTwoArcs) {
  Draw("A c 10,20 r 5 0..180 from 15,20 to 5,20; A c 10,20 r 5 180..360 from 5,20 to 15,20");
  const TRegionWalk& walk = Walk({15, 20}, {5, 20}, true);
  EXPECT_EQ(walk.fPath.size(), 2U);
  EXPECT_NEAR(walk.fArea, 78.53981633974483, kRounding);
}

TEST_F(FindNextRegionEntityTest, AnArcLeavesAVertexAlongItsFirstChord) {
  // At (4, 0) the arc starts off upwards, to the left of the line straight on.
  Draw("L 0,0 4,0; L 4,0 8,0; L 8,0 0,0.5; L 0,0.5 0,0; A c 3,0 r 1 0..90 from 4,0 to 3,1; L 3,1 0,0");
  const TRegionWalk& walk = Walk({0, 0}, {4, 0}, true);
  EXPECT_THAT(Walked(), IsNear("L 0,0 4,0; A c 3,0 r 1 0..90; L 3,1 0,0", kRounding));
  EXPECT_GT(walk.fArea, 0);
}

// Two lines leave (0, 0) so close to each other that single precision gives both the same direction.
TEST_F(FindNextRegionEntityTest, ExactlyEqualAnglesAreDecidedByTheFarEndToTheLeft) {
  const char* lines[] = {"L -4,0 0,0; L 0,0 16777216,1; L 0,0 16777216.5,1",
                         "L -4,0 0,0; L 0,0 16777216.5,1; L 0,0 16777216,1"};
  for (const char* drawing : lines) {
    fTree.Clear();
    fPieces.FreeEntities();
    Draw(drawing);
    Walk({-4, 0}, {0, 0}, false);
    EXPECT_THAT(Walked(), IsNear("L -4,0 0,0; L 0,0 16777216,1", kRounding)) << drawing;
  }
}

TEST_F(FindNextRegionEntityTest, OpenChainWithoutBacktrackingKeepsTheRawCentroidSum) {
  Draw("L 0,0 4,0; L 4,0 4,4");
  const TRegionWalk& walk = Walk({0, 0}, {4, 0}, false);
  EXPECT_EQ(walk.fPath.size(), 2U);
  EXPECT_NEAR(walk.fArea, 8, kRounding);
  EXPECT_THAT(walk.fCentroid, IsNear(128, 64, kRounding)) << "(4 + 4) 16 and (0 + 4) 16, not divided by 6 x 8";
}

TEST_F(FindNextRegionEntityTest, OpenChainWithBacktrackingYieldsAnEmptyPathAndFreesWhatItBlocked) {
  Draw("L 0,0 4,0; L 4,0 4,4");
  const TRegionWalk& walk = Walk({0, 0}, {4, 0}, true);
  EXPECT_TRUE(walk.fPath.empty());
  EXPECT_EQ(walk.fBlocked.size(), 2U);
  EXPECT_EQ(CountTravelled(), 0);
}

TEST_F(FindNextRegionEntityTest, DeadEndIsSteppedBackFromAndFreeAgainOnceTheLoopHasClosed) {
  Draw(kTriangleWithSpur);
  const TRegionWalk& walk = Walk({0, 0}, {4, 0}, true);
  EXPECT_THAT(Walked(), IsNear("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0", kRounding));
  EXPECT_NEAR(walk.fArea, 8, kRounding);
  EXPECT_THAT(walk.fCentroid, IsNear(8 / 3.0, 4 / 3.0, kRounding));
  EXPECT_THAT(walk.fBlocked, testing::ElementsAre(HalfEdge({4, 0}, {3, 1})->AbsoluteIndex()));
  EXPECT_FALSE(HalfEdge({4, 0}, {3, 1})->Travelled());
  EXPECT_EQ(CountTravelled(), 3);
}

TEST_F(FindNextRegionEntityTest, DeadEndWithoutBacktrackingEndsTheWalk) {
  Draw(kTriangleWithSpur);
  Walk({0, 0}, {4, 0}, false);
  EXPECT_THAT(Walked(), IsNear("L 0,0 4,0; L 4,0 3,1", kRounding));
}

TEST_F(FindNextRegionEntityTest, BacktracksOverManyEntitiesOfADeadEnd) {
  Draw("L 0,0 4,0; L 4,0 3,1; L 3,1 2.5,1; L 2.5,1 2.5,0.5; L 4,0 4,4; L 4,4 0,0");
  const TRegionWalk& walk = Walk({0, 0}, {4, 0}, true);
  EXPECT_THAT(Walked(), IsNear("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0", kRounding));
  EXPECT_NEAR(walk.fArea, 8, kRounding);
  EXPECT_EQ(walk.fBlocked.size(), 3U);
}

TEST_F(FindNextRegionEntityTest, EntityOnThePathIsNotTakenASecondTime) {
  Draw(kTwoTrianglesWithBridge);
  const TRegionWalk& walk = Walk({2, 2}, {6, 2}, true);
  EXPECT_TRUE(walk.fPath.empty()) << "round the far triangle there is only the bridge to come back by";
  EXPECT_EQ(CountTravelled(), 0);
}

TEST_F(FindNextRegionEntityTest, WithoutBacktrackingAnEntityIsWalkedBothWays) {
  Draw(kTwoTrianglesWithBridge);
  const TRegionWalk& walk = Walk({2, 2}, {6, 2}, false);
  EXPECT_EQ(walk.fPath.size(), 5U);
  EXPECT_THAT(Walked().front(), IsNear("L 2,2 6,2", kRounding));
  EXPECT_THAT(Walked().back(), IsNear("L 2,2 6,2", kRounding));
}

TEST_F(FindNextRegionEntityTest, TravelledHalfEdgesAreNotTaken) {
  Draw(kSquareWithMiddleLine);
  HalfEdge({2, 0}, {2, 4})->Travelled(true);
  EXPECT_NEAR(Walk({0, 0}, {2, 0}, true).fArea, 16, kRounding);
}

TEST_F(FindNextRegionEntityTest, PathsAreRightInATreeThatHasBeenClearedToo) {
  fTree.Clear();
  Draw(kTriangleWithSpur);
  EXPECT_NEAR(Walk({0, 0}, {4, 0}, true).fArea, 8, kRounding);
}

TEST_F(FindNextRegionEntityTest, AddsToTheSumsThatItIsGiven) {
  Draw("L 0,0 4,0; L 4,0 4,4");
  fWalk.fArea = 100;
  fWalk.fPath = {77};
  FindNextRegionEntity(fTree, Vertex({4, 0}), HalfEdge({4, 0}, {4, 4}), fWalk);
  EXPECT_NEAR(fWalk.fArea, 108, kRounding);
  EXPECT_THAT(fWalk.fPath, testing::ElementsAre(77, HalfEdge({4, 0}, {4, 4})->AbsoluteIndex()));
}

TEST_F(FindNextRegionEntityTest, NilVertexOrNilHalfEdgeIsNoWalk) {
  Draw(kSquareWithMiddleLine);
  FindNextRegionEntity(fTree, nullptr, HalfEdge({0, 0}, {2, 0}), fWalk);
  FindNextRegionEntity(fTree, Vertex({0, 0}), nullptr, fWalk);
  EXPECT_TRUE(fWalk.fPath.empty());
  EXPECT_EQ(CountTravelled(), 0);
}

TEST_F(FindNextRegionEntityTest, FarEndWithoutAVertexIsADeadEnd) {
  Draw("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0");
  fPieces.EntityArray()[0].EndCoords = {9, 9};
  EXPECT_EQ(Walk({0, 0}, {9, 9}, false).fPath.size(), 1U);
  EXPECT_TRUE(Walk({0, 0}, {9, 9}, true).fPath.empty());
}

TEST_F(FindNextRegionEntityTest, TreeWithoutAStorageEndsTheWalk) {
  Draw("L 1,0 4,0; L 4,0 4,4; L 4,4 1,0");
  TTreeNode* vertex = Vertex({1, 0});
  fTree.pEntityStorage(nullptr);
  FindNextRegionEntity(fTree, vertex, vertex->GetNode(0), fWalk);
  EXPECT_EQ(fWalk.fPath.size(), 1U);
  EXPECT_EQ(fWalk.fArea, 0);
}

TEST_F(StepBackRegionEntityTest, TakesTheLastTwoEntitiesBackAndTriesTheNextTurn) {
  Draw(kTriangleWithSpur);
  Walk({0, 0}, {4, 0}, false);
  ASSERT_EQ(fWalk.fPath.size(), 2U);
  const TTreeNode* spur = HalfEdge({4, 0}, {3, 1});
  StepBackRegionEntity(fTree, Vertex({4, 0}), {3, 1}, fTree.GetNodeEntity(*spur), fWalk);
  EXPECT_THAT(Walked(), IsNear("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0", kRounding));
  EXPECT_NEAR(fWalk.fArea, 8, kRounding);
  EXPECT_THAT(fWalk.fCentroid, IsNear(8 / 3.0, 4 / 3.0, kRounding));
  EXPECT_TRUE(fWalk.fBacktracking) << "the walk goes on with backtracking on";
  EXPECT_FALSE(spur->Travelled());
}

TEST_F(StepBackRegionEntityTest, FromTheFirstEntityEndsTheWalkWithAnEmptyPath) {
  Draw(kTriangleWithSpur);
  TTreeNode* spur = HalfEdge({4, 0}, {3, 1});
  spur->Travelled(true);
  fWalk.fPath = {spur->AbsoluteIndex()};
  StepBackRegionEntity(fTree, Vertex({4, 0}), {3, 1}, fTree.GetNodeEntity(*spur), fWalk);
  EXPECT_TRUE(fWalk.fPath.empty());
  EXPECT_THAT(fWalk.fBlocked, testing::ElementsAre(spur->AbsoluteIndex()));
  EXPECT_FALSE(spur->Travelled());
}

TEST_F(StepBackRegionEntityTest, WithoutAPathOrAVertexDoesNothing) {
  Draw(kTriangleWithSpur);
  StepBackRegionEntity(fTree, Vertex({4, 0}), {3, 1}, fPieces.GetEntityFromIndex(1), fWalk);
  fWalk.fPath = {1, 2};
  StepBackRegionEntity(fTree, nullptr, {3, 1}, fPieces.GetEntityFromIndex(1), fWalk);
  EXPECT_TRUE(fWalk.fBlocked.empty());
  EXPECT_EQ(fWalk.fArea, 0);
  EXPECT_EQ(CountTravelled(), 0);
}

TEST_F(StepBackRegionEntityTest, PathThatTheTreeDoesNotHoldEndsTheWalk) {
  Draw(kTriangleWithSpur);
  fWalk.fPath = {5000, -3};
  StepBackRegionEntity(fTree, Vertex({4, 0}), {3, 1}, fPieces.GetEntityFromIndex(1), fWalk);
  EXPECT_TRUE(fWalk.fPath.empty());
}

TEST_F(IsEntityInRegionPathTest, LooksForTheEntityOfAnyNodeOfThePath) {
  Draw(kSquareWithMiddleLine);
  const std::vector<std::int32_t> path{HalfEdge({2, 0}, {2, 4})->AbsoluteIndex(),
                                       HalfEdge({2, 4}, {0, 4})->AbsoluteIndex()};
  EXPECT_TRUE(IsEntityInRegionPath(fTree, path, 6));
  EXPECT_TRUE(IsEntityInRegionPath(fTree, path, 4));
  EXPECT_FALSE(IsEntityInRegionPath(fTree, path, 0));
  EXPECT_FALSE(IsEntityInRegionPath(fTree, {}, 6));
}

TEST_F(IsEntityInRegionPathTest, SkipsIndexesThatTheTreeDoesNotHold) {
  Draw(kSquareWithMiddleLine);
  EXPECT_FALSE(IsEntityInRegionPath(fTree, std::vector<std::int32_t>{-1, 5000}, -1));
}

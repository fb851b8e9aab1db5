#include <gmock/gmock.h>

#include <algorithm>
#include <memory>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "tests/support/Chains.h"
#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::IsBits;
using support::IsNear;
using support::TDetection;

namespace {

constexpr double kRounding = 1e-9;

/// Far to the right of every drawing here: when the sweep reaches it, all others are left behind.
constexpr const char* kFarLine = "; L 1000,0 1001,0";

class TSweepTest : public testing::Test {
 protected:
  static std::string WithFarLine(const std::string& aDrawing) { return aDrawing + kFarLine; }
  static const TEntityArray& Pieces(const TDetection& aDetection) {
    return aDetection.driver.CoordinateTree().pEntityStorage()->EntityArray();
  }
  /// The points recorded for the input entity at an index of the sorted drawing.
  static TCoordinateArray PointsOf(const TDetection& aDetection, TIndex aIndex) {
    TCoordinateArray points;
    for (const TTreeNode* node : aDetection.driver.InterceptTree().RootNode()->Children()) {
      if (node->EntityIndex() != aIndex) continue;
      for (const TTreeNode* child : node->Children()) points.push_back(child->Coordinates());
    }
    return points;
  }

  support::TSettingsGuard fSettings;
};

class TVertexGraphTest : public testing::Test {
 protected:
  TVertexGraphTest() { fTree.pEntityStorage(&fPieces); }
  void Add(const char* aEntity) { fDriver.AddEntityToCoordinateTree(fTree, support::ParseEntity(aEntity)); }
  static std::vector<TIndex> EntitiesAt(const TTreeNode* aVertex) {
    std::vector<TIndex> indexes;
    for (const TTreeNode* child : aVertex->Children()) indexes.push_back(child->EntityIndex());
    return indexes;
  }

  support::TSettingsGuard fSettings;
  TEntityBaseClass fDriver;
  TEntityStorage fPieces;
  TEntityTree fTree{"Coordinates_SlotPole"};
};

using DetermineInterceptions = TSweepTest;
using CreateCoordinateTreeFromIntercepts = TSweepTest;
using AddEntityToCoordinateTree = TVertexGraphTest;
using AddCoordinateNode = TVertexGraphTest;

}  // namespace

TEST_F(DetermineInterceptions, EmptyDrawingLeavesBothTreesEmptyAndNoRegion) {
  TDetection detection("");
  EXPECT_EQ(detection.driver.InterceptTree().Count(), 0);
  EXPECT_EQ(detection.driver.CoordinateTree().Count(), 0);
  detection.driver.DetermineRegions(detection.driver.CoordinateTree(), 0);
  EXPECT_EQ(detection.driver.RegionTree().RootNode()->Count(), 0);
}

TEST_F(DetermineInterceptions, WithoutADrawingLeavesBothTreesEmpty) {
  TDetection detection("L 0,0 4,4; L 0,4 4,0");
  detection.driver.DetermineInterceptions(nullptr);
  EXPECT_EQ(detection.driver.InterceptTree().Count(), 0);
  EXPECT_EQ(detection.driver.InterceptTree().pEntityStorage(), nullptr);
  EXPECT_EQ(detection.driver.CoordinateTree().Count(), 0);
  EXPECT_TRUE(Pieces(detection).empty());
}

TEST_F(DetermineInterceptions, SortsTheDrawingInPlaceByItsLeftMostX) {
  const TDetection detection("L 5,0 6,0; L 4,1 1,1; A c 3,0 r 1 90..270; L 0,0 9,0");
  EXPECT_THAT(detection.drawing.EntityArray(), IsNear("L 0,0 9,0; L 4,1 1,1; A c 3,0 r 1 90..270; L 5,0 6,0", 0));
  EXPECT_EQ(detection.driver.InterceptTree().pEntityStorage(), &detection.drawing);
}

TEST_F(DetermineInterceptions, RecordsACrossingWithBothEntities) {
  const TDetection detection("L 0,0 4,4; L 1,4 5,0");
  EXPECT_THAT(PointsOf(detection, 0), IsNear("2.5,2.5", kRounding));
  EXPECT_THAT(PointsOf(detection, 1), IsNear("2.5,2.5", kRounding));
}

TEST_F(DetermineInterceptions, EndToEndTouchIsFoundByThePairWhileTheFirstIsStillActive) {
  const TDetection detection("L 0,0 4,4; L 4,4 2,8");
  EXPECT_THAT(PointsOf(detection, 0), IsBits("4,4"));
  EXPECT_THAT(PointsOf(detection, 1), IsBits("4,4"));
}

TEST_F(DetermineInterceptions, LeavingAnEntityBehindRecordsItsEnds) {
  const TDetection detection(WithFarLine("L 0,0 4,4; L 4,4 2,8"));
  EXPECT_THAT(PointsOf(detection, 0), IsBits("4,4 0,0"));
  EXPECT_THAT(PointsOf(detection, 1), IsBits("4,4 2,8"));
  EXPECT_THAT(PointsOf(detection, 2), testing::IsEmpty()) << "nothing comes after it";
}

TEST_F(DetermineInterceptions, EntityLeftBehindIsTestedAgainstNothingMore) {
  const TDetection detection("L 0,0 4,0; L 4.0002,0 8,0");
  EXPECT_THAT(PointsOf(detection, 0), IsBits("4,0 0,0"));
  EXPECT_THAT(PointsOf(detection, 1), testing::IsEmpty());
}

TEST_F(DetermineInterceptions, EntityAheadByLessThanTheToleranceIsStillMet) {
  const TDetection detection("L 0,0 4,0; L 4.00005,0 8,0");
  EXPECT_EQ(PointsOf(detection, 0).size(), 1U);
  EXPECT_EQ(PointsOf(detection, 1).size(), 1U);
}

TEST_F(DetermineInterceptions, EndsStillActiveWhenTheSweepEndsAreTrimmedKept) {
  const TDetection active("L 0,0 4,0; L 1,-1 1,1; L 3,-1 3,1");
  EXPECT_THAT(PointsOf(active, 0), IsBits("3,0 1,0"));
  const TDetection leftBehind(WithFarLine("L 0,0 4,0; L 1,-1 1,1; L 3,-1 3,1"));
  EXPECT_THAT(PointsOf(leftBehind, 0), IsBits("4,0 3,0 1,0 0,0"));
}

TEST_F(DetermineInterceptions, PairsWithAnotherKindAreNotTested) {
  const TDetection detection("L 0,0 4,0; N; R");
  EXPECT_EQ(detection.driver.InterceptTree().Count(), 0);
  EXPECT_TRUE(Pieces(detection).empty());
}

TEST_F(DetermineInterceptions, SecondRunStartsAfresh) {
  TDetection detection("L 0,0 4,4; L 1,4 5,0");
  const TEntityArray pieces = Pieces(detection);
  const TIndex nodes = detection.driver.InterceptTree().Count();
  detection.driver.DetermineInterceptions(&detection.drawing);
  EXPECT_THAT(Pieces(detection), IsBits(pieces));
  EXPECT_EQ(detection.driver.InterceptTree().Count(), nodes);
}

TEST_F(DetermineInterceptions, WhoeverKeptTheTreeOrItsRootFindsTheNewNodesThere) {
  TDetection detection("L 0,0 4,4; L 1,4 5,0");
  TEntityTree& tree = detection.driver.InterceptTree();
  const TTreeNode* root = tree.RootNode();
  const TIndex nodes = tree.Count();
  detection.driver.DetermineInterceptions(&detection.drawing);
  EXPECT_EQ(root->Count(), 2);
  detection.driver.DetermineInterceptions(&detection.drawing);
  EXPECT_EQ(root->Children().size(), 2U);
  detection.driver.DetermineInterceptions(&detection.drawing);
  EXPECT_EQ(root->GetNode(1)->EntityIndex(), 0);
  detection.driver.DetermineInterceptions(&detection.drawing);
  EXPECT_EQ(tree.Count(), nodes);
  detection.driver.DetermineInterceptions(&detection.drawing);
  EXPECT_EQ(tree.Item(0)->Level(), 1);
  detection.driver.DetermineInterceptions(&detection.drawing);
  EXPECT_EQ(tree.AddTreeNode_ToRoot()->AbsoluteIndex(), nodes);
}

TEST_F(DetermineInterceptions, NodesMadeByHandCountFromBehindThoseOfTheTree) {
  TDetection detection("L 0,0 4,4; L 1,4 5,0");
  TEntityTree& tree = detection.driver.InterceptTree();
  const TIndex nodes = tree.Count();
  auto before = std::make_unique<TTreeNode>(&tree);
  EXPECT_EQ(before->AbsoluteIndex(), nodes);
  detection.driver.DetermineInterceptions(&detection.drawing);
  EXPECT_EQ(TTreeNode(&tree).AbsoluteIndex(), nodes);
  detection.driver.DetermineInterceptions(&detection.drawing);
  before.reset();  // counted off, as ever, from whatever nodes there are
  EXPECT_EQ(tree.Item(0)->AbsoluteIndex(), 0);
  EXPECT_EQ(TTreeNode(&tree).AbsoluteIndex(), nodes - 1);
}

TEST_F(CreateCoordinateTreeFromIntercepts, TakesTheTreeAsAHostHasLeftIt) {
  TDetection detection("L 0,0 4,0; L 1,-1 1,1; L 3,-1 3,1");
  const TEntityArray pieces = Pieces(detection);
  TEntityTree& tree = detection.driver.InterceptTree();
  detection.driver.CoordinateTree().Clear();
  detection.driver.CreateCoordinateTreeFromIntercepts();
  EXPECT_THAT(Pieces(detection), IsBits(pieces)) << "nobody has looked at the intercept tree";
  const auto isLevel = [](const TTreeNode* node) { return node->EntityIndex() == 0; };
  const auto nodes = tree.RootNode()->Children();
  TTreeNode* level = *std::ranges::find_if(nodes, isLevel);
  tree.RemoveTreeNode(level->GetNode(0), true);
  detection.driver.CoordinateTree().Clear();
  detection.driver.CreateCoordinateTreeFromIntercepts();
  EXPECT_NE(Pieces(detection).size(), pieces.size());
}

TEST_F(DetermineInterceptions, LeavesRegionsAndTheSecondVertexGraphAsTheyAre) {
  TDetection detection("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0");
  detection.driver.DetermineRegions(detection.driver.CoordinateTree(), 0);
  detection.driver.CoordinateTree_Duplicated().AddTreeNode_ToRoot();
  detection.driver.DetermineInterceptions(&detection.drawing);
  EXPECT_EQ(detection.driver.RegionTree().RootNode()->Count(), 2);
  EXPECT_EQ(detection.driver.CoordinateTree_Duplicated().RootNode()->Count(), 1);
}

TEST_F(DetermineInterceptions, OfTheDriversOwnPiecesFindsNothing) {
  TDetection detection("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0");
  detection.driver.DetermineInterceptions(detection.driver.CoordinateTree().pEntityStorage());
  EXPECT_TRUE(Pieces(detection).empty());
  EXPECT_EQ(detection.driver.CoordinateTree().Count(), 0);
}

// The entity that the sweep comes to is recorded before the one that it meets.
TEST_F(CreateCoordinateTreeFromIntercepts, PiecesMeetOnlyAtTheirEnds) {
  const TDetection detection(WithFarLine("L 0,0 4,0; L 2,-2 2,2"));
  EXPECT_THAT(Pieces(detection), IsBits("L 2,2 2,0; L 2,0 2,-2; L 4,0 2,0; L 2,0 0,0"));
}

TEST_F(CreateCoordinateTreeFromIntercepts, OverlappingPiecesAreKeptOnce) {
  const TDetection detection(WithFarLine("L 0,0 3,0; L 1,0 4,0"));
  EXPECT_THAT(Pieces(detection), IsBits("L 4,0 3,0; L 3,0 1,0; L 1,0 0,0"));
}

TEST_F(CreateCoordinateTreeFromIntercepts, EntityDrawnTwiceIsKeptOnce) {
  const TDetection detection(WithFarLine("A c 0,0 r 5 0..180; A c 0,0 r 5 0..180; L 0,0 3,0; L 3,0 0,0"));
  EXPECT_THAT(Pieces(detection), IsNear("A c 0,0 r 5 0..180; L 3,0 0,0", kRounding));
}

TEST_F(CreateCoordinateTreeFromIntercepts, RebuildsFromTheInterceptTreeAsItStands) {
  TDetection detection(WithFarLine("L 0,0 4,0; L 2,-2 2,2"));
  detection.driver.CoordinateTree().Clear();
  detection.driver.CreateCoordinateTreeFromIntercepts();
  EXPECT_EQ(Pieces(detection).size(), 4U);
  EXPECT_EQ(detection.driver.CoordinateTree().RootNode()->Count(), 5);
}

TEST_F(CreateCoordinateTreeFromIntercepts, AddsToTheVerticesThatStand) {
  TDetection detection(WithFarLine("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0"));
  TEntityTree& tree = detection.driver.CoordinateTree();
  ASSERT_EQ(tree.Count(), 3 + 6);
  detection.driver.CreateCoordinateTreeFromIntercepts();
  EXPECT_EQ(Pieces(detection).size(), 3U);
  EXPECT_EQ(tree.RootNode()->Count(), 3);
  EXPECT_EQ(tree.Count(), 3 + 6 + 6);
}

TEST_F(CreateCoordinateTreeFromIntercepts, SnapsToAVertexOfTheHost) {
  TDetection detection(WithFarLine("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0"));
  TEntityTree& tree = detection.driver.CoordinateTree();
  tree.Clear();
  detection.driver.AddCoordinateNode(tree, {4.00005, 3.99995}, 0);
  detection.driver.CreateCoordinateTreeFromIntercepts();
  EXPECT_THAT(Pieces(detection), IsBits("L 4.00005,3.99995 0,0; L 4,0 0,0; L 4.00005,3.99995 4,0"));
  EXPECT_EQ(tree.RootNode()->Count(), 3);
}

TEST_F(AddEntityToCoordinateTree, ListsThePieceUnderBothOfItsEnds) {
  Add("L 0,0 4,0");
  Add("L 4,0 4,4");
  ASSERT_EQ(fTree.RootNode()->Count(), 3);
  EXPECT_THAT(EntitiesAt(fTree.Search_L1_Coords({0, 0})), testing::ElementsAre(0));
  EXPECT_THAT(EntitiesAt(fTree.Search_L1_Coords({4, 0})), testing::ElementsAre(0, 1));
  EXPECT_THAT(EntitiesAt(fTree.Search_L1_Coords({4, 4})), testing::ElementsAre(1));
  EXPECT_EQ(fTree.RootNode()->GetNode(0)->EntityIndex(), -1);
}

TEST_F(AddEntityToCoordinateTree, EndsSnapToTheVerticesThatStand) {
  Add("L 0,0 4,0");
  Add("L 4.00005,0.00005 4,4");
  EXPECT_THAT(fPieces.EntityArray(), IsBits("L 0,0 4,0; L 4,0 4,4"));
  EXPECT_EQ(fTree.RootNode()->Count(), 3);
}

TEST_F(AddEntityToCoordinateTree, EqualPieceIsNotAddedAgain) {
  Add("L 0,0 4,0");
  Add("L 4,0 0,0");
  EXPECT_EQ(fPieces.Count(), 1);
  EXPECT_EQ(fTree.RootNode()->GetNode(0)->Count(), 1);
}

TEST_F(AddEntityToCoordinateTree, TakesLinesAndArcsOnly) {
  Add("N");
  Add("R");
  EXPECT_EQ(fPieces.Count(), 0);
  EXPECT_EQ(fTree.RootNode()->Count(), 0);
  Add("A c 0,0 r 5 0..90");
  EXPECT_EQ(fPieces.Count(), 1);
}

TEST_F(AddEntityToCoordinateTree, KeepsTheTagsOfThePiece) {
  Add("L 0,0 4,0 colour \"red\" name \"Slot\"");
  EXPECT_THAT(fPieces.EntityArray(), IsBits("L 0,0 4,0 colour \"red\" name \"Slot\""));
}

TEST_F(AddEntityToCoordinateTree, TreeWithoutAStorageTakesNothing) {
  fTree.pEntityStorage(nullptr);
  Add("L 0,0 4,0");
  EXPECT_EQ(fTree.RootNode()->Count(), 0);
}

TEST_F(AddEntityToCoordinateTree, FillsTheSecondVertexGraphOnceTheHostGaveItAStorage) {
  TEntityTree& tree = fDriver.CoordinateTree_Duplicated();
  tree.pEntityStorage(&fPieces);
  for (const TDXFEntity& entity : support::ParseEntities("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0")) {
    fDriver.AddEntityToCoordinateTree(tree, entity);
  }
  fDriver.DetermineRegions(tree, 1);
  EXPECT_THAT(support::GetLoops(fDriver), testing::ElementsAre(support::IsLoop(3, 8)));
}

TEST_F(AddEntityToCoordinateTree, PieceWithoutLengthStandsTwiceUnderOneVertexAndBoundsNothing) {
  Add("L 1,1 1,1");
  ASSERT_EQ(fTree.RootNode()->Count(), 1);
  EXPECT_THAT(EntitiesAt(fTree.RootNode()->GetNode(0)), testing::ElementsAre(0, 0));
  fDriver.DetermineRegions(fTree, 0);
  EXPECT_EQ(fDriver.RegionTree().RootNode()->Count(), 0);
}

TEST_F(AddCoordinateNode, AnswersAKnownVertexOrThePointItself) {
  EXPECT_THAT(fDriver.AddCoordinateNode(fTree, {1, 2}, 5), IsBits(1, 2));
  EXPECT_THAT(fDriver.AddCoordinateNode(fTree, {1.00005, 2}, 6), IsBits(1, 2));
  ASSERT_EQ(fTree.RootNode()->Count(), 1);
  EXPECT_THAT(EntitiesAt(fTree.RootNode()->GetNode(0)), testing::ElementsAre(5, 6));
}

#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/DXF_Regions_Detection/EntityMerging.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::IsNear;
using support::ParseEntities;
using support::ParseEntity;

bool CheckLines(const TEntityCoordinate& aPoint_0, const TEntityCoordinate& aPoint_1,
                const TEntityCoordinate& aPoint_2) {
  return CheckEntitiesForMerge(TDXFEntity::Line(aPoint_0, aPoint_1), TDXFEntity::Line(aPoint_1, aPoint_2), aPoint_0,
                               aPoint_1, aPoint_2);
}

bool CheckArcs(const char* aArc_A, const char* aArc_B) {
  return CheckEntitiesForMerge(ParseEntity(aArc_A), ParseEntity(aArc_B), {}, {}, {});
}

TEST(CheckEntitiesForMerge, ArcsOfOneCircleMerge) {
  const support::TSettingsGuard settings;
  EXPECT_TRUE(CheckArcs("A c 1,1 r 2 0..90", "A c 1,1 r 2 90..180"));
  EXPECT_TRUE(CheckArcs("A c 1,1 r 2 0..90", "A c 1.00001,1 r 2 90..180"));
  EXPECT_FALSE(CheckArcs("A c 1,1 r 2 0..90", "A c 1.1,1 r 2 90..180"));
}

TEST(CheckEntitiesForMerge, ArcsWhoseRadiiDifferByLessThanTheToleranceStayApartKept) {
  const support::TSettingsGuard settings;
  EXPECT_FALSE(CheckArcs("A c 0,0 r 2 0..90", "A c 0,0 r 2.00000001 90..180"));
}

TEST(CheckEntitiesForMerge, LinesOfOneSlopeMerge) {
  const support::TSettingsGuard settings;
  EXPECT_TRUE(CheckLines({0, 0}, {1, 1}, {3, 3}));
  EXPECT_TRUE(CheckLines({0, 0}, {1, 0}, {3, 0}));
  EXPECT_FALSE(CheckLines({0, 0}, {1, 1}, {3, 2}));
}

TEST(CheckEntitiesForMerge, SlopesAreComparedUnderTheLinearToleranceKept) {
  support::TSettingsGuard settings;
  settings.With(Maindataenum::TInputFields::ifLinearTolerance, 0.5);
  EXPECT_TRUE(CheckLines({0, 0}, {1, 0}, {2, 0.4}));
  settings.With(Maindataenum::TInputFields::ifLinearTolerance, 0.4);
  EXPECT_FALSE(CheckLines({0, 0}, {1, 0}, {2, 0.4}));
}

TEST(CheckEntitiesForMerge, VerticalLinesMergeButNotAVerticalWithAHorizontalOne) {
  const support::TSettingsGuard settings;
  EXPECT_TRUE(CheckLines({2, 0}, {2, 1}, {2, 5}));
  EXPECT_FALSE(CheckLines({2, 0}, {2, 1}, {5, 1}));
  EXPECT_FALSE(CheckLines({0, 0}, {2, 0}, {2, 5}));
}

TEST(CheckEntitiesForMerge, OtherPairsNeverMerge) {
  const support::TSettingsGuard settings;
  EXPECT_FALSE(CheckArcs("L 0,0 1,0", "A c 0,0 r 1 0..90"));
  EXPECT_FALSE(CheckArcs("A c 0,0 r 1 0..90", "L 0,1 0,2"));
  EXPECT_FALSE(CheckArcs("R", "R"));
  EXPECT_FALSE(CheckArcs("N", "N"));
}

/// A region of two entities in a tree with a storage.
class DetectMergeEntityTest : public ::testing::Test {
 protected:
  void Start(const char* aEntities, const TEntityCoordinate& aPoint_1, const TEntityCoordinate& aPoint_2) {
    fStorage.AddEntities(ParseEntities(aEntities));
    fTree.pEntityStorage(&fStorage);
    fMerge.fParent = fTree.AddTreeNode_ToRoot();
    fMerge.fNode_A = AddPiece(0);
    fMerge.fNode_B = AddPiece(1);
    fMerge.fEntity = fStorage.Entities(0);
    fMerge.fPoint_1 = aPoint_1;
    fMerge.fPoint_2 = aPoint_2;
  }

  TTreeNode* AddPiece(TIndex aEntityIndex) {
    TTreeNode* node = fTree.AddTreeNode(fMerge.fParent);
    node->EntityIndex(aEntityIndex);
    return node;
  }

  bool Detect(const TEntityCoordinate& aPoint_3) {
    return DetectMergeEntity(fTree, fMerge, fStorage.Entities(1), aPoint_3, 0);
  }

  support::TSettingsGuard fSettings;
  TEntityStorage fStorage;
  TEntityTree fTree{"Regions"};
  TEntityMerge fMerge;
};

using DetectMergeEntity_ = DetectMergeEntityTest;

TEST_F(DetectMergeEntity_, LinesBecomeOneLineWithoutAttributes) {
  Start("L 0,0 1,1 name \"left\" colour \"red\"; L 1,1 3,3 name \"right\"", {0, 0}, {1, 1});
  TTreeNode* const a = fMerge.fNode_A;
  TTreeNode* const b = fMerge.fNode_B;
  ASSERT_TRUE(Detect({3, 3}));
  EXPECT_THAT(fMerge.fEntity, IsBits("L 0,0 3,3"));
  EXPECT_THAT(fMerge.fPoint_1, IsBits(0, 0));
  EXPECT_THAT(fMerge.fPoint_2, IsBits(3, 3));
  EXPECT_EQ(fMerge.fRemovals, (TTreeNodeArray{a, b}));
  EXPECT_EQ(fMerge.fRemovalPosition, 1);
  EXPECT_EQ(fMerge.fMergeCount, 1);
  EXPECT_EQ(fMerge.fParent->GetNode(0), fMerge.fNode_A);
  EXPECT_EQ(fMerge.fNode_A->EntityIndex(), 2);
  EXPECT_THAT(fStorage.Entities(2), IsBits("L 0,0 3,3"));
}

TEST_F(DetectMergeEntity_, ArcEnteredAtItsStartKeepsItsStartAngleAndTakesTheOthersEnd) {
  Start("A c 0,0 r 2 10..50; A c 0,0 r 2 50..120", {}, {});
  fMerge.fPoint_1 = fStorage.Entities(0).StartCoords;
  fMerge.fPoint_2 = fStorage.Entities(0).EndCoords;
  ASSERT_TRUE(Detect(fStorage.Entities(1).EndCoords));
  EXPECT_THAT(fMerge.fEntity, IsNear("A c 0,0 r 2 10..120", 1e-12));
}

TEST_F(DetectMergeEntity_, ArcEnteredAtItsEndRunsFromTheFarEndOfTheOther) {
  Start("A c 0,0 r 2 50..120; A c 0,0 r 2 10..50", {}, {});
  fMerge.fPoint_1 = fStorage.Entities(0).EndCoords;
  fMerge.fPoint_2 = fStorage.Entities(0).StartCoords;
  ASSERT_TRUE(Detect(fStorage.Entities(1).StartCoords));
  EXPECT_THAT(fMerge.fEntity, IsNear("A c 0,0 r 2 10..120", 1e-12));
  EXPECT_THAT(fMerge.fPoint_2, IsNear(fStorage.Entities(1).StartCoords, 1e-12));
}

TEST_F(DetectMergeEntity_, LineBeforeAnArcOnlyMovesTheWalkOn) {
  Start("L 0,0 2,0; A c 0,0 r 2 0..90", {0, 0}, {2, 0});
  TTreeNode* const a = fMerge.fNode_A;
  EXPECT_FALSE(Detect({0, 2}));
  EXPECT_THAT(fMerge.fPoint_1, IsBits(2, 0));
  EXPECT_THAT(fMerge.fPoint_2, IsBits(2, 0));
  EXPECT_EQ(fMerge.fNode_A, a);
  EXPECT_TRUE(fMerge.fRemovals.empty());
  EXPECT_EQ(fMerge.fMergeCount, 0);
  EXPECT_EQ(fStorage.GetCount(), 2);
}

TEST_F(DetectMergeEntity_, ASecondMergeGoesOnFromTheFirst) {
  Start("L 0,0 1,0; L 1,0 2,0; L 2,0 5,0", {0, 0}, {1, 0});
  ASSERT_TRUE(Detect({2, 0}));
  fMerge.fNode_B = AddPiece(2);
  ASSERT_TRUE(DetectMergeEntity(fTree, fMerge, fStorage.Entities(2), {5, 0}, 0));
  EXPECT_THAT(fMerge.fEntity, IsBits("L 0,0 5,0"));
  EXPECT_EQ(fMerge.fRemovals.size(), 4U);
  EXPECT_EQ(fMerge.fRemovalPosition, 3);
  EXPECT_EQ(fMerge.fMergeCount, 2);
}

TEST_F(DetectMergeEntity_, WithoutRegionOrStorageNoNodeIsMade) {
  Start("L 0,0 1,0; L 1,0 2,0", {0, 0}, {1, 0});
  fMerge.fParent = nullptr;
  EXPECT_TRUE(Detect({2, 0}));
  EXPECT_EQ(fMerge.fNode_A, nullptr);
  fTree.pEntityStorage(nullptr);
  EXPECT_TRUE(Detect({3, 0}));
  EXPECT_EQ(fStorage.GetCount(), 2);
}

TEST(GenerateBlankRegion, IsARegionOfTheSectorsEntities) {
  const support::TSettingsGuard settings;
  TEntityStorage storage;
  storage.AddEntity(ParseEntity("L 9,9 8,8"));
  TEntityTree tree("Regions");
  tree.pEntityStorage(&storage);
  const TTreeNode* region = GenerateBlankRegion(tree, 1, 2, 0, 90);
  ASSERT_NE(region, nullptr);
  EXPECT_EQ(region->Parent(), tree.RootNode());
  EXPECT_THAT(region->Coordinates(), IsNear(1, 0, 1e-12));
  EXPECT_EQ(region->RegionIndex(), -1);
  EXPECT_EQ(region->GaussArea(), 0);
  EXPECT_THAT(region->RegionCentroid(), IsBits(0, 0));
  EXPECT_EQ(region->TravelDirection(), Travel_AntiClockwise);
  ASSERT_EQ(region->Count(), 4);
  for (TIndex i = 0; i < 4; ++i) EXPECT_EQ(region->GetNode(i)->EntityIndex(), i + 1);
  EXPECT_EQ(storage.GetCount(), 5);
}

TEST(GenerateBlankRegion, TreeWithoutStorageGetsARegionWithoutEntities) {
  const support::TSettingsGuard settings;
  TEntityTree tree("Regions");
  EXPECT_EQ(GenerateBlankRegion(tree, 0, 2, 0, 90)->Count(), 0);
}

TEST(AddTreeNodeToArray, AnswersThePositionOfTheNode) {
  TTreeNodeArray nodes;
  TTreeNode node(nullptr);
  EXPECT_EQ(AddTreeNodeToArray(nodes, &node), 0);
  EXPECT_EQ(AddTreeNodeToArray(nodes, nullptr), 1);
  EXPECT_EQ(nodes, (TTreeNodeArray{&node, nullptr}));
}

}  // namespace
}  // namespace GeometryEngine

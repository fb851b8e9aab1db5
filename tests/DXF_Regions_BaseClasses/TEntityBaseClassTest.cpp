#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"
#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::IsBits;
using support::IsNear;
using support::TDetection;

namespace {

constexpr double kRounding = 1e-9;

class AddRegionEntities : public testing::Test {
 protected:
  TTreeNode_Geometry* AddNode() {
    auto node = fTree.CreateTreeNode();
    return TTreeNode_Geometry::TypeCast(fTree.AddNewTreeNode(node));
  }

  support::TSettingsGuard fSettings;
  TTree_Geometry fTree;
  TDetection fSquare{"L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0"};
};

}  // namespace

TEST(TEntityBaseClass, OwnsFourNamedTreesAndTheStorageOfTheFirst) {
  TEntityBaseClass driver;
  EXPECT_EQ(driver.CoordinateTree().Name(), "Coordinates_SlotPole");
  EXPECT_EQ(driver.CoordinateTree_Duplicated().Name(), "Coordinates_Symmetry");
  EXPECT_EQ(driver.InterceptTree().Name(), "Intercepts");
  EXPECT_EQ(driver.RegionTree().Name(), "Regions");
  EXPECT_EQ(driver.CoordinateTree_Duplicated().pEntityStorage(), nullptr);
  EXPECT_EQ(driver.InterceptTree().pEntityStorage(), nullptr);
  EXPECT_EQ(driver.RegionTree().pEntityStorage(), nullptr);

  driver.AddEntityToCoordinateTree(driver.CoordinateTree(), TDXFEntity::Line({0, 0}, {4, 0}));
  ASSERT_NE(driver.CoordinateTree().pEntityStorage(), nullptr);
  EXPECT_EQ(driver.CoordinateTree().pEntityStorage()->Count(), 1);
  EXPECT_EQ(driver.CoordinateTree().RootNode()->Count(), 2);
}

TEST_F(AddRegionEntities, CopiesAnAnticlockwiseLoopAsItWasTraced) {
  fSquare.driver.DetermineRegions(fSquare.driver.CoordinateTree(), 1);
  TTreeNode_Geometry* node = AddNode();
  fSquare.driver.AddRegionEntities(node, 0);
  EXPECT_EQ(node->RegionArea_Base(), 16);
  EXPECT_THAT(node->Centroid(), IsNear(2, 2, kRounding));
  EXPECT_EQ(node->NumberEntities(), 4);
  EXPECT_THAT(node->Entities().StartCoordinate(),
              IsBits(fSquare.driver.RegionTree().RootNode()->GetNode(0)->Coordinates()));
  EXPECT_NEAR(node->Entities().GetClosedArea(), 16, kRounding);
}

TEST_F(AddRegionEntities, ClockwiseLoopIsHandedOutReversedWithAPositiveArea) {
  fSquare.driver.DetermineRegions(fSquare.driver.CoordinateTree(), 2);
  const TTreeNode* region = fSquare.driver.RegionTree().RootNode()->GetNode(0);
  ASSERT_EQ(region->GaussArea(), -16);
  TTreeNode_Geometry* node = AddNode();
  fSquare.driver.AddRegionEntities(node, 0);
  EXPECT_EQ(node->RegionArea_Base(), 16);
  EXPECT_NEAR(node->Entities().GetClosedArea(), 16, kRounding);
  EXPECT_THAT(node->Entities().GetEntityFromIndex(0),
              IsBits(fSquare.driver.RegionTree().GetNodeEntity(*region->GetNode(3))));
}

TEST_F(AddRegionEntities, OpenChainKeepsItsOrderAndLeavesCentroidAndAreaAlone) {
  TDetection chain("L 0,0 4,0; L 4,0 4,4; L 4,4 8,4; L 20,0 21,0");
  chain.driver.DetectOrphanEntities(chain.driver.CoordinateTree());
  const TTreeNode* traced = chain.driver.RegionTree().RootNode()->GetNode(0);
  ASSERT_EQ(traced->Count(), 3);
  TTreeNode_Geometry* node = AddNode();
  node->RegionPolyType(ptPolyLine);
  node->Centroid({7, 8});
  node->RegionArea_Base(9);
  chain.driver.AddRegionEntities(node, 0);
  EXPECT_THAT(node->Centroid(), IsBits(7, 8));
  EXPECT_EQ(node->RegionArea_Base(), 9);
  ASSERT_EQ(node->NumberEntities(), 3);
  for (TIndex i = 0; i < 3; ++i) {
    EXPECT_THAT(node->Entities().GetEntityFromIndex(i),
                IsBits(chain.driver.RegionTree().GetNodeEntity(*traced->GetNode(i))));
  }
}

TEST_F(AddRegionEntities, ClockwiseChainOfAnOpenNodeIsNotReversed) {
  fSquare.driver.DetermineRegions(fSquare.driver.CoordinateTree(), 2);
  const TTreeNode* region = fSquare.driver.RegionTree().RootNode()->GetNode(0);
  TTreeNode_Geometry* node = AddNode();
  node->RegionPolyType(ptPolyLine);
  fSquare.driver.AddRegionEntities(node, 0);
  EXPECT_THAT(node->Entities().GetEntityFromIndex(0),
              IsBits(fSquare.driver.RegionTree().GetNodeEntity(*region->GetNode(0))));
}

TEST_F(AddRegionEntities, TwiceToOneNodeLeavesOneCopy) {
  fSquare.driver.DetermineRegions(fSquare.driver.CoordinateTree(), 1);
  TTreeNode_Geometry* node = AddNode();
  fSquare.driver.AddRegionEntities(node, 0);
  fSquare.driver.AddRegionEntities(node, 0);
  EXPECT_EQ(node->NumberEntities(), 4);
}

TEST_F(AddRegionEntities, NodeOutlivesTheDriver) {
  TTreeNode_Geometry* node = AddNode();
  {
    TDetection detection("A c 0,0 r 5 0..180 from 5,0 to -5,0; A c 0,0 r 5 180..360 from -5,0 to 5,0");
    detection.driver.DetermineRegions(detection.driver.CoordinateTree(), 1);
    detection.driver.AddRegionEntities(node, 0);
  }
  EXPECT_NEAR(node->Entities().GetClosedArea(), 78.53981633974483, kRounding);
}

TEST_F(AddRegionEntities, IndexOutsideTheRegionsOrNilChangesNothing) {
  fSquare.driver.DetermineRegions(fSquare.driver.CoordinateTree(), 1);
  TTreeNode_Geometry* node = AddNode();
  node->Centroid({7, 8});
  fSquare.driver.AddRegionEntities(node, -1);
  fSquare.driver.AddRegionEntities(node, 1);
  fSquare.driver.AddRegionEntities(nullptr, 0);
  EXPECT_EQ(node->NumberEntities(), 0);
  EXPECT_THAT(node->Centroid(), IsBits(7, 8));
}

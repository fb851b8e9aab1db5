#include <cmath>
#include <numbers>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::AddRegion;
using support::IsNear;
using support::RectangleText;

constexpr double kEps = 1e-9;

/// A quarter annulus from radius 1 to 2.
constexpr const char* kQuarter =
    "L 1,0 2,0; A c 0,0 r 2 0..90 from 2,0 to 0,2; L 0,2 0,1; A c 0,0 r 1 0..90 from 1,0 to 0,1";
constexpr double kQuarterArea = 0.75 * std::numbers::pi;

class RegionDuplicationTest : public ::testing::Test {
 protected:
  TTreeNode_Geometry& Add(const std::string& aOutline, std::int32_t aNumDuplications) {
    TTreeNode_Geometry& region = AddRegion(fTree, aOutline);
    region.NumberDuplications(aNumDuplications);
    region.UpdateGeometry_Outputs();
    return region;
  }
  support::TSettingsGuard fSettings;
  TTree_Geometry fTree;
};

using Duplicate = RegionDuplicationTest;
using DuplicateAndUnite = RegionDuplicationTest;
using Offset = RegionDuplicationTest;

TEST_F(Duplicate, MakesTheRingWithItsAreaCentroidAndLabels) {
  TTreeNode_Geometry& region = Add(RectangleText(3, -0.5, 5, 0.5), 4);
  region.Duplicate();
  EXPECT_EQ(region.NumberEntities(), 16);
  EXPECT_NEAR(region.RegionArea_Base(), 8, kEps);
  EXPECT_THAT(region.Centroid(), IsNear(0, 0, kEps));
  EXPECT_THAT(region.RegionCoordinates(), IsNear("4,0 0,4 -4,0 0,-4", kEps));
  EXPECT_EQ(region.NumberDuplications(), 1);
  EXPECT_EQ(region.DuplicationAngle(), 360);
}

TEST_F(Duplicate, TakesTheInternalChainAlong) {
  TTreeNode_Geometry& region = Add(RectangleText(3, -1, 5, 1), 2);
  support::AddChain(region.Entities_Internal(), RectangleText(3.5, -0.5, 4.5, 0.5));
  region.UpdateGeometry_Outputs();
  region.Duplicate();
  EXPECT_EQ(region.NumberEntities_Internal(), 8);
  EXPECT_NEAR(region.RegionArea_Base(), 6, kEps);
}

TEST_F(Duplicate, DropsTheRadialLinesUnlessTheRegionIsSingular) {
  TTreeNode_Geometry& ring = Add(kQuarter, 4);
  ring.Duplicate();
  EXPECT_EQ(ring.NumberEntities(), 8);
  EXPECT_NEAR(ring.RegionArea_Base(), 4 * kQuarterArea, kEps);
  TTreeNode_Geometry& singular = Add(kQuarter, 4);
  singular.Singular(true);
  singular.Duplicate();
  EXPECT_EQ(singular.NumberEntities(), 16);
}

TEST_F(Duplicate, NumberBelowOneChangesNothing) {
  TTreeNode_Geometry& region = Add(kQuarter, 0);
  region.Duplicate();
  EXPECT_EQ(region.NumberEntities(), 4);
  EXPECT_EQ(region.NumberDuplications(), 0);
}

TEST_F(DuplicateAndUnite, NeighboursAboutTheAxisBecomeOneOutline) {
  TTreeNode_Geometry& region = Add(kQuarter, 4);
  region.DuplicateAndUnite(2, gpRadial);
  EXPECT_EQ(region.NumberEntities(), 6);
  EXPECT_EQ(region.NumberEntities_Internal(), 0);
  EXPECT_NEAR(region.RegionArea_Base(), 2 * kQuarterArea, kEps);
  EXPECT_NEAR(region.Entities().GetClosedArea(), 2 * kQuarterArea, kEps);
  EXPECT_EQ(region.NumberDuplications(), 2);
  EXPECT_EQ(region.DuplicationAngle(), 180);
  EXPECT_TRUE(region.PointInsideRegion({0, 1.5}, {}, false));
}

TEST_F(DuplicateAndUnite, FullRingPutsItsInnerLoopIntoTheInternalChain) {
  TTreeNode_Geometry& region = Add(kQuarter, 4);
  region.DuplicateAndUnite(4, gpRadial);
  EXPECT_EQ(region.NumberEntities(), 4);
  EXPECT_EQ(region.NumberEntities_Internal(), 4);
  EXPECT_NEAR(region.Entities().GetClosedArea(), 4 * std::numbers::pi, kEps);
  EXPECT_NEAR(region.Entities_Internal().GetClosedArea(), std::numbers::pi, kEps);
  EXPECT_NEAR(region.RegionArea_Base(), 4 * kQuarterArea, kEps);
  EXPECT_EQ(region.NumberDuplications(), 1);
  EXPECT_TRUE(region.PointInsideRegion(region.RegionCoordinate(), {}, false));
}

TEST_F(DuplicateAndUnite, RowAlongXMergesWhereCopiesTouch) {
  TTreeNode_Geometry& region = Add(RectangleText(0, 0, 2, 1), 1);
  region.DuplicateAndUnite(3, gpAxial);
  EXPECT_NEAR(region.RegionArea_Base(), 6, kEps);
  EXPECT_NEAR(region.GetWidth(), 6, kEps);
  EXPECT_EQ(region.NumberEntities(), 8);
  EXPECT_EQ(region.NumberDuplications(), 1);
}

TEST_F(DuplicateAndUnite, CopiesThatDoNotTouchAreKeptBesideOneAnother) {
  TTreeNode_Geometry& region = Add(RectangleText(3, -0.5, 5, 0.5), 4);
  region.DuplicateAndUnite(2, gpRadial);
  EXPECT_EQ(region.NumberEntities(), 8);
  EXPECT_NEAR(region.RegionArea_Base(), 4, kEps);
  EXPECT_THAT(region.Centroid(), IsNear(2, 2, kEps));
  EXPECT_THAT(region.RegionCoordinates(), IsNear("4,0 0,4", kEps));
  EXPECT_EQ(region.NumberDuplications(), 2);
}

TEST_F(DuplicateAndUnite, RowsOfRegionsThatTouchInNoEdgeAreKeptBesideOneAnother) {
  TTreeNode_Geometry& region = Add(support::PolygonText("0,0 2,1 0,2 -2,1"), 1);
  region.DuplicateAndUnite(2, gpAxial);
  EXPECT_NEAR(region.RegionArea_Base(), 8, kEps);
  EXPECT_THAT(region.RegionCoordinates(), IsNear("0,1 4,1", kEps));
}

TEST_F(DuplicateAndUnite, OutlineRunsAnticlockwiseWhicheverWayItsFirstPieceIsStored) {
  TTreeNode_Geometry& region =
      Add("L 2,0 1,0; A c 0,0 r 2 0..90 from 2,0 to 0,2; L 0,2 0,1; A c 0,0 r 1 0..90 from 1,0 to 0,1", 4);
  region.DuplicateAndUnite(2, gpRadial);
  EXPECT_EQ(region.NumberEntities(), 6);
  EXPECT_NEAR(region.Entities().GetClosedArea(), 2 * kQuarterArea, kEps);
}

TEST_F(DuplicateAndUnite, FullRingWithHolesOfItsOwnIsKeptInCopies) {
  TTreeNode_Geometry& region = Add(kQuarter, 4);
  support::AddChain(region.Entities_Internal(), RectangleText(1, 1, 1.1, 1.1));
  region.UpdateGeometry_Outputs();
  region.DuplicateAndUnite(4, gpRadial);
  EXPECT_EQ(region.NumberEntities(), 8);
  EXPECT_EQ(region.NumberEntities_Internal(), 16);
  EXPECT_NEAR(region.RegionArea_Base(), 4 * (kQuarterArea - 0.01), kEps);
  EXPECT_EQ(region.RegionCoordinates().size(), 4U);
}

TEST_F(DuplicateAndUnite, CopiesOfAnOpenChainAreKeptBesideOneAnother) {
  TTreeNode_Geometry& region = Add("L 10,1 20,1; L 20,1 20,5", 4);
  region.DuplicateAndUnite(2, gpRadial);
  EXPECT_THAT(region.Entities().EntityArray(), IsNear("L 10,1 20,1; L 20,1 20,5; L -1,10 -1,20; L -1,20 -5,20", kEps));
  EXPECT_EQ(region.NumberDuplications(), 2);
}

TEST_F(DuplicateAndUnite, FewerThanTwoOrMoreThanAFullRingChangeNothing) {
  TTreeNode_Geometry& region = Add(kQuarter, 4);
  for (const std::int32_t copies : {-1, 0, 1, 5, std::numeric_limits<std::int32_t>::max()}) {
    region.DuplicateAndUnite(copies, gpRadial);
    EXPECT_EQ(region.NumberEntities(), 4);
    EXPECT_EQ(region.NumberDuplications(), 4);
  }
}

TEST_F(Offset, MovesTheOutlineAlone) {
  TTreeNode_Geometry& region = Add(RectangleText(0, 0, 2, 2), 1);
  support::AddChain(region.Entities_Internal(), RectangleText(0.5, 0.5, 1, 1));
  region.UpdateGeometry_Outputs();
  region.Offset(1);
  EXPECT_NEAR(region.Entities().GetClosedArea(), 16, 1e-5);
  EXPECT_NEAR(region.Entities_Internal().GetClosedArea(), 0.25, kEps);
  EXPECT_NEAR(region.RegionArea_Base(), 3.75, kEps);
}

}  // namespace
}  // namespace GeometryEngine

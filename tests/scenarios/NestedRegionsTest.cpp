// The whole path: from a drawing to nested regions of a geometry tree with their net areas.

#include <cmath>

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"
#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::TDetection;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kRounding = 1e-9;

class NestedRegions : public testing::Test {
 protected:
  /// Detects the faces of a drawing and nests them below each other.
  void Detect(const char* aDrawing) {
    TDetection detection(aDrawing);
    TEntityBaseClass& driver = detection.driver;
    driver.DetermineRegions(driver.CoordinateTree(), 1);
    driver.IdentifySubRegions(driver.CoordinateTree());
    driver.RemoveDuplicatedSubRegions();
    const std::span<TTreeNode* const> faces = driver.RegionTree().RootNode()->Children();
    for (TIndex i = 0; i < ToIndex(faces.size()); ++i) {
      auto node = fTree.CreateTreeNode();
      fRegions.push_back(TTreeNode_Geometry::TypeCast(fTree.AddNewTreeNode(node)));
      driver.AddRegionEntities(fRegions.back(), i);
    }
    for (std::size_t i = 0; i < faces.size(); ++i) {
      for (const std::int32_t inner : faces[i]->SubRegions()) {
        fTree.MoveTreeNode_Recursive(fRegions[static_cast<std::size_t>(inner)], fRegions[i]);
      }
    }
    for (TTreeNode_Geometry* region : fRegions) region->UpdateGeometry_Outputs();
  }
  /// The region of that base area.
  TTreeNode_Geometry* Region(double aArea) const {
    for (TTreeNode_Geometry* region : fRegions) {
      if (std::abs(region->RegionArea_Base() - aArea) < kRounding * aArea) return region;
    }
    return nullptr;
  }
  static bool IsLabelInside(const TTreeNode_Geometry& aRegion) {
    return aRegion.PointInsideRegion(aRegion.RegionCoordinate(), TGeometryRegionTypesSet::All(), false);
  }

  support::TSettingsGuard fSettings;
  TTree_Geometry fTree;
  std::vector<TTreeNode_Geometry*> fRegions;
};

}  // namespace

TEST_F(NestedRegions, CirclesLieInOneAnother) {
  Detect(
      "A c 0,0 r 9 0..180; A c 0,0 r 9 180..360; A c 0,0 r 6 0..180; A c 0,0 r 6 180..360; A c 1,1 r 2 0..180;"
      "A c 1,1 r 2 180..360; A c -3,1 r 1 0..180; A c -3,1 r 1 180..360");
  ASSERT_EQ(fRegions.size(), 4U);
  const TTreeNode_Geometry* ring = Region(81 * kPi);
  const TTreeNode_Geometry* hole = Region(36 * kPi);
  const TTreeNode_Geometry* large = Region(4 * kPi);
  const TTreeNode_Geometry* small = Region(kPi);
  EXPECT_EQ(ring->GetParent(), fTree.GetRootNode());
  EXPECT_EQ(hole->GetParent(), ring);
  EXPECT_EQ(large->GetParent(), hole);
  EXPECT_EQ(small->GetParent(), hole);
  EXPECT_NEAR(ring->GetRegionArea(), 45 * kPi, 1e-6);
  EXPECT_NEAR(hole->GetRegionArea(), 31 * kPi, 1e-6);
  EXPECT_NEAR(large->GetRegionArea(), 4 * kPi, 1e-6);
}

TEST_F(NestedRegions, LabelsKeepClearOfTheChildren) {
  Detect(
      "L 0,0 20,0; L 20,0 20,20; L 20,20 0,20; L 0,20 0,0; L 6,6 14,6; L 14,6 14,14; L 14,14 6,14; L 6,14 6,6;"
      "L 9,9 11,9; L 11,9 11,11; L 11,11 9,11; L 9,11 9,9");
  ASSERT_EQ(fRegions.size(), 3U);
  for (const TTreeNode_Geometry* region : fRegions) EXPECT_TRUE(IsLabelInside(*region)) << region->RegionArea_Base();
  EXPECT_THAT(Region(400)->Centroid(), support::IsNear(10, 10, kRounding));
  EXPECT_THAT(Region(400)->RegionCoordinate(), testing::Not(support::IsNear(10, 10, 1)));
}

TEST_F(NestedRegions, FacesThatShareAnEdgeStandSideBySide) {
  Detect("L 0,0 8,0; L 8,0 8,4; L 8,4 0,4; L 0,4 0,0; L 3,0 3,4");
  ASSERT_EQ(fRegions.size(), 2U);
  for (const TTreeNode_Geometry* region : fRegions) EXPECT_EQ(region->GetParent(), fTree.GetRootNode());
  EXPECT_NEAR(Region(12)->GetRegionArea(), 12, kRounding);
  EXPECT_NEAR(Region(20)->GetRegionArea(), 20, kRounding);
}

TEST_F(NestedRegions, AreaOfAFaceThatHoldsAGroupIsNetOfAllItsMembers) {
  Detect(
      "L 0,0 20,0; L 20,0 20,20; L 20,20 0,20; L 0,20 0,0; L 4,4 8,4; L 8,4 8,8; L 8,8 4,8; L 4,8 4,4;"
      "L 8,4 14,4; L 14,4 14,8; L 14,8 8,8");
  ASSERT_EQ(fRegions.size(), 3U);
  EXPECT_EQ(Region(16)->GetParent(), Region(400));
  EXPECT_EQ(Region(24)->GetParent(), Region(400));
  EXPECT_NEAR(Region(400)->GetRegionArea(), 360, kRounding);
}

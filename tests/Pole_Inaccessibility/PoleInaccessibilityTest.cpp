#include "GeometryEngine/Pole_Inaccessibility/PoleInaccessibility.h"

#include <string>

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::AddRegion;
using support::IsBits;
using support::IsNear;
using support::PolygonText;
using support::RectangleText;
using ::testing::Not;

class PoleInaccessibilityTest : public ::testing::Test {
 protected:
  TTreeNode_Geometry& Add(const std::string& aOutline, TTreeNode_Base* aParent = nullptr) {
    TTreeNode_Geometry& region = AddRegion(fTree, aOutline, aParent);
    region.UpdateGeometry_Outputs();
    return region;
  }
  static TEntityCoordinate Pole(TTreeNode_Geometry& aRegion) { return GetPoleInaccessibility(&aRegion, 1.0, 0.001); }
  static bool IsInMaterial(const TTreeNode_Geometry& aRegion, const TEntityCoordinate& aPoint) {
    return aRegion.PointInsideRegion(aPoint, TGeometryRegionTypesSet::All(), false);
  }

  support::TSettingsGuard fSettings;
  TTree_Geometry fTree;
};

TEST_F(PoleInaccessibilityTest, SquareOfSide10HasItsCentreAtDistance5) {
  TTreeNode_Geometry& square = Add(RectangleText(0, 0, 10, 10));
  EXPECT_THAT(Pole(square), IsNear(5, 5, 1e-12));
  EXPECT_NEAR(GetSignedDistance(square.PoleRegion(), Pole(square)), 5, 1e-12);
}

TEST_F(PoleInaccessibilityTest, CShapeIsLabelledInsideItsMaterialAndNotAtTheCentroid) {
  TTreeNode_Geometry& region = Add(PolygonText("0,0 10,0 10,2 2,2 2,8 10,8 10,10 0,10"));
  EXPECT_TRUE(IsInMaterial(region, Pole(region)));
  EXPECT_THAT(Pole(region), Not(IsNear(region.Centroid(), 0.5)));
}

TEST_F(PoleInaccessibilityTest, ACShapeOfArcsIsLabelledInsideItsMaterialToo) {
  TTreeNode_Geometry& region =
      Add("A c 0,0 r 20 45..180; A c 0,0 r 20 180..315; "
          "L 14.142135623730951,-14.142135623730951 10.606601717798213,-10.606601717798213; "
          "A c 0,0 r 15 180..315; A c 0,0 r 15 45..180; "
          "L 10.606601717798213,10.606601717798213 14.142135623730951,14.142135623730951");
  EXPECT_FALSE(IsInMaterial(region, region.Centroid()));
  EXPECT_TRUE(IsInMaterial(region, Pole(region)));
}

TEST_F(PoleInaccessibilityTest, AChildHoleAtTheCentreIsKeptClear) {
  TTreeNode_Geometry& region = Add(RectangleText(0, 0, 10, 10));
  TTreeNode_Geometry& child = Add(RectangleText(3, 3, 7, 7), &region);
  const TEntityCoordinate pole = Pole(region);
  EXPECT_TRUE(IsInMaterial(region, pole));
  EXPECT_FALSE(child.Entities().PointInsideEntities(pole, true));
}

TEST_F(PoleInaccessibilityTest, ChildrenCountWhateverTheirTypeAndPolyType) {
  TTreeNode_Geometry& region = Add(RectangleText(0, 0, 10, 10));
  TTreeNode_Geometry& child = Add(RectangleText(3, 3, 7, 7), &region);
  child.RegionPolyType(ptPolyLine);
  child.RegionType(static_cast<TGeometryRegionType>(200));
  EXPECT_FALSE(child.Entities().PointInsideEntities(Pole(region), true));
}

TEST_F(PoleInaccessibilityTest, AnInternalChainAtTheCentreIsKeptClear) {
  TTreeNode_Geometry& region = AddRegion(fTree, RectangleText(0, 0, 10, 10));
  support::AddChain(region.Entities_Internal(), RectangleText(3, 3, 7, 7));
  region.UpdateGeometry_Outputs();
  EXPECT_TRUE(IsInMaterial(region, Pole(region)));
}

TEST_F(PoleInaccessibilityTest, BoxOfZeroHeightGivesTheCentroid) {
  TTreeNode_Geometry& region = AddRegion(fTree, "L 0,3 10,3; L 10,3 0,3");
  region.RegionArea_Base(1);
  region.Centroid({4, 9});
  ASSERT_TRUE(region.IsRegionValid_Closed());
  EXPECT_THAT(Pole(region), IsBits(4, 9));
}

TEST_F(PoleInaccessibilityTest, RegionOfTypePolyLineGivesTheCentroid) {
  TTreeNode_Geometry& region = Add(RectangleText(0, 0, 10, 10));
  region.RegionPolyType(ptPolyLine);
  region.Centroid({4, 9});
  EXPECT_THAT(Pole(region), IsBits(4, 9));
}

TEST_F(PoleInaccessibilityTest, RegionThatIsNotValidGivesTheCentroid) {
  TTreeNode_Geometry& region = Add(RectangleText(0, 0, 10, 10));
  region.RegionArea_Base(0);
  region.Centroid({4, 9});
  EXPECT_THAT(Pole(region), IsBits(4, 9));
  TTreeNode_Geometry& empty = AddRegion(fTree, "");
  empty.RegionType(rtCompositeEmpty);
  empty.Centroid({1, 2});
  ASSERT_TRUE(empty.IsRegionValid_Closed());
  EXPECT_THAT(Pole(empty), IsBits(1, 2)) << "valid, but without an inside";
}

TEST_F(PoleInaccessibilityTest, NilNodeGivesTheOrigin) {
  EXPECT_THAT(GetPoleInaccessibility(nullptr, 1.0, 0.001), IsBits(0, 0));
}

TEST_F(PoleInaccessibilityTest, RegionThinnerThanTheMinimumDistanceGivesTheCentroid) {
  TTreeNode_Geometry& region = Add(PolygonText("0,0 10,0 10,10 9.999,10 9.999,0.001 0,0.001"));
  ASSERT_FALSE(IsInMaterial(region, region.Centroid()));
  EXPECT_THAT(Pole(region), IsBits(region.Centroid()));
}

}  // namespace
}  // namespace GeometryEngine

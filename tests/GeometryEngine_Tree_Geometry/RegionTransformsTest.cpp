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
using support::ParseEntity;
using support::PolygonText;
using support::RectangleText;

constexpr double kEps = 1e-12;  // drawing length units

// A region from (2, 0) to (6, 4) with a hole and a second label point.
class RegionTransformsTest : public ::testing::Test {
 protected:
  RegionTransformsTest() {
    support::AddChain(fRegion.Entities_Internal(), RectangleText(4, 1, 5, 2));
    fRegion.UpdateGeometry_Outputs();
    fRegion.RegionCoordinates() = {{3, 3}, {5, 3}};
  }

  support::TSettingsGuard fSettings;
  TTree_Geometry fTree;
  TTreeNode_Geometry& fRegion = AddRegion(fTree, RectangleText(2, 0, 6, 4));
};

using Rotate = RegionTransformsTest;

TEST_F(Rotate, TurnsOutlineStartLabelsAndCentroidAboutTheOrigin) {
  fRegion.Rotate(90);
  EXPECT_THAT(fRegion.Entities().EntityArray(), IsNear(PolygonText("0,2 0,6 -4,6 -4,2"), kEps));
  EXPECT_THAT(fRegion.Entities().StartCoordinate(), IsNear(0, 2, kEps));
  EXPECT_THAT(fRegion.RegionCoordinates(), IsNear("-3,3 -3,5", kEps));
  EXPECT_THAT(fRegion.Centroid(), IsNear(-2, 4, kEps));
  EXPECT_EQ(fRegion.RegionArea_Base(), 15);
  EXPECT_TRUE(fRegion.PointInsideRegion({-1, 3}, {}, false));
}

TEST_F(Rotate, LeavesTheInternalChainWhereItWasKept) {
  fRegion.Rotate(90);
  EXPECT_THAT(fRegion.Entities_Internal().EntityArray(), IsBits(RectangleText(4, 1, 5, 2)));
  EXPECT_THAT(fRegion.Entities_Internal().StartCoordinate(), IsBits(4, 1));
}

TEST_F(Rotate, ByAWholeTurnBringsEverythingBack) {
  for (int quarter = 0; quarter < 4; ++quarter) fRegion.Rotate(90);
  EXPECT_THAT(fRegion.Entities().EntityArray(), IsNear(RectangleText(2, 0, 6, 4), kEps));
  EXPECT_THAT(fRegion.RegionCoordinates(), IsNear("3,3 5,3", kEps));
}

using Rotate_AboutPoint = RegionTransformsTest;

TEST_F(Rotate_AboutPoint, TurnsBothChainsLabelsAndCentroid) {
  fRegion.Rotate_AboutPoint(90, {2, 0});
  EXPECT_THAT(fRegion.Entities().EntityArray(), IsNear(PolygonText("2,0 2,4 -2,4 -2,0"), kEps));
  EXPECT_THAT(fRegion.Entities().StartCoordinate(), IsNear(2, 0, kEps));
  EXPECT_THAT(fRegion.Entities_Internal().EntityArray(), IsNear(PolygonText("1,2 1,3 0,3 0,2"), kEps));
  EXPECT_THAT(fRegion.Entities_Internal().StartCoordinate(), IsNear(1, 2, kEps));
  EXPECT_THAT(fRegion.RegionCoordinates(), IsNear("-1,1 -1,3", kEps));
  EXPECT_THAT(fRegion.Centroid(), IsNear(0, 2, kEps));
  EXPECT_FALSE(fRegion.PointInsideRegion({0.5, 2.5}, {}, false)) << "the hole came along";
}

TEST_F(Rotate_AboutPoint, TakesAPointThatIsTurnedItself) {
  fRegion.Rotate_AboutPoint(180, fRegion.Centroid());
  EXPECT_THAT(fRegion.Centroid(), IsNear(4, 2, kEps));
  EXPECT_THAT(fRegion.RegionCoordinates(), IsNear("5,1 3,1", kEps));
  fRegion.Rotate_AboutPoint(180, fRegion.RegionCoordinates().front());
  EXPECT_THAT(fRegion.RegionCoordinates(), IsNear("5,1 7,1", kEps));
}

using Translate = RegionTransformsTest;

TEST_F(Translate, MovesBothChainsLabelsAndCentroid) {
  fRegion.Translate(10, -1);
  EXPECT_THAT(fRegion.Entities().EntityArray(), IsNear(RectangleText(12, -1, 16, 3), kEps));
  EXPECT_THAT(fRegion.Entities().StartCoordinate(), IsNear(12, -1, kEps));
  EXPECT_THAT(fRegion.Entities_Internal().EntityArray(), IsNear(RectangleText(14, 0, 15, 1), kEps));
  EXPECT_THAT(fRegion.Entities_Internal().StartCoordinate(), IsNear(14, 0, kEps));
  EXPECT_THAT(fRegion.RegionCoordinates(), IsNear("13,2 15,2", kEps));
  EXPECT_THAT(fRegion.Centroid(), IsNear(14, 1, kEps));
}

class MirrorRegion : public RegionTransformsTest {
 protected:
  const TDXFEntity fAxis = ParseEntity("L 0,0 0,1");
};

TEST_F(MirrorRegion, MirrorsBothChainsAndComputesTheOutputsAfresh) {
  fRegion.Mirror(fAxis);
  EXPECT_THAT(fRegion.Entities().EntityArray(), IsNear("L -2,4 -2,0; L -6,4 -2,4; L -6,0 -6,4; L -2,0 -6,0", kEps));
  EXPECT_THAT(fRegion.Entities_Internal().EntityArray(),
              IsNear("L -4,2 -4,1; L -5,2 -4,2; L -5,1 -5,2; L -4,1 -5,1", kEps));
  EXPECT_NEAR(fRegion.RegionArea_Base(), 15, kEps);
  EXPECT_THAT(fRegion.Centroid(), IsNear(-4, 2, kEps));
  EXPECT_TRUE(fRegion.PointInsideRegion({-3, 3}, {}, false));
  EXPECT_FALSE(fRegion.PointInsideRegion({-4.5, 1.5}, {}, false)) << "the hole came along";
}

TEST_F(MirrorRegion, AGoodSizedRegionGetsItsFirstLabelAfresh) {
  fRegion.Entities_Internal().FreeEntities();
  fRegion.Mirror(fAxis);
  EXPECT_THAT(fRegion.RegionCoordinates(), IsNear("-4,2 -5,3", kEps));
}

TEST_F(MirrorRegion, FirstLabelPointOfASmallRegionEndsWhereItWasKept) {
  fSettings.With(Maindataenum::TInputFields::ifMinimumLabelArea, 1000);
  fRegion.Mirror(fAxis);
  EXPECT_THAT(fRegion.RegionCoordinates(), IsNear("3,3 -5,3", kEps));
}

TEST_F(MirrorRegion, AnEmptyLabelListEndsWithTheMirroredOrigin) {
  fSettings.With(Maindataenum::TInputFields::ifMinimumLabelArea, 1000);
  fRegion.RegionCoordinates().clear();
  fRegion.Mirror(ParseEntity("L 1,0 1,5"));
  EXPECT_THAT(fRegion.RegionCoordinates(), IsNear("2,0", kEps));
}

TEST_F(MirrorRegion, ALineOfTheRegionsOwnChainIsTakenAsItWas) {
  fRegion.Mirror(*fRegion.Entities().Entities_P(1));  // from (6, 0) to (6, 4)
  EXPECT_THAT(fRegion.Entities_Internal().EntityArray(), IsNear("L 8,2 8,1; L 7,2 8,2; L 7,1 7,2; L 8,1 7,1", kEps));
  EXPECT_THAT(fRegion.Centroid(), IsNear(8, 2, kEps));
}

TEST_F(MirrorRegion, AMirrorThatIsNoLineMovesNothing) {
  fRegion.Entities_Internal().FreeEntities();
  fRegion.Mirror(ParseEntity("A c 0,0 r 1 0..90"));
  EXPECT_THAT(fRegion.Entities().EntityArray(), IsNear(RectangleText(2, 0, 6, 4), kEps));
  EXPECT_EQ(fRegion.RegionArea_Base(), 16);
  EXPECT_TRUE(fRegion.PointInsideRegion({4, 2}, {}, false));
}

TEST_F(MirrorRegion, LeavesChildrenWhereTheyAre) {
  TTreeNode_Geometry& child = AddRegion(fTree, RectangleText(2.5, 2.5, 3.5, 3.5), &fRegion);
  fRegion.Mirror(fAxis);
  fRegion.Translate(1, 1);
  fRegion.Rotate(30);
  EXPECT_THAT(child.Entities().EntityArray(), IsBits(RectangleText(2.5, 2.5, 3.5, 3.5)));
}

}  // namespace
}  // namespace GeometryEngine

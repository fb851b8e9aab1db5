#include <limits>
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

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr TGeometryRegionTypesSet kAllTypes = TGeometryRegionTypesSet::All();
const std::string kSquare = RectangleText(0, 0, 10, 10);
const std::string kCShape = PolygonText("0,0 10,0 10,2 2,2 2,8 10,8 10,10 0,10");

class RegionMeasuresTest : public ::testing::Test {
 protected:
  TTreeNode_Geometry& Add(const std::string& aOutline, TTreeNode_Base* aParent = nullptr) {
    TTreeNode_Geometry& region = AddRegion(fTree, aOutline, aParent);
    region.UpdateGeometry_Outputs();
    return region;
  }
  void AddInternal(TTreeNode_Geometry& aRegion, const std::string& aChain) {
    support::AddChain(aRegion.Entities_Internal(), aChain);
    aRegion.UpdateGeometry_Outputs();
  }

  support::TSettingsGuard fSettings;
  TTree_Geometry fTree;
};

using IsRegionValid_Closed = RegionMeasuresTest;

TEST_F(IsRegionValid_Closed, NeedsTheClosedPolyTypeEntitiesAndAnArea) {
  TTreeNode_Geometry& region = Add(kSquare);
  EXPECT_TRUE(region.IsRegionValid_Closed());
  region.RegionPolyType(ptPolyLine);
  EXPECT_FALSE(region.IsRegionValid_Closed());
  region.RegionPolyType(ptPoint);
  EXPECT_FALSE(region.IsRegionValid_Closed());
  region.RegionPolyType(ptClosed);
  region.Entities().FreeEntities();
  EXPECT_FALSE(region.IsRegionValid_Closed());
}

TEST_F(IsRegionValid_Closed, AreaCountsAs0UpToThePlainResolution) {
  TTreeNode_Geometry& region = Add(kSquare);
  for (const double none : {0.0, 1e-12, -1e-12}) {
    region.RegionArea_Base(none);
    EXPECT_FALSE(region.IsRegionValid_Closed()) << none;
  }
  for (const double some : {1.1e-12, -1.1e-12, kInfinity, kNotANumber}) {
    region.RegionArea_Base(some);
    EXPECT_TRUE(region.IsRegionValid_Closed()) << some;
  }
}

TEST_F(IsRegionValid_Closed, RegionOfType58IsValidWhileEmpty) {
  TTreeNode_Geometry& region = AddRegion(fTree, "");
  region.RegionType(static_cast<TGeometryRegionType>(58));
  EXPECT_TRUE(region.IsRegionValid_Closed());
  region.RegionPolyType(ptPolyLine);
  EXPECT_FALSE(region.IsRegionValid_Closed());
}

TEST_F(IsRegionValid_Closed, ACompositeMappedToType58IsNotValidWhileEmpty) {
  TTreeNode_Geometry& region = AddRegion(fTree, "");
  region.RegionType(rtComposite);
  region.RegionType_Mapped(rtCompositeEmpty);
  EXPECT_FALSE(region.IsRegionValid_Closed());
}

using GetRegionArea = RegionMeasuresTest;

TEST_F(GetRegionArea, TakesChildrenOffInProportionToTheirDuplications) {
  TTreeNode_Geometry& parent = Add(kSquare);
  Add(RectangleText(1, 1, 2, 2), &parent).NumberDuplications(8);
  EXPECT_EQ(parent.GetRegionArea(), 92);
  parent.NumberDuplications(4);
  EXPECT_EQ(parent.RegionArea(), 98);
  parent.NumberDuplications(16);
  EXPECT_EQ(parent.RegionArea(), 99.5);
}

TEST_F(GetRegionArea, ParentThatIsNoValidClosedRegionIgnoresItsChildren) {
  TTreeNode_Geometry& parent = Add(kSquare);
  Add(RectangleText(1, 1, 2, 2), &parent);
  EXPECT_EQ(parent.GetRegionArea(), 99);
  parent.RegionPolyType(ptPolyLine);
  EXPECT_EQ(parent.GetRegionArea(), 100);
}

TEST_F(GetRegionArea, TheParentsValidityDecidesAndNotTheChildsKept) {
  TTreeNode_Geometry& parent = Add(kSquare);
  TTreeNode_Geometry& child = AddRegion(fTree, "", &parent);
  child.RegionArea_Base(5);
  ASSERT_FALSE(child.IsRegionValid_Closed());
  EXPECT_EQ(parent.GetRegionArea(), 95);
}

TEST_F(GetRegionArea, OfARegionThatOccurs0TimesIsNotFiniteWithChildren) {
  TTreeNode_Geometry& parent = Add(kSquare);
  parent.NumberDuplications(0);
  EXPECT_EQ(parent.GetRegionArea(), 100);
  Add(RectangleText(1, 1, 2, 2), &parent);
  EXPECT_EQ(parent.GetRegionArea(), -kInfinity);
}

TEST_F(GetRegionArea, GrandchildrenBelongToTheChild) {
  TTreeNode_Geometry& parent = Add(kSquare);
  TTreeNode_Geometry& child = Add(RectangleText(1, 1, 5, 5), &parent);
  Add(RectangleText(2, 2, 3, 3), &child);
  EXPECT_EQ(parent.GetRegionArea(), 84);
  EXPECT_EQ(child.GetRegionArea(), 15);
}

using GetWidth = RegionMeasuresTest;

TEST_F(GetWidth, AndHeightFollowTheOutlineAsItIsNow) {
  TTreeNode_Geometry& region = Add(RectangleText(-2, 1, 5, 4));
  EXPECT_EQ(region.GetWidth(), 7);
  EXPECT_EQ(region.GetHeight(), 3);
  region.Entities().AddEntity(TDXFEntity::Line({-2, 1}, {-2, 9}));
  EXPECT_EQ(region.Width(), 7);
  EXPECT_EQ(region.GetHeight(), 8);
}

TEST_F(GetWidth, OfAnEmptyOutlineIsPlusAndHeightMinusInfinity) {
  TTreeNode_Geometry& region = AddRegion(fTree, "");
  EXPECT_EQ(region.GetWidth(), kInfinity);
  EXPECT_EQ(region.GetHeight(), -kInfinity);
}

TEST_F(GetWidth, TheHeightReadsUnderItsOddNameKept) {
  EXPECT_EQ(Add(RectangleText(-2, 1, 5, 4)).Heigth(), 3);
}

using PointInsideRegion = RegionMeasuresTest;

TEST_F(PointInsideRegion, NeedsAValidClosedRegion) {
  TTreeNode_Geometry& region = Add(kSquare);
  EXPECT_TRUE(region.PointInsideRegion({5, 5}, kAllTypes, false));
  EXPECT_FALSE(region.PointInsideRegion({15, 5}, kAllTypes, true));
  region.RegionPolyType(ptPolyLine);
  EXPECT_FALSE(region.PointInsideRegion({5, 5}, kAllTypes, false));
}

TEST_F(PointInsideRegion, OnTheOutlineFollowsTheFlag) {
  TTreeNode_Geometry& region = Add(kSquare);
  EXPECT_TRUE(region.PointInsideRegion({10, 5}, kAllTypes, true));
  EXPECT_FALSE(region.PointInsideRegion({10, 5}, kAllTypes, false));
}

TEST_F(PointInsideRegion, TheInternalChainIsCutOutWithTheSameFlag) {
  TTreeNode_Geometry& region = Add(kSquare);
  AddInternal(region, RectangleText(4, 4, 6, 6));
  EXPECT_FALSE(region.PointInsideRegion({5, 5}, {}, true));
  EXPECT_FALSE(region.PointInsideRegion({5, 5}, {}, false));
  EXPECT_FALSE(region.PointInsideRegion({4, 5}, {}, true));
  EXPECT_TRUE(region.PointInsideRegion({4, 5}, {}, false));
  EXPECT_TRUE(region.PointInsideRegion({2, 5}, {}, false));
}

TEST_F(PointInsideRegion, OnlyChildrenOfTheTypesAreLeftOut) {
  TTreeNode_Geometry& parent = Add(kSquare);
  Add(RectangleText(4, 4, 6, 6), &parent).RegionType(rtConductor);
  EXPECT_FALSE(parent.PointInsideRegion({5, 5}, {rtConductor}, false));
  EXPECT_TRUE(parent.PointInsideRegion({5, 5}, {rtWedge}, false));
  EXPECT_TRUE(parent.PointInsideRegion({5, 5}, {}, false));
  EXPECT_FALSE(parent.PointInsideRegion({4, 5}, {rtConductor}, false)) << "the child's outline is the child's";
}

TEST_F(PointInsideRegion, WhatAChildHasCutOutIsNotTheChilds) {
  TTreeNode_Geometry& parent = Add(kSquare);
  TTreeNode_Geometry& child = Add(RectangleText(2, 2, 8, 8), &parent);
  AddInternal(child, RectangleText(4, 4, 6, 6));
  EXPECT_TRUE(parent.PointInsideRegion({5, 5}, kAllTypes, false));
  EXPECT_TRUE(parent.PointInsideRegion({4, 5}, kAllTypes, false)) << "the rim of the hole is not the child's either";
  EXPECT_FALSE(parent.PointInsideRegion({3, 5}, kAllTypes, false));
}

TEST_F(PointInsideRegion, OfTheEmptyType58IsFalseEverywhere) {
  TTreeNode_Geometry& region = AddRegion(fTree, "");
  region.RegionType(rtCompositeEmpty);
  EXPECT_FALSE(region.PointInsideRegion({0, 0}, kAllTypes, true));
}

using RegionInsideRegion = RegionMeasuresTest;

TEST_F(RegionInsideRegion, NeedsEveryVertexInside) {
  const TTreeNode_Geometry& outer = Add(kSquare);
  EXPECT_TRUE(outer.RegionInsideRegion(Add(RectangleText(2, 2, 8, 8)), false));
  EXPECT_FALSE(outer.RegionInsideRegion(Add(RectangleText(2, 2, 12, 8)), true));
}

TEST_F(RegionInsideRegion, SharedEdgesFollowTheFlag) {
  const TTreeNode_Geometry& outer = Add(kSquare);
  const TTreeNode_Geometry& touching = Add(RectangleText(0, 0, 5, 5));
  EXPECT_TRUE(outer.RegionInsideRegion(touching, true));
  EXPECT_FALSE(outer.RegionInsideRegion(touching, false));
}

TEST_F(RegionInsideRegion, MidpointsAreTriedToo) {
  EXPECT_FALSE(Add(kCShape).RegionInsideRegion(Add(RectangleText(5, 1, 6, 9)), false));
}

TEST_F(RegionInsideRegion, ChordPointsOfArcsAreTriedToo) {
  const TTreeNode_Geometry& outer = Add(kSquare);
  EXPECT_TRUE(outer.RegionInsideRegion(Add("L 5,8 5,2; A c 5,5 r 3 270..90"), false));
  EXPECT_FALSE(outer.RegionInsideRegion(Add("L 9,8 9,2; A c 9,5 r 3 270..90"), false));
}

TEST_F(RegionInsideRegion, ChildrenPlayNoPart) {
  TTreeNode_Geometry& outer = Add(kSquare);
  Add(RectangleText(3, 3, 7, 7), &outer);
  EXPECT_TRUE(outer.RegionInsideRegion(Add(RectangleText(4, 4, 6, 6)), false));
}

TEST_F(RegionInsideRegion, IsTrueForAnOutlineWithoutVertices) {
  EXPECT_TRUE(AddRegion(fTree, "").RegionInsideRegion(AddRegion(fTree, ""), false));
}

using UpdateRegionArea_Base = RegionMeasuresTest;

TEST_F(UpdateRegionArea_Base, IsTheOutlineLessTheInternalChainWithItsSign) {
  TTreeNode_Geometry& region = AddRegion(fTree, PolygonText("0,0 0,10 10,10 10,0"));
  support::AddChain(region.Entities_Internal(), RectangleText(4, 4, 6, 6));
  region.UpdateRegionArea_Base();
  EXPECT_EQ(region.RegionArea_Base(), -104);
}

using UpdateGeometry_Outputs = RegionMeasuresTest;

TEST_F(UpdateGeometry_Outputs, ClockwiseOutlineEndsReversedWithAPositiveArea) {
  TTreeNode_Geometry& region = AddRegion(fTree, "L 0,0 0,10; L 0,10 10,10; L 10,10 10,0; L 10,0 0,0");
  region.UpdateGeometry_Outputs();
  EXPECT_EQ(region.RegionArea_Base(), 100);
  EXPECT_THAT(region.Entities().EntityArray(), IsBits("L 10,0 0,0; L 10,10 10,0; L 0,10 10,10; L 0,0 0,10"));
  EXPECT_TRUE(region.PointInsideRegion({5, 5}, kAllTypes, false));
  region.UpdateGeometry_Outputs();
  EXPECT_EQ(region.RegionArea_Base(), 100);
  EXPECT_THAT(region.Entities().EntityArray(), IsBits("L 10,0 0,0; L 10,10 10,0; L 0,10 10,10; L 0,0 0,10"));
}

TEST_F(UpdateGeometry_Outputs, ClockwiseOutlineOfTwoPiecesEndsAnticlockwise) {
  for (const char* lens : {"L 0,0 4,0; A c 2,0 r 2 180..360", "A c 2,0 r 2 180..360; L 0,0 4,0",
                           "A c 2,0 r 2 180..360; L 4,0 0,0", "L 4,0 0,0; A c 2,0 r 2 180..360"}) {
    TTreeNode_Geometry& region = Add(lens);
    EXPECT_NEAR(region.RegionArea_Base(), 6.283185307179586, 1e-12) << lens;
    EXPECT_TRUE(region.PointInsideRegion({2, -1}, kAllTypes, false)) << lens;
    EXPECT_THAT(region.RegionCoordinate(), IsNear(2, -0.8488, 1e-2)) << lens;
  }
}

TEST_F(UpdateGeometry_Outputs, RefreshesTheStoredStartOfTheOutline) {
  TTreeNode_Geometry& region = AddRegion(fTree, kSquare);
  region.Entities().StartCoordinate({77, 77});
  region.UpdateGeometry_Outputs();
  EXPECT_THAT(region.Entities().StartCoordinate(), IsBits(0, 0));
}

TEST_F(UpdateGeometry_Outputs, ConvexRegionIsLabelledAtItsCentroid) {
  const TTreeNode_Geometry& region = Add(PolygonText("0,0 6,0 0,3"));
  EXPECT_THAT(region.Centroid(), IsNear(2, 1, 1e-12));
  EXPECT_THAT(region.RegionCoordinate(), IsBits(region.Centroid()));
}

TEST_F(UpdateGeometry_Outputs, CShapeIsLabelledAtThePoleInsideItsMaterial) {
  const TTreeNode_Geometry& region = Add(kCShape);
  ASSERT_FALSE(region.PointInsideRegion(region.Centroid(), kAllTypes, false));
  EXPECT_THAT(region.RegionCoordinate(), Not(IsBits(region.Centroid())));
  EXPECT_TRUE(region.PointInsideRegion(region.RegionCoordinate(), kAllTypes, false));
}

TEST_F(UpdateGeometry_Outputs, ChildrenAttachedBeforeKeepTheLabelClear) {
  TTreeNode_Geometry& parent = AddRegion(fTree, kSquare);
  Add(RectangleText(4, 4, 6, 6), &parent);
  parent.UpdateGeometry_Outputs();
  EXPECT_THAT(parent.Centroid(), IsNear(5, 5, 1e-12));
  EXPECT_TRUE(parent.PointInsideRegion(parent.RegionCoordinate(), kAllTypes, false));
}

TEST_F(UpdateGeometry_Outputs, ChildrenAttachedAfterwardsAreNotKnownYet) {
  TTreeNode_Geometry& parent = Add(kSquare);
  Add(RectangleText(4, 4, 6, 6), &parent);
  EXPECT_FALSE(parent.PointInsideRegion(parent.RegionCoordinate(), kAllTypes, false));
}

TEST_F(UpdateGeometry_Outputs, AreaNotAboveTheLeastLabelledOneKeepsTheLabel) {
  TTreeNode_Geometry& region = AddRegion(fTree, kSquare);
  region.RegionCoordinate({7, 7});
  for (const double least : {100.0, 200.0, kInfinity, kNotANumber}) {
    fSettings.With(Maindataenum::TInputFields::ifMinimumLabelArea, least);
    region.UpdateGeometry_Outputs();
    EXPECT_THAT(region.RegionCoordinate(), IsBits(7, 7)) << least;
    EXPECT_EQ(region.RegionArea_Base(), 100);
    EXPECT_THAT(region.Centroid(), IsNear(5, 5, 1e-12));
  }
  fSettings.With(Maindataenum::TInputFields::ifMinimumLabelArea, 99.999);
  region.UpdateGeometry_Outputs();
  EXPECT_THAT(region.RegionCoordinate(), IsNear(5, 5, 1e-12));
}

TEST_F(UpdateGeometry_Outputs, OfAnEmptyRegionHasNoCentroidAndKeepsTheLabel) {
  const TTreeNode_Geometry& region = Add("");
  EXPECT_EQ(region.RegionArea_Base(), 0);
  EXPECT_THAT(region.Centroid(), IsBits(kNotANumber, kNotANumber));
  EXPECT_THAT(region.RegionCoordinates(), IsBits("0,0"));
}

TEST_F(UpdateGeometry_Outputs, LabelsTheFirstPointOnly) {
  TTreeNode_Geometry& region = AddRegion(fTree, kSquare);
  region.RegionCoordinates() = {{1, 1}, {2, 2}};
  region.UpdateGeometry_Outputs();
  EXPECT_THAT(region.RegionCoordinates(), IsNear("5,5 2,2", 1e-12));
}

using UpdateRegionCoordinate = RegionMeasuresTest;

TEST_F(UpdateRegionCoordinate, AsksForThePoleWhateverTheArea) {
  TTreeNode_Geometry& region = AddRegion(fTree, kSquare);
  fSettings.With(Maindataenum::TInputFields::ifMinimumLabelArea, 1e9);
  region.UpdateGeometry_Outputs();
  ASSERT_THAT(region.RegionCoordinate(), IsBits(0, 0));
  region.UpdateRegionCoordinate();
  EXPECT_THAT(region.RegionCoordinate(), IsNear(5, 5, 1e-12));
}

}  // namespace
}  // namespace GeometryEngine

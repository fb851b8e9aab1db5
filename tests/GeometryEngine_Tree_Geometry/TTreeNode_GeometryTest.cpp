#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"

#include <cstdint>
#include <limits>
#include <memory>

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
using support::RectangleText;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

class TTreeNode_GeometryTest : public ::testing::Test {
 protected:
  support::TSettingsGuard fSettings;
  TTree_Geometry fTree;
  TTreeNode_Geometry& fRegion = AddRegion(fTree, "");
};

TEST_F(TTreeNode_GeometryTest, StartsClosedAndEmptyAndOccursOnce) {
  EXPECT_EQ(fRegion.NumberEntities(), 0);
  EXPECT_EQ(fRegion.NumberEntities_Internal(), 0);
  EXPECT_THAT(fRegion.Centroid(), IsBits(0, 0));
  EXPECT_EQ(fRegion.RegionArea_Base(), 0);
  EXPECT_EQ(fRegion.NumberDuplications(), 1);
  EXPECT_EQ(fRegion.DuplicationAngle(), 360);
  EXPECT_THAT(fRegion.RegionCoordinates(), IsBits("0,0"));
  EXPECT_EQ(fRegion.RegionPolyType(), ptClosed);
  EXPECT_THAT(fRegion.DetectionStartCoords(), IsEmpty());
  EXPECT_EQ(fRegion.Plane().NormalVector().Length(), 0.0F);
}

TEST_F(TTreeNode_GeometryTest, OnlyTheIdentifierFlagStartsSet) {
  EXPECT_FALSE(fRegion.OnBoundary());
  EXPECT_FALSE(fRegion.Singular());
  EXPECT_FALSE(fRegion.FitToParent());
  EXPECT_TRUE(fRegion.IncludeRegionIdentifier());
  EXPECT_FALSE(fRegion.CustomRegionApplied());
  EXPECT_FALSE(fRegion.AdaptiveEntities());
}

TEST_F(TTreeNode_GeometryTest, EachFlagReadsWhatWasWritten) {
  fRegion.OnBoundary(true);
  EXPECT_TRUE(fRegion.OnBoundary());
  EXPECT_FALSE(fRegion.Singular());
  fRegion.Singular(true);
  EXPECT_TRUE(fRegion.Singular());
  EXPECT_FALSE(fRegion.FitToParent());
  fRegion.FitToParent(true);
  EXPECT_TRUE(fRegion.FitToParent());
  fRegion.IncludeRegionIdentifier(false);
  EXPECT_FALSE(fRegion.IncludeRegionIdentifier());
  EXPECT_FALSE(fRegion.CustomRegionApplied());
  fRegion.CustomRegionApplied(true);
  EXPECT_TRUE(fRegion.CustomRegionApplied());
  EXPECT_FALSE(fRegion.AdaptiveEntities());
  fRegion.AdaptiveEntities(true);
  EXPECT_TRUE(fRegion.AdaptiveEntities());
}

TEST_F(TTreeNode_GeometryTest, CountsTheEntitiesOfItsTwoChains) {
  support::AddChain(fRegion.Entities(), RectangleText(0, 0, 4, 4));
  support::AddChain(fRegion.Entities_Internal(), "L 1,1 2,1; L 2,1 1,2; L 1,2 1,1");
  EXPECT_EQ(fRegion.GetNumEntities(), 4);
  EXPECT_EQ(fRegion.NumberEntities(), 4);
  EXPECT_EQ(fRegion.GetNumEntities_Internal(), 3);
  EXPECT_EQ(fRegion.NumberEntities_Internal(), 3);
}

TEST_F(TTreeNode_GeometryTest, GetNodeIsNilWithoutAChildAtThatPlace) {
  TTreeNode_Geometry& child = AddRegion(fTree, "", &fRegion);
  EXPECT_EQ(fRegion.GetNode(0), &child);
  EXPECT_EQ(fRegion.GetNode(1), nullptr);
  EXPECT_EQ(fRegion.GetNode(-1), nullptr);
}

TEST_F(TTreeNode_GeometryTest, ChildrenLeavesOutNodesOfOtherClasses) {
  std::unique_ptr<TTreeNode_Base> other = std::make_unique<TTreeNode_CoreProperties>(&fTree);
  TTreeNode_Base* const entered = fTree.AddNewTreeNode(other);
  fTree.MoveTreeNode_Recursive(entered, &fRegion);
  TTreeNode_Geometry& child = AddRegion(fTree, "", &fRegion);
  EXPECT_THAT(fRegion.Children(), ElementsAre(&child));
  EXPECT_EQ(fRegion.GetNode(0), nullptr);
  EXPECT_EQ(fRegion.GetNode(1), &child);
}

TEST_F(TTreeNode_GeometryTest, TypeCastGivesNilForNilAndForOtherNodes) {
  TTreeNode_CoreProperties other(&fTree);
  TTreeNode_Base* const nothing = nullptr;
  TTreeNode_Base* const region = &fRegion;
  EXPECT_EQ(TTreeNode_Geometry::TypeCast(region), &fRegion);
  EXPECT_EQ(TTreeNode_Geometry::TypeCast(static_cast<const TTreeNode_Base*>(region)), &fRegion);
  EXPECT_EQ(TTreeNode_Geometry::TypeCast(&other), nullptr);
  EXPECT_EQ(TTreeNode_Geometry::TypeCast(nothing), nullptr);
}

using SetRegionCoordinate_Single = TTreeNode_GeometryTest;

TEST_F(SetRegionCoordinate_Single, OverwritesTheFirstPointAndLeavesTheOthers) {
  fRegion.RegionCoordinates() = {{1, 1}, {2, 2}};
  fRegion.RegionCoordinate({5, 6});
  EXPECT_THAT(fRegion.RegionCoordinates(), IsBits("5,6 2,2"));
  EXPECT_THAT(fRegion.RegionCoordinate(), IsBits(5, 6));
}

TEST_F(SetRegionCoordinate_Single, AppendsToAnEmptyListThatReadsAsTheOrigin) {
  fRegion.RegionCoordinates().clear();
  EXPECT_THAT(fRegion.GetRegionCoordinate_Single(), IsBits(0, 0));
  fRegion.SetRegionCoordinate_Single({5, 6});
  EXPECT_THAT(fRegion.RegionCoordinates(), IsBits("5,6"));
}

using UpdateRegionDuplicationValues = TTreeNode_GeometryTest;

TEST_F(UpdateRegionDuplicationValues, SharesOutTheFullTurn) {
  fRegion.UpdateRegionDuplicationValues(8);
  EXPECT_EQ(fRegion.NumberDuplications(), 8);
  EXPECT_EQ(fRegion.DuplicationAngle(), 45);
}

TEST_F(UpdateRegionDuplicationValues, ASingleOccurrenceHasTheFullTurn) {
  fRegion.UpdateRegionDuplicationValues(1);
  EXPECT_EQ(fRegion.DuplicationAngle(), 360);
}

TEST_F(UpdateRegionDuplicationValues, NumberBelow1GivesAngle0) {
  for (const std::int32_t number : {0, -1, INT32_MIN}) {
    fRegion.UpdateRegionDuplicationValues(number);
    EXPECT_EQ(fRegion.NumberDuplications(), number);
    EXPECT_EQ(fRegion.DuplicationAngle(), 0);
  }
}

TEST_F(UpdateRegionDuplicationValues, IsWhatWritingTheNumberDoes) {
  fRegion.NumberDuplications(12);
  EXPECT_EQ(fRegion.NumberDuplications(), 12);
  EXPECT_EQ(fRegion.DuplicationAngle(), 30);
}

using UpdateDuplicationValues_Angle = TTreeNode_GeometryTest;

TEST_F(UpdateDuplicationValues_Angle, Angle45Gives8AndAngle7Gives51) {
  fRegion.UpdateDuplicationValues_Angle(45);
  EXPECT_EQ(fRegion.NumberDuplications(), 8);
  EXPECT_EQ(fRegion.DuplicationAngle(), 45);
  fRegion.UpdateDuplicationValues_Angle(7);
  EXPECT_EQ(fRegion.NumberDuplications(), 51);
  EXPECT_EQ(fRegion.DuplicationAngle(), 7);
}

TEST_F(UpdateDuplicationValues_Angle, AngleNotAbove0GivesNone) {
  for (const double angle : {0.0, -45.0, -kInfinity, kNotANumber}) {
    fRegion.UpdateDuplicationValues_Angle(angle);
    EXPECT_EQ(fRegion.NumberDuplications(), 0) << angle;
  }
}

TEST_F(UpdateDuplicationValues_Angle, NumberSaturatesForATinyAngleAndIs0ForAnEndlessOne) {
  fRegion.UpdateDuplicationValues_Angle(1e-300);
  EXPECT_EQ(fRegion.NumberDuplications(), INT32_MAX);
  fRegion.UpdateDuplicationValues_Angle(std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(fRegion.NumberDuplications(), INT32_MAX);
  fRegion.UpdateDuplicationValues_Angle(kInfinity);
  EXPECT_EQ(fRegion.NumberDuplications(), 0);
}

TEST_F(UpdateDuplicationValues_Angle, IsWhatWritingTheAngleDoes) {
  fRegion.DuplicationAngle(100);
  EXPECT_EQ(fRegion.NumberDuplications(), 3);
  EXPECT_EQ(fRegion.DuplicationAngle(), 100);
}

class HasFractionalChildDuplications : public TTreeNode_GeometryTest {
 protected:
  bool Answer(std::int32_t aParent, std::int32_t aChild) {
    TTreeNode_Geometry& parent = AddRegion(fTree, "");
    parent.NumberDuplications(aParent);
    AddRegion(fTree, "", &parent).NumberDuplications(aChild);
    return parent.HasFractionalChildDuplications();
  }
};

TEST_F(HasFractionalChildDuplications, IsTrueForAParentOf8WithAChildOf12) {
  EXPECT_TRUE(Answer(8, 12));
}

TEST_F(HasFractionalChildDuplications, IsFalseForAParentOf4WithAChildOf8) {
  EXPECT_FALSE(Answer(4, 8));
}

TEST_F(HasFractionalChildDuplications, IsTrueForAChildThatOccursLessOften) {
  EXPECT_TRUE(Answer(8, 4));
}

TEST_F(HasFractionalChildDuplications, OfAParentOf0CountsAnyChildAsWholeButOneOf0) {
  EXPECT_FALSE(Answer(0, 3));
  EXPECT_FALSE(Answer(0, -3));
  EXPECT_TRUE(Answer(0, 0));
}

TEST_F(HasFractionalChildDuplications, IsFalseWithoutChildrenAndTrueWhenOneOfManyIs) {
  EXPECT_FALSE(fRegion.HasFractionalChildDuplications());
  fRegion.NumberDuplications(4);
  for (const std::int32_t number : {8, 12, 4}) AddRegion(fTree, "", &fRegion).NumberDuplications(number);
  EXPECT_FALSE(fRegion.HasFractionalChildDuplications());
  AddRegion(fTree, "", &fRegion).NumberDuplications(6);
  EXPECT_TRUE(fRegion.HasFractionalChildDuplications());
}

using SetPlane = TTreeNode_GeometryTest;

TEST_F(SetPlane, TakesTheOtherPlaneOver) {
  auto plane = std::make_unique<TPlane>();
  TPlane* const taken = plane.get();
  fRegion.SetPlane(plane);
  EXPECT_EQ(plane, nullptr);
  EXPECT_EQ(&fRegion.GetPlane(), taken);
}

TEST_F(SetPlane, LeavesTheHeldPlaneForNil) {
  TPlane* const held = &fRegion.Plane();
  std::unique_ptr<TPlane> nothing;
  fRegion.Plane(nothing);
  EXPECT_EQ(&fRegion.Plane(), held);
}

class CopyRegionParameters : public TTreeNode_GeometryTest {
 protected:
  CopyRegionParameters() { fSource.RegionName("Magnet"); }

  TTreeNode_Geometry& fSource = AddRegion(fTree, "");
};

TEST_F(CopyRegionParameters, TakesOverTypeFlagsPolyTypeAndPlane) {
  fSource.RegionType(rtMagnetPocket);
  fSource.OnBoundary(true);
  fSource.Singular(true);
  fSource.FitToParent(true);
  fSource.IncludeRegionIdentifier(false);
  fSource.RegionPolyType(ptPolyLine);
  fSource.CustomRegionApplied(true);
  fSource.Plane().Vector_X({0, 0, 7});
  fRegion.CopyRegionParameters(fSource, true);
  EXPECT_EQ(fRegion.RegionType(), rtMagnetPocket);
  EXPECT_EQ(fRegion.UniqueName(), "Magnet_1");
  EXPECT_TRUE(fRegion.OnBoundary());
  EXPECT_TRUE(fRegion.Singular());
  EXPECT_TRUE(fRegion.FitToParent());
  EXPECT_FALSE(fRegion.IncludeRegionIdentifier());
  EXPECT_EQ(fRegion.RegionPolyType(), ptPolyLine);
  EXPECT_TRUE(fRegion.CustomRegionApplied());
  EXPECT_EQ(fRegion.Plane().Vector_X().z, 7.0F);
  EXPECT_NE(&fRegion.Plane(), &fSource.Plane());
}

TEST_F(CopyRegionParameters, OfARegionWhosePlaneNobodyHasAskedForSetsThePlaneBack) {
  TPlane& held = fRegion.Plane();
  held.Vector_X({0, 0, 7});
  fRegion.CopyRegionParameters(fSource, true);
  EXPECT_EQ(&fRegion.Plane(), &held);
  EXPECT_EQ(held.Vector_X().z, 0.0F);
}

TEST_F(CopyRegionParameters, LeavesAdaptiveEntitiesStartCoordinatesAndShape) {
  fSource.AdaptiveEntities(true);
  fSource.DetectionStartCoords().push_back({1, 2});
  support::AddChain(fSource.Entities(), RectangleText(0, 0, 4, 4));
  fSource.UpdateGeometry_Outputs();
  fRegion.CopyRegionParameters(fSource, false);
  EXPECT_EQ(fRegion.UniqueName(), "Magnet");
  EXPECT_FALSE(fRegion.AdaptiveEntities());
  EXPECT_THAT(fRegion.DetectionStartCoords(), IsEmpty());
  EXPECT_EQ(fRegion.NumberEntities(), 0);
  EXPECT_EQ(fRegion.RegionArea_Base(), 0);
}

TEST_F(CopyRegionParameters, StartCoordinatesAreReadOfAConstantNodeToo) {
  fRegion.DetectionStartCoords().push_back({1, 2});
  const TTreeNode_Geometry& region = fRegion;
  EXPECT_THAT(region.DetectionStartCoords(), IsBits("1,2"));
}

TEST_F(CopyRegionParameters, TheAngleWinsOverTheNumber) {
  fSource.NumberDuplications(-3);  // angle 0
  fRegion.CopyRegionParameters(fSource, false);
  EXPECT_EQ(fRegion.NumberDuplications(), 0);
  fSource.DuplicationAngle(100);
  fRegion.CopyRegionParameters(fSource, false);
  EXPECT_EQ(fRegion.NumberDuplications(), 3);
  EXPECT_EQ(fRegion.DuplicationAngle(), 100);
}

TEST_F(CopyRegionParameters, ANumberWhoseAngleIsRoundedUpComesOutOneLess) {
  std::vector<std::int32_t> oneLess;
  for (std::int32_t number = 1; number < 1000; ++number) {
    fSource.NumberDuplications(number);
    fRegion.CopyRegionParameters(fSource, false);
    EXPECT_EQ(fRegion.DuplicationAngle(), 360.0 / number);
    if (fRegion.NumberDuplications() == number) continue;
    EXPECT_EQ(fRegion.NumberDuplications(), number - 1);
    oneLess.push_back(number);
  }
  EXPECT_THAT(oneLess, ElementsAre(169, 237, 255, 338, 339, 471, 474, 477, 499, 510, 609, 676, 678, 715, 885, 931, 942,
                                   948, 954, 977, 997, 998));
}

TEST_F(CopyRegionParameters, FromItselfKeepsTheAngle) {
  fSource.DuplicationAngle(100);
  fSource.CopyRegionParameters(fSource, false);
  EXPECT_EQ(fSource.DuplicationAngle(), 100);
}

using CopyRegionParameters_Geometry = TTreeNode_GeometryTest;

TEST_F(CopyRegionParameters_Geometry, AppendsBothChainsAndTakesOverWhatFollowsFromThem) {
  TTreeNode_Geometry& source = AddRegion(fTree, RectangleText(2, 2, 6, 6));
  support::AddChain(source.Entities_Internal(), RectangleText(3, 3, 4, 4));
  source.UpdateGeometry_Outputs();
  source.RegionCoordinates().push_back({9, 9});
  support::AddChain(fRegion.Entities(), "L 0,0 1,0");

  fRegion.CopyRegionParameters_Geometry(source);
  EXPECT_THAT(fRegion.Entities().EntityArray(), IsBits("L 0,0 1,0; " + RectangleText(2, 2, 6, 6)));
  EXPECT_THAT(fRegion.Entities().StartCoordinate(), IsBits(2, 2));
  EXPECT_THAT(fRegion.Entities_Internal().EntityArray(), IsBits(RectangleText(3, 3, 4, 4)));
  EXPECT_THAT(fRegion.Entities_Internal().StartCoordinate(), IsBits(3, 3));
  EXPECT_EQ(fRegion.RegionArea_Base(), 15);
  EXPECT_THAT(fRegion.Centroid(), IsBits(source.Centroid()));
  EXPECT_THAT(fRegion.RegionCoordinates(), IsBits(source.RegionCoordinates()));
  EXPECT_EQ(fRegion.NumberDuplications(), 1);
}

TEST_F(CopyRegionParameters_Geometry, FromItselfHasEveryEntityTwice) {
  support::AddChain(fRegion.Entities(), "L 0,0 1,0");
  fRegion.CopyRegionParameters_Geometry(fRegion);
  EXPECT_THAT(fRegion.Entities().EntityArray(), IsBits("L 0,0 1,0; L 0,0 1,0"));
}

}  // namespace
}  // namespace GeometryEngine

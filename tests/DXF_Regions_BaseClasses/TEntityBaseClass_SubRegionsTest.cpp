#include <limits>
#include <optional>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "tests/support/Detection.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::TDetection;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kThreeNestedSquares =
    "L 0,0 30,0; L 30,0 30,30; L 30,30 0,30; L 0,30 0,0;"
    "L 5,5 20,5; L 20,5 20,20; L 20,20 5,20; L 5,20 5,5;"
    "L 8,8 12,8; L 12,8 12,12; L 12,12 8,12; L 8,12 8,8";

class TSubRegionsTest : public testing::Test {
 protected:
  void Detect(const char* aDrawing) {
    fDetection.emplace(aDrawing);
    fDetection->driver.DetermineRegions(fDetection->driver.CoordinateTree(), 1);
    fDetection->driver.IdentifySubRegions(fDetection->driver.CoordinateTree());
  }
  TEntityBaseClass& Driver() { return fDetection->driver; }
  const TIntegerArray& SubRegions(TIndex aRegion) { return Region(aRegion)->SubRegions(); }
  TTreeNode* Region(TIndex aRegion) { return Driver().RegionTree().RootNode()->GetNode(aRegion); }

  /// A region node without entities, of that area and with those sub-regions.
  static TTreeNode* AddRegion(TEntityBaseClass& aDriver, double aArea, const TIntegerArray& aSubRegions) {
    TTreeNode* region = aDriver.RegionTree().AddTreeNode_ToRoot();
    region->GaussArea(aArea);
    for (const std::int32_t index : aSubRegions) region->AddSubRegion(index);
    return region;
  }

  support::TSettingsGuard fSettings;
  std::optional<TDetection> fDetection;
};

using IdentifySubRegions = TSubRegionsTest;
using RemoveDuplicatedSubRegions = TSubRegionsTest;
using GetIsRegionSubRegion = TSubRegionsTest;

}  // namespace

TEST_F(IdentifySubRegions, EveryContainerListsWhatLiesInside) {
  Detect(kThreeNestedSquares);
  EXPECT_THAT(SubRegions(0), ElementsAre(1, 2));
  EXPECT_THAT(SubRegions(1), ElementsAre(2));
  EXPECT_THAT(SubRegions(2), IsEmpty());
}

TEST_F(IdentifySubRegions, SecondRunListsEverythingTwice) {
  Detect(kThreeNestedSquares);
  Driver().IdentifySubRegions(Driver().CoordinateTree());
  EXPECT_THAT(SubRegions(0), ElementsAre(1, 2, 1, 2));
}

TEST_F(IdentifySubRegions, LoopBesideAnotherIsNotListed) {
  Detect("L 0,0 4,0; L 4,0 4,4; L 4,4 0,0; L 10,0 14,0; L 14,0 14,4; L 14,4 10,0");
  EXPECT_THAT(SubRegions(0), IsEmpty());
  EXPECT_THAT(SubRegions(1), IsEmpty());
}

TEST_F(IdentifySubRegions, WithoutRegionsDoesNothing) {
  Detect("L 0,0 4,0");
  EXPECT_EQ(Driver().RegionTree().RootNode()->Count(), 0);
  Driver().RemoveDuplicatedSubRegions();
  EXPECT_FALSE(Driver().GetIsRegionSubRegion(0));
}

TEST_F(RemoveDuplicatedSubRegions, KeepsEachRegionInItsClosestContainer) {
  Detect(kThreeNestedSquares);
  Driver().RemoveDuplicatedSubRegions();
  EXPECT_THAT(SubRegions(0), ElementsAre(1));
  EXPECT_THAT(SubRegions(1), ElementsAre(2));
}

TEST_F(RemoveDuplicatedSubRegions, FindsTheClosestWhateverTheOrderOfTheContainers) {
  for (const TIntegerArray& order : {TIntegerArray{1, 2, 3}, {3, 2, 1}, {2, 1, 3}, {3, 1, 2}}) {
    TEntityBaseClass driver;
    AddRegion(driver, 0.5, {});
    for (const std::int32_t area : order) AddRegion(driver, area, {0});
    driver.RemoveDuplicatedSubRegions();
    for (const TTreeNode* region : driver.RegionTree().RootNode()->Children()) {
      EXPECT_EQ(region->NumSubRegions(), region->GaussArea() == 1 ? 1 : 0) << region->GaussArea();
    }
  }
}

TEST_F(RemoveDuplicatedSubRegions, OfEqualContainersKeepsTheFirst) {
  TEntityBaseClass driver;
  AddRegion(driver, 1, {});
  const TTreeNode* first = AddRegion(driver, 5, {0});
  const TTreeNode* second = AddRegion(driver, 5, {0});
  driver.RemoveDuplicatedSubRegions();
  EXPECT_THAT(first->SubRegions(), ElementsAre(0));
  EXPECT_THAT(second->SubRegions(), IsEmpty());
}

TEST_F(RemoveDuplicatedSubRegions, SignedAreaDecidesNotItsMagnitudeKept) {
  TEntityBaseClass driver;
  AddRegion(driver, 1, {});
  const TTreeNode* small = AddRegion(driver, 5, {0});
  const TTreeNode* clockwise = AddRegion(driver, -500, {0});
  driver.RemoveDuplicatedSubRegions();
  EXPECT_THAT(small->SubRegions(), IsEmpty());
  EXPECT_THAT(clockwise->SubRegions(), ElementsAre(0));
}

TEST_F(RemoveDuplicatedSubRegions, ContainerOfTenToTheTwelfthIsNeverTheClosestKept) {
  TEntityBaseClass driver;
  AddRegion(driver, 1, {});
  const TTreeNode* huge = AddRegion(driver, 1e12, {0});
  const TTreeNode* hugeToo = AddRegion(driver, 2e12, {0});
  driver.RemoveDuplicatedSubRegions();
  EXPECT_THAT(huge->SubRegions(), ElementsAre(0)) << "the first listing stands, there is no better one to drop it for";
  EXPECT_THAT(hugeToo->SubRegions(), IsEmpty());
  const TTreeNode* ordinary = AddRegion(driver, 5, {0});
  driver.RemoveDuplicatedSubRegions();
  EXPECT_THAT(huge->SubRegions(), ElementsAre(0)) << "it never was the best, so nothing takes the region from it";
  EXPECT_THAT(ordinary->SubRegions(), ElementsAre(0));
}

TEST_F(RemoveDuplicatedSubRegions, ContainerWhoseAreaIsNoNumberIsNeverTheClosest) {
  for (const double area : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    TEntityBaseClass driver;
    AddRegion(driver, 1, {});
    const TTreeNode* without = AddRegion(driver, area, {0});
    const TTreeNode* ordinary = AddRegion(driver, 5, {0});
    const TTreeNode* withoutToo = AddRegion(driver, area, {0});
    driver.RemoveDuplicatedSubRegions();
    EXPECT_THAT(without->SubRegions(), ElementsAre(0)) << "the first listing stands: there is no best to take it from";
    EXPECT_THAT(ordinary->SubRegions(), ElementsAre(0));
    EXPECT_THAT(withoutToo->SubRegions(), IsEmpty());
  }
}

TEST_F(GetIsRegionSubRegion, HoldsForListedRegionsOnly) {
  Detect(kThreeNestedSquares);
  Driver().RemoveDuplicatedSubRegions();
  EXPECT_FALSE(Driver().GetIsRegionSubRegion(0));
  EXPECT_TRUE(Driver().GetIsRegionSubRegion(1));
  EXPECT_TRUE(Driver().GetIsRegionSubRegion(2));
  EXPECT_FALSE(Driver().GetIsRegionSubRegion(3));
  EXPECT_FALSE(Driver().GetIsRegionSubRegion(-1));
}

TEST_F(GetIsRegionSubRegion, SeesWhatHostsChangeInBetween) {
  TEntityBaseClass driver;
  TTreeNode* first = AddRegion(driver, 1, {});
  AddRegion(driver, 1, {});
  EXPECT_FALSE(driver.GetIsRegionSubRegion(1));
  first->AddSubRegion(1);
  EXPECT_TRUE(driver.GetIsRegionSubRegion(1));
  first->RemoveSubRegion(1);
  EXPECT_FALSE(driver.GetIsRegionSubRegion(1));
  first->SubRegions({1, 7});
  EXPECT_TRUE(driver.GetIsRegionSubRegion(1));
  EXPECT_TRUE(driver.GetIsRegionSubRegion(7)) << "no region's index, but listed";
  first->ResetRegionIdentifier();
  EXPECT_FALSE(driver.GetIsRegionSubRegion(1));
  first->AddSubRegion(1);
  EXPECT_TRUE(driver.GetIsRegionSubRegion(1));
  driver.RegionTree().RemoveTreeNode(first, true);
  EXPECT_FALSE(driver.GetIsRegionSubRegion(1));
  AddRegion(driver, 1, {0});
  EXPECT_TRUE(driver.GetIsRegionSubRegion(0));
  driver.RegionTree().Clear();
  EXPECT_FALSE(driver.GetIsRegionSubRegion(0));
}

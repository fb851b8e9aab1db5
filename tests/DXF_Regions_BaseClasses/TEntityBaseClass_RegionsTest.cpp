#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::GetLoops;
using support::IsBits;
using support::IsLoop;
using support::IsNear;
using support::TDetection;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* kSquare = "L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0";
constexpr const char* kOpenChain = "L 0,0 4,0; L 4,0 4,4; L 4,4 8,4; L 20,0 21,0";

class TRegionsTest : public testing::Test {
 protected:
  static std::vector<support::TLoop> Determine(TDetection& aDetection, std::int32_t aRegionType) {
    aDetection.driver.DetermineRegions(aDetection.driver.CoordinateTree(), aRegionType);
    return GetLoops(aDetection.driver);
  }
  static std::vector<support::TLoop> DetectOrphans(TDetection& aDetection) {
    aDetection.driver.DetectOrphanEntities(aDetection.driver.CoordinateTree());
    return GetLoops(aDetection.driver);
  }
  static TIndex CountTravelled(const TEntityTree& aTree) {
    TIndex travelled = 0;
    for (TIndex i = 0; i < aTree.Count(); ++i) travelled += aTree.GetNodeFromIndex(i)->Travelled() ? 1 : 0;
    return travelled;
  }

  support::TSettingsGuard fSettings;
};

using DetermineRegions = TRegionsTest;
using DetectOrphanEntities = TRegionsTest;
using AddRegionCoordinates = TRegionsTest;

}  // namespace

TEST_F(DetermineRegions, TypeZeroKeepsEveryClosedLoop) {
  TDetection square(kSquare);
  EXPECT_THAT(Determine(square, 0), ElementsAre(IsLoop(4, -16), IsLoop(4, 16)));
}

TEST_F(DetermineRegions, TypeOneKeepsAnticlockwiseLoopsOnly) {
  TDetection square(kSquare);
  EXPECT_THAT(Determine(square, 1), ElementsAre(IsLoop(4, 16)));
}

TEST_F(DetermineRegions, TypeTwoKeepsClockwiseLoopsOnly) {
  TDetection square(kSquare);
  EXPECT_THAT(Determine(square, 2), ElementsAre(IsLoop(4, -16)));
}

TEST_F(DetermineRegions, AnyOtherTypeKeepsNoLoop) {
  for (const std::int32_t type : {-1, 3, INT32_MAX}) {
    TDetection square(kSquare);
    EXPECT_THAT(Determine(square, type), IsEmpty()) << type;
  }
}

TEST_F(DetermineRegions, LoopThatIsDroppedStaysMarkedTravelled) {
  TDetection square(kSquare);
  Determine(square, 1);
  EXPECT_EQ(CountTravelled(square.driver.CoordinateTree()), 8) << "four half-edges either way round";
  EXPECT_THAT(Determine(square, 2), IsEmpty());
}

TEST_F(DetermineRegions, ComesOutAgainOnceInterceptionsWereDeterminedAnew) {
  TDetection square(kSquare);
  Determine(square, 1);
  square.driver.DetermineInterceptions(&square.drawing);
  EXPECT_THAT(Determine(square, 2), ElementsAre(IsLoop(4, -16)));
}

TEST_F(DetermineRegions, FillsTheRegionNode) {
  TDetection square(kSquare);
  Determine(square, 2);
  const TTreeNode* region = square.driver.RegionTree().RootNode()->GetNode(0);
  EXPECT_EQ(region->RegionIndex(), -1);
  EXPECT_EQ(region->GaussArea(), -16);
  EXPECT_EQ(region->TravelDirection(), Travel_Clockwise);
  EXPECT_THAT(region->RegionCentroid(), IsNear(2, 2, 1e-12));
  EXPECT_EQ(region->NumSubRegions(), 0);
  EXPECT_EQ(square.driver.RegionTree().pEntityStorage(), square.driver.CoordinateTree().pEntityStorage());
}

TEST_F(DetermineRegions, DanglingEndStartsNoLoop) {
  TDetection chain(kOpenChain);
  EXPECT_THAT(Determine(chain, 0), IsEmpty());
  EXPECT_EQ(CountTravelled(chain.driver.CoordinateTree()), 0);
}

TEST_F(DetermineRegions, OfTheRegionTreeItselfLeavesItEmpty) {
  TDetection square(kSquare);
  Determine(square, 0);
  square.driver.DetermineRegions(square.driver.RegionTree(), 0);
  EXPECT_EQ(square.driver.RegionTree().RootNode()->Count(), 0);
}

TEST_F(DetermineRegions, OfTheInterceptTreeFindsNoRegion) {
  TDetection square(kSquare);
  square.driver.DetermineRegions(square.driver.InterceptTree(), 0);
  EXPECT_EQ(square.driver.RegionTree().RootNode()->Count(), 0);
}

TEST_F(DetectOrphanEntities, DanglingEndStartsAChain) {
  TDetection chain(kOpenChain);
  EXPECT_THAT(DetectOrphans(chain), ElementsAre(IsLoop(3, 0)));
}

TEST_F(DetectOrphanEntities, ChainOfTwoDanglingEndsIsListedOnce) {
  TDetection chains("L 0,0 4,0; L 4,0 4,4; L 10,0 12,0; L 20,0 21,0");
  EXPECT_THAT(DetectOrphans(chains), ElementsAre(IsLoop(2, -8), IsLoop(1, 0)));
}

TEST_F(DetectOrphanEntities, ChainStartsAtItsDanglingEndAndKeepsTheRawCentroidSum) {
  TDetection chain(kOpenChain);
  DetectOrphans(chain);
  const TTreeNode* region = chain.driver.RegionTree().RootNode()->GetNode(0);
  EXPECT_THAT(region->Coordinates(), IsBits(0, 0)) << "the first vertex of the graph with a single piece";
  EXPECT_THAT(region->RegionCentroid(), IsNear("-64,-64", 1e-12));
}

TEST_F(DetectOrphanEntities, ClosedLoopHasNoChain) {
  TDetection square(kSquare);
  EXPECT_THAT(DetectOrphans(square), IsEmpty());
}

TEST_F(DetectOrphanEntities, TakesThePlaceOfTheRegionsFoundBefore) {
  TDetection both(std::string(kSquare) + "; L 10,0 12,0; L 20,0 21,0");
  EXPECT_EQ(Determine(both, 1).size(), 1U);
  EXPECT_THAT(DetectOrphans(both), ElementsAre(IsLoop(1, 0)));
}

TEST_F(AddRegionCoordinates, WithoutIndexesAddsNothing) {
  TDetection square(kSquare);
  square.driver.AddRegionCoordinates(square.driver.CoordinateTree(), {}, {1, 2}, {3, 4}, 5);
  EXPECT_EQ(square.driver.RegionTree().RootNode()->Count(), 0);
}

TEST_F(AddRegionCoordinates, AddsARegionOfTheNodesEntities) {
  TDetection square(kSquare);
  const TEntityTree& tree = square.driver.CoordinateTree();
  const std::vector<std::int32_t> path{tree.RootNode()->GetNode(2)->GetNode(0)->AbsoluteIndex(),
                                       tree.RootNode()->GetNode(0)->GetNode(0)->AbsoluteIndex(), 5000};
  square.driver.AddRegionCoordinates(tree, path, {1, 2}, {3, 4}, 0);
  const TTreeNode* region = square.driver.RegionTree().RootNode()->GetNode(0);
  EXPECT_THAT(region->Coordinates(), IsBits(1, 2));
  EXPECT_THAT(region->RegionCentroid(), IsBits(3, 4));
  EXPECT_EQ(region->TravelDirection(), Travel_AntiClockwise);
  ASSERT_EQ(region->Count(), 3);
  EXPECT_EQ(region->GetNode(0)->EntityIndex(), tree.RootNode()->GetNode(2)->GetNode(0)->EntityIndex());
  EXPECT_EQ(region->GetNode(1)->EntityIndex(), tree.RootNode()->GetNode(0)->GetNode(0)->EntityIndex());
  EXPECT_EQ(region->GetNode(2)->EntityIndex(), -1) << "an index that the tree doesn't hold";
}

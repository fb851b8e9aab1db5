// Memory does not grow with the number of calls: a hundredth of a million of each, a million with tools/reliability.

#include <gtest/gtest.h>

#include "tests/everything/Observations.h"
#include "tests/reliability/Allocations.h"
#include "tests/support/Repetitions.h"

using namespace GeometryEngine;
using support::LiveAllocations;
using support::Repetitions;

namespace {

TEntityArray Square() {
  return {CreateEntity_Line(0, 0, 4, 0), CreateEntity_Line(4, 0, 4, 4), CreateEntity_Line(4, 4, 0, 4),
          CreateEntity_Line(0, 4, 0, 0), CreateEntity_Line(9, 0, 10, 0)};
}

// What `aCall` keeps after many calls, beyond what it kept after a few.
template <typename TCall>
std::int64_t GrowthOver(int aTimes, const TCall& aCall) {
  for (int i = 0; i < 4; ++i) aCall();
  const std::int64_t before = LiveAllocations();
  for (int i = 0; i < aTimes; ++i) aCall();
  return LiveAllocations() - before;
}

}  // namespace

TEST(Growth, OfADetectionTreeThatIsFilledAndClearedIsNone) {
  TEntityTree tree("Tree");
  const auto fillAndClear = [&tree] {
    for (int i = 0; i < 3; ++i) tree.AddTreeNode(tree.AddTreeNode_ToRoot());
    tree.Clear();
  };
  EXPECT_EQ(GrowthOver(Repetitions(10'000), fillAndClear), 0);
}

TEST(Growth, OfADriverThatDetectsAgainAndAgainIsNone) {
  TEntityStorage drawing;
  drawing.AddEntities(Square());
  TEntityBaseClass driver;
  const auto detect = [&] {
    driver.DetermineInterceptions(&drawing);
    driver.DetermineRegions(driver.CoordinateTree(), 1);
    driver.IdentifySubRegions(driver.CoordinateTree());
    driver.RemoveDuplicatedSubRegions();
  };
  EXPECT_EQ(GrowthOver(Repetitions(10'000), detect), 0);
  EXPECT_EQ(driver.RegionTree().RootNode()->Count(), 1);
}

TEST(Growth, OfDriversThatComeAndGoIsNone) {
  TEntityStorage drawing;
  drawing.AddEntities(everything::MixedDrawing());
  const auto detect = [&drawing] {
    TEntityBaseClass driver;
    driver.DetermineInterceptions(&drawing);
    driver.DetermineRegions(driver.CoordinateTree(), 1);
  };
  EXPECT_EQ(GrowthOver(Repetitions(100), detect), 0);
}

TEST(Growth, OfARegionTreeThatIsFilledNamedAndClearedIsNone) {
  TTree_Geometry tree;
  const auto fillAndClear = [&tree] {
    for (int i = 0; i < 3; ++i) {
      auto node = tree.CreateTreeNode();
      auto* region = TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node));
      region->SetRegionName("a region whose name takes memory of its own");
      region->Entities().AddEntities(Square());
    }
    tree.RemoveFreeTreeNode(tree.GetNodeFromIndex(2), true);
    tree.Clear();
  };
  EXPECT_EQ(GrowthOver(Repetitions(10'000), fillAndClear), 0);
}

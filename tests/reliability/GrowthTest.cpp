// Memory does not grow with the number of calls: a hundredth of a million of each, a million with tools/reliability.

#include <gtest/gtest.h>

#include "tests/everything/Observations.h"
#include "tests/reliability/Allocations.h"
#include "tests/support/Repetitions.h"

using namespace GeometryEngine;
using support::LiveAllocations;
using support::LiveBytes;
using support::Repetitions;

namespace {

TEntityArray Square() {
  return {CreateEntity_Line(0, 0, 4, 0), CreateEntity_Line(4, 0, 4, 4), CreateEntity_Line(4, 4, 0, 4),
          CreateEntity_Line(0, 4, 0, 0), CreateEntity_Line(9, 0, 10, 0)};
}

constexpr std::int64_t kMostGrowth = 1'000'000;  // bytes; the same allocation may get a few more than before

// What `aCall` keeps after many calls, beyond what it kept after a few, is nothing.
template <typename TCall>
void ExpectNoGrowthOver(int aTimes, const TCall& aCall) {
  for (int i = 0; i < 4; ++i) aCall();
  const std::int64_t allocations = LiveAllocations();
  const std::int64_t bytes = LiveBytes();
  for (int i = 0; i < aTimes; ++i) aCall();
  EXPECT_EQ(LiveAllocations(), allocations);
  EXPECT_LT(LiveBytes(), bytes + kMostGrowth);
}

// The allocations that live after a clear of a tree of three nodes, one of which holds a list.
std::int64_t LiveAfterClear(TEntityTree& aTree, TIndex aNodeWithList) {
  for (TIndex i = 0; i < 3; ++i) {
    TTreeNode* node = aTree.AddTreeNode_ToRoot();
    if (i == aNodeWithList) node->AddSubRegion(7);
  }
  aTree.Clear();
  return LiveAllocations();
}

}  // namespace

TEST(Growth, OfADetectionTreeThatIsFilledAndClearedIsNone) {
  TEntityTree tree("Tree");
  const auto fillAndClear = [&tree] {
    for (int i = 0; i < 3; ++i) tree.AddTreeNode(tree.AddTreeNode_ToRoot());
    tree.Clear();
  };
  ExpectNoGrowthOver(Repetitions(10'000), fillAndClear);
}

// The first clear passes over the root, each later one over a node, which goes with the next.
TEST(Growth, OfAClearIsTheOneNodeThatItPassesOver) {
  TEntityTree tree("Tree");
  const std::int64_t fresh = LiveAfterClear(tree, 0);
  LiveAfterClear(tree, 1);
  const std::int64_t without = LiveAfterClear(tree, 1);
  EXPECT_EQ(fresh, without - 1) << "every node has gone; since then one is kept";
  EXPECT_EQ(LiveAfterClear(tree, 0), without + 2) << "and its list with it";
  EXPECT_EQ(LiveAfterClear(tree, 2), without);
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
  ExpectNoGrowthOver(Repetitions(10'000), detect);
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
  ExpectNoGrowthOver(Repetitions(100), detect);
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
  ExpectNoGrowthOver(Repetitions(10'000), fillAndClear);
}

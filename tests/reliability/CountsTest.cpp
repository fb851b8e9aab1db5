// Counts as large as there are: the memory for all copies is asked for before any is made, and where the host has not
// got it nothing has changed.

#include <climits>
#include <cstddef>
#include <new>

#include <gtest/gtest.h>

#include "tests/everything/Observations.h"
#include "tests/reliability/Allocations.h"

using namespace GeometryEngine;
using support::TLargestAllocation;
using support::TMostMemory;

namespace {

constexpr std::size_t kSmallHost = std::size_t{1} << 30;  // bytes

std::uint64_t Seen(const TEntityStorage& aChain) {
  everything::THash hash;
  everything::Observe(aChain, hash);
  return hash.Value();
}

std::uint64_t Seen(TTreeNode_Geometry& aRegion) {
  everything::THash hash;
  everything::Observe(aRegion.Entities(), hash);
  hash.Add(std::int64_t{aRegion.NumberDuplications()});
  hash.Add(aRegion.DuplicationAngle());
  return hash.Value();
}

TEntityArray SomeEntities(int aCount) {
  TEntityArray entities;
  for (int i = 0; i < aCount; ++i) entities.push_back(CreateEntity_Line(i + 1, 0, i + 2, 0));
  return entities;
}

}  // namespace

TEST(Counts, OfAxialBlocksDoNotWrapRound) {
  const TLargestAllocation host(kSmallHost);
  EXPECT_THROW(GetAxialBlocks(0, 100, INT_MAX, -1), std::bad_alloc);
  EXPECT_THROW(GetAxialBlocks(0, 100, INT_MAX, 0), std::bad_alloc);
  EXPECT_EQ(GetAxialBlocks(0, 100, INT_MAX, 1).size(), 1U);
}

TEST(Counts, OfCopiesOfAChainAreAskedForBeforeAnyIsMade) {
  for (const int size : {1, 2, 5}) {
    TEntityStorage chain;
    chain.AddEntities(SomeEntities(size));
    const std::uint64_t before = Seen(chain);
    const TLargestAllocation host(kSmallHost);
    EXPECT_THROW(chain.DuplicateAroundAxis(INT_MAX, INT_MAX, 1, true), std::bad_alloc);
    EXPECT_THROW(chain.DuplicateAroundAxis(INT_MAX, INT_MAX, 1, false), std::bad_alloc);
    EXPECT_THROW(chain.DuplicateAlongAxis(INT_MAX, 1), std::bad_alloc);
    EXPECT_EQ(Seen(chain), before) << size;
  }
}

TEST(Counts, OfCopiesOfAnEmptyChainCostNothing) {
  TEntityStorage chain;
  chain.DuplicateAroundAxis(INT_MAX, INT_MAX, 1, true);
  chain.DuplicateAlongAxis(INT_MAX, 1);
  EXPECT_EQ(chain.GetCount(), 0);
}

TEST(Counts, OfSquaresInThePoleSearchTakeLessThan100MB) {
  for (const double length : {1e6, 1e9}) {
    TEntityStorage box;
    box.AddEntities({CreateEntity_Line(0, 0, length, 0), CreateEntity_Line(length, 0, length, 1),
                     CreateEntity_Line(length, 1, 0, 1), CreateEntity_Line(0, 1, 0, 0)});
    TPoleRegion region;
    region.fOutline = &box;
    region.fSearchable = true;
    const TMostMemory memory;
    const TEntityCoordinate pole = FindPoleInaccessibility(region, 1, 0.001);
    EXPECT_LT(memory.Bytes(), 100'000'000) << length;
    EXPECT_EQ(pole.y, length == 1e6 ? 0.5 : 0) << length;
  }
}

TEST(Counts, OfCopiesOfARegionAreAskedForBeforeAnyIsMade) {
  for (const int size : {0, 1, 4}) {
    TTree_Geometry tree;
    auto node = tree.CreateTreeNode();
    TTreeNode_Geometry& region = *TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node));
    region.Entities().AddEntities(SomeEntities(size));
    region.NumberDuplications(INT_MAX);
    region.GetWidth();  // which notes the bounds
    const std::uint64_t before = Seen(region);
    const TLargestAllocation host(kSmallHost);
    EXPECT_THROW(region.Duplicate(), std::bad_alloc);
    EXPECT_THROW(region.DuplicateAndUnite(INT_MAX, gpRadial), std::bad_alloc);
    EXPECT_THROW(region.DuplicateAndUnite(INT_MAX, gpAxial), std::bad_alloc);
    EXPECT_EQ(Seen(region), before) << size;
  }
}

#include "xsec/SplitAtGaps.h"

#include <gmock/gmock.h>

namespace xsec {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

constexpr double kGap = 0.5;

Extents Square(double x, double y) {
  return {x, y, x + 1, y + 1};
}

TEST(SplitAtGaps, NoBoxesAreNoGroup) {
  EXPECT_THAT(SplitAtGaps({}, kGap), IsEmpty());
}

TEST(SplitAtGaps, BoxesSideBySideOrAboveEachOtherArePartedAndTheirIndexesAscend) {
  EXPECT_THAT(SplitAtGaps({Square(4, 0), Square(0, 0), Square(4.5, 0.5), Square(0.2, 0)}, kGap),
              UnorderedElementsAre(ElementsAre(1, 3), ElementsAre(0, 2)));
  EXPECT_THAT(SplitAtGaps({Square(0, 4), Square(0, 0), Square(0, 4.5)}, kGap),
              UnorderedElementsAre(ElementsAre(1), ElementsAre(0, 2)));
}

TEST(SplitAtGaps, OnlyTheMembersAreParted) {
  EXPECT_THAT(SplitAtGaps({Square(0, 0), Square(1, 0), Square(2, 0)}, {0, 2}, 0.5),
              UnorderedElementsAre(ElementsAre(0), ElementsAre(2)));
}

TEST(SplitAtGaps, BoxesAsFarApartAsTheGapStayTogether) {
  EXPECT_THAT(SplitAtGaps({Square(0, 0), Square(1.5, 0)}, kGap), SizeIs(1));
  EXPECT_THAT(SplitAtGaps({Square(0, 0), Square(1.5001, 0)}, kGap), SizeIs(2));
}

TEST(SplitAtGaps, CutsGoOnThroughTheParts) {
  // A tall box beside three: none of the gaps between these goes through all.
  const Extents tall{10, 0, 11, 9};
  EXPECT_THAT(SplitAtGaps({tall, Square(0, 0), Square(0, 4), Square(3, 4)}, kGap), SizeIs(4));
}

TEST(SplitAtGaps, WhatAFrameHoldsOrNoStraightCutPartsStaysTogether) {
  EXPECT_THAT(SplitAtGaps({{-1, -1, 20, 20}, Square(0, 0), Square(9, 9)}, kGap), SizeIs(1));
  const std::vector<Extents> pinwheel = {{0, 0, 6, 2}, {8, 0, 10, 6}, {4, 8, 10, 10}, {0, 4, 2, 10}};
  EXPECT_THAT(SplitAtGaps(pinwheel, kGap), SizeIs(1));
}

TEST(SplitAtGaps, EndsAfterSoManyCutsThroughCuts) {
  // Each cut lets the next one through: level, upright, level, ...
  std::vector<Extents> boxes;
  double size = 1;
  for (int i = 0; i < 100; ++i, size *= 2) {
    boxes.push_back(i % 2 == 0 ? Extents{size, 0, size + 0.4 * size, size} : Extents{0, size, size, size + 0.4 * size});
  }
  std::size_t held = 0;
  const std::vector<BoxGroup> groups = SplitAtGaps(boxes, 0.01);
  for (const BoxGroup& group : groups) held += group.size();
  EXPECT_EQ(held, boxes.size());
  EXPECT_GT(groups.size(), 30U);
  EXPECT_LT(groups.size(), 40U);
}

}  // namespace
}  // namespace xsec

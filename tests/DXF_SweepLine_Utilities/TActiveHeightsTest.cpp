#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TActiveHeights.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>
#include <set>

namespace GeometryEngine {

using detail::TActiveHeights;
using detail::THeights;

namespace {

std::multiset<TIndex> Meeting(const TActiveHeights& aActive, const THeights& aHeights) {
  std::multiset<TIndex> found;
  aActive.ForEachMeeting(aHeights, [&](TIndex i) { found.insert(i); });
  return found;
}

/// Ranges of all sizes, from a point to the whole.
THeights RandomHeights(std::mt19937& aRandom) {
  std::uniform_real_distribution<double> place(0, 1);
  const double low = place(aRandom);
  return {low, low + (1 - low) * std::pow(place(aRandom), 12)};
}

}  // namespace

TEST(TActiveHeights, FindsWhatAComparisonWithEveryItemFinds) {
  constexpr TIndex kItems = 2000;
  std::mt19937 random(1);
  std::vector<THeights> heights;
  for (TIndex i = 0; i < kItems; ++i) heights.push_back(RandomHeights(random));
  TActiveHeights active({0, 1}, heights.size());
  std::set<TIndex> within;
  std::size_t found = 0;
  for (int step = 0; step < 20'000; ++step) {
    const TIndex item = static_cast<TIndex>(random() % kItems);
    const THeights& own = heights[static_cast<std::size_t>(item)];
    if (within.erase(item) > 0) {
      active.Remove(item);
    } else {
      within.insert(item);
      active.Add(item, own);
    }
    if (step % 10 != 0) continue;
    const THeights searched = RandomHeights(random);
    std::multiset<TIndex> expected;
    for (const TIndex i : within) {
      if (heights[static_cast<std::size_t>(i)].Meets(searched)) expected.insert(i);
    }
    ASSERT_EQ(Meeting(active, searched), expected);
    found += expected.size();
  }
  EXPECT_GT(found, 100'000U);
}

TEST(TActiveHeights, CountsBothEndsOfARangeIn) {
  TActiveHeights active({0, 8}, 1000);
  active.Add(3, {1, 2});
  active.Add(4, {5, 5});
  EXPECT_THAT(Meeting(active, {2, 5}), testing::ElementsAre(3, 4));
  EXPECT_THAT(Meeting(active, {2.5, 4.5}), testing::IsEmpty());
}

TEST(TActiveHeights, FindsItemsOfARangeWithoutHeight) {
  TActiveHeights active({7, 7}, 100);
  active.Add(0, {7, 7});
  active.Add(1, {7, 7});
  EXPECT_THAT(Meeting(active, {7, 7}), testing::ElementsAre(0, 1));
  active.Remove(0);
  EXPECT_THAT(Meeting(active, {6, 8}), testing::ElementsAre(1));
}

TEST(TActiveHeights, FindsEverythingInAnEndlessRange) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  TActiveHeights active({0, 1}, 100);
  for (TIndex i = 0; i < 100; ++i) active.Add(i, {i / 100.0, (i + 1) / 100.0});
  EXPECT_EQ(Meeting(active, {-kInfinity, kInfinity}).size(), 100U);
}

TEST(TActiveHeights, PutsWhatLiesOutsideTheRangeIntoTheBinsAtItsEnds) {
  TActiveHeights active({0, 1}, 100);
  active.Add(0, {-20, -10});
  active.Add(1, {30, 40});
  EXPECT_THAT(Meeting(active, {-15, -12}), testing::ElementsAre(0));
  EXPECT_THAT(Meeting(active, {35, 50}), testing::ElementsAre(1));
  EXPECT_THAT(Meeting(active, {0, 1}), testing::IsEmpty());
}

}  // namespace GeometryEngine

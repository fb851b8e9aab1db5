#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TActiveHeights.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <set>
#include <vector>

namespace GeometryEngine {

using detail::TActiveHeights;
using detail::TBinnedHeights;
using detail::THeights;
using detail::TListedHeights;

namespace {

template <class TSet>
std::multiset<TIndex> Meeting(const TSet& aActive, const THeights& aHeights) {
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

/// Compares searches with comparisons with every item, while items come and go so that about `aMost` come to be there
/// and all have gone in the end, again and again. Answers how many were found.
template <class TSet>
std::size_t CompareWithEveryItem(TIndex aMost) {
  std::mt19937 random(1);
  std::vector<THeights> heights;
  for (TIndex i = 0; i < aMost; ++i) heights.push_back(RandomHeights(random));
  TSet active({0, 1}, heights.size());
  std::set<TIndex> within;
  std::size_t found = 0;
  for (int step = 0; step < 20'000; ++step) {
    const TIndex item = static_cast<TIndex>(random() % static_cast<std::uint32_t>(aMost));
    const bool isRising = step / 5'000 % 2 == 0;
    const THeights& own = heights[static_cast<std::size_t>(item)];
    if (isRising && within.insert(item).second) active.Add(item, own);
    if (!isRising && within.erase(item) > 0) active.Remove(item);
    if (step % 10 != 0) continue;
    const THeights searched = RandomHeights(random);
    std::multiset<TIndex> expected;
    for (const TIndex i : within) {
      if (heights[static_cast<std::size_t>(i)].Meets(searched)) expected.insert(i);
    }
    EXPECT_EQ(Meeting(active, searched), expected) << "step " << step;
    found += expected.size();
  }
  return found;
}

}  // namespace

TEST(TListedHeights, FindsWhatAComparisonWithEveryItemFinds) {
  constexpr TIndex kMost = TListedHeights::kMostItems;
  EXPECT_GT(CompareWithEveryItem<TListedHeights>(kMost), 50'000U);
}

TEST(TListedHeights, VisitsTheLastThatWasAddedFirst) {
  TListedHeights listed({0, 1}, 200);
  for (TIndex i = 0; i < 200; ++i) listed.Add(i, {0, 1});
  for (TIndex i = 0; i < 200; ++i) {
    if (i % 7 != 3) listed.Remove(i);
  }
  std::vector<TIndex> found;
  listed.ForEachMeeting({0.5, 0.5}, [&](TIndex i) { found.push_back(i); });
  EXPECT_EQ(found.size(), 29U);
  EXPECT_TRUE(std::ranges::is_sorted(found, std::greater<>()));
}

TEST(TBinnedHeights, FindsWhatAComparisonWithEveryItemFinds) {
  EXPECT_GT(CompareWithEveryItem<TBinnedHeights>(2000), 100'000U);
}

TEST(TBinnedHeights, GivesAllItemsBackInAscendingOrder) {
  TBinnedHeights binned({0, 1}, 100);
  for (TIndex i = 100; i-- > 0;) binned.Add(i, {i / 100.0, (i + 1) / 100.0});
  std::vector<TIndex> taken;
  binned.TakeAll([&](TIndex item, const THeights& heights) {
    EXPECT_EQ(heights.fLow, item / 100.0);
    taken.push_back(item);
  });
  EXPECT_EQ(taken.size(), 100U);
  EXPECT_TRUE(std::ranges::is_sorted(taken));
  EXPECT_EQ(binned.Count(), 0U);
  EXPECT_THAT(Meeting(binned, {0, 1}), testing::IsEmpty());
}

// From the list into bins and back, twice.
TEST(TActiveHeights, FindsWhatAComparisonWithEveryItemFinds) {
  EXPECT_GT(CompareWithEveryItem<TActiveHeights>(3000), 100'000U);
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

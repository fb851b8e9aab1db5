#include "GeometryEngine/DXF_Regions_Detection/detail/TIntervalIndex.h"

#include <random>

#include <gmock/gmock.h>

using namespace GeometryEngine;
using detail::TInterval;
using detail::TIntervalIndex;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

namespace {

std::vector<TIndex> Holding(const TIntervalIndex& aIndex, double aValue) {
  std::vector<TIndex> items;
  aIndex.ForEachHolding(aValue, [&](TIndex item) { items.push_back(item); });
  return items;
}

std::vector<TIndex> HoldingOneByOne(const std::vector<TInterval>& aIntervals, double aValue) {
  std::vector<TIndex> items;
  for (const TInterval& interval : aIntervals) {
    if (interval.fLeast <= aValue && aValue <= interval.fGreatest) items.push_back(interval.fItem);
  }
  return items;
}

}  // namespace

TEST(TIntervalIndex, FindsNothingAmongNone) {
  EXPECT_THAT(Holding(TIntervalIndex({}), 0), IsEmpty());
}

TEST(TIntervalIndex, CountsBothEndsIn) {
  const TIntervalIndex index({{1, 2, 7}});
  EXPECT_THAT(Holding(index, 1), ElementsAre(7));
  EXPECT_THAT(Holding(index, 2), ElementsAre(7));
  EXPECT_THAT(Holding(index, 2.5), IsEmpty());
  EXPECT_THAT(Holding(index, 0.5), IsEmpty());
}

TEST(TIntervalIndex, NothingHoldsWhatIsNotANumber) {
  EXPECT_THAT(Holding(TIntervalIndex({{-1, 1, 0}}), std::numeric_limits<double>::quiet_NaN()), IsEmpty());
}

TEST(TIntervalIndex, FindsAmongManyWhatALookAtEachFinds) {
  std::mt19937 random(1);
  const auto below = [&](int aEnd) { return static_cast<int>(random() % static_cast<unsigned>(aEnd)); };
  for (int count = 1; count < 200; count += 7) {
    std::vector<TInterval> intervals;
    for (TIndex i = 0; i < count; ++i) {
      const double least = below(50);
      intervals.push_back({least, least + below(below(8) == 0 ? 50 : 3), i});
    }
    const TIntervalIndex index(intervals);
    for (double value = -1; value < 101; value += 0.5) {
      ASSERT_THAT(Holding(index, value), UnorderedElementsAreArray(HoldingOneByOne(intervals, value))) << count;
    }
  }
}

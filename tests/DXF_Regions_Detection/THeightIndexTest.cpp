#include "GeometryEngine/DXF_Regions_Detection/detail/THeightIndex.h"

#include <random>

#include <gmock/gmock.h>

using namespace GeometryEngine;
using detail::THeight;
using detail::THeightIndex;
using detail::THeightRange;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

namespace {

std::vector<TIndex> Within(const THeightIndex& aIndex, const THeightRange& aRange) {
  std::vector<TIndex> items;
  aIndex.ForEachWithin(aRange, [&](TIndex item) { items.push_back(item); });
  return items;
}

std::vector<TIndex> WithinOneByOne(const std::vector<THeight>& aHeights, const THeightRange& aRange) {
  std::vector<TIndex> items;
  for (const THeight& height : aHeights) {
    if (aRange.Holds(height.fHeight)) items.push_back(height.fItem);
  }
  return items;
}

}  // namespace

TEST(THeightIndex, FindsNothingAmongNone) {
  EXPECT_THAT(Within(THeightIndex({}), {-1, 1}), IsEmpty());
}

TEST(THeightIndex, CountsBothEndsIn) {
  const THeightIndex index({{1, 7}, {2, 8}, {3, 9}});
  EXPECT_THAT(Within(index, {1, 2}), ElementsAre(7, 8));
  EXPECT_THAT(Within(index, {2, 3}), ElementsAre(8, 9));
  EXPECT_THAT(Within(index, {1.25, 1.75}), IsEmpty());
}

TEST(THeightIndex, TellsHeightsFromWhatLiesBeyondAllOfThem) {
  const THeightIndex index({{1, 7}, {2, 8}});
  EXPECT_THAT(Within(index, {-5, 0}), IsEmpty());
  EXPECT_THAT(Within(index, {3, 5}), IsEmpty());
  EXPECT_THAT(Within(index, THeightRange::All()), ElementsAre(7, 8));
}

TEST(THeightIndex, TakesHeightsThatAreAllTheSame) {
  const THeightIndex index({{1, 7}, {1, 8}});
  EXPECT_THAT(Within(index, {1, 1}), UnorderedElementsAreArray({7, 8}));
  EXPECT_THAT(Within(index, {0, 0.5}), IsEmpty());
  EXPECT_THAT(Within(index, {1.5, 2}), IsEmpty());
}

TEST(THeightIndex, FindsAmongManyWhatALookAtEachFinds) {
  std::mt19937 random(1);
  const auto below = [&](int aEnd) { return static_cast<int>(random() % static_cast<unsigned>(aEnd)); };
  for (int count = 1; count < 200; count += 7) {
    std::vector<THeight> heights;
    // Most of them close together, so that few shares hold them all.
    for (TIndex i = 0; i < count; ++i) heights.push_back({below(9) == 0 ? 1e3 * below(9) : 1e-3 * below(50), i});
    const THeightIndex index(heights);
    for (int query = 0; query < 100; ++query) {
      const double low = below(9) == 0 ? 1e3 * below(9) : 1e-3 * below(50);
      const THeightRange range{low, low + 1e-3 * below(4)};
      ASSERT_THAT(Within(index, range), UnorderedElementsAreArray(WithinOneByOne(heights, range))) << count;
    }
  }
}

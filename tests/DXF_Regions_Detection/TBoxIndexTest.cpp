#include "GeometryEngine/DXF_Regions_Detection/detail/TBoxIndex.h"

#include <random>

#include <gmock/gmock.h>

using namespace GeometryEngine;
using detail::TBox;
using detail::TBoxIndex;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

namespace {

std::vector<TIndex> Within(const TBoxIndex& aIndex, const TBox& aBox) {
  std::vector<TIndex> found;
  aIndex.ForEachWithin(aBox, [&](TIndex index) { found.push_back(index); });
  return found;
}

std::vector<TIndex> WithinOneByOne(const std::vector<TBox>& aBoxes, const TBox& aBox) {
  std::vector<TIndex> found;
  for (std::size_t i = 0; i < aBoxes.size(); ++i) {
    if (aBoxes[i].IsWithin(aBox)) found.push_back(ToIndex(i));
  }
  return found;
}

}  // namespace

TEST(TBox, HoldsNothingUntilItIsToldOfAPoint) {
  TBox box;
  EXPECT_FALSE((TBox{0, 0, 0, 0}).IsWithin(box));
  box.Include(1, 2);
  box.Include(-1, 5);
  EXPECT_TRUE((TBox{-1, 1, 2, 5}).IsWithin(box));
  EXPECT_FALSE((TBox{-1, 1, 2, 5.5}).IsWithin(box));
}

TEST(TBoxIndex, FindsNothingAmongNone) {
  EXPECT_THAT(Within(TBoxIndex({}), {-1, 1, -1, 1}), IsEmpty());
}

TEST(TBoxIndex, SidesMayTouch) {
  const std::vector<TBox> boxes{{0, 1, 0, 1}, {0, 2, 0, 1}};
  EXPECT_THAT(Within(TBoxIndex(boxes), {0, 1, 0, 1}), ElementsAre(0));
}

TEST(TBoxIndex, FindsAmongManyWhatALookAtEachFinds) {
  std::mt19937 random(1);
  const auto below = [&](int aEnd) { return static_cast<int>(random() % static_cast<unsigned>(aEnd)); };
  const auto box = [&]() -> TBox {
    const double left = below(30);
    const double bottom = below(30);
    return {left, left + below(below(5) == 0 ? 30 : 3), bottom, bottom + below(below(5) == 0 ? 30 : 3)};
  };
  for (int count = 1; count < 300; count += 13) {
    std::vector<TBox> boxes;
    for (int i = 0; i < count; ++i) boxes.push_back(box());
    const TBoxIndex index(boxes);
    for (int query = 0; query < 100; ++query) {
      const TBox around = box();
      ASSERT_THAT(Within(index, around), UnorderedElementsAreArray(WithinOneByOne(boxes, around))) << count;
    }
  }
}

#include "GeometryEngine/DXF_Regions_Detection/detail/TBoxIndex.h"

#include <gmock/gmock.h>

#include "tests/DXF_Regions_Detection/Boxes.h"

using namespace GeometryEngine;
using detail::TBox;
using detail::TBoxIndex;
using support::TRandomBoxes;
using support::WithinOneByOne;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

namespace {

std::vector<TIndex> Within(const TBoxIndex& aIndex, const TBox& aBox) {
  std::vector<TIndex> found;
  aIndex.ForEachWithin(aBox, [&](TIndex index) { found.push_back(index); });
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
  TRandomBoxes random;
  for (int count = 1; count < 300; count += 13) {
    const std::vector<TBox> boxes = random.Next(count);
    const TBoxIndex index(boxes);
    for (int query = 0; query < 100; ++query) {
      const TBox around = random.Next();
      ASSERT_THAT(Within(index, around), UnorderedElementsAreArray(WithinOneByOne(boxes, around))) << count;
    }
  }
}

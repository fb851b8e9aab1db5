#include "GeometryEngine/DXF_Regions_Detection/detail/TBoxGrid.h"

#include <limits>
#include <optional>

#include <gmock/gmock.h>

#include "tests/DXF_Regions_Detection/Boxes.h"

using namespace GeometryEngine;
using detail::TBox;
using detail::TBoxGrid;
using support::TRandomBoxes;
using support::WithinOneByOne;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::optional<std::vector<TIndex>> Within(TBoxGrid& aGrid, const TBox& aBox) {
  std::vector<TIndex> found;
  const bool areFew = aGrid.ForFewWithin(aBox, [&](TIndex index) { found.push_back(index); });
  return areFew ? std::optional(found) : std::nullopt;
}

std::optional<std::vector<TIndex>> Within(const std::vector<TBox>& aBoxes, const TBox& aBox) {
  TBoxGrid grid(aBoxes);
  return Within(grid, aBox);
}

}  // namespace

TEST(TBoxGrid, FindsNothingAmongNone) {
  EXPECT_THAT(Within(std::vector<TBox>{}, {-1, 1, -1, 1}), Optional(IsEmpty()));
}

TEST(TBoxGrid, SidesMayTouch) {
  const std::vector<TBox> boxes{{0, 1, 0, 1}, {0, 2, 0, 1}};
  EXPECT_THAT(Within(boxes, {0, 1, 0, 1}), Optional(ElementsAre(0)));
}

TEST(TBoxGrid, TakesBoxesInARowOrInOnePlace) {
  const std::vector<TBox> upright{{0, 1, 0, 1}, {0, 1, 5, 6}, {0, 1, 9, 10}};
  EXPECT_THAT(Within(upright, {0, 1, 4, 10}), Optional(UnorderedElementsAre(1, 2)));
  const std::vector<TBox> level{{0, 1, 0, 1}, {5, 6, 0, 1}, {9, 10, 0, 1}};
  EXPECT_THAT(Within(level, {4, 10, 0, 1}), Optional(UnorderedElementsAre(1, 2)));
  const std::vector<TBox> onePlace{{0, 1, 0, 1}, {0, 2, 0, 1}};
  EXPECT_THAT(Within(onePlace, {-1, 1, -1, 1}), Optional(ElementsAre(0)));
}

TEST(TBoxGrid, NothingLiesWithinABoxThatHoldsNothing) {
  const std::vector<TBox> boxes{{0, 1, 0, 1}, {3, 4, 3, 4}};
  EXPECT_THAT(Within(boxes, TBox()), Optional(IsEmpty()));
}

TEST(TBoxGrid, EverythingLiesWithinAnEndlessBox) {
  const std::vector<TBox> boxes{{0, 1, 0, 1}, {3, 4, 3, 4}};
  EXPECT_THAT(Within(boxes, {-kInfinity, kInfinity, -kInfinity, kInfinity}), Optional(UnorderedElementsAre(0, 1)));
}

TEST(TBoxGrid, DeclinesToLookAtManyOnceItHasDoneSoOften) {
  std::vector<TBox> boxes(1000, TBox{0, 1, 0, 1});
  boxes.push_back({1e6, 1e6 + 1, 1e6, 1e6 + 1});
  TBoxGrid grid(boxes);
  int answered = 0;
  while (answered < 1000 && Within(grid, {0, 0.5, 0, 0.5})) ++answered;
  EXPECT_EQ(answered, 16);
  EXPECT_EQ(Within(grid, {0, 1, 0, 1}), std::nullopt);
  EXPECT_THAT(Within(grid, {1e6, 2e6, 1e6, 2e6}), Optional(ElementsAre(1000)));
}

TEST(TBoxGrid, FindsAmongManyWhatALookAtEachFinds) {
  TRandomBoxes random;
  int answered = 0;
  for (int count = 1; count < 1500; count += 53) {
    const std::vector<TBox> boxes = random.Next(count);
    TBoxGrid grid(boxes);
    for (int query = 0; query < 100; ++query) {
      const TBox around = random.Next();
      const auto found = Within(grid, around);
      if (!found) continue;
      ASSERT_THAT(*found, UnorderedElementsAreArray(WithinOneByOne(boxes, around))) << count;
      ++answered;
    }
  }
  EXPECT_GT(answered, 1000);
}

#include "xsec/BoxIndex.h"

#include <algorithm>
#include <random>

#include <gmock/gmock.h>

namespace xsec {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::size_t> Sorted(std::vector<std::size_t> indexes) {
  std::sort(indexes.begin(), indexes.end());
  return indexes;
}

TEST(BoxIndex, FindsBoxesOfAllSizesWithTheirEdges) {
  const BoxIndex index({{0, 0, 100, 100}, {10, 10, 11, 11}, {10, 10, 10, 10}, {-5, 10, 10, 10}, {20, 20, 30, 30}});
  EXPECT_THAT(Sorted(index.Find({10, 10})), ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(Sorted(index.Find({11, 11})), ElementsAre(0, 1));
  EXPECT_THAT(index.Find({-6, 10}), IsEmpty());
  EXPECT_THAT(BoxIndex({}).Find({0, 0}), IsEmpty());
}

TEST(BoxIndex, FindsWhatLookingAtAllBoxesFinds) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> place(-100, 100);
  std::exponential_distribution<double> size(0.2);
  std::vector<Extents> boxes;
  for (int i = 0; i < 500; ++i) {
    const double x = place(random), y = place(random);
    boxes.push_back({x, y, x + size(random) * size(random), y + size(random)});
  }
  const BoxIndex index(boxes);
  std::size_t hits = 0;
  for (int i = 0; i < 2000; ++i) {
    const Point point{place(random), place(random)};
    std::vector<std::size_t> wanted;
    for (std::size_t k = 0; k < boxes.size(); ++k) {
      if (Contains(boxes[k], point)) wanted.push_back(k);
    }
    hits += wanted.size();
    EXPECT_EQ(Sorted(index.Find(point)), wanted);
  }
  EXPECT_GT(hits, 500U);
}

}  // namespace

}  // namespace xsec

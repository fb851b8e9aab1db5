// A grid finds what lies in a box, and looks at little else, however long and thin the drawing is.
#include "xsec/CellGrid.h"

#include <gmock/gmock.h>

#include <set>

namespace xsec {
namespace {

/// Boxes of side 1 in rows, one beside another.
std::vector<Extents> Boxes(std::size_t columns, std::size_t rows) {
  std::vector<Extents> boxes;
  for (std::size_t i = 0; i < columns * rows; ++i) {
    const auto x = static_cast<double>(i % columns);
    const auto y = static_cast<double>(i / columns);
    boxes.push_back({x, y, x + 1, y + 1});
  }
  return boxes;
}

struct Seen {
  std::set<std::size_t> things;
  std::size_t visits = 0;
};

Seen Visit(const std::vector<Extents>& boxes, const Extents& place) {
  CellGrid grid({0, 0, boxes.back().maxX, boxes.back().maxY}, boxes.size());
  for (std::size_t i = 0; i < boxes.size(); ++i) grid.Add(boxes[i], i);
  Seen seen;
  grid.Visit(place, [&](std::size_t thing) {
    seen.things.insert(thing);
    ++seen.visits;
  });
  return seen;
}

TEST(CellGrid, LooksAtFewThingsInBoxesOfAnyShape) {
  for (const auto& [columns, rows] : {std::pair{10'000U, 1U}, {1U, 10'000U}, {2500U, 4U}, {100U, 100U}}) {
    const std::size_t middle = columns / 2 + columns * (rows / 2);
    const double x = columns / 2 + 0.5;
    const double y = rows / 2 + 0.5;
    const Seen seen = Visit(Boxes(columns, rows), {x, y, x, y});
    EXPECT_TRUE(seen.things.contains(middle)) << columns;
    EXPECT_LE(seen.visits, 9U) << columns;
  }
}

TEST(CellGrid, TakesBoxesWithoutWidthHeightOrThings) {
  for (const Extents& flat : {Extents{0, 0, 9, 0}, Extents{0, 0, 0, 9}, Extents{0, 0, 0, 0}}) {
    CellGrid grid(flat, 3);
    grid.Add(flat, 2);
    std::set<std::size_t> things;
    grid.Visit(flat, [&](std::size_t thing) { things.insert(thing); });
    EXPECT_THAT(things, ::testing::ElementsAre(2));
  }
  CellGrid empty(EmptyExtents(), 0);
  empty.Visit({0, 0, 1, 1}, [](std::size_t) { FAIL(); });
}

}  // namespace
}  // namespace xsec

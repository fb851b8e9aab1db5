#include "xsec/Nesting.h"

#include <string>

#include <gmock/gmock.h>

#include "tests/support/Geometry.h"
#include "tests/xsec/Drawings.h"

namespace xsec {
namespace {

using ::testing::ElementsAre;

/// A loop of the entities, numbered from `first`, travelled from start to end or all of it the other way round.
TracedLoop LoopOf(std::string_view text, std::size_t first, bool forward = true) {
  TracedLoop loop;
  auto entities = GeometryEngine::support::ParseEntities(text);
  for (std::size_t i = 0; i < entities.size(); ++i) {
    const std::size_t at = forward ? i : entities.size() - 1 - i;
    loop.pieces.push_back(Travel(entities[at], forward));
    loop.pieces.back().index = first + at;
  }
  loop.area = SignedArea(loop.pieces);
  loop.box = Bounds(loop.pieces);
  loop.inner = MidPoint(loop.pieces.front());
  return loop;
}

TracedLoop FaceOf(std::string_view text, std::size_t first, const Point& inner) {
  TracedLoop face = LoopOf(text, first);
  face.inner = inner;
  return face;
}

TEST(DetermineNesting, ParentIsTheSmallestFaceRoundThePoint) {
  const std::vector<TracedLoop> faces = {
      FaceOf(Rectangle(2, 2, 4, 4), 0, {3, 3}), FaceOf(Rectangle(0, 0, 10, 10), 4, {3, 3}),
      FaceOf(Rectangle(1, 1, 6, 6), 8, {3, 3}), FaceOf(Rectangle(7, 7, 9, 9), 12, {8, 8})};
  EXPECT_THAT(DetermineNesting(faces, {}).parents, ElementsAre(2, kNone, 1, 1));
}

TEST(DetermineNesting, HoleBelongsToTheFaceRoundItNeverToTheFaceWithinIt) {
  const std::string square = Rectangle(2, 2, 4, 4);
  const std::vector<TracedLoop> faces = {FaceOf(square, 0, {3, 3}), FaceOf(Rectangle(0, 0, 10, 10), 4, {5, 5})};
  const std::vector<TracedLoop> boundaries = {LoopOf(square, 0, false), LoopOf(Rectangle(0, 0, 10, 10), 4, false)};
  const Nesting nesting = DetermineNesting(faces, boundaries);
  EXPECT_THAT(nesting.parents, ElementsAre(1, kNone));
  EXPECT_THAT(nesting.holeOwners, ElementsAre(1, kNone));
}

/// The outline of a comb of 100 teeth with a bar along their feet, which is long enough to be indexed.
TEST(DetermineNesting, LongOutlineHoldsWhatStandsInItsTeethAndNotWhatStandsBetweenThem) {
  const auto line = [](int x1, int y1, int x2, int y2) {
    const auto at = [](int x, int y) { return std::to_string(x) + "," + std::to_string(y); };
    return "L " + at(x1, y1) + " " + at(x2, y2) + "; ";
  };
  std::string comb = line(0, 0, 0, -1) + line(0, -1, 200, -1) + line(200, -1, 200, 0);
  for (int x = 198; x >= 0; x -= 2) {
    comb += line(x + 2, 0, x + 1, 0) + line(x + 1, 0, x + 1, 5) + line(x + 1, 5, x, 5) + line(x, 5, x, 0);
  }
  comb.resize(comb.size() - 2);
  const std::vector<TracedLoop> faces = {FaceOf(comb, 8, {0.5, 1}), FaceOf(Rectangle(4.2, 2, 4.8, 3), 0, {4.5, 2.5}),
                                         FaceOf(Rectangle(5.2, 2, 5.8, 3), 4, {5.5, 2.5})};
  EXPECT_THAT(DetermineNesting(faces, {}).parents, ElementsAre(kNone, 0, kNone));
}

TEST(DetermineNesting, SliverIsNoChildOfTheFaceBesideIt) {
  // Without an inside, the sliver has but the middle of its edge for a point, and that lies on the square's edge too.
  const std::vector<TracedLoop> faces = {LoopOf("L 0,10 0,0; L 0,0 0,10", 3),
                                         FaceOf(Rectangle(0, 0, 10, 10), 0, {5, 5})};
  ASSERT_EQ(faces[1].pieces[3].index, 3U);
  ASSERT_TRUE(IsInside(faces[1].pieces, faces[0].inner));
  EXPECT_THAT(DetermineNesting(faces, {}).parents, ElementsAre(kNone, kNone));
}

}  // namespace
}  // namespace xsec

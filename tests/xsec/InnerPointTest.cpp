#include "xsec/InnerPoint.h"

#include <gmock/gmock.h>

#include "tests/support/Geometry.h"
#include "tests/xsec/Drawings.h"

namespace xsec {
namespace {

Loop LoopOf(std::string_view text) {
  Loop loop;
  for (const auto& entity : GeometryEngine::support::ParseEntities(text)) loop.push_back(Travel(entity, true));
  return loop;
}

TEST(FindInnerPoint, OfARingLiesHalfwayBetweenItsCircles) {
  const Loop outline = LoopOf(Circle(0, 0, 10));
  const Loop hole = LoopOf(Circle(0, 0, 8));
  const auto inner = FindInnerPoint({&outline, {&hole}}, 31);
  ASSERT_TRUE(inner);
  EXPECT_TRUE(IsInside(RegionSpace{&outline, {&hole}}, inner->point));
  EXPECT_GT(inner->clearance, 0.95);
  EXPECT_LE(inner->clearance, 1);
}

TEST(FindInnerPoint, KeepsOutOfEveryHole) {
  const Loop outline = LoopOf(Rectangle(0, 0, 10, 10));
  const Loop left = LoopOf(Rectangle(0.5, 0.5, 4.5, 9.5));
  const Loop right = LoopOf(Rectangle(5.5, 0.5, 9.5, 9.5));
  const RegionSpace space{&outline, {&left, &right}};
  const auto inner = FindInnerPoint(space, 31);
  ASSERT_TRUE(inner);
  EXPECT_TRUE(IsInside(space, inner->point));
  EXPECT_NEAR(inner->clearance, 0.5, 1e-9);
}

TEST(FindInnerPoint, TakesNoHarmOfAHoleGivenTwice) {
  const Loop outline = LoopOf(Rectangle(0, 0, 10, 10));
  const Loop hole = LoopOf(Rectangle(1, 1, 9, 9));
  const RegionSpace space{&outline, {&hole, &hole}};
  const auto inner = FindInnerPoint(space, 5);
  ASSERT_TRUE(inner);
  EXPECT_TRUE(IsInside(space, inner->point));
}

TEST(FindInnerPoint, IsNothingWithoutAnInside) {
  const Loop thereAndBack = LoopOf("L 0,0 5,5; L 5,5 0,0");
  EXPECT_FALSE(FindInnerPoint({&thereAndBack, {}}, 31));
  const Loop outline = LoopOf(Rectangle(0, 0, 1, 1));
  EXPECT_FALSE(FindInnerPoint({&outline, {&outline}}, 31));
}

}  // namespace
}  // namespace xsec

// The index against the plain test, on outlines long enough to be indexed.
#include "xsec/OutlineIndex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"

namespace xsec {
namespace {

using GeometryEngine::TDXFEntity;

/// A wheel whose teeth end in lines and, between them, in half circles that bulge either way.
Loop Wheel(int teeth) {
  Loop loop;
  const auto at = [&](int step, double radius) {
    const double angle = std::numbers::pi * step / teeth;
    return Point{radius * std::cos(angle), radius * std::sin(angle)};
  };
  for (int i = 0; i < 2 * teeth; ++i) {
    const Point from = at(i, i % 2 == 0 ? 10 : 8);
    const Point to = at(i + 1, i % 2 == 0 ? 8 : 10);
    if (i % 3 == 0) {
      loop.push_back(Travel(TDXFEntity::Line(from, to), true));
      continue;
    }
    const Point middle = (from + to) / 2;
    const bool isForward = i % 3 == 1;
    const auto& [start, end] = isForward ? std::pair(from, to) : std::pair(to, from);
    loop.push_back(Travel(GeometryEngine::CreateEntity_Arc_StartEnd(middle.x, middle.y, start.x, start.y, end.x, end.y),
                          isForward));
  }
  return loop;
}

TEST(OutlineIndex, AnswersWhatThePlainTestAnswers) {
  std::mt19937 random(6);
  std::uniform_real_distribution<double> coordinate(-11, 11);
  for (const int teeth : {4, 33, 300}) {
    const Loop wheel = Wheel(teeth);
    const OutlineIndex index(wheel);
    int inside = 0;
    for (int i = 0; i < 2000; ++i) {
      const Point point{coordinate(random), coordinate(random)};
      EXPECT_EQ(index.IsInside(point), IsInside(wheel, point)) << point.x << ", " << point.y;
      inside += index.IsInside(point) ? 1 : 0;
    }
    EXPECT_GT(inside, 500);
    EXPECT_LT(inside, 1800);
  }
}

TEST(OutlineIndex, AnswersAtTheHeightsOfVerticesAndOfTheTopsOfArcs) {
  const Loop wheel = Wheel(300);
  const OutlineIndex index(wheel);
  for (const TravelledPiece& piece : wheel) {
    for (const double y : {piece.from.y, Bounds(piece).maxY, Bounds(piece).minY}) {
      EXPECT_EQ(index.IsInside({0.1, y}), IsInside(wheel, {0.1, y})) << y;
    }
  }
}

}  // namespace
}  // namespace xsec

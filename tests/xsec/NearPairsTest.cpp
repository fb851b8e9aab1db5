// The pairs that the grid finds, held against points along all curves compared with one another.
#include "xsec/prepare/EntityGrid.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <set>
#include <utility>

#include <gmock/gmock.h>

#include "GeometryEngine/host/Numerics.h"
#include "tests/xsec/Drawings.h"
#include "xsec/prepare/Curves.h"

namespace xsec {
namespace {

using GeometryEngine::TDXFEntity;
using ::testing::SizeIs;

constexpr int kSteps = 60;  // along a curve

/// Lines and arcs in a square of that side, from short ones to some that are as long as it.
std::vector<Part> RandomParts(unsigned seed, std::size_t count, double side, const Point& corner) {
  std::mt19937 random(seed);
  const auto upTo = [&](double most) {
    return most * static_cast<double>(random()) / static_cast<double>(random.max());
  };
  std::vector<Part> parts;
  while (parts.size() < count) {
    const Point start = corner + Point{upTo(side), upTo(side)};
    const double size = side * std::pow(upTo(1), 4);
    const double angle = upTo(360);
    if (parts.size() % 2 == 0) {
      const double radians = angle * GeometryEngine::kRadiansPerDegree;
      parts.push_back({TDXFEntity::Line(start, start + size * Point{std::cos(radians), std::sin(radians)}), 0, {}, {}});
    } else {
      const double radians = (angle + 10 + upTo(170)) * GeometryEngine::kRadiansPerDegree;
      const double from = angle * GeometryEngine::kRadiansPerDegree;
      const Point end = start + size * Point{std::cos(radians), std::sin(radians)};
      parts.push_back({ArcBetween(start + size * Point{std::cos(from), std::sin(from)}, end, start, size), 0, {}, {}});
    }
  }
  return parts;
}

std::vector<Point> PointsAlong(const TDXFEntity& entity) {
  std::vector<Point> points;
  for (int i = 0; i <= kSteps; ++i) points.push_back(PointAlong(Travel(entity, true), static_cast<double>(i) / kSteps));
  return points;
}

bool ComeClose(const TDXFEntity& a, const TDXFEntity& b, double reach) {
  const std::vector<Point> points = PointsAlong(b);
  return std::any_of(points.begin(), points.end(), [&](const Point& point) { return DistanceTo(a, point) < reach; });
}

TEST(NearPairs, HoldAllThatComeWithinTheReachInAscendingOrder) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const double side = seed % 2 == 0 ? 3000 : 3;
    const Point corner = seed % 3 == 0 ? Point{-side / 2, 5 * side} : Point{};
    const std::vector<Part> parts = RandomParts(seed, 60, side, corner);
    const double reach = side / 1000;
    const std::vector<PartPair> pairs = NearPairs(parts, reach);
    const std::set<PartPair> known(pairs.begin(), pairs.end());
    EXPECT_EQ(known.size(), pairs.size());
    for (std::size_t second = 0; second < parts.size(); ++second) {
      for (std::size_t first = 0; first < second; ++first) {
        if (!ComeClose(parts[first].geometry, parts[second].geometry, reach)) continue;
        EXPECT_TRUE(known.contains({first, second})) << "seed " << seed << ": " << first << " and " << second;
      }
    }
    const auto bySecond = [](const PartPair& a, const PartPair& b) {
      return std::pair(a.second, a.first) < std::pair(b.second, b.first);
    };
    EXPECT_TRUE(std::is_sorted(pairs.begin(), pairs.end(), bySecond));
  }
}

TEST(NearPairs, OfShortPartsAreFarFewerThanAllPairs) {
  for (const Point& corner : {Point{}, Point{-50, -50}, Point{1e5, -1e5}}) {
    std::vector<Part> parts;
    for (int i = 0; i < 900; ++i) {
      const Point start = corner + Point{i % 30 * 3.0, i / 30 * 3.0};
      parts.push_back({TDXFEntity::Line(start, start + Point{1, 0.5}), 0, {}, {}});
    }
    EXPECT_LT(NearPairs(parts, 2.5).size(), 5 * parts.size());
  }
}

TEST(NearPairs, OfCirclesWithinEachOtherAreTheHalvesOfEach) {
  std::string circles;
  for (int i = 1; i <= 500; ++i) circles += Circle(1, 2, i);
  std::vector<Part> parts;
  for (const DrawingEntity& entity : DrawingOf(circles).entities) parts.push_back({entity.geometry, 0, {}, {}});
  EXPECT_THAT(NearPairs(parts, 0.01), SizeIs(500));
}

}  // namespace
}  // namespace xsec

#include "GeometryEngine/Pole_Inaccessibility/detail/SegmentGroups.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct TEnds {
  TEntityCoordinate fStart;
  TEntityCoordinate fEnd;
};

TSegmentGroup MakeGroup(const std::vector<TEnds>& aSegments) {
  TSegmentGroup group{};
  for (std::size_t i = 0; i < kGroupSize; ++i) {
    const auto& [start, end] = aSegments[std::min(i, aSegments.size() - 1)];
    group.Set(i, TMeasuredSegment::Of(start, end));
  }
  return group;
}

// A coordinate on a coarse grid, so that points often lie on segments, beside their ends and on each other, or one of
// a size at which squares vanish.
class TRandomPoints {
 public:
  TEntityCoordinate operator()() { return {Coordinate(), Coordinate()}; }

 private:
  double Coordinate() {
    const double whole = fWhole(fRandom);
    return fKind(fRandom) == 0 ? whole * 1e-170 : whole / 2;
  }

  std::mt19937 fRandom{7};
  std::uniform_int_distribution<int> fWhole{-6, 6};
  std::uniform_int_distribution<int> fKind{0, 9};
};

}  // namespace

TEST(SegmentGroups, LeastDistanceHasTheBitsOfOneByOne) {
  TRandomPoints random;
  for (int round = 0; round < 20'000; ++round) {
    std::vector<TEnds> segments(kGroupSize);
    for (TEnds& segment : segments) segment = {random(), random()};
    const TEntityCoordinate point = random();
    double least = kInfinity;
    for (const auto& [start, end] : segments) least = std::min(least, PointToSegmentDistance(point, start, end));
    ASSERT_EQ(std::sqrt(GetLeastSquaredDistance(point, MakeGroup(segments))), least) << round;
  }
}

TEST(SegmentGroups, ASegmentWithoutLengthIsItsStart) {
  EXPECT_EQ(GetLeastSquaredDistance({4, 5}, MakeGroup({{{1, 1}, {1, 1}}})), 25);
  EXPECT_EQ(GetLeastSquaredDistance({1, 1}, MakeGroup({{{1, 1}, {1, 1}}})), 0);
}

TEST(SegmentGroups, ADistanceThatIsNoNumberIsPassedOver) {
  const TEnds endless{{0, 0}, {1e200, 1e200}};  // the square of its length is infinite
  EXPECT_TRUE(std::isnan(PointToSegmentDistance({1e200, 0}, endless.fStart, endless.fEnd)));
  EXPECT_EQ(GetLeastSquaredDistance({1e200, 0}, MakeGroup({endless})), kInfinity);
  EXPECT_EQ(GetLeastSquaredDistance({3, 4}, MakeGroup({{{0, 0}, {0, 0}}, endless})), 25);
}

TEST(SegmentGroups, BoxDistancesAreThoseOfOneByOne) {
  TRandomPoints random;
  for (int round = 0; round < 2'000; ++round) {
    TBoxGroup boxes{};
    std::vector<TPlaneBox> apart;
    for (std::size_t i = 0; i < kGroupSize; ++i) {
      apart.push_back(TPlaneBox::Around(random(), random()));
      boxes.Set(i, apart.back());
    }
    const TEntityCoordinate point = random();
    const TGroupNumbers squares = GetSquaredBoxDistances(point, boxes);
    for (std::size_t i = 0; i < kGroupSize; ++i) ASSERT_EQ(squares[i], GetSquaredBoxDistance(point, apart[i])) << round;
  }
}

TEST(SegmentGroups, ABoxIsAsFarAsItsClosestSideOrCorner) {
  const TPlaneBox box = TPlaneBox::Around({4, 1}, {0, 3});
  EXPECT_EQ(GetSquaredBoxDistance({2, 2}, box), 0);
  EXPECT_EQ(GetSquaredBoxDistance({4, 3}, box), 0);
  EXPECT_EQ(GetSquaredBoxDistance({2, 5}, box), 4);
  EXPECT_EQ(GetSquaredBoxDistance({-3, 2}, box), 9);
  EXPECT_EQ(GetSquaredBoxDistance({7, -3}, box), 25);
}

}  // namespace GeometryEngine::detail

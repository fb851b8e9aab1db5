#include "GeometryEngine/DXF_Regions_Detection/detail/PlaneOrder.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <random>

#include <gmock/gmock.h>

namespace GeometryEngine {

using detail::GetPlaneOrder;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kSide = 128;

// The points of a lattice, column by column.
TCoordinateArray Lattice() {
  TCoordinateArray points;
  for (int column = 0; column < kSide; ++column) {
    for (int row = 0; row < kSide; ++row) points.push_back({1.0 * column, 1.0 * row});
  }
  return points;
}

std::vector<TIndex> Sorted(std::vector<TIndex> aPlaces) {
  std::ranges::sort(aPlaces);
  return aPlaces;
}

std::vector<TIndex> OneToEach(std::size_t aCount) {
  std::vector<TIndex> places(aCount);
  std::iota(places.begin(), places.end(), 0);
  return places;
}

}  // namespace

TEST(GetPlaneOrder, GivesEachPointAPlaceOfItsOwn) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> value(-1000, 1000);
  TCoordinateArray points(5000);
  for (TEntityCoordinate& point : points) point = {value(random), value(random)};
  EXPECT_EQ(Sorted(GetPlaneOrder(points)), OneToEach(points.size()));
}

TEST(GetPlaneOrder, BringsNeighboursInBothDirectionsNearEachOther) {
  const std::vector<TIndex> places = GetPlaneOrder(Lattice());
  const auto placeOf = [&](int column, int row) { return places[static_cast<std::size_t>(column * kSide + row)]; };
  constexpr int kNear = 64;
  int nearAlong = 0;
  int nearAcross = 0;
  for (int column = 0; column + 1 < kSide; ++column) {
    for (int row = 0; row + 1 < kSide; ++row) {
      nearAlong += std::abs(placeOf(column, row) - placeOf(column, row + 1)) <= kNear;
      nearAcross += std::abs(placeOf(column, row) - placeOf(column + 1, row)) <= kNear;
    }
  }
  constexpr int kPairs = (kSide - 1) * (kSide - 1);
  EXPECT_GT(nearAlong, kPairs * 8 / 10);
  EXPECT_GT(nearAcross, kPairs * 8 / 10) << "column by column none of them would be";
}

TEST(GetPlaneOrder, LeavesAFewPointsAsTheyCome) {
  const TCoordinateArray points{{5, 5}, {0, 0}, {3, 1}};
  EXPECT_THAT(GetPlaneOrder(points), ElementsAre(0, 1, 2));
  EXPECT_THAT(GetPlaneOrder({}), IsEmpty());
}

TEST(GetPlaneOrder, HasPlacesForPointsThatAreNowhereAndForThoseInOnePlace) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
  TCoordinateArray points = Lattice();
  points[7] = {kInfinity, 3};
  points[70] = {kNotANumber, -kInfinity};
  points[700] = {1e308, -1e308};
  EXPECT_EQ(Sorted(GetPlaneOrder(points)), OneToEach(points.size()));
  EXPECT_EQ(GetPlaneOrder(TCoordinateArray(100, {2, 2})), OneToEach(100));
}

}  // namespace GeometryEngine

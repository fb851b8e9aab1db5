#include "GeometryEngine/Pole_Inaccessibility/PoleSearch.h"

#include <cstddef>
#include <memory>
#include <string_view>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Regions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Kelvaralinks::dataStore;
using support::IsBits;
using support::MakeChain;
using support::RectangleText;
using enum Maindataenum::TInputFields;

constexpr TEntityCoordinate kCentroid = {-77, 77};

TEntityCoordinate Find(TEntityStorage& aOutline, double aMinimumDistance = 0.001) {
  TPoleRegion region;
  region.fOutline = &aOutline;
  region.fCentroid = kCentroid;
  region.fSearchable = true;
  dataStore.ForgetReads();
  return FindPoleInaccessibility(region, 1, aMinimumDistance);
}

// A closed polygon through the points.
std::unique_ptr<TEntityStorage> MakePolygon(const TCoordinateArray& aPoints) {
  auto polygon = std::make_unique<TEntityStorage>();
  for (std::size_t i = 0; i < aPoints.size(); ++i) {
    polygon->AddEntity(TDXFEntity::Line(aPoints[i], aPoints[(i + 1) % aPoints.size()]));
  }
  polygon->StartCoordinate(polygon->GetStartCoordinate());
  return polygon;
}

TEST(FindPoleCounted, LaysNoGridOverABoxTooThinForALabel) {
  const support::TSettingsGuard settings;
  const auto sliver = MakeChain(RectangleText(0, 0, 50, 1e-4));
  EXPECT_THAT(Find(*sliver), IsBits(kCentroid));
  EXPECT_LT(dataStore.Reads(ifLinearTolerance), 200U);  // half a million cells have to be asked about otherwise
}

std::size_t ReadsOfGivingUp(TEntityStorage& aOutline, double aMinimumDistance = 0.001) {
  EXPECT_THAT(Find(aOutline, aMinimumDistance), IsBits(kCentroid));
  return dataStore.Reads(ifLinearTolerance);
}

std::size_t ReadsOfGivingUp(std::string_view aPolygon) {
  return ReadsOfGivingUp(*MakeChain(support::PolygonText(aPolygon)));
}

TEST(FindPoleCounted, GivesUpAShortSliverBeforeItsSplitsAreUsedUp) {
  const support::TSettingsGuard settings;
  EXPECT_LT(ReadsOfGivingUp("3,4 3.006,4.0005 3.001,4.004"), 400U);  // 1001 splits take 8000 and more
  EXPECT_LT(ReadsOfGivingUp("3,4 3.14,4.05 3.14,4.051"), 4000U);
  EXPECT_LT(ReadsOfGivingUp("3,4 3.05,4.14 3.051,4.14"), 4000U);
  EXPECT_GT(ReadsOfGivingUp("3,4 3.16,4.05 3.16,4.051"), 7000U) << "longer than 150 times the minimum distance";
  EXPECT_GT(ReadsOfGivingUp("3,4 3.05,4.16 3.051,4.16"), 7000U);
}

TEST(FindPoleCounted, LooksAheadInHalfAsManyCellsAtMost) {
  const support::TSettingsGuard settings;
  constexpr double kWidth = 0.1;
  TCoordinateArray comb;
  for (int tooth = 0; tooth < 17; ++tooth) {
    const double x = kWidth * tooth / 17;
    comb.insert(comb.end(), {{x, 0.001}, {x + kWidth / 34, 0.001}, {x + kWidth / 34, 0.09}, {x + kWidth / 17, 0.09}});
  }
  comb.insert(comb.end(), {{kWidth, 0}, {0, 0}});
  const auto outline = MakePolygon(comb);
  const auto without = static_cast<double>(ReadsOfGivingUp(*outline, kWidth / 151));
  const auto with = static_cast<double>(ReadsOfGivingUp(*outline, kWidth / 149));
  EXPECT_GT(with, 1.2 * without);
  EXPECT_LT(with, 1.7 * without);
}

TEST(FindPoleCounted, AsksOfAPointOnlyTheEntitiesAtItsHeight) {
  const support::TSettingsGuard settings;
  // A winding road of 2000 lines, four of which lie at one height.
  TCoordinateArray road;
  for (int y = 0; y <= 500; ++y) road.push_back({500.0 + y % 2, y * 1.0});
  for (int y = 500; y >= 0; --y) road.push_back({y % 2 + 0.0, y * 1.0});
  Find(*MakePolygon(road));
  const std::size_t reads = dataStore.Reads(ifLinearTolerance);
  EXPECT_LT(reads, 20000U);
}

}  // namespace
}  // namespace GeometryEngine

#include "GeometryEngine/Pole_Inaccessibility/PoleSearch.h"

#include <cstddef>

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

TEntityCoordinate Find(TEntityStorage& aOutline) {
  TPoleRegion region;
  region.fOutline = &aOutline;
  region.fCentroid = kCentroid;
  region.fSearchable = true;
  dataStore.ForgetReads();
  return FindPoleInaccessibility(region, 1, 0.001);
}

TEST(FindPoleCounted, LaysNoGridOverABoxTooThinForALabel) {
  const support::TSettingsGuard settings;
  const auto sliver = MakeChain(RectangleText(0, 0, 50, 1e-4));
  EXPECT_THAT(Find(*sliver), IsBits(kCentroid));
  EXPECT_LT(dataStore.Reads(ifLinearTolerance), 200U);  // half a million cells have to be asked about otherwise
}

TEST(FindPoleCounted, AsksOfAPointOnlyTheEntitiesAtItsHeight) {
  const support::TSettingsGuard settings;
  // A winding road of 2000 lines, four of which lie at one height.
  TCoordinateArray road;
  for (int y = 0; y <= 500; ++y) road.push_back({500.0 + y % 2, y * 1.0});
  for (int y = 500; y >= 0; --y) road.push_back({y % 2 + 0.0, y * 1.0});
  TEntityStorage outline;
  for (std::size_t i = 0; i < road.size(); ++i) {
    outline.AddEntity(TDXFEntity::Line(road[i], road[(i + 1) % road.size()]));
  }
  outline.StartCoordinate(outline.GetStartCoordinate());
  Find(outline);
  const std::size_t reads = dataStore.Reads(ifLinearTolerance);
  EXPECT_LT(reads, 20000U);
}

}  // namespace
}  // namespace GeometryEngine

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"

#include <cstddef>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Kelvaralinks::dataStore;
using enum Maindataenum::TInputFields;
using support::IsBits;
using support::TSettingsGuard;

/// Vertical lines, right-most first: finding the left-most coordinate of one reads the linear tolerance once.
void FillWithVerticals(TEntityStorage& aStorage, int aCount) {
  for (int i = aCount; i > 0; --i) aStorage.AddEntity(TDXFEntity::Line({i * 1.0, 0}, {i * 1.0, 1}));
}

TEST(TEntityStorage_QuickSortArray, ComputesEachKeyOnce) {
  const TSettingsGuard settings;
  TEntityStorage storage;
  FillWithVerticals(storage, 1000);
  storage.QuickSortArray(0, 999);
  EXPECT_EQ(dataStore.Reads(ifLinearTolerance), std::size_t{1000});
  EXPECT_THAT(storage.Entities(0), IsBits("L 1,0 1,1"));
}

TEST(TEntityStorage_QuickSortArray, LeavesTheStorageAsItWasWhenTheStoreFails) {
  const TSettingsGuard settings;
  TEntityStorage storage;
  FillWithVerticals(storage, 10);
  const TEntityArray before = storage.EntityArray();
  dataStore.FailAfter(ifLinearTolerance, 5);
  EXPECT_THROW(storage.QuickSortArray(0, 9), Kelvaralinks::TStoreFailure);
  EXPECT_THAT(storage.EntityArray(), IsBits(before));
}

TEST(TEntityStorage_GetCentroid, ReadsTheArcResolutionOncePerArc) {
  const TSettingsGuard settings;
  TEntityStorage storage;
  for (const TDXFEntity& entity : support::ParseEntities("A c 3,4 r 2.5 0..180; A c 3,4 r 2.5 180..360")) {
    storage.AddEntity(entity);
  }
  storage.GetCentroid();
  EXPECT_EQ(dataStore.Reads(ifArcResolution), std::size_t{2});
}

}  // namespace
}  // namespace GeometryEngine

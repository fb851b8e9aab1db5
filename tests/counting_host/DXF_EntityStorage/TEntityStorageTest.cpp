#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"

#include <cstddef>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine_Arrays/EntityArrays.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Chains.h"
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

struct TOperation {
  const char* name;
  void (*operate)(TEntityStorage&);
};

constexpr TOperation kOperations[] = {
    {"RotateEntities", [](TEntityStorage& s) { s.RotateEntities(GetRotationMatrix(33)); }},
    {"RotateEntities_AroundPoint",
     [](TEntityStorage& s) {
       s.RotateEntities_AroundPoint(GetRotationMatrix(33), {1, 2});
     }},
    {"Translate", [](TEntityStorage& s) { s.Translate(1, 2); }},
    {"Mirror",
     [](TEntityStorage& s) {
       s.Mirror(TDXFEntity::Line({0, 0}, {3, 1}));
     }},
    {"DuplicateAroundAxis", [](TEntityStorage& s) { s.DuplicateAroundAxis(3, 8, 45, false); }},
    {"DuplicateAlongAxis", [](TEntityStorage& s) { s.DuplicateAlongAxis(3, 4); }},
    {"Offset", [](TEntityStorage& s) { s.Offset(0.3); }},
    {"ReOrderEntities",
     [](TEntityStorage& s) {
       s.ReOrderEntities({4, 2});
     }},
    {"RemoveEntities", [](TEntityStorage& s) { s.RemoveEntities({s.Entities(2)}); }},
    {"AddEntities_CheckDuplicate",
     [](TEntityStorage& s) { AddEntities_CheckDuplicate(s.EntityArray(), s.EntityArray()); }},
};

TEST(TEntityStorage_Operations, LeaveTheChainAsItWasWhereverTheStoreFails) {
  const TSettingsGuard settings;
  std::size_t failures = 0;
  for (const TOperation& operation : kOperations) {
    for (const auto field : {ifLinearTolerance, ifSnappingMode, ifAngleTolerance, ifArcResolution}) {
      const auto fresh = [] { return support::MakeChain("L 0,0 4,0; L 4,0 4,2; A c 2,2 r 2 0..180; L 0,2 0,0"); };
      const auto measured = fresh();
      dataStore.ForgetReads();
      operation.operate(*measured);
      const std::size_t reads = dataStore.Reads(field);
      for (std::size_t place = 0; place < reads; ++place) {
        const auto chain = fresh();
        const TEntityArray before = chain->EntityArray();
        dataStore.FailAfter(field, place);
        try {
          operation.operate(*chain);
        } catch (const Kelvaralinks::TStoreFailure&) {
          ++failures;
          EXPECT_TRUE(support::TGeometryMatcher(before).MatchAndExplain(chain->EntityArray(), nullptr))
              << operation.name << ", field " << static_cast<int>(field) << ", reading " << place << " of " << reads;
        }
        dataStore.Reset();
      }
    }
  }
  EXPECT_GT(failures, 250U);
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

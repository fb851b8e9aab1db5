#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_EntityStorage/detail/LomutoSort.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"
#include "tests/reference/RecursiveLomuto.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/RunWithStack.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::MakeStorage;
using support::TSettingsGuard;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t kSmallStack = 256 * 1024;
constexpr int kLarge = 100'000;
constexpr int kKeys = 30'000;  // on which a scheme that is recursive overflows the small stack too

/// A line, an arc or a point entity whose left-most x is one of a few values; its column tells it from its like.
TDXFEntity MakeRandomEntity(std::mt19937_64& aRandom, int aKeys, std::int32_t aTag) {
  const auto draw = [&](int aLow, int aHigh) { return std::uniform_int_distribution<int>(aLow, aHigh)(aRandom); };
  const double key = draw(0, aKeys - 1);
  const double length = draw(0, 3);
  TDXFEntity entity;
  switch (draw(0, 3)) {
    case 0:
      entity = TDXFEntity::Line({key, draw(0, 9) * 1.0}, {key + length, 1});
      break;
    case 1:
      entity = TDXFEntity::Line({key + length, 2}, {key, 1});
      break;
    case 2:
      entity = TDXFEntity::Arc({key + 1, 1}, {key + 1, -1}, {key + 1, 0}, 1, 90, 270);
      break;
    default:
      entity.CentreCoords = {key, 0};
  }
  entity.ConductorCol = aTag;
  return entity;
}

void FillWithRandomEntities(TEntityStorage& aStorage, std::mt19937_64& aRandom, int aCount, int aKeys) {
  for (int i = 0; i < aCount; ++i) aStorage.AddEntity(MakeRandomEntity(aRandom, aKeys, i));
}

bool IsSorted(const TEntityStorage& aStorage) {
  const TEntityArray& entities = aStorage.EntityArray();
  return std::is_sorted(entities.begin(), entities.end(), [](const TDXFEntity& aEntity, const TDXFEntity& aOther) {
    return GetLeftMostCoordinate(aEntity).x < GetLeftMostCoordinate(aOther).x;
  });
}

/// True when the columns are each number from 0 to the count less one, once.
bool HoldsEachTagOnce(const TEntityStorage& aStorage) {
  std::vector<bool> found(aStorage.EntityArray().size(), false);
  for (const TDXFEntity& entity : aStorage.EntityArray())
    found.at(static_cast<std::size_t>(entity.ConductorCol)) = true;
  return std::find(found.begin(), found.end(), false) == found.end();
}

TEST(TEntityStorage_QuickSortArray, PutsSmallerLeftMostFirst) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 3,0 9,0; A c 2,0 r 1 90..270; L 7,1 2,5; L 0,9 0,1");
  storage->QuickSortArray(0, storage->GetCount() - 1);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,9 0,1; A c 2,0 r 1 90..270; L 7,1 2,5; L 3,0 9,0"));
}

TEST(TEntityStorage_QuickSortArray, KeepsAllEntitiesOfEqualKeys) {
  const TSettingsGuard settings;
  TEntityStorage storage;
  std::mt19937_64 random(7);
  FillWithRandomEntities(storage, random, 50, 1);
  storage.QuickSortArray(0, 49);
  EXPECT_TRUE(HoldsEachTagOnce(storage));
}

// Worked by hand. Keys 2a 1a 2b 1b: pivot 1b takes 1a left of it, giving 1a 1b 2b 2a; then pivot 2a leaves 2b before
// it.
TEST(TEntityStorage_QuickSortArray, LeavesEqualKeysInTheOrderOfTheScheme) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 2,0 9,0 col 1; L 1,0 9,0 col 2; L 2,0 9,0 col 3; L 1,0 9,0 col 4");
  storage->QuickSortArray(0, 3);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 1,0 9,0 col 2; L 1,0 9,0 col 4; L 2,0 9,0 col 3; L 2,0 9,0 col 1"));
}

TEST(TEntityStorage_QuickSortArray, SortsNothingOutsideTheSlice) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 9,0 9,1; L 5,0 5,1; L 3,0 3,1; L 4,0 4,1; L 1,0 1,1");
  storage->QuickSortArray(1, 3);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 9,0 9,1; L 3,0 3,1; L 4,0 4,1; L 5,0 5,1; L 1,0 1,1"));
}

TEST(TEntityStorage_QuickSortArray, DoesNothingForBadArguments) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 9,0 9,1; L 5,0 5,1; L 3,0 3,1");
  const std::pair<TIndex, TIndex> bad[] = {{0, 0},         {2, 0},         {-1, 2},         {0, 3},
                                           {0, INT32_MAX}, {INT32_MIN, 2}, {INT32_MIN, -1}, {3, INT32_MAX}};
  for (const auto& [aLow, aHigh] : bad) storage->QuickSortArray(aLow, aHigh);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 9,0 9,1; L 5,0 5,1; L 3,0 3,1"));
  TEntityStorage empty;
  empty.QuickSortArray(0, -1);
  empty.QuickSortArray(0, 1);
  EXPECT_EQ(empty.GetCount(), 0);
}

TEST(TEntityStorage_QuickSortArray, GivesTheOrderOfItsRecursiveTwin) {
  const TSettingsGuard settings;
  for (const int keys : {1, 2, 3, 7, 40, 5000}) {
    for (std::uint64_t seed = 1; seed <= 30; ++seed) {
      SCOPED_TRACE(::testing::Message() << "keys " << keys << ", seed " << seed);
      std::mt19937_64 random(seed);
      TEntityStorage storage;
      FillWithRandomEntities(storage, random, static_cast<int>(seed * seed / 2), keys);
      TEntityArray twin = storage.EntityArray();
      reference::SortByLeftMost(twin, 0, std::ssize(twin) - 1);
      storage.QuickSortArray(0, storage.GetCount() - 1);
      ASSERT_THAT(storage.EntityArray(), IsBits(twin));
    }
  }
}

TEST(TEntityStorage_QuickSortArray, GivesTheOrderOfItsRecursiveTwinOnSlices) {
  const TSettingsGuard settings;
  for (std::uint64_t seed = 1; seed <= 100; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937_64 random(seed);
    TEntityStorage storage;
    FillWithRandomEntities(storage, random, 200, 12);
    const TIndex low = std::uniform_int_distribution<TIndex>(0, 99)(random);
    const TIndex high = std::uniform_int_distribution<TIndex>(100, 199)(random);
    TEntityArray twin = storage.EntityArray();
    reference::SortByLeftMost(twin, low, high);
    storage.QuickSortArray(low, high);
    ASSERT_THAT(storage.EntityArray(), IsBits(twin));
  }
}

TEST(TEntityStorage_QuickSortArray, GivesTheOrderOfItsRecursiveTwinWithKeysThatAreNoNumbers) {
  const TSettingsGuard settings;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937_64 random(seed);
    TEntityStorage storage;
    FillWithRandomEntities(storage, random, 60, 9);
    for (PtrDXFEntity entity = storage.Entities_P(0); entity <= storage.Entities_P(59); ++entity) {
      if (entity->EntityType == DXFNoLineType) entity->CentreCoords.x = kNaN;
    }
    TEntityArray twin = storage.EntityArray();
    reference::SortByLeftMost(twin, 0, 59);
    storage.QuickSortArray(0, 59);
    ASSERT_THAT(storage.EntityArray(), IsBits(twin));
  }
}

TEST(TEntityStorage_QuickSortArray, GivesTheOrderOfItsRecursiveTwinOnTheWorstKeys) {
  const TSettingsGuard settings;
  TEntityStorage storage;
  for (const double key : reference::MakeKillerKeys(200)) storage.AddEntity(TDXFEntity::Line({key, 0}, {1000, 1}));
  TEntityArray twin = storage.EntityArray();
  reference::SortByLeftMost(twin, 0, 199);
  storage.QuickSortArray(0, 199);
  EXPECT_THAT(storage.EntityArray(), IsBits(twin));
}

TEST(TEntityStorage_QuickSortArray, LeavesSortedInputAsItIs) {
  const TSettingsGuard settings;
  support::RunWithStack(kSmallStack, [] {
    TEntityStorage storage;
    for (int i = 0; i < kLarge; ++i) storage.AddEntity(TDXFEntity::Line({i / 3.0, 0}, {kLarge, 1}));
    const TEntityArray before = storage.EntityArray();
    storage.QuickSortArray(0, kLarge - 1);
    EXPECT_TRUE(support::TGeometryMatcher(before).MatchAndExplain(storage.EntityArray(), nullptr));
  });
}

TEST(TEntityStorage_QuickSortArray, SortsReversedInputWithLittleStack) {
  const TSettingsGuard settings;
  support::RunWithStack(kSmallStack, [] {
    TEntityStorage storage;
    for (int i = 0; i < kLarge; ++i) {
      storage.AddEntity(TDXFEntity::Line({static_cast<double>(kLarge - i), 0}, {kLarge, 1}));
      storage.Entities_P(i)->ConductorCol = i;
    }
    storage.QuickSortArray(0, kLarge - 1);
    EXPECT_TRUE(IsSorted(storage));
    EXPECT_TRUE(HoldsEachTagOnce(storage));
  });
}

TEST(TEntityStorage_QuickSortArray, LeavesInputOfEqualKeysAsItIs) {
  const TSettingsGuard settings;
  support::RunWithStack(kSmallStack, [] {
    TEntityStorage storage;
    for (int i = 0; i < kLarge; ++i) storage.AddEntity(TDXFEntity::Line({1, 0}, {2.0 + i, 1}));
    const TEntityArray before = storage.EntityArray();
    storage.QuickSortArray(0, kLarge - 1);
    EXPECT_TRUE(support::TGeometryMatcher(before).MatchAndExplain(storage.EntityArray(), nullptr));
  });
}

/// The keys of an input that is hard on one scheme or another.
std::vector<double> MakeKeys(const char* aKind) {
  const std::string_view kind = aKind;
  if (kind == "killer") return reference::MakeKillerKeys(kKeys);
  std::vector<double> keys;
  std::mt19937_64 random(11);
  for (int i = 0; i < kKeys; ++i) {
    if (kind == "sorted") keys.push_back(i);
    if (kind == "reversed") keys.push_back(-i);
    if (kind == "equal") keys.push_back(1);
    if (kind == "two values") keys.push_back(i % 2);
    if (kind == "reversed pairs") keys.push_back(-(i / 2));
    if (kind == "saw teeth") keys.push_back(i % 1000);
    if (kind == "up and down") keys.push_back(std::min(i, kKeys - i));
    if (kind == "sorted but the last") keys.push_back(i == kKeys - 1 ? -1 : i);
    if (kind == "few values") keys.push_back(static_cast<double>(random() % 5));
    if (kind == "shuffled") keys.push_back(static_cast<double>(random()));
    if (kind == "no numbers") keys.push_back(kNaN);
    if (kind == "some no numbers") keys.push_back(i % 3 == 0 ? kNaN : -i);
  }
  return keys;
}

std::vector<detail::TSortItem> MakeItems(const std::vector<double>& aKeys) {
  std::vector<detail::TSortItem> items;
  for (const double key : aKeys) items.push_back({key, items.size()});
  return items;
}

constexpr const char* kKindsOfNumbers[] = {"sorted",         "reversed",  "equal",       "two values",
                                           "reversed pairs", "saw teeth", "up and down", "sorted but the last",
                                           "few values",     "shuffled",  "killer"};
constexpr const char* kKindsWithoutOrder[] = {"no numbers", "some no numbers"};

TEST(TLomutoSort, SortsNumbers) {
  for (const char* kind : kKindsOfNumbers) {
    std::vector<detail::TSortItem> items = MakeItems(MakeKeys(kind));
    detail::TLomutoSort(items).Sort();
    const bool sorted = std::is_sorted(items.begin(), items.end(),
                                       [](const auto& aItem, const auto& aOther) { return aItem.fKey < aOther.fKey; });
    EXPECT_TRUE(sorted) << kind;
  }
}

void ExpectBoundedSort(const char* aKind) {
  SCOPED_TRACE(aKind);
  const std::vector<double> keys = MakeKeys(aKind);
  std::vector<detail::TSortItem> items = MakeItems(keys);
  detail::TLomutoSort sort(items);
  sort.Sort();
  const std::uint64_t levels = std::bit_width(keys.size());
  EXPECT_LE(sort.Limit(), 16 * keys.size() * levels);
  // Beyond the limit: one more look at what may be in order already, and a merge sort of what is left.
  EXPECT_LE(sort.Comparisons(), sort.Limit() + keys.size() * (levels + 1));
  EXPECT_LE(sort.StackCapacity(), 2 * (levels + 1));  // it grows by doubling
  std::vector<bool> found(keys.size(), false);
  for (const detail::TSortItem& item : items) found.at(item.fPlace) = true;
  EXPECT_EQ(std::find(found.begin(), found.end(), false), found.end());
}

TEST(TLomutoSort, BoundsItsComparisonsAndItsStackAndKeepsEveryItem) {
  support::RunWithStack(kSmallStack, [] {
    for (const char* kind : kKindsOfNumbers) ExpectBoundedSort(kind);
    for (const char* kind : kKindsWithoutOrder) ExpectBoundedSort(kind);
  });
}

TEST(TLomutoSort_Comparisons, AreOnePassForInputInOrder) {
  for (const char* kind : {"sorted", "equal"}) {
    std::vector<detail::TSortItem> items = MakeItems(MakeKeys(kind));
    detail::TLomutoSort sort(items);
    sort.Sort();
    EXPECT_EQ(sort.Comparisons(), items.size() - 1) << kind;
  }
}

TEST(TLomutoSort_Comparisons, StayBelowTheLimitForShuffledInput) {
  for (const char* kind : {"shuffled", "few values"}) {
    std::vector<detail::TSortItem> items = MakeItems(MakeKeys(kind));
    detail::TLomutoSort sort(items);
    sort.Sort();
    EXPECT_LT(sort.Comparisons(), sort.Limit() / 2) << kind;
  }
}

TEST(TLomutoSort_Comparisons, PassTheLimitForTheWorstInputSoThatTheBoundedSortIsMet) {
  for (const char* kind : {"reversed", "sorted but the last", "killer"}) {
    std::vector<detail::TSortItem> items = MakeItems(MakeKeys(kind));
    detail::TLomutoSort sort(items);
    sort.Sort();
    EXPECT_GT(sort.Comparisons(), sort.Limit()) << kind;
  }
}

}  // namespace
}  // namespace GeometryEngine

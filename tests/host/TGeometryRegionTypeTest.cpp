#include "GeometryEngine/host/TGeometryRegionType.h"

#include <cstdint>
#include <set>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/host/TGeometryRegionTypesSet.h"

namespace GeometryEngine {
namespace {

using ::testing::ElementsAre;

TGeometryRegionType Type(int aOrdinal) {
  return TGeometryRegionType{static_cast<std::uint8_t>(aOrdinal)};
}

std::vector<int> Ordinals(const TGeometryRegionTypesSet& aTypes) {
  std::vector<int> ordinals;
  for (const TGeometryRegionType type : aTypes) ordinals.push_back(static_cast<int>(type));
  return ordinals;
}

TEST(TGeometryRegionType, HasTheOrdinalsOnWhichRulesRest) {
  EXPECT_EQ(rtLaminationStator, Type(0));
  EXPECT_EQ(rtAirGap, Type(2));
  EXPECT_EQ(rtWedge, Type(6));
  EXPECT_EQ(rtConductor, Type(9));
  EXPECT_EQ(rtImpregnation, Type(16));
  EXPECT_EQ(rtLiner, Type(17));
  EXPECT_EQ(rtCoilDivider, Type(18));
  EXPECT_EQ(rtSlotOpening, Type(19));
  EXPECT_EQ(rtLaminationRotor, Type(20));
  EXPECT_EQ(rtRotorBar, Type(22));
  EXPECT_EQ(rtMagnetPocket, Type(33));
  EXPECT_EQ(rtSurrounding, Type(35));
  EXPECT_EQ(rtCoolingDuct, Type(45));
  EXPECT_EQ(rtComposite, Type(57));
  EXPECT_EQ(rtCompositeEmpty, Type(58));
  EXPECT_EQ(rtUndefined, Type(60));
}

TEST(GetRegionTypeString, NamesEveryTypeDifferently) {
  std::set<std::string_view> names;
  for (int ordinal = 0; ordinal <= kLastRegionType; ++ordinal) names.insert(GetRegionTypeString(Type(ordinal)));
  EXPECT_EQ(names.size(), 61U);
  EXPECT_FALSE(names.contains(""));
}

TEST(GetRegionTypeString, FollowsTheOrdinals) {
  EXPECT_EQ(GetRegionTypeString(rtLaminationStator), "Stator Lamination");
  EXPECT_EQ(GetRegionTypeString(rtConductor), "Conductor");
  EXPECT_EQ(GetRegionTypeString(rtLaminationRotor), "Rotor Lamination");
  EXPECT_EQ(GetRegionTypeString(rtFluxBarrier), "Flux Barrier");
  EXPECT_EQ(GetRegionTypeString(rtUndefined), "Undefined");
}

TEST(GetRegionTypeString, IsEmptyAboveTheLastType) {
  EXPECT_EQ(GetRegionTypeString(Type(61)), "");
  EXPECT_EQ(GetRegionTypeString(Type(255)), "");
}

TEST(TGeometryRegionTypesSet, IsEmptyAtFirst) {
  const TGeometryRegionTypesSet types;
  EXPECT_TRUE(types.IsEmpty());
  for (int ordinal = 0; ordinal < 256; ++ordinal) EXPECT_FALSE(types.Contains(Type(ordinal)));
  EXPECT_THAT(Ordinals(types), ElementsAre());
}

TEST(TGeometryRegionTypesSet, WalksItsMembersInAscendingOrdinal) {
  const TGeometryRegionTypesSet types{rtUndefined, rtLaminationStator, rtRotorBar, rtConductor};
  EXPECT_THAT(Ordinals(types), ElementsAre(0, 9, 22, 60));
}

TEST(TGeometryRegionTypesSet, TakesInAndOut) {
  TGeometryRegionTypesSet types{rtConductor};
  types.Include(rtRotorBar);
  types.Include(rtRotorBar);
  types.Exclude(rtConductor);
  types.Exclude(rtWedge);
  EXPECT_THAT(Ordinals(types), ElementsAre(22));
}

TEST(TGeometryRegionTypesSet, HoldsOrdinalsUpTo63AndNoOther) {
  TGeometryRegionTypesSet types;
  types.Include(Type(63));
  types.Include(Type(64));
  types.Include(Type(255));
  EXPECT_THAT(Ordinals(types), ElementsAre(63));
  types.Exclude(Type(64));
  EXPECT_TRUE(types.Contains(Type(63)));
}

TEST(TGeometryRegionTypesSet, AllHoldsEveryType) {
  const auto ordinals = Ordinals(TGeometryRegionTypesSet::All());
  ASSERT_EQ(ordinals.size(), 61U);
  EXPECT_EQ(ordinals.front(), 0);
  EXPECT_EQ(ordinals.back(), 60);
}

}  // namespace
}  // namespace GeometryEngine

#include "GeometryEngine/GeometryEngine_Arrays/EntityArrays.h"

#include <cstdint>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::ParseEntities;
using support::ParseEntity;
using support::TSettingsGuard;

TEST(TEntityArray_Helper, IndexOfEntityAnswersTheFirstEqualOne) {
  TSettingsGuard settings;
  settings.With(Maindataenum::TInputFields::ifLinearTolerance, 0.5);
  const TEntityArray array = ParseEntities("L 9,9 8,8; L 0,0 4.25,0; L 0,0 4,0");
  EXPECT_EQ(IndexOfEntity(array, ParseEntity("L 0,0 4,0")), 1);
  EXPECT_EQ(IndexOfEntity(array, ParseEntity("L 0,0 5,0")), kNotFound);
}

TEST(TEntityArray_Helper, IndexOfEntityFindsALineByItsReverseAndWhateverItsTags) {
  const TSettingsGuard settings;
  const TEntityArray array = ParseEntities("A c 0,0 r 1 0..90; L 0,0 4,0 name \"a\"");
  EXPECT_EQ(IndexOfEntity(array, ParseEntity("L 4,0 0,0 name \"b\"")), 1);
}

TEST(TEntityArray_Helper, IndexOfEntityNeverFindsAnEntityWithoutGeometry) {
  const TSettingsGuard settings;
  const TEntityArray array = ParseEntities("N; R");
  EXPECT_EQ(IndexOfEntity(array, array[0]), kNotFound);
  EXPECT_EQ(IndexOfEntity(array, array[1]), kNotFound);
}

TEST(TEntityArray_Helper, ContainsEntityIsWhetherIndexOfEntityFinds) {
  const TSettingsGuard settings;
  const TEntityArray array = ParseEntities("L 0,0 4,0");
  EXPECT_TRUE(ContainsEntity(array, ParseEntity("L 4,0 0,0")));
  EXPECT_TRUE(TEntityArray_Helper::ContainsEntity(array, ParseEntity("L 4,0 0,0")));
  EXPECT_FALSE(ContainsEntity(array, ParseEntity("L 4,0 0,1")));
  EXPECT_FALSE(ContainsEntity(TEntityArray{}, ParseEntity("L 4,0 0,1")));
}

TEST(TEntityArray_Helper, AddEntityAppendsACopyWithItsTags) {
  TEntityArray array = ParseEntities("L 0,0 4,0 name \"a\"");
  AddEntity(array, array[0]);
  EXPECT_THAT(array, IsBits("L 0,0 4,0 name \"a\"; L 0,0 4,0 name \"a\""));
}

TEST(TEntityArray_Helper, InsertEntityMovesTheLaterOnesUp) {
  TEntityArray array = ParseEntities("L 0,0 1,0; L 0,0 2,0");
  InsertEntity(array, ParseEntity("L 0,0 3,0"), 1);
  InsertEntity(array, array[2], 0);
  EXPECT_THAT(array, IsBits("L 0,0 2,0; L 0,0 1,0; L 0,0 3,0; L 0,0 2,0"));
}

TEST(TEntityArray_Helper, InsertEntityAtTheLengthAppends) {
  TEntityArray array = ParseEntities("L 0,0 1,0");
  InsertEntity(array, ParseEntity("L 0,0 2,0"), 1);
  EXPECT_THAT(array, IsBits("L 0,0 1,0; L 0,0 2,0"));
}

TEST(TEntityArray_Helper, InsertEntityAtAnyOtherIndexAppendsToo) {
  for (const TIndex index : {-1, 2, INT32_MAX, INT32_MIN}) {
    TEntityArray array = ParseEntities("L 0,0 1,0");
    InsertEntity(array, ParseEntity("L 0,0 2,0"), index);
    EXPECT_THAT(array, IsBits("L 0,0 1,0; L 0,0 2,0")) << index;
  }
}

TEST(TEntityArray_Helper, RemoveEntityByIndexMovesTheLaterOnesDown) {
  TEntityArray array = ParseEntities("L 0,0 1,0; L 0,0 2,0; L 0,0 3,0");
  RemoveEntity(array, 1);
  EXPECT_THAT(array, IsBits("L 0,0 1,0; L 0,0 3,0"));
}

TEST(TEntityArray_Helper, RemoveEntityOutsideTheArrayDoesNothing) {
  TEntityArray array = ParseEntities("L 0,0 1,0; L 0,0 2,0");
  for (const TIndex index : {-1, 2, INT32_MAX, INT32_MIN}) RemoveEntity(array, index);
  EXPECT_THAT(array, IsBits("L 0,0 1,0; L 0,0 2,0"));
}

TEST(TEntityArray_Helper, RemoveEntityByEntityTakesTheFirstEqualOne) {
  const TSettingsGuard settings;
  TEntityArray array = ParseEntities("L 0,0 1,0 col 1; L 0,0 2,0 col 2; L 2,0 0,0 col 3");
  RemoveEntity(array, array[2]);
  EXPECT_THAT(array, IsBits("L 0,0 1,0 col 1; L 2,0 0,0 col 3"));
  RemoveEntity(array, ParseEntity("L 7,7 8,8"));
  EXPECT_EQ(array.size(), 2U);
}

TEST(TEntityArray_Helper, AddEntities_CheckDuplicateDropsALineAndItsReverse) {
  const TSettingsGuard settings;
  TEntityArray array;
  AddEntities_CheckDuplicate(array, ParseEntities("L 0,0 4,0; L 4,0 0,0"));
  EXPECT_THAT(array, IsBits("L 0,0 4,0"));
}

TEST(TEntityArray_Helper, AddEntities_CheckDuplicateLooksAtWhatWasThereBefore) {
  const TSettingsGuard settings;
  TEntityArray array = ParseEntities("L 0,0 4,0; L 0,0 4,0");
  AddEntities_CheckDuplicate(array, ParseEntities("L 4,0 4,4; L 0,0 4,0; A c 0,0 r 1 0..90"));
  EXPECT_THAT(array, IsBits("L 0,0 4,0; L 0,0 4,0; L 4,0 4,4; A c 0,0 r 1 0..90"));
}

TEST(TEntityArray_Helper, AddEntities_CheckDuplicateTakesItself) {
  const TSettingsGuard settings;
  TEntityArray array = ParseEntities("L 0,0 4,0; N; L 4,0 4,4; R");
  AddEntities_CheckDuplicate(array, array);
  EXPECT_THAT(array, IsBits("L 0,0 4,0; N; L 4,0 4,4; R; N; R"));
}

TEST(TEntityArray_Helper, GetEntity_NextWalksTheRing) {
  const TEntityArray array = ParseEntities("L 0,0 1,0; L 0,0 2,0; L 0,0 3,0");
  EXPECT_THAT(GetEntity_Next(array, 0), IsBits("L 0,0 2,0"));
  EXPECT_THAT(GetEntity_Next(array, 2), IsBits("L 0,0 1,0"));
}

TEST(TEntityArray_Helper, GetEntity_NextOfANegativeIndexIsEmpty) {
  EXPECT_THAT(GetEntity_Next(ParseEntities("L 0,0 1,0; L 0,0 2,0"), -1), IsBits("N"));
}

TEST(TEntityArray_Helper, GetEntity_PreviousWalksTheRing) {
  const TEntityArray array = ParseEntities("L 0,0 1,0; L 0,0 2,0; L 0,0 3,0");
  EXPECT_THAT(GetEntity_Previous(array, 0), IsBits("L 0,0 3,0"));
  EXPECT_THAT(GetEntity_Previous(array, 2), IsBits("L 0,0 2,0"));
}

TEST(TEntityArray_Helper, NeighboursOutsideTheArrayAreEmpty) {
  const TEntityArray array = ParseEntities("L 0,0 1,0; L 0,0 2,0");
  EXPECT_THAT(GetEntity_Previous(array, -1), IsBits("N"));
  EXPECT_THAT(GetEntity_Next(array, 2), IsBits("N"));
  for (const TIndex index : {INT32_MIN, 5, INT32_MAX}) {
    EXPECT_THAT(GetEntity_Next(array, index), IsBits("N")) << index;
    EXPECT_THAT(GetEntity_Previous(array, index), IsBits("N")) << index;
  }
  EXPECT_THAT(GetEntity_Next(TEntityArray{}, 0), IsBits("N"));
  EXPECT_THAT(GetEntity_Previous(TEntityArray{}, 0), IsBits("N"));
}

TEST(TEntityArray_Helper, NeighboursByEntityAreThoseOfItsFirstMatch) {
  const TSettingsGuard settings;
  const TEntityArray array = ParseEntities("L 0,0 1,0; L 0,0 2,0; L 0,0 3,0; L 2,0 0,0");
  EXPECT_THAT(GetEntity_Next(array, ParseEntity("L 0,0 2,0")), IsBits("L 0,0 3,0"));
  EXPECT_THAT(GetEntity_Previous(array, ParseEntity("L 0,0 2,0")), IsBits("L 0,0 1,0"));
}

TEST(TEntityArray_Helper, NeighboursOfAnAbsentEntityAreEmpty) {
  const TSettingsGuard settings;
  const TEntityArray array = ParseEntities("L 0,0 1,0; L 0,0 2,0");
  EXPECT_THAT(GetEntity_Next(array, ParseEntity("L 0,0 9,9")), IsBits("N"));
  EXPECT_THAT(GetEntity_Previous(array, ParseEntity("L 0,0 9,9")), IsBits("N"));
}

}  // namespace
}  // namespace GeometryEngine

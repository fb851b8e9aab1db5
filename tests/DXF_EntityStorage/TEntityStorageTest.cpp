#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"

#include <cstdint>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::MakeStorage;
using support::ParseEntities;
using support::ParseEntity;
using support::TSettingsGuard;

constexpr TIndex kBadIndexes[] = {-1, 3, INT32_MAX, INT32_MIN};
constexpr const char* kThreeLines = "L 0,0 1,0; L 0,0 2,0; L 0,0 3,0";

TEST(TEntityStorage, BeginsEmpty) {
  const TEntityStorage storage;
  EXPECT_EQ(storage.GetCount(), 0);
  EXPECT_EQ(storage.Count(), 0);
  EXPECT_THAT(storage.StartCoordinate(), IsBits(0, 0));
  for (const double bound : {storage.Min_X(), storage.Max_X(), storage.Min_Y(), storage.Max_Y(), storage.Min_R(),
                             storage.Max_R(), storage.Min_T(), storage.Max_T()}) {
    EXPECT_EQ(bound, 0);
  }
}

TEST(TEntityStorage_GetIsIndexValid, HoldsFromZeroToTheLastIndex) {
  const auto storage = MakeStorage(kThreeLines);
  EXPECT_TRUE(storage->GetIsIndexValid(0));
  EXPECT_TRUE(storage->GetIsIndexValid(2));
  for (const TIndex index : kBadIndexes) EXPECT_FALSE(storage->GetIsIndexValid(index)) << index;
}

TEST(TEntityStorage_GetEntityFromIndex, CopiesTheEntityWithItsTags) {
  const auto storage = MakeStorage("L 0,0 1,0; A c 0,0 r 4 0..90 colour \"red\" name \"Magnet\"");
  EXPECT_THAT(storage->GetEntityFromIndex(1), IsBits("A c 0,0 r 4 0..90 colour \"red\" name \"Magnet\""));
  EXPECT_THAT(storage->Entities(0), IsBits("L 0,0 1,0"));
}

TEST(TEntityStorage_GetEntityFromIndex, IsEmptyForABadIndex) {
  const auto storage = MakeStorage(kThreeLines);
  for (const TIndex index : kBadIndexes) {
    EXPECT_THAT(storage->GetEntityFromIndex(index), IsBits(TDXFEntity{})) << index;
    EXPECT_THAT(storage->Entities(index), IsBits(TDXFEntity{})) << index;
  }
}

TEST(TEntityStorage_GetEntityFromIndex_Pointer, RefersToTheStoredRecord) {
  const auto storage = MakeStorage(kThreeLines);
  storage->GetEntityFromIndex_Pointer(1)->EndCoords.x = 7;
  storage->Entities_P(2)->Colour = "blue";
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 1,0; L 0,0 7,0; L 0,0 3,0 colour \"blue\""));
  EXPECT_EQ(std::as_const(*storage).Entities_P(1), storage->GetEntityFromIndex_Pointer(1));
}

TEST(TEntityStorage_GetEntityFromIndex_Pointer, IsNullForABadIndex) {
  const auto storage = MakeStorage(kThreeLines);
  for (const TIndex index : kBadIndexes) {
    EXPECT_EQ(storage->GetEntityFromIndex_Pointer(index), nullptr) << index;
    EXPECT_EQ(std::as_const(*storage).Entities_P(index), nullptr) << index;
  }
}

TEST(TEntityStorage_SetEntityFromIndex, OverwritesTheSlot) {
  const auto storage = MakeStorage(kThreeLines);
  storage->SetEntityFromIndex(1, ParseEntity("L 5,5 6,6 name \"x\""));
  storage->Entities(0, storage->Entities(2));
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 3,0; L 5,5 6,6 name \"x\"; L 0,0 3,0"));
}

TEST(TEntityStorage_SetEntityFromIndex, DoesNothingForABadIndex) {
  const auto storage = MakeStorage(kThreeLines);
  for (const TIndex index : kBadIndexes) {
    storage->SetEntityFromIndex(index, ParseEntity("L 5,5 6,6"));
    storage->Entities(index, ParseEntity("L 5,5 6,6"));
  }
  EXPECT_THAT(storage->EntityArray(), IsBits(kThreeLines));
}

TEST(TEntityStorage_AddEntity, AppendsAndAnswersTheNewCount) {
  TEntityStorage storage;
  EXPECT_EQ(storage.AddEntity(ParseEntity("L 0,0 1,0")), 1);
  EXPECT_EQ(storage.AddEntity(*storage.Entities_P(0)), 2);
  EXPECT_THAT(storage.EntityArray(), IsBits("L 0,0 1,0; L 0,0 1,0"));
}

TEST(TEntityStorage_AddEntity_AtIndex, InsertsBeforeTheIndexAndAnswersTheNewCount) {
  const auto storage = MakeStorage(kThreeLines);
  EXPECT_EQ(storage->AddEntity_AtIndex(*storage->Entities_P(2), 1), 4);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 1,0; L 0,0 3,0; L 0,0 2,0; L 0,0 3,0"));
}

TEST(TEntityStorage_AddEntity_AtIndex, AppendsForABadIndex) {
  for (const TIndex index : kBadIndexes) {
    const auto storage = MakeStorage(kThreeLines);
    storage->AddEntity_AtIndex(ParseEntity("L 0,0 4,0"), index);
    EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 1,0; L 0,0 2,0; L 0,0 3,0; L 0,0 4,0")) << index;
  }
}

TEST(TEntityStorage_AddEntities, AppendsTheArrayInItsOrder) {
  const auto storage = MakeStorage("L 0,0 1,0");
  storage->AddEntities(ParseEntities("L 0,0 3,0; L 0,0 2,0; L 0,0 1,0"));
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 1,0; L 0,0 3,0; L 0,0 2,0; L 0,0 1,0"));
}

TEST(TEntityStorage_AddEntities, TakesItsOwnArray) {
  const auto storage = MakeStorage("L 0,0 1,0 name \"a name too long for the string's own room\"; L 0,0 2,0");
  storage->AddEntities(storage->EntityArray());
  EXPECT_THAT(storage->EntityArray(),
              IsBits("L 0,0 1,0 name \"a name too long for the string's own room\"; L 0,0 2,0; "
                     "L 0,0 1,0 name \"a name too long for the string's own room\"; L 0,0 2,0"));
}

TEST(TEntityStorage_RemoveEntityFromArray, MovesTheLaterOnesDown) {
  const auto storage = MakeStorage(kThreeLines);
  storage->RemoveEntityFromArray(0);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 2,0; L 0,0 3,0"));
}

TEST(TEntityStorage_RemoveEntityFromArray, IndexPastTheEndDropsTheLastKept) {
  const auto storage = MakeStorage(kThreeLines);
  storage->RemoveEntityFromArray(storage->GetCount());
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 1,0; L 0,0 2,0"));
  storage->RemoveEntityFromArray(INT32_MAX);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 1,0"));
}

TEST(TEntityStorage_RemoveEntityFromArray, DoesNothingForANegativeIndexOrAnEmptyStorage) {
  const auto storage = MakeStorage(kThreeLines);
  storage->RemoveEntityFromArray(-1);
  storage->RemoveEntityFromArray(INT32_MIN);
  EXPECT_THAT(storage->EntityArray(), IsBits(kThreeLines));
  storage->FreeEntities();
  for (const TIndex index : {-1, 0, 5}) storage->RemoveEntityFromArray(index);
  EXPECT_EQ(storage->GetCount(), 0);
}

TEST(TEntityStorage_RemoveEntityFromArray, ByEntityTakesTheFirstEqualOne) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 0,0 1,0; L 0,0 2,0 col 1; L 2,0 0,0 col 2");
  storage->RemoveEntityFromArray(*storage->Entities_P(2));
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 1,0; L 2,0 0,0 col 2"));
  storage->RemoveEntityFromArray(ParseEntity("L 9,9 8,8"));
  EXPECT_EQ(storage->GetCount(), 2);
}

TEST(TEntityStorage_RemoveEntities, RemovesOneEntityForEachOfTheArray) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 0,0 1,0; L 0,0 2,0; L 0,0 1,0; L 0,0 1,0");
  storage->RemoveEntities(ParseEntities("L 1,0 0,0; L 9,9 8,8; L 0,0 1,0"));
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 2,0; L 0,0 1,0"));
}

TEST(TEntityStorage_RemoveEntities, OfItsOwnArrayLeavesWhatEqualsNothing) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 0,0 1,0; N; L 0,0 2,0; A c 0,0 r 1 0..90; L 0,0 1,0");
  storage->RemoveEntities(storage->EntityArray());
  EXPECT_THAT(storage->EntityArray(), IsBits("N"));
}

TEST(TEntityStorage_IndexOf, AnswersTheFirstEqualEntity) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("N; L 0,0 2,0; L 2,0 0,0");
  EXPECT_EQ(storage->IndexOf(ParseEntity("L 2,0 0,0")), 1);
  EXPECT_EQ(storage->IndexOf(ParseEntity("L 2,0 0,1")), kNotFound);
  EXPECT_TRUE(storage->CheckEntityExists(ParseEntity("L 2,0 0,0")));
  EXPECT_FALSE(storage->CheckEntityExists(ParseEntity("N")));
}

TEST(TEntityStorage_SetEntityColour, SetsTheColourOfThatEntityOnly) {
  const auto storage = MakeStorage(kThreeLines);
  storage->SetEntityColour(1, "red");
  for (const TIndex index : kBadIndexes) storage->SetEntityColour(index, "blue");
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 1,0; L 0,0 2,0 colour \"red\"; L 0,0 3,0"));
}

TEST(TEntityStorage_SetEntitySourceDXF, SetsTheSourceOfThatEntityOnly) {
  const auto storage = MakeStorage(kThreeLines);
  int source = 0;
  storage->SetEntitySourceDXF(1, &source);
  for (const TIndex index : kBadIndexes) storage->SetEntitySourceDXF(index, &source);
  EXPECT_EQ(storage->Entities(0).SourceDXF, nullptr);
  EXPECT_EQ(storage->Entities(1).SourceDXF, &source);
  EXPECT_EQ(storage->Entities(2).SourceDXF, nullptr);
}

TEST(TEntityStorage_FreeEntities, LeavesStartVertexAndBounds) {
  const TSettingsGuard settings;
  const auto storage = support::MakeChain("L 1,0 2,0; L 2,0 2,2");
  storage->CalculateMinMaxValues();
  storage->FreeEntities();
  EXPECT_EQ(storage->GetCount(), 0);
  EXPECT_THAT(storage->StartCoordinate(), IsBits(1, 0));
  EXPECT_EQ(storage->Max_X(), 2);
}

TEST(TEntityStorage_CopyGeometry, ReplacesTheEntitiesAndLeavesTheOther) {
  const TSettingsGuard settings;
  const auto source = support::MakeChain("L 1,0 2,0 name \"a\"; L 2,0 2,2");
  const auto target = MakeStorage(kThreeLines);
  target->CopyGeometry(*source);
  EXPECT_THAT(target->EntityArray(), IsBits("L 1,0 2,0 name \"a\"; L 2,0 2,2"));
  EXPECT_THAT(source->EntityArray(), IsBits("L 1,0 2,0 name \"a\"; L 2,0 2,2"));
  EXPECT_THAT(target->StartCoordinate(), IsBits(0, 0));
}

TEST(TEntityStorage_CopyGeometry, OntoItselfChangesNothing) {
  const auto storage = MakeStorage(kThreeLines);
  storage->CopyGeometry(*storage);
  EXPECT_THAT(storage->EntityArray(), IsBits(kThreeLines));
}

TEST(TEntityStorage_CopyNewGeometry, LeavesTheSourceEmptyAndAlive) {
  const auto source = MakeStorage("L 1,0 2,0; L 2,0 2,2");
  const auto target = MakeStorage(kThreeLines);
  target->CopyNewGeometry(*source);
  EXPECT_THAT(target->EntityArray(), IsBits("L 1,0 2,0; L 2,0 2,2"));
  EXPECT_EQ(source->GetCount(), 0);
  EXPECT_EQ(source->AddEntity(ParseEntity("L 0,0 1,0")), 1);
}

TEST(TEntityStorage_CopyNewGeometry, OntoItselfChangesNothing) {
  const auto storage = MakeStorage(kThreeLines);
  storage->CopyNewGeometry(*storage);
  EXPECT_THAT(storage->EntityArray(), IsBits(kThreeLines));
}

TEST(TEntityStorage_IsEqual, ComparesEntityByEntity) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage(kThreeLines);
  EXPECT_TRUE(storage->IsEqual(*storage));
  EXPECT_TRUE(storage->IsEqual(*MakeStorage("L 1,0 0,0 name \"a\"; L 0,0 2,0; L 0,0 3,0")));
  EXPECT_FALSE(storage->IsEqual(*MakeStorage("L 0,0 1,0; L 0,0 2,0")));
  EXPECT_FALSE(storage->IsEqual(*MakeStorage("L 0,0 1,0; L 0,0 2,0; L 0,0 3,1")));
  EXPECT_TRUE(TEntityStorage().IsEqual(TEntityStorage()));
}

TEST(TEntityStorage_IsEqual, IsFalseForTheSameEntitiesInAnotherOrder) {
  const TSettingsGuard settings;
  EXPECT_FALSE(MakeStorage(kThreeLines)->IsEqual(*MakeStorage("L 0,0 2,0; L 0,0 1,0; L 0,0 3,0")));
}

TEST(TEntityStorage_IsEqual, IsFalseWithAnEntityThatEqualsNothing) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 0,0 1,0; R");
  EXPECT_FALSE(storage->IsEqual(*storage));
}

}  // namespace
}  // namespace GeometryEngine

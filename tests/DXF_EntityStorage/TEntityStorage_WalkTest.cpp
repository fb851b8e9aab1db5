#include <cmath>
#include <cstddef>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/RunWithStack.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::IsNear;
using support::MakeStorage;
using support::ParseEntity;
using support::TSettingsGuard;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// A closed chain whose records run now with it, now against it. Vertices (0,0), (4,0), (4,4), (0,4).
constexpr const char* kSquare = "L 0,0 4,0; L 4,4 4,0; L 4,4 0,4; L 0,0 0,4";
/// An open chain (1,0) to (5,0) to (5,3) to (7,3), its first record stored against it.
constexpr const char* kOpen = "L 5,0 1,0; L 5,0 5,3; L 5,3 7,3";

class TEntityStorage_Chain : public ::testing::Test {
 protected:
  TSettingsGuard settings;
};
using TEntityStorage_GetStartCoordinate = TEntityStorage_Chain;
using TEntityStorage_GetCommonCoordinate_StartEnd = TEntityStorage_Chain;
using TEntityStorage_GetEntity_Next = TEntityStorage_Chain;
using TEntityStorage_GetEntity_Previous = TEntityStorage_Chain;
using TEntityStorage_ReOrderEntities = TEntityStorage_Chain;
using TEntityStorage_ReverseEntities = TEntityStorage_Chain;
using TEntityStorage_GetVertices = TEntityStorage_Chain;
using TEntityStorage_GetVertices_Surf = TEntityStorage_Chain;

TEST_F(TEntityStorage_Chain, EmptyAnswersTheOriginAndFindsNothing) {
  const TEntityStorage empty;
  EXPECT_THAT(empty.GetStartCoordinate(), IsBits(0, 0));
  EXPECT_THAT(empty.GetEndCoordinate(), IsBits(0, 0));
  EXPECT_EQ(empty.GetEntity_Next({0, 0}).success, kNotFound);
  EXPECT_THAT(empty.GetEntity_Next({0, 0}).aEntity, IsBits(TDXFEntity{}));
  EXPECT_EQ(empty.GetEntity_Previous({0, 0}).success, kNotFound);
  EXPECT_THAT(empty.GetEntity_Previous({0, 0}).aEntity, IsBits(TDXFEntity{}));
  EXPECT_TRUE(empty.GetVertices().empty());
  EXPECT_TRUE(empty.GetVertices_Surf(true).empty());
}

TEST_F(TEntityStorage_GetStartCoordinate, OfOneEntityIsItsStartWhateverItsOrientation) {
  for (const char* text : {"L 1,2 3,4", "L 3,4 1,2", "A c 0,0 r 2 30..60", "A c 0,0 r 2 300..60"}) {
    const auto storage = MakeStorage(text);
    EXPECT_THAT(storage->GetStartCoordinate(), IsBits(ParseEntity(text).StartCoords)) << text;
    EXPECT_THAT(storage->GetEndCoordinate(), IsBits(ParseEntity(text).EndCoords)) << text;
  }
}

TEST_F(TEntityStorage_GetStartCoordinate, OfTwoArcsThatMakeACircleIsTheFirstArcsStart) {
  const auto upper_first = MakeStorage("A c 0,0 r 2 0..180; A c 0,0 r 2 180..360");
  EXPECT_THAT(upper_first->GetStartCoordinate(), IsBits(2, 0));
  EXPECT_THAT(upper_first->GetEndCoordinate(), IsNear(-2, 0, 1e-15));
  const auto lower_first = MakeStorage("A c 0,0 r 2 180..360; A c 0,0 r 2 0..180");
  EXPECT_THAT(lower_first->GetStartCoordinate(), IsNear(-2, 0, 1e-15));
  EXPECT_THAT(lower_first->GetEndCoordinate(), IsNear(2, 0, 1e-15));
}

TEST_F(TEntityStorage_GetStartCoordinate, OfTwoEntitiesThatCloseOnThemselvesIsTheFirstOnesStart) {
  for (const char* text : {"L -2,0 2,0; A c 0,0 r 2 180..360", "L -2,0 2,0; A c 0,0 r 2 0..180"}) {
    EXPECT_THAT(MakeStorage(text)->GetStartCoordinate(), IsBits(-2, 0)) << text;
    EXPECT_THAT(MakeStorage(text)->GetEndCoordinate(), IsBits(2, 0)) << text;
  }
}

TEST_F(TEntityStorage_GetStartCoordinate, OfTwoEntitiesInARowIsTheFreeEnd) {
  for (const char* text :
       {"L 0,0 1,0; L 1,0 1,1", "L 1,0 0,0; L 1,0 1,1", "L 0,0 1,0; L 1,1 1,0", "L 1,0 0,0; L 1,1 1,0"}) {
    EXPECT_THAT(MakeStorage(text)->GetStartCoordinate(), IsBits(0, 0)) << text;
    EXPECT_THAT(MakeStorage(text)->GetEndCoordinate(), IsBits(1, 1)) << text;
  }
}

TEST_F(TEntityStorage_GetStartCoordinate, OfAChainWhoseFirstRecordIsReversedIsThatRecordsEnd) {
  EXPECT_THAT(MakeStorage(kOpen)->GetStartCoordinate(), IsBits(1, 0));
  EXPECT_THAT(MakeStorage(kOpen)->GetEndCoordinate(), IsBits(7, 3));
}

TEST_F(TEntityStorage_GetStartCoordinate, OfAClosedChainIsWhereTheLastEntityArrives) {
  EXPECT_THAT(MakeStorage(kSquare)->GetStartCoordinate(), IsBits(0, 0));
  EXPECT_THAT(MakeStorage(kSquare)->GetEndCoordinate(), IsBits(0, 0));
}

TEST_F(TEntityStorage_GetStartCoordinate, OfAChainThatDoesNotTouchIsTheOrigin) {
  const auto storage = MakeStorage("L 1,1 2,2; L 5,5 6,6; L 8,8 9,9");
  EXPECT_THAT(storage->GetStartCoordinate(), IsBits(0, 0));
  EXPECT_THAT(storage->GetEndCoordinate(), IsBits(0, 0));
}

TEST_F(TEntityStorage_GetCommonCoordinate_StartEnd, IsTheEndThatTheSecondDoesNotTouch) {
  const TDXFEntity second = ParseEntity("L 4,0 4,4");
  EXPECT_THAT(TEntityStorage::GetCommonCoordinate_StartEnd(ParseEntity("L 1,0 4,0"), second), IsBits(1, 0));
  EXPECT_THAT(TEntityStorage::GetCommonCoordinate_StartEnd(ParseEntity("L 4,4 1,0"), second), IsBits(1, 0));
  EXPECT_THAT(TEntityStorage::GetCommonCoordinate_StartEnd(ParseEntity("L 1,0 3,0"), second), IsBits(0, 0));
}

TEST_F(TEntityStorage_GetEntity_Next, AnswersTheEntityThatLeavesTheVertex) {
  const auto square = MakeStorage(kSquare);
  EXPECT_EQ(square->GetEntity_Next({4, 4}).success, 0);
  EXPECT_THAT(square->GetEntity_Next({4, 4}).aEntity, IsBits("L 4,4 0,4"));
  EXPECT_THAT(square->GetEntity_Next({0, 0}).aEntity, IsBits("L 0,0 4,0"));
}

TEST_F(TEntityStorage_GetEntity_Next, FailsWithOneEntity) {
  const auto storage = MakeStorage("L 0,0 4,0");
  EXPECT_EQ(storage->GetEntity_Next({0, 0}).success, kNotFound);
  EXPECT_THAT(storage->GetEntity_Next({0, 0}).aEntity, IsBits(TDXFEntity{}));
  EXPECT_EQ(storage->GetEntity_Previous({0, 0}).success, kNotFound);
}

TEST_F(TEntityStorage_GetEntity_Next, FailsAtTheFarEndAndOffTheVertices) {
  const auto open = MakeStorage(kOpen);
  for (const TEntityCoordinate& coordinate : {TEntityCoordinate{7, 3}, {3, 0}, {kNaN, 0}}) {
    EXPECT_EQ(open->GetEntity_Next(coordinate).success, kNotFound);
    EXPECT_THAT(open->GetEntity_Next(coordinate).aEntity, IsBits(TDXFEntity{}));
    EXPECT_EQ(open->GetEntity_Previous(coordinate).success, kNotFound);
    EXPECT_THAT(open->GetEntity_Previous(coordinate).aEntity, IsBits(TDXFEntity{}));
  }
}

TEST_F(TEntityStorage_GetEntity_Next, AnswersTheFirstEntityAtAVertexThatIsPassedTwice) {
  const auto bow = MakeStorage("L 0,0 2,0; L 2,0 2,2; L 2,2 0,0; L 0,0 -2,0; L -2,0 -2,-2; L -2,-2 0,0");
  EXPECT_THAT(bow->GetEntity_Next({0, 0}).aEntity, IsBits("L 0,0 2,0"));
  EXPECT_THAT(bow->GetEntity_Previous({0, 0}).aEntity, IsBits("L -2,-2 0,0"));
}

TEST_F(TEntityStorage_GetEntity_Previous, AnswersTheEntityThatArrivesAtTheVertex) {
  const auto square = MakeStorage(kSquare);
  EXPECT_EQ(square->GetEntity_Previous({4, 4}).success, 0);
  EXPECT_THAT(square->GetEntity_Previous({4, 4}).aEntity, IsBits("L 4,4 4,0"));
}

TEST_F(TEntityStorage_GetEntity_Previous, AtTheStartVertexIsTheLastEntity) {
  EXPECT_EQ(MakeStorage(kSquare)->GetEntity_Previous({0, 0}).success, 0);
  EXPECT_THAT(MakeStorage(kSquare)->GetEntity_Previous({0, 0}).aEntity, IsBits("L 0,0 0,4"));
  EXPECT_THAT(MakeStorage(kOpen)->GetEntity_Previous({1, 0}).aEntity, IsBits("L 5,3 7,3"));
}

TEST_F(TEntityStorage_ReOrderEntities, MakesTheVertexTheStart) {
  const auto square = MakeStorage(kSquare);
  square->ReOrderEntities({4, 4});
  EXPECT_THAT(square->EntityArray(), IsBits("L 4,4 0,4; L 0,0 0,4; L 0,0 4,0; L 4,4 4,0"));
  EXPECT_THAT(square->GetStartCoordinate(), IsBits(4, 4));
}

TEST_F(TEntityStorage_ReOrderEntities, MovesASingleEntityToTheEnd) {
  const auto square = MakeStorage(kSquare);
  square->ReOrderEntities({4, 0});
  EXPECT_THAT(square->EntityArray(), IsBits("L 4,4 4,0; L 4,4 0,4; L 0,0 0,4; L 0,0 4,0"));
}

TEST_F(TEntityStorage_ReOrderEntities, LeavesTheOrderOffTheVerticesAndAtTheStart) {
  const auto square = MakeStorage(kSquare);
  for (const TEntityCoordinate& coordinate : {TEntityCoordinate{0, 0}, {2, 0}, {kNaN, kNaN}}) {
    square->ReOrderEntities(coordinate);
    EXPECT_THAT(square->EntityArray(), IsBits(kSquare));
  }
}

TEST_F(TEntityStorage_ReOrderEntities, LeavesAnEmptyStorageAndASingleEntity) {
  TEntityStorage storage;
  storage.ReOrderEntities({0, 0});
  EXPECT_EQ(storage.GetCount(), 0);
  storage.AddEntity(ParseEntity("L 0,0 4,0"));
  storage.ReOrderEntities({4, 0});
  EXPECT_THAT(storage.EntityArray(), IsBits("L 0,0 4,0"));
}

TEST_F(TEntityStorage_ReOrderEntities, TakesACoordinateOfItsOwn) {
  const auto square = MakeStorage(kSquare);
  square->ReOrderEntities(square->Entities_P(2)->StartCoords);
  EXPECT_THAT(square->GetStartCoordinate(), IsBits(4, 4));
}

TEST_F(TEntityStorage_ReverseEntities, TwiceRestoresTheFormerArrayExactly) {
  constexpr const char* kText = "L 0,0 4,0 name \"a\"; A c 4,2 r 2 270..90; L 4,4 0,4 col 3; L 0,0 0,4";
  const auto storage = MakeStorage(kText);
  storage->ReverseEntities();
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 0,4; L 4,4 0,4 col 3; A c 4,2 r 2 270..90; L 0,0 4,0 name \"a\""));
  storage->ReverseEntities();
  EXPECT_THAT(storage->EntityArray(), IsBits(kText));
}

TEST_F(TEntityStorage_ReverseEntities, TurnsTheWalkRound) {
  const auto square = MakeStorage(kSquare);
  square->ReverseEntities();
  EXPECT_THAT(square->GetVertices(), IsBits("0,0 0,4 4,4 4,0"));
}

TEST_F(TEntityStorage_GetVertices, AnswersOneVertexAnEntity) {
  EXPECT_THAT(MakeStorage(kSquare)->GetVertices(), IsBits("0,0 4,0 4,4 0,4"));
  EXPECT_THAT(MakeStorage(kOpen)->GetVertices(), IsBits("1,0 5,0 5,3"));
  EXPECT_THAT(MakeStorage("L 3,4 1,2")->GetVertices(), IsBits("3,4"));
}

TEST_F(TEntityStorage_GetVertices, GoesOnFromTheOriginBehindAGap) {
  EXPECT_THAT(MakeStorage("L 1,0 2,0; L 2,0 2,1; L 7,7 8,8; L 9,9 5,5")->GetVertices(), IsBits("1,0 2,0 2,1 0,0"));
}

TEST_F(TEntityStorage_GetVertices_Surf, AddsTheMiddlesOfLinesWhenAsked) {
  EXPECT_THAT(MakeStorage(kSquare)->GetVertices_Surf(false), IsBits("0,0 4,0 4,4 0,4"));
  EXPECT_THAT(MakeStorage(kSquare)->GetVertices_Surf(true), IsBits("0,0 2,0 4,0 4,2 4,4 2,4 0,4 0,2"));
}

TEST_F(TEntityStorage_GetVertices_Surf, CutsAnArcIntoChordsInItsSenseOfTravel) {
  const TDXFEntity arc = ParseEntity("A c 1,2 r 3 0..90");
  const auto [aCount, aStep] = GetArcSegmentPoints_Surf(arc, 0.01);
  ASSERT_GT(aCount, 3);
  const TCoordinateArray along = MakeStorage("A c 1,2 r 3 0..90; L 1,5 1,9")->GetVertices_Surf(false);
  const TCoordinateArray against = MakeStorage("L 1,9 1,5; A c 1,2 r 3 0..90")->GetVertices_Surf(false);
  ASSERT_EQ(along.size(), static_cast<std::size_t>(aCount) + 1);
  ASSERT_EQ(against.size(), static_cast<std::size_t>(aCount) + 1);
  for (std::int32_t k = 0; k < aCount; ++k) {
    const auto place = static_cast<std::size_t>(k);
    EXPECT_THAT(along[place], IsBits(GetArc_LineSegmentCoord(arc, k, Travel_AntiClockwise, 0, aStep)));
    EXPECT_THAT(against[place + 1], IsBits(GetArc_LineSegmentCoord(arc, k, Travel_Clockwise, 90, aStep)));
  }
  EXPECT_THAT(along.back(), IsNear(1, 5, 1e-15));
}

TEST_F(TEntityStorage_GetVertices_Surf, StaysWithinAHundredthOfTheArc) {
  const TCoordinateArray points = MakeStorage("A c 0,0 r 50 10..170")->GetVertices_Surf(false);
  ASSERT_GT(points.size(), 3U);
  for (std::size_t i = 1; i < points.size(); ++i) {
    const TEntityCoordinate middle = (points[i - 1] + points[i]) / 2;
    EXPECT_GT(std::hypot(middle.x, middle.y), 50 - 0.01);
  }
}

TEST_F(TEntityStorage_GetVertices_Surf, AddsNothingForEntitiesWithoutGeometry) {
  EXPECT_TRUE(MakeStorage("N; R; N")->GetVertices_Surf(true).empty());
  EXPECT_THAT(MakeStorage("L 1,0 2,0; L 2,0 2,1; R")->GetVertices_Surf(false), IsBits("1,0 2,0"));
}

TEST_F(TEntityStorage_GetVertices_Surf, ListsAMillionPointsForAnArcThatAsksForMore) {
  const auto chain = MakeStorage("A c 0,0 r 1e12 0..90");
  const TCoordinateArray points = chain->GetVertices_Surf(false);
  ASSERT_EQ(points.size(), 1'000'000U);
  EXPECT_NEAR(std::atan2(points[500'000].y, points[500'000].x) * 180 / 3.14159265358979323846, 45, 1e-9);
}

TEST_F(TEntityStorage_Chain, OfTenThousandEntitiesNeedsLittleStack) {
  support::RunWithStack(256 * 1024, [] {
    constexpr int kEntities = 10'000;
    constexpr double kTurn = 2 * 3.14159265358979323846;
    const auto vertex = [](int aIndex) {
      const double angle = kTurn * (aIndex % kEntities) / kEntities;
      return TEntityCoordinate{1000 * std::cos(angle), 1000 * std::sin(angle)};
    };
    TEntityStorage ring;
    for (int i = 0; i < kEntities; ++i) ring.AddEntity(TDXFEntity::Line(vertex(i), vertex(i + 1)));
    EXPECT_EQ(ring.GetVertices().size(), std::size_t{kEntities});
    EXPECT_EQ(ring.GetEntity_Previous(vertex(kEntities - 1)).success, 0);
    ring.ReOrderEntities(vertex(kEntities / 2));
    EXPECT_THAT(ring.GetStartCoordinate(), IsBits(vertex(kEntities / 2)));
    EXPECT_NEAR(ring.GetClosedArea(), kEntities / 2.0 * std::sin(kTurn / kEntities) * 1e6, 1e-3);
  });
}

}  // namespace
}  // namespace GeometryEngine

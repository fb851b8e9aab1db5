#include <cmath>
#include <cstdint>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::IsNear;
using support::MakeChain;
using support::MakeStorage;
using support::ParseEntity;
using support::TSettingsGuard;
using ::testing::Not;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// A quarter annulus from radius 1 to 2, anticlockwise from (1, 0).
constexpr const char* kQuarter =
    "L 1,0 2,0; A c 0,0 r 2 0..90 from 2,0 to 0,2; L 0,2 0,1; "
    "A c 0,0 r 1 0..90 from 1,0 to 0,1";
/// A rectangle from (0,0) to (2,1), anticlockwise.
constexpr const char* kRectangle = "L 0,0 2,0; L 2,0 2,1; L 2,1 0,1; L 0,1 0,0";

int CountLines(const TEntityStorage& aStorage) {
  int lines = 0;
  for (const TDXFEntity& entity : aStorage.EntityArray()) lines += entity.EntityType == DXFLine ? 1 : 0;
  return lines;
}

TEST(TEntityStorage_RotateEntities, TurnsEveryEntityAboutTheOrigin) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 1,0 2,0 name \"a\"; A c 0,0 r 2 0..90; R");
  storage->RotateEntities(GetRotationMatrix(90));
  EXPECT_THAT(storage->EntityArray(), IsNear("L 0,1 0,2; A c 0,0 r 2 90..180; R", 1e-12));
  EXPECT_EQ(storage->Entities(0).RegionName, "a");
}

TEST(TEntityStorage_RotateEntities, LeavesTheStoredStartVertexKept) {
  const TSettingsGuard settings;
  const auto chain = MakeChain(kQuarter);
  chain->RotateEntities(GetRotationMatrix(90));
  EXPECT_THAT(chain->StartCoordinate(), IsBits(1, 0));
  chain->RotateEntities_AroundPoint(GetRotationMatrix(90), {1, 1});
  EXPECT_THAT(chain->StartCoordinate(), IsBits(1, 0));
}

TEST(TEntityStorage_RotateEntities_AroundPoint, TurnsEveryEntityAboutThePoint) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 1,0 2,0; A c 1,0 r 2 0..90");
  storage->RotateEntities_AroundPoint(GetRotationMatrix(180), {1, 1});
  EXPECT_THAT(storage->EntityArray(), IsNear("L 1,2 0,2; A c 1,2 r 2 180..270", 1e-12));
}

TEST(TEntityStorage_RotateEntities_AroundPoint, TurnsAboutAnOwnCoordinateWhereItWas) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 1,0 3,2; L 5,0 6,0");
  storage->RotateEntities_AroundPoint(GetRotationMatrix(180), storage->Entities_P(0)->EndCoords);
  EXPECT_THAT(storage->EntityArray(), IsNear("L 5,4 3,2; L 1,4 0,4", 1e-12));
}

TEST(TEntityStorage_Translate, MovesEveryEntityAndStoresTheNewStart) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage(kQuarter);
  storage->Translate(10, -3);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 11,-3 12,-3; A c 10,-3 r 2 0..90 from 12,-3 to 10,-1; L 10,-1 10,-2; "
                                             "A c 10,-3 r 1 0..90 from 11,-3 to 10,-2"));
  EXPECT_THAT(storage->StartCoordinate(), IsBits(11, -3));
  EXPECT_TRUE(storage->PointInsideEntities({11, -2}, false));
}

TEST(TEntityStorage_Mirror, KeepsTheSenseOfTravelAndStoresTheNewStart) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage(kQuarter);
  const double area = storage->GetClosedArea();
  storage->Mirror(ParseEntity("L 0,0 0,5"));
  EXPECT_THAT(storage->EntityArray(), IsNear("A c 0,0 r 1 90..180 from 0,1 to -1,0; L 0,2 0,1; "
                                             "A c 0,0 r 2 90..180 from 0,2 to -2,0; L -1,0 -2,0",
                                             1e-12));
  EXPECT_NEAR(storage->GetClosedArea(), area, 1e-12);
  EXPECT_THAT(storage->StartCoordinate(), IsNear(-1, 0, 1e-12));
  EXPECT_THAT(storage->GetStartCoordinate(), IsNear(-1, 0, 1e-12));
  EXPECT_TRUE(storage->PointInsideEntities({-1, 1}, false));
}

TEST(TEntityStorage_Mirror, TwiceAboutTheSameLineRestoresTheChain) {
  const TSettingsGuard settings;
  constexpr const char* kText =
      "L 0,0 4,3 name \"a\"; A c 1,4 r 3.1622776601683795 341.56505117707798..71.56505117707799 from 4,3 to 2,7; L 2,7 "
      "0,0";
  for (const char* line : {"L 1,0 1,5", "L 0,0 1,2", "L -3,7 2,7", "L 4,4 0,-3"}) {
    const auto storage = MakeStorage(kText);
    storage->Mirror(ParseEntity(line));
    storage->Mirror(ParseEntity(line));
    EXPECT_THAT(storage->EntityArray(), IsNear(kText, 1e-10)) << line;
    EXPECT_EQ(storage->Entities(0).RegionName, "a");
  }
}

TEST(TEntityStorage_Mirror, AboutAnOwnLineTakesTheLineAsItWas) {
  const TSettingsGuard settings;
  constexpr const char* kText = "L 14.6,0.4 15,9.3; L 15,9.3 3.3,1.1; L 3.3,1.1 14.6,0.4";
  const auto storage = MakeStorage(kText);
  const auto twin = MakeStorage(kText);
  EXPECT_THAT(MirrorEntity_AboutLine(storage->Entities(0), storage->Entities(0)), Not(IsBits(storage->Entities(0))));
  storage->Mirror(*storage->Entities_P(0));
  twin->Mirror(ParseEntity("L 14.6,0.4 15,9.3"));
  EXPECT_THAT(storage->EntityArray(), IsBits(twin->EntityArray()));
}

TEST(TEntityStorage_Mirror, AboutAnythingButALineReversesTheOrderOnly) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage("L 1,0 2,0; L 2,0 2,2; L 2,2 1,0");
  storage->Mirror(ParseEntity("A c 0,0 r 1 0..90"));
  EXPECT_THAT(storage->EntityArray(), IsBits("L 2,2 1,0; L 2,0 2,2; L 1,0 2,0"));
}

TEST(TEntityStorage_Transforms, OfAnEmptyStorageLeaveItEmpty) {
  const TSettingsGuard settings;
  TEntityStorage empty;
  empty.RotateEntities(GetRotationMatrix(30));
  empty.Translate(1, 2);
  empty.Mirror(ParseEntity("L 0,0 1,1"));
  empty.DuplicateAroundAxis(INT32_MAX, 4, 90, true);
  empty.DuplicateAlongAxis(INT32_MAX, 1);
  EXPECT_EQ(empty.GetCount(), 0);
  EXPECT_THAT(empty.StartCoordinate(), IsBits(0, 0));
}

TEST(TEntityStorage_DuplicateAroundAxis, MakesAFullRingWithoutRadialLines) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage(kQuarter);
  storage->DuplicateAroundAxis(4, 4, 90, false);
  EXPECT_THAT(storage->EntityArray(),
              IsNear("A c 0,0 r 2 0..90 from 2,0 to 0,2; A c 0,0 r 1 0..90 from 1,0 to 0,1;"
                     "A c 0,0 r 2 90..180 from 0,2 to -2,0; A c 0,0 r 1 90..180 from 0,1 to -1,0;"
                     "A c 0,0 r 2 180..270 from -2,0 to 0,-2; A c 0,0 r 1 180..270 from -1,0 to 0,-1;"
                     "A c 0,0 r 2 270..0 from 0,-2 to 2,0; A c 0,0 r 1 270..0 from 0,-1 to 1,0",
                     1e-12));
}

TEST(TEntityStorage_DuplicateAroundAxis, KeepsTheOwnEdgesOfAPartialRing) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage(kQuarter);
  storage->DuplicateAroundAxis(2, 4, 90, false);
  EXPECT_THAT(storage->EntityArray(),
              IsNear("L 1,0 2,0; A c 0,0 r 2 0..90 from 2,0 to 0,2; A c 0,0 r 1 0..90 from 1,0 to 0,1;"
                     "A c 0,0 r 2 90..180 from 0,2 to -2,0; L -2,0 -1,0; A c 0,0 r 1 90..180 from 0,1 to -1,0",
                     1e-12));
}

TEST(TEntityStorage_DuplicateAroundAxis, LeavesTheFirstCopyWhereItWas) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage(kQuarter);
  storage->DuplicateAroundAxis(1, 4, 90, false);
  EXPECT_EQ(storage->GetCount(), 4);
  EXPECT_THAT(storage->Entities(0), IsBits("L 1,0 2,0"));
}

TEST(TEntityStorage_DuplicateAroundAxis, KeepsEveryTurnedEntityWhenSingular) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage(kQuarter);
  storage->DuplicateAroundAxis(4, 4, 90, true);
  EXPECT_EQ(storage->GetCount(), 16);
  EXPECT_EQ(CountLines(*storage), 8);
  EXPECT_THAT(storage->Entities(4), IsNear("L 0,1 0,2", 1e-12));
}

TEST(TEntityStorage_DuplicateAroundAxis, LeavesNothingBelowOneCopy) {
  const TSettingsGuard settings;
  for (const std::int32_t copies : {0, -1, INT32_MIN}) {
    const auto storage = MakeStorage(kQuarter);
    storage->DuplicateAroundAxis(copies, 4, 90, true);
    EXPECT_EQ(storage->GetCount(), 0) << copies;
  }
}

TEST(TEntityStorage_DuplicateAroundAxis, AnswersForAnyAngle) {
  const TSettingsGuard settings;
  for (const double angle : {0.0, -90.0, 1e308, HUGE_VAL, -HUGE_VAL, kNaN}) {
    const auto storage = MakeStorage(kQuarter);
    storage->DuplicateAroundAxis(3, 5, angle, true);
    EXPECT_EQ(storage->GetCount(), 12) << angle;
  }
}

TEST(TEntityStorage_DuplicateAlongAxis, MergesNeighboursThatShareAnEdge) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage(kRectangle);
  storage->DuplicateAlongAxis(3, 2);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 2,0; L 2,1 0,1; L 0,1 0,0; L 2,0 4,0; L 4,1 2,1; "
                                             "L 4,0 6,0; L 6,0 6,1; L 6,1 4,1"));
}

TEST(TEntityStorage_DuplicateAlongAxis, LeavesGapsBetweenCopiesThatDoNotTouch) {
  const TSettingsGuard settings;
  const auto storage = MakeStorage(kRectangle);
  storage->DuplicateAlongAxis(2, 3);
  EXPECT_THAT(storage->EntityArray(),
              IsBits("L 0,0 2,0; L 2,0 2,1; L 2,1 0,1; L 0,1 0,0; L 3,0 5,0; L 5,0 5,1; L 5,1 3,1; L 3,1 3,0"));
}

TEST(TEntityStorage_DuplicateAlongAxis, ComparesWithTheCopyBeforeOnly) {
  const TSettingsGuard settings;
  // The third copy's line at 4 lies on the first copy's, with the second copy in between.
  const auto storage = MakeStorage("L 0,0 0,1; L 4,0 4,1");
  storage->DuplicateAlongAxis(3, 2);
  EXPECT_THAT(storage->EntityArray(), IsBits("L 0,0 0,1; L 4,0 4,1; L 2,0 2,1; L 6,0 6,1; L 4,0 4,1; L 8,0 8,1"));
}

TEST(TEntityStorage_DuplicateAlongAxis, TakesTurnsWhereAllCopiesFallOnOnePlace) {
  const TSettingsGuard settings;
  // Of three copies in one place the second wipes out the first, and the third has nothing before it.
  const auto storage = MakeStorage("L 0,0 2,0; N");
  storage->DuplicateAlongAxis(3, 0);
  EXPECT_THAT(storage->EntityArray(), IsBits("N; N; L 0,0 2,0; N"));
}

TEST(TEntityStorage_DuplicateAlongAxis, ChangesNothingBelowTwoCopies) {
  const TSettingsGuard settings;
  for (const std::int32_t copies : {1, 0, -1, INT32_MIN}) {
    const auto storage = MakeStorage(kRectangle);
    storage->DuplicateAlongAxis(copies, 2);
    EXPECT_THAT(storage->EntityArray(), IsBits(kRectangle)) << copies;
  }
}

TEST(TEntityStorage_DuplicateAlongAxis, AnswersForAnyDistance) {
  const TSettingsGuard settings;
  for (const double distance : {-2.0, 1e308, HUGE_VAL, kNaN}) {
    const auto storage = MakeStorage(kRectangle);
    storage->DuplicateAlongAxis(3, distance);
    EXPECT_EQ(storage->GetCount(), distance == -2.0 ? 8 : 12) << distance;
  }
}

}  // namespace
}  // namespace GeometryEngine

#include "GeometryEngine/DXF_Regions_Utilities/SectionBoundaries.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using support::IsBits;
using support::IsNear;
using support::TSettingsGuard;

constexpr double kPi = 3.14159265358979323846;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(GetDXFDivisionBoundaries, RunFromTheSecondRadiusToTheFirst) {
  EXPECT_THAT(GetDXFDivisionBoundaries(1, 4, 0, 90), IsNear("L 4,0 1,0; L 0,4 0,1", 1e-12));
}

TEST(GetBlankRegionEntities, MakeAnAnnularSector) {
  EXPECT_THAT(GetBlankRegionEntities(1, 4, 0, 90), IsNear("L 1,0 4,0; A c 0,0 r 4 0..90 from 4,0 to 0,4; L 0,4 0,1; "
                                                          "A c 0,0 r 1 0..90 from 1,0 to 0,1",
                                                          1e-12));
}

TEST(GetBlankRegionEntities, MakeAPieSliceOfThreeEntitiesWithoutAnInnerRadius) {
  constexpr const char* kSlice = "L 0,0 4,0; A c 0,0 r 4 0..90 from 4,0 to 0,4; L 0,4 0,0";
  EXPECT_THAT(GetBlankRegionEntities(0, 4, 0, 90), IsNear(kSlice, 1e-12));
  EXPECT_EQ(GetBlankRegionEntities(-1, 4, 0, 90).size(), 3U);
  EXPECT_EQ(GetBlankRegionEntities(kNaN, 4, 0, 90).size(), 3U);
}

TEST(GetBlankRegionEntities, AreAChainWhoseWalkCloses) {
  const TSettingsGuard settings;
  for (const double inner : {0.0, 1.0}) {
    TEntityStorage storage;
    storage.AddEntities(GetBlankRegionEntities(inner, 4, 20, 80));
    EXPECT_THAT(storage.GetEndCoordinate(), IsNear(storage.GetStartCoordinate(), 1e-12)) << inner;
    EXPECT_NEAR(storage.GetClosedArea(), kPi / 6 * (16 - inner * inner), 1e-12) << inner;
  }
}

TEST(GetBlankRegionEntities, StoreTheAnglesAsGivenAndNoTags) {
  const TEntityArray outline = GetBlankRegionEntities(1, 4, -30, 390);
  ASSERT_EQ(outline.size(), 4U);
  EXPECT_EQ(outline[1].startAngle, -30);
  EXPECT_EQ(outline[1].endAngle, 390);
  for (const TDXFEntity& entity : outline) {
    TDXFEntity untagged = TDXFEntity::Line(entity.StartCoords, entity.EndCoords);
    if (entity.EntityType == DXFArc) {
      untagged = TDXFEntity::Arc(entity.StartCoords, entity.EndCoords, {}, entity.radius, -30, 390);
    }
    EXPECT_THAT(entity, IsBits(untagged));
  }
}

TEST(GenerateDXFClosureEntities, CloseAFullMachineWithACircleOfTwoArcs) {
  constexpr const char* kCircle = "A c 0,0 r 5 0..180 from 5,0 to -5,0; A c 0,0 r 5 180..0 from -5,0 to 5,0";
  for (const auto& [a1, a2] : {std::pair{0.0, 360.0}, {0.0, 0.0}, {-360.0, 720.0}}) {
    EXPECT_THAT(GenerateDXFClosureEntities(4, 1, a1, a2), IsNear(kCircle, 1e-12)) << a1 << " " << a2;
  }
}

TEST(GenerateDXFClosureEntities, FoldAnglesExactly) {
  EXPECT_EQ(GenerateDXFClosureEntities(4, 1, 0, 360 - 1e-9).size(), 3U);
  EXPECT_EQ(GenerateDXFClosureEntities(4, 1, 1e-9, 360).size(), 3U);
}

TEST(GenerateDXFClosureEntities, CloseASectionWithAnArcAndTwoLines) {
  const TEntityArray closure = GenerateDXFClosureEntities(4, 1, 0, 90);
  ASSERT_EQ(closure.size(), 3U);
  EXPECT_THAT(closure[1], IsNear("L 4,0 5,0", 1e-12));
  EXPECT_THAT(closure[2], IsNear("L 0,4 0,5", 1e-12));
}

TEST(GenerateDXFClosureEntities, GiveTheArcTheOuterRadiusAndTheInnerEndsKept) {
  EXPECT_THAT(GenerateDXFClosureEntities(4, 1, 0, 90).front(), IsNear("A c 0,0 r 5 0..90 from 4,0 to 0,4", 1e-12));
}

TEST(GenerateDXFClosureEntities, AnswerForAnglesThatAreNoNumbers) {
  EXPECT_EQ(GenerateDXFClosureEntities(4, 1, kNaN, kNaN).size(), 3U);
}

}  // namespace
}  // namespace GeometryEngine

#include "xsec/RegionChecks.h"

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/InnerPoint.h"
#include "xsec/RegionDetection.h"
#include "xsec/RegionNotes.h"

namespace xsec {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double kTolerance = 1e-6;

Settings SettingsAt(double tolerance) {
  Settings settings;
  settings.tolerance = tolerance;
  settings.sliverArea = tolerance * tolerance;
  return settings;
}

/// A plate with a square in it, the plate first, as a detection gives them.
Detection PlateAndSquare() {
  Detection detection = Detect(Rectangle(0, 0, 10, 10) + Rectangle(2, 2, 4, 4));
  EXPECT_THAT(detection.regions, SizeIs(2));
  EXPECT_NEAR(detection.regions[0].baseArea, 100, 1e-9);
  return detection;
}

TEST(CheckRegions, MovesALabelThatLiesOutsideItsRegionAndSaysSo) {
  Detection detection = PlateAndSquare();
  detection.regions[0].label = {50, 50};
  CheckRegions(detection, SettingsAt(kTolerance));
  ASSERT_THAT(detection.diagnostics.corrections, SizeIs(1));
  EXPECT_EQ(detection.diagnostics.corrections[0].kind, Correction::Kind::Label);
  EXPECT_EQ(detection.diagnostics.corrections[0].region, 0U);
  EXPECT_THAT(CorrectionText(detection.diagnostics.corrections[0], detection),
              HasSubstr("label of region 1 moved from (50, 50), outside it, to ("));
  const RegionSpace space{&detection.regions[0].outline, {&detection.regions[1].outline}};
  EXPECT_TRUE(IsInside(space, detection.regions[0].label));
  EXPECT_NEAR(detection.regions[0].clearance, Clearance(space, detection.regions[0].label), 1e-12);
  EXPECT_GT(detection.regions[0].clearance, 2.5);
}

TEST(CheckRegions, MovesALabelThatLiesInAChild) {
  Detection detection = PlateAndSquare();
  detection.regions[0].label = {3, 3};
  CheckRegions(detection, SettingsAt(kTolerance));
  ASSERT_THAT(detection.diagnostics.corrections, SizeIs(1));
  EXPECT_FALSE(IsInside(detection.regions[1].outline, detection.regions[0].label));
}

TEST(CheckRegions, MovesALabelThatHugsTheBoundary) {
  Detection detection = PlateAndSquare();
  detection.regions[0].label = {1e-5, 5};
  CheckRegions(detection, SettingsAt(kTolerance));
  ASSERT_THAT(detection.diagnostics.corrections, SizeIs(1));
  EXPECT_THAT(CorrectionText(detection.diagnostics.corrections[0], detection), HasSubstr("close to its boundary"));
  EXPECT_GT(detection.regions[0].clearance, 1);
}

TEST(CheckRegions, LeavesAGoodLabelWhereItIs) {
  Detection detection = PlateAndSquare();
  detection.regions[0].label = {7, 8};
  CheckRegions(detection, SettingsAt(kTolerance));
  EXPECT_THAT(detection.diagnostics.corrections, IsEmpty());
  EXPECT_THAT(detection.regions[0].label, GeometryEngine::support::IsBits(7, 8));
  EXPECT_NEAR(detection.regions[0].clearance, 2, 1e-12);
}

TEST(CheckRegions, WarnsOfANetAreaThatTheHolesContradict) {
  Detection detection = PlateAndSquare();
  detection.regions[0].netArea += 1e-3;
  CheckRegions(detection, SettingsAt(kTolerance));
  EXPECT_THAT(WarningTexts(detection.diagnostics),
              ElementsAre(HasSubstr("region 1: 96.001 mm2 without its children, but 96 mm2")));
}

TEST(CheckRegions, WarnsOfAnOutlineThatHoldsAnotherAreaThanWasMeasured) {
  Detection detection = PlateAndSquare();
  detection.regions[1].baseArea = detection.regions[1].netArea = 4.01;
  CheckRegions(detection, SettingsAt(kTolerance));
  EXPECT_THAT(WarningTexts(detection.diagnostics), ElementsAre(HasSubstr("region 2: its outline holds 4 mm2")));
}

TEST(CheckRegions, MarksSlivers) {
  Detection detection = PlateAndSquare();
  CheckRegions(detection, SettingsAt(3));
  EXPECT_FALSE(detection.regions[0].sliver);
  EXPECT_TRUE(detection.regions[1].sliver);
}

TEST(DetectRegions, RegionsTooSmallForALabelOfTheLibraryGetOneAllTheSame) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Drawing drawing = DrawingOf(Rectangle(5, 5, 15, 15));
  const Detection detection = DetectRegions(drawing, ApplySettings({{}, {{6528, 1e6}}, 0}, drawing));
  ASSERT_THAT(detection.regions, SizeIs(1));
  EXPECT_TRUE(IsInside(detection.regions[0].outline, detection.regions[0].label));
  EXPECT_THAT(detection.diagnostics.corrections, SizeIs(1));
}

/// A driver that has run over the drawing, so that its trees can be doctored.
struct Driver {
  explicit Driver(std::string_view text) {
    for (const auto& entity : GeometryEngine::support::ParseEntities(text)) storage.AddEntity(entity);
    storage.AddEntity(GeometryEngine::support::ParseEntity("L 1000,0 1001,0"));
    driver.DetermineInterceptions(&storage);
    driver.DetermineRegions(driver.CoordinateTree(), 0);
    sources.resize(driver.CoordinateTree().pEntityStorage()->EntityArray().size(), kNone);
  }
  Diagnostics Check() {
    Diagnostics diagnostics;
    CheckPieces(driver.CoordinateTree(), driver.RegionTree(), sources, diagnostics);
    return diagnostics;
  }

  GeometryEngine::support::TSettingsGuard guard;
  GeometryEngine::TEntityStorage storage;
  GeometryEngine::TEntityBaseClass driver;
  std::vector<std::size_t> sources;
};

TEST(CheckPieces, ListsTheSidesThatNoLoopWasTracedAlong) {
  Driver square(Rectangle(0, 0, 4, 4) + "L 4,4 6,6");
  EXPECT_THAT(square.Check().lostSides, IsEmpty());
  EXPECT_THAT(square.Check().openPieces, SizeIs(1));
  square.driver.RegionTree().Clear();
  EXPECT_THAT(square.Check().lostSides, SizeIs(8));
  EXPECT_THAT(square.Check().openPieces, SizeIs(1));
}

TEST(CompareNesting, ReportsWhereTheListsOfTheLibraryDisagree) {
  Driver squares(Rectangle(0, 0, 4, 4) + Rectangle(10, 0, 14, 4));
  std::vector<TracedLoop> faces;
  for (const auto* node : squares.driver.RegionTree().RootNode()->Children()) {
    if (node->TravelDirection() != GeometryEngine::Travel_AntiClockwise) continue;
    faces.emplace_back().index = static_cast<std::size_t>(node->RelativeIndex());
  }
  ASSERT_THAT(faces, SizeIs(2));
  Detection detection;
  detection.regions.resize(2);
  CompareNesting(squares.driver.RegionTree(), faces, detection.regions, detection.diagnostics);
  EXPECT_THAT(detection.diagnostics.corrections, IsEmpty());

  auto* first = squares.driver.RegionTree().RootNode()->GetNode(static_cast<GeometryEngine::TIndex>(faces[0].index));
  first->AddSubRegion(static_cast<std::int32_t>(faces[1].index));
  CompareNesting(squares.driver.RegionTree(), faces, detection.regions, detection.diagnostics);
  ASSERT_THAT(detection.diagnostics.corrections, SizeIs(1));
  EXPECT_EQ(detection.diagnostics.corrections[0].kind, Correction::Kind::Nesting);
  EXPECT_EQ(CorrectionText(detection.diagnostics.corrections[0], detection),
            "region 2 was listed inside region 1; a point of it lies inside no other region");
}

TEST(CountCollapsed, CountsEntitiesWhoseEndsAreOnePoint) {
  const GeometryEngine::support::TSettingsGuard guard;
  Diagnostics diagnostics;
  CountCollapsed(DrawingOf("L 0,0 1,0; L 3,3 3.00001,3; A c 0,0 r 1e-6 0..90"), diagnostics);
  EXPECT_EQ(diagnostics.collapsed, 2U);
}

}  // namespace
}  // namespace xsec

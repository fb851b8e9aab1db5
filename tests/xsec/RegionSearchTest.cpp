#include "xsec/RegionSearch.h"

#include <cmath>

#include <gmock/gmock.h>

#include "tests/support/Settings.h"
#include "tests/xsec/Drawings.h"
#include "xsec/RegionNotes.h"
#include "xsec/Sector.h"

namespace xsec {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

Detection Found(const Drawing& drawing, const SearchRequest& request) {
  const GeometryEngine::support::TSettingsGuard guard;
  return FindRegions(drawing, ApplySettings({}, drawing), request);
}

SearchRequest TurnBy(double degrees) {
  SearchRequest request;
  request.turn = degrees;
  return request;
}

TEST(FindRegions, TurningChangesNothingThatIsFound) {
  const Drawing drawing = DrawingOf({{"Plate", Rectangle(2, 1, 12, 7)}, {"Disc", Circle(6, 4, 2)}});
  const Detection straight = Found(drawing, {});
  for (const double degrees : {17.0, 90.0, -123.4}) {
    const Detection turned = Found(drawing, TurnBy(degrees));
    ASSERT_THAT(turned.regions, SizeIs(2)) << degrees;
    for (const Region& region : straight.regions) {
      const Region& same = RegionOfArea(turned, region.baseArea);
      EXPECT_EQ(same.name, region.name);
      EXPECT_NEAR(same.netArea, region.netArea, 1e-9);
      EXPECT_NEAR(same.centroid.x, region.centroid.x, 1e-4);
      EXPECT_NEAR(SignedArea(same.outline), region.baseArea, 1e-9);
      const Extents box = Bounds(same.outline), wanted = Bounds(region.outline);
      EXPECT_NEAR(box.minX, wanted.minX, 1e-9);
      EXPECT_NEAR(box.maxY, wanted.maxY, 1e-9);
    }
  }
}

TEST(Turned, QuarterTurnsAreExact) {
  const Drawing turned = Turned(DrawingOf("L 1,2 3,0.1"), 90);
  EXPECT_EQ(turned.entities[0].geometry.StartCoords.x, -2);
  EXPECT_EQ(turned.entities[0].geometry.StartCoords.y, 1);
  EXPECT_EQ(turned.entities[0].geometry.EndCoords.x, -0.1);
}

TEST(FindRegions, LeavesOutSmallRegionsAndHangsTheirChildrenHigher) {
  const Drawing drawing =
      DrawingOf(Rectangle(0, 0, 20, 20) + Rectangle(5, 5, 15, 15) + Rectangle(5.01, 5.01, 14.99, 14.99));
  SearchRequest request;
  request.minimumArea = 1;
  const Detection found = Found(drawing, request);
  ASSERT_THAT(found.regions, SizeIs(2));
  const Region& inner = RegionOfArea(found, 9.98 * 9.98);
  const Region& outer = RegionOfArea(found, 400);
  EXPECT_EQ(&found.regions[inner.parent], &outer);
  EXPECT_EQ(inner.depth, 1U);
  EXPECT_NEAR(outer.netArea, 300, 1e-9);
  EXPECT_THAT(outer.children, SizeIs(1));
  EXPECT_THAT(found.leftOut, SizeIs(1));
  EXPECT_THAT(found.diagnostics.warnings, ::testing::Contains(HasSubstr("below 1 mm2 left out: 1, together 0.3996")));
}

TEST(FindRegions, NotesGoWithTheirRegionsWhenSmallOnesAreLeftOut) {
  Detection detection;
  detection.regions.resize(4);
  for (std::size_t i = 0; i < 4; ++i) detection.regions[i].netArea = i == 1 ? 0.1 : 5;
  Diagnostics& notes = detection.diagnostics;
  notes.doubts = {{1, "of none"}, {2, "of one that moves up"}};
  notes.corrections = {{Correction::Kind::Nesting, 1, 3, {}, false},
                       {Correction::Kind::Nesting, 2, 1, {}, false},
                       {Correction::Kind::Nesting, 0, 3, {}, false}};
  LeaveOutSmall(detection, 1);
  EXPECT_THAT(WarningTexts(notes), ElementsAre(HasSubstr("left out: 1"), "region 2: of one that moves up"));
  ASSERT_THAT(notes.corrections, SizeIs(2));
  EXPECT_THAT(CorrectionText(notes.corrections[0], detection), HasSubstr("region 2 was listed inside no other"));
  EXPECT_THAT(CorrectionText(notes.corrections[1], detection), HasSubstr("region 1 was listed inside region 3;"));
}

TEST(FindRegions, WhereALabelWasIsToldAsTheDrawingLiesWhenItIsTurnedMeanwhile) {
  const GeometryEngine::support::TSettingsGuard guard;
  const Drawing drawing = DrawingOf(Rectangle(5, 5, 15, 17));
  const Settings noLabels = ApplySettings({{}, {{6528, 1e6}}, 0}, drawing);
  const Detection found = FindRegions(drawing, noLabels, TurnBy(30));
  const Detection plain = FindRegions(drawing, noLabels, {});
  ASSERT_THAT(found.diagnostics.corrections, SizeIs(1));
  ASSERT_THAT(plain.diagnostics.corrections, SizeIs(1));
  EXPECT_NEAR(found.diagnostics.corrections[0].labelledAt.x, plain.diagnostics.corrections[0].labelledAt.x, 1e-9);
  EXPECT_NEAR(found.diagnostics.corrections[0].labelledAt.y, plain.diagnostics.corrections[0].labelledAt.y, 1e-9);
}

TEST(FindRegions, WarnsOfCopiesThatWouldOverlap) {
  const Drawing sector = DrawingOf("A c 0,0 r 10 -20..20; A c 0,0 r 5 -20..20; L " + std::string("0,0 1,0"));
  SearchRequest request;
  request.copies = 9;
  EXPECT_THAT(Found(sector, request).diagnostics.warnings, IsEmpty());
  request.copies = 10;
  EXPECT_THAT(Found(sector, request).diagnostics.warnings,
              ElementsAre(HasSubstr("spans 40 degrees about the origin, but 10 copies leave 36")));
}

TEST(FindRegions, WarnsOfCopiesThatLeaveGapsWhereAnotherNumberFillsTheTurn) {
  const Drawing sector = DrawingOf("A c 0,0 r 10 -20..20; A c 0,0 r 5 -20..20; L 0,0 1,0");
  SearchRequest request;
  request.copies = 6;
  EXPECT_THAT(Found(sector, request).diagnostics.warnings,
              ElementsAre(HasSubstr("spans 40 degrees about the origin, so that 9 copies make a whole; 6 copies leave "
                                    "gaps of 20 degrees")));
}

TEST(CopiesOfSector, AreAWholeNumberOrNone) {
  EXPECT_EQ(CopiesOfSector(45), 8U);
  EXPECT_EQ(CopiesOfSector(45.0005), 8U);
  EXPECT_EQ(CopiesOfSector(50), 0U);
  EXPECT_EQ(CopiesOfSector(360), 0U);
  EXPECT_EQ(CopiesOfSector(0), 0U);
}

}  // namespace

}  // namespace xsec

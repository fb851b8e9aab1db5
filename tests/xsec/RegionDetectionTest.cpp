#include "xsec/RegionDetection.h"

#include <cmath>
#include <numbers>

#include <gmock/gmock.h>

#include "tests/support/Geometry.h"
#include "tests/xsec/Drawings.h"
#include "xsec/InnerPoint.h"
#include "xsec/RegionNotes.h"

namespace xsec {
namespace {

using GeometryEngine::support::IsNear;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double kPi = std::numbers::pi;

std::size_t IndexOf(const Detection& detection, const Region& region) {
  return static_cast<std::size_t>(&region - detection.regions.data());
}

/// Inside its outline, outside its holes and its children, and off every boundary.
void ExpectLabelsInside(const Detection& detection) {
  for (const Region& region : detection.regions) {
    RegionSpace space{&region.outline, {}};
    for (const Loop& hole : region.holes) space.holes.push_back(&hole);
    for (const std::size_t child : region.children) space.holes.push_back(&detection.regions[child].outline);
    EXPECT_TRUE(IsInside(space, region.label)) << region.uniqueName << ": " << region.label.x << ", " << region.label.y;
    EXPECT_GT(Clearance(space, region.label), 0);
    EXPECT_NEAR(region.clearance, Clearance(space, region.label), 1e-12);
  }
}

TEST(DetectRegions, SquareIsOneRegionWithItsMeasures) {
  const Detection detection = Detect(DrawingOf({{"Plate", Rectangle(1, 2, 5, 4)}}));
  ASSERT_THAT(detection.regions, SizeIs(1));
  const Region& square = detection.regions[0];
  EXPECT_EQ(square.name, "Plate");
  EXPECT_EQ(square.uniqueName, "Plate");
  EXPECT_EQ(square.type, GeometryEngine::rtUndefined);
  EXPECT_EQ(square.parent, kNone);
  EXPECT_THAT(square.outline, SizeIs(4));
  EXPECT_NEAR(SignedArea(square.outline), 8, 1e-12);
  EXPECT_NEAR(square.baseArea, 8, 1e-12);
  EXPECT_NEAR(square.netArea, 8, 1e-12);
  EXPECT_THAT(square.centroid, IsNear(3, 3, 1e-12));
  EXPECT_THAT(square.label, IsNear(3, 3, 1e-12));
  EXPECT_NEAR(square.clearance, 1, 1e-12);
  EXPECT_FALSE(square.sliver);
  EXPECT_THAT(detection.diagnostics.openPieces, IsEmpty());
  EXPECT_THAT(WarningTexts(detection.diagnostics), IsEmpty());
  EXPECT_THAT(detection.diagnostics.corrections, IsEmpty());
  EXPECT_THAT(detection.diagnostics.lostSides, IsEmpty());
}

TEST(DetectRegions, SmallDiscFarFromTheOriginHasItsCentroidAndLabelAtItsCentre) {
  const Detection detection = Detect(Circle(117000, -42000, 1));
  ASSERT_THAT(detection.regions, SizeIs(1));
  EXPECT_THAT(detection.regions[0].centroid, IsNear(117000, -42000, 1e-9));
  EXPECT_THAT(detection.regions[0].label, IsNear(117000, -42000, 1e-9));
  EXPECT_THAT(detection.diagnostics.corrections, IsEmpty());
}

TEST(DetectRegions, EveryPieceKnowsTheEntityItWasCutFrom) {
  const Drawing drawing = DrawingOf(Rectangle(0, 0, 4, 4) + "L 2,-1 2,5; " + Circle(20, 0, 3));
  const Detection detection = Detect(drawing);
  ASSERT_THAT(detection.regions, SizeIs(3));
  for (const Region& region : detection.regions) {
    for (const TravelledPiece& piece : region.outline) {
      ASSERT_LT(piece.source, drawing.entities.size());
      const TravelledPiece source = Travel(drawing.entities[piece.source].geometry, true);
      EXPECT_EQ(source.isArc, piece.isArc);
      EXPECT_LT(Distance(source, MidPoint(piece)), 1e-9);
    }
  }
}

TEST(DetectRegions, NameIsTheLayerThatMostOfTheOutlineComesFrom) {
  const Detection detection = Detect(DrawingOf({{"Short", "L 0,0 4,0; L 4,0 4,4"},
                                                {"Long", "L 4,4 0,4; L 0,4 0,0; L 0,0 -1,-1"},
                                                {"Cut", "L 4,0 5,-3; L 5,-3 9,9; L 9,9 4,4"}}));
  ASSERT_THAT(detection.regions, SizeIs(2));
  EXPECT_EQ(RegionOfArea(detection, 16).name, "Long");
  const std::size_t other = 1 - IndexOf(detection, RegionOfArea(detection, 16));
  EXPECT_EQ(detection.regions[other].name, "Cut");
}

TEST(DetectRegions, OutlineWithoutLayerIsCalledRegion) {
  const Detection detection = Detect(DrawingOf({{"", Rectangle(0, 0, 1, 1) + Rectangle(2, 0, 4, 4)}}));
  ASSERT_THAT(detection.regions, SizeIs(2));
  EXPECT_EQ(detection.regions[0].name, "Region");
  EXPECT_EQ(detection.regions[0].uniqueName, "Region");
  EXPECT_EQ(detection.regions[1].uniqueName, "Region_1");
}

TEST(DetectRegions, GroupOfTouchingRegionsIsOneHoleAndManyChildren) {
  const Detection detection =
      Detect(Rectangle(0, 0, 20, 10) + Rectangle(2, 2, 8, 8) + "L 4,2 4,8; L 2,5 4,5; " + Rectangle(12, 2, 18, 8));
  ASSERT_THAT(detection.regions, SizeIs(5));
  const Region& plate = RegionOfArea(detection, 200);
  EXPECT_THAT(plate.children, SizeIs(4));
  ASSERT_THAT(plate.holes, SizeIs(2));
  for (const Loop& hole : plate.holes) EXPECT_NEAR(SignedArea(hole), -36, 1e-9);
  EXPECT_NEAR(plate.netArea, 128, 1e-9);
  for (const std::size_t child : plate.children) {
    EXPECT_EQ(detection.regions[child].parent, IndexOf(detection, plate));
    EXPECT_EQ(detection.regions[child].depth, 1U);
    EXPECT_THAT(detection.regions[child].holes, IsEmpty());
  }
  ExpectLabelsInside(detection);
}

TEST(DetectRegions, NestsThroughSeveralLevels) {
  std::string rings;
  for (int i = 1; i <= 6; ++i) rings += Circle(0, 0, i) + Rectangle(20 - i, -i, 20 + i, i);
  const Detection detection = Detect(rings);
  ASSERT_THAT(detection.regions, SizeIs(12));
  for (int i = 1; i <= 6; ++i) {
    const Region& disc = RegionOfArea(detection, kPi * i * i);
    const Region& square = RegionOfArea(detection, 4.0 * i * i);
    for (const Region* region : {&disc, &square}) {
      EXPECT_EQ(region->depth, 6U - static_cast<std::size_t>(i));
      EXPECT_EQ(region->holes.size(), i == 1 ? 0U : 1U);
    }
    EXPECT_EQ(disc.parent, i == 6 ? kNone : IndexOf(detection, RegionOfArea(detection, kPi * (i + 1) * (i + 1))));
    EXPECT_NEAR(disc.netArea, kPi * (i * i - (i - 1) * (i - 1)), 1e-9);
  }
  ExpectLabelsInside(detection);
  EXPECT_THAT(WarningTexts(detection.diagnostics), IsEmpty());
}

TEST(DetectRegions, FacesThatOnlyShareEdgesAreNotNested) {
  const Detection detection = Detect(Rectangle(0, 0, 9, 9) + "L 3,0 3,9; L 6,0 6,9; L 0,3 9,3; L 0,6 9,6");
  ASSERT_THAT(detection.regions, SizeIs(9));
  for (const Region& region : detection.regions) {
    EXPECT_EQ(region.parent, kNone);
    EXPECT_THAT(region.holes, IsEmpty());
    EXPECT_NEAR(region.netArea, 9, 1e-9);
  }
}

TEST(DetectRegions, SquareThatTouchesItsSurroundingAtOneCornerIsTakenOffOnce) {
  const std::string touching = "L 0,0 3,1; L 3,1 4,4; L 4,4 1,3; L 1,3 0,0";
  const Detection detection = Detect(Rectangle(0, 0, 10, 10) + touching);
  ASSERT_THAT(detection.regions, SizeIs(2));
  const Region& diamond = RegionOfArea(detection, 8);
  const Region& rest = detection.regions[1 - IndexOf(detection, diamond)];
  EXPECT_NEAR(rest.netArea, 92, 1e-9);
  EXPECT_TRUE(diamond.parent == kNone || rest.holes.size() == 1);
  ExpectLabelsInside(detection);
  EXPECT_THAT(WarningTexts(detection.diagnostics), IsEmpty());
}

TEST(DetectRegions, BridgeBetweenLoopsIsOpenAndDoesNotHideThatOneLiesInTheOther) {
  const Detection detection = Detect(Rectangle(0, 0, 10, 10) + Rectangle(4, 4, 6, 6) + "L 0,5 4,5");
  ASSERT_THAT(detection.regions, SizeIs(2));
  const Region& outer = RegionOfArea(detection, 100);
  EXPECT_EQ(RegionOfArea(detection, 4).parent, IndexOf(detection, outer));
  EXPECT_THAT(outer.holes, SizeIs(1));
  EXPECT_NEAR(outer.netArea, 96, 1e-9);
  ASSERT_THAT(detection.diagnostics.openPieces, SizeIs(1));
  const OpenPiece& bridge = detection.diagnostics.openPieces[0];
  EXPECT_FALSE(bridge.fromDangles);
  EXPECT_FALSE(bridge.toDangles);
  EXPECT_NEAR(Length(bridge.piece), 4, 1e-12);
  ExpectLabelsInside(detection);
}

TEST(DetectRegions, DanglingPiecesAreOpenAndTheOutlineRoundThemIsNot) {
  const Drawing drawing = DrawingOf({{"Square", Rectangle(0, 0, 4, 4)}, {"Spur", "L 4,4 6,6; L 6,6 7,6"}});
  const Detection detection = Detect(drawing);
  ASSERT_THAT(detection.regions, SizeIs(1));
  ASSERT_THAT(detection.diagnostics.openPieces, SizeIs(2));
  std::vector<Point> loose;
  for (const OpenPiece& open : detection.diagnostics.openPieces) {
    EXPECT_EQ(drawing.entities[open.piece.source].layer, "Spur");
    if (open.fromDangles) loose.push_back(open.piece.from);
    if (open.toDangles) loose.push_back(open.piece.to);
  }
  ASSERT_THAT(loose, SizeIs(1));
  EXPECT_THAT(loose[0], IsNear(7, 6, 1e-12));
}

TEST(DetectRegions, HelperBeyondTheRightEndNeverShows) {
  const Detection line = Detect("L 0,0 4,0");
  ASSERT_THAT(line.diagnostics.openPieces, SizeIs(1));
  EXPECT_NEAR(Bounds(line.diagnostics.openPieces[0].piece).maxX, 4, 1e-12);
  EXPECT_TRUE(line.diagnostics.openPieces[0].fromDangles && line.diagnostics.openPieces[0].toDangles);

  const Detection spur = Detect(Rectangle(0, 0, 4, 4) + "L 4,2 8,2; L 8,2 8,3");
  EXPECT_THAT(spur.diagnostics.openPieces, SizeIs(2));
  for (const OpenPiece& open : spur.diagnostics.openPieces) EXPECT_LE(Bounds(open.piece).maxX, 8);
}

TEST(DetectRegions, LabelsOfBentAndHollowRegionsLieInTheirMaterial) {
  const std::string c =
      "L 0,0 10,0; L 10,0 10,2; L 10,2 2,2; L 2,2 2,8; L 2,8 10,8; L 10,8 10,10; L 10,10 0,10; L 0,10 0,0; ";
  const std::string ring = Circle(30, 5, 5) + Circle(30, 5, 4.9);
  const std::string thin = Circle(60, 5, 5) + Circle(60.02, 5, 4.97);
  const std::string far = Rectangle(100, 0, 100.3, 0.2) + Rectangle(100.05, 0.05, 100.25, 0.15);
  const Detection detection = Detect(c + ring + thin + far);
  EXPECT_THAT(detection.regions, SizeIs(7));
  ExpectLabelsInside(detection);
  EXPECT_GT(RegionOfArea(detection, 52).clearance, 0.5);
}

TEST(DetectRegions, DrawingWithoutClosedRegionListsAllAsOpen) {
  const Detection open = Detect("L 0,0 1,0; L 1,0 1,1; L 1,1 0.5,0.1; L 0.4,0.1 0,1");
  EXPECT_THAT(open.regions, IsEmpty());
  EXPECT_THAT(open.diagnostics.openPieces, SizeIs(4));
}

TEST(DetectRegions, NothingComesOfAnEmptyDrawing) {
  const Detection detection = Detect("");
  EXPECT_THAT(detection.regions, IsEmpty());
  EXPECT_THAT(detection.diagnostics.openPieces, IsEmpty());
}

TEST(DetectRegions, EntityShorterThanTheToleranceIsCounted) {
  Drawing drawing = DrawingOf(Rectangle(0, 0, 10, 10) + "L 5,5 5.000001,5");
  EXPECT_EQ(Detect(drawing).diagnostics.collapsed, 1U);
}

}  // namespace
}  // namespace xsec

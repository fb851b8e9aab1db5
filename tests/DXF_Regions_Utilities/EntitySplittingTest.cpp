#include "GeometryEngine/DXF_Regions_Utilities/EntitySplitting.h"

#include <cmath>

#include <gmock/gmock.h>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

using namespace GeometryEngine;
using support::IsBits;
using support::IsNear;
using support::ParseCoordinates;
using support::ParseEntity;

namespace {

constexpr double kRounding = 1e-9;

TEntityArray Split(const TDXFEntity& aEntity, std::string_view aPoints) {
  const support::TSettingsGuard settings;
  TEntityTree tree("Intercepts");
  TTreeNode* node = tree.AddTreeNode_ToRoot();
  for (const TEntityCoordinate& point : ParseCoordinates(aPoints)) tree.AddTreeNode(node)->Coordinates(point);
  return SplitEntity_FromIntercepts(aEntity, node);
}

TEntityArray Split(std::string_view aEntity, std::string_view aPoints) {
  return Split(ParseEntity(aEntity), aPoints);
}

}  // namespace

TEST(SplitEntity_FromIntercepts, LineAtOneInnerPointGivesTwoLinesThatMeetThere) {
  EXPECT_THAT(Split("L 0,0 4,0", "1,0"), IsBits("L 0,0 1,0; L 1,0 4,0"));
}

TEST(SplitEntity_FromIntercepts, LineAtOneOfItsEndsStaysAsItIs) {
  EXPECT_THAT(Split("L 0,0 4,0", "0,0"), IsBits("L 0,0 4,0"));
  EXPECT_THAT(Split("L 0,0 4,0", "4,0"), IsBits("L 0,0 4,0"));
  EXPECT_THAT(Split("L 0,0 4,0", "4.00005,0"), IsBits("L 0,0 4,0"));
}

TEST(SplitEntity_FromIntercepts, EntityWhoseEndsCoincideGivesNothing) {
  EXPECT_THAT(Split("L 1,1 1,1", "0,0 1,0"), testing::IsEmpty());
  EXPECT_THAT(Split("L 1,1 1,1.00005", ""), testing::IsEmpty());
  EXPECT_THAT(Split("A c 0,0 r 4 0..360 from 4,0 to 4,0", "-4,0"), testing::IsEmpty());
}

TEST(SplitEntity_FromIntercepts, EntityWithoutPointsStaysAsItIsWithItsTags) {
  const char* line = "L 0,0 4,0 colour \"red\" name \"Slot\"";
  EXPECT_THAT(Split(line, ""), IsBits(line));
  EXPECT_THAT(SplitEntity_FromIntercepts(ParseEntity(line), nullptr), IsBits(line));
  EXPECT_THAT(Split("A c 0,0 r 4 0..90", ""), IsBits("A c 0,0 r 4 0..90"));
}

TEST(SplitEntity_FromIntercepts, PiecesRunFromPointToPointInTheOrderGiven) {
  EXPECT_THAT(Split("L 0,0 4,0", "4,0 3,0 0,0"), IsBits("L 4,0 3,0; L 3,0 0,0"));
}

TEST(SplitEntity_FromIntercepts, TwoPointsCutOffWhatLiesBeyondThem) {
  EXPECT_THAT(Split("L 0,0 4,0", "3,0 1,0"), IsBits("L 3,0 1,0"));
}

TEST(SplitEntity_FromIntercepts, PiecesCarryNoTags) {
  EXPECT_THAT(Split("L 0,0 4,0 colour \"red\" name \"Slot\"", "1,0"), IsBits("L 0,0 1,0; L 1,0 4,0"));
}

TEST(SplitEntity_FromIntercepts, ArcAtOneInnerPointGivesTwoArcs) {
  EXPECT_THAT(Split("A c 0,0 r 5 0..180", "3,4"), IsNear("A c 0,0 r 5 0..53.13010235415598 from 5,0 to 3,4;"
                                                         "A c 0,0 r 5 53.13010235415598..180 from 3,4 to -5,0",
                                                         kRounding));
}

TEST(SplitEntity_FromIntercepts, ArcAtOneOfItsEndsStaysAsItIs) {
  EXPECT_THAT(Split("A c 0,0 r 4 0..90 from 4,0 to 0,4 name \"Gap\"", "0,4"),
              IsBits("A c 0,0 r 4 0..90 from 4,0 to 0,4 name \"Gap\""));
}

TEST(SplitEntity_FromIntercepts, ArcThroughZeroDegreesIsCutOnBothSidesOfIt) {
  EXPECT_THAT(Split("A c 0,0 r 5 270..90", "0,-5 4,-3 5,0 0,5"),
              IsNear("A c 0,0 r 5 270..323.13010235415598 from 0,-5 to 4,-3;"
                     "A c 0,0 r 5 323.13010235415598..0 from 4,-3 to 5,0;"
                     "A c 0,0 r 5 0..90 from 5,0 to 0,5",
                     kRounding));
}

TEST(SplitEntity_FromIntercepts, AnyOtherKindGivesNothing) {
  EXPECT_THAT(Split("N", ""), testing::IsEmpty());
  TDXFEntity region = ParseEntity("L 0,0 4,0");
  region.EntityType = DXFRegion;
  EXPECT_THAT(Split(region, ""), testing::IsEmpty());
  EXPECT_THAT(Split(region, "1,0"), testing::IsEmpty());
  EXPECT_THAT(Split(region, "1,0 2,0 3,0"), testing::IsEmpty());
}

TEST(CreateEntity_Arc_CoordinateTree, KeepsRadiusAndCentreAndReadsTheAnglesOffThePoints) {
  const support::TSettingsGuard settings;
  const TDXFEntity whole = ParseEntity("A c 10,20 r 5 0..270 name \"Gap\"");
  EXPECT_THAT(CreateEntity_Arc_CoordinateTree({10, 25}, {5, 20}, whole),
              IsNear("A c 10,20 r 5 90..180 from 10,25 to 5,20", kRounding));
  EXPECT_EQ(CreateEntity_Arc_CoordinateTree({10, 25}, {5, 20}, whole).RegionName, "");
}

TEST(CreateEntity_Arc_CoordinateTree, AnglesBelowTheAxisAreBroughtIntoRange) {
  const support::TSettingsGuard settings;
  const TDXFEntity piece = CreateEntity_Arc_CoordinateTree({0, -5}, {5, 0}, ParseEntity("A c 0,0 r 5 180..360"));
  EXPECT_EQ(piece.startAngle, 270);
  EXPECT_EQ(piece.endAngle, 0);
}

TEST(CreateEntity_Arc_CoordinateTree, PointsAreCleaned) {
  const support::TSettingsGuard settings;
  const TDXFEntity piece =
      CreateEntity_Arc_CoordinateTree({5, 0.00005}, {std::nan(""), 5}, ParseEntity("A c 0.00005,0 r 5 0..90"));
  EXPECT_THAT(piece.StartCoords, IsBits(5, 0));
  EXPECT_THAT(piece.EndCoords, IsBits(0, 5));
  EXPECT_THAT(piece.CentreCoords, IsBits(0, 0));
}

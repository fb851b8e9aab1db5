#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"

#include <cmath>
#include <limits>

#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;
using Maindataenum::TInputFields;

TDXFEntity MakeRegionMarker() {
  TDXFEntity region = ParseEntity("L 1,2 3,4");
  region.EntityType = DXFRegion;
  region.CentreCoords = {5, 6};
  return region;
}

TEST(MirrorPoint_AboutLine, VerticalLineReflectsX) {
  TSettingsGuard settings;
  EXPECT_THAT(MirrorPoint_AboutLine({3, 1}, ParseEntity("L 1,0 1,5")), IsBits(-1, 1));
}

TEST(MirrorPoint_AboutLine, DiagonalSwapsTheComponents) {
  TSettingsGuard settings;
  EXPECT_THAT(MirrorPoint_AboutLine({3, 1}, ParseEntity("L 0,0 1,1")), IsBits(1, 3));
}

TEST(MirrorPoint_AboutLine, SlopedLineWithAnIntercept) {
  TSettingsGuard settings;
  EXPECT_THAT(MirrorPoint_AboutLine({0, 0}, ParseEntity("L 0,5 10,0")), IsNear(4, 8, 1e-14));
}

TEST(MirrorPoint_AboutLine, ArcLeavesThePointUnchanged) {
  EXPECT_THAT(MirrorPoint_AboutLine({3, 1}, ParseEntity("A c 0,0 r 1 0..90")), IsBits(3, 1));
}

TEST(MirrorPoint_AboutLine, LineIsVerticalUpToTheToleranceInclusive) {
  TSettingsGuard settings;
  settings.With(TInputFields::ifLinearTolerance, 0.5);
  EXPECT_THAT(MirrorPoint_AboutLine({3, 1}, ParseEntity("L 1,0 1.5,5")), IsBits(-1, 1));
}

TEST(MirrorEntity_AboutLine, LineKeepsItsDirection) {
  TSettingsGuard settings;
  EXPECT_THAT(MirrorEntity_AboutLine(ParseEntity("L 1,2 3,4 col 1 row 2 side 3 colour \"red\" name \"Slot\""),
                                     ParseEntity("L 0,0 0,1")),
              IsBits("L -1,2 -3,4 col 1 row 2 side 3 colour \"red\" name \"Slot\""));
}

TEST(MirrorEntity_AboutLine, ArcSwapsItsEndsAndStillRunsAnticlockwise) {
  TSettingsGuard settings;
  const TDXFEntity arc =
      MirrorEntity_AboutLine(ParseEntity("A c 5,1 r 2 0..60 name \"Tooth\""), ParseEntity("L 0,0 0,1"));
  EXPECT_THAT(arc, IsNear("A c -5,1 r 2 120..180", 1e-12));
  EXPECT_EQ(arc.RegionName, "Tooth");
}

TEST(MirrorEntity_AboutLine, ArcAnglesAreRebuiltIn0To360) {
  TSettingsGuard settings;
  const TDXFEntity arc = MirrorEntity_AboutLine(ParseEntity("A c 0,0 r 1 10..80"), ParseEntity("L 0,0 1,0"));
  EXPECT_THAT(arc, IsNear("A c 0,0 r 1 280..350", 1e-12));
}

TEST(MirrorEntity_AboutLine, TwiceGivesTheEntityBack) {
  TSettingsGuard settings;
  const TDXFEntity line = ParseEntity("L 1,-2 4,7");
  for (const char* text : {"L 3,1 -5,2", "A c 3,1 r 4 300..45", "A c -2,7 r 1 20..30"}) {
    const TDXFEntity entity = ParseEntity(text);
    EXPECT_THAT(MirrorEntity_AboutLine(MirrorEntity_AboutLine(entity, line), line), IsNear(entity, 1e-11));
  }
}

TEST(MirrorEntity_AboutLine, RegionMarkerAndMirrorThatIsNoLineChangeNothing) {
  TSettingsGuard settings;
  const TDXFEntity region = MirrorEntity_AboutLine(MakeRegionMarker(), ParseEntity("L 0,0 0,1"));
  EXPECT_THAT(region.StartCoords, IsBits(1, 2));
  EXPECT_THAT(region.EndCoords, IsBits(3, 4));
  const TDXFEntity arc = ParseEntity("A c 5,1 r 2 -30..60");
  EXPECT_THAT(MirrorEntity_AboutLine(arc, ParseEntity("A c 0,0 r 1 0..90")), IsBits(arc));
}

TEST(TranslateEntity, MovesEndsAndAnArcsCentre) {
  EXPECT_THAT(TranslateEntity(ParseEntity("L 1,2 3,4 row 7"), 10, -1), IsBits("L 11,1 13,3 row 7"));
  EXPECT_THAT(TranslateEntity(ParseEntity("A c 0,0 r 2 -90..450 from 0,-2 to 0,2 name \"a\""), 10, -1),
              IsBits("A c 10,-1 r 2 -90..450 from 10,-3 to 10,1 name \"a\""));
}

TEST(TranslateEntity, MovesTheEndsOfARegionMarkerButNotItsCentre) {
  const TDXFEntity region = TranslateEntity(MakeRegionMarker(), 10, 20);
  EXPECT_THAT(region.StartCoords, IsBits(11, 22));
  EXPECT_THAT(region.EndCoords, IsBits(13, 24));
  EXPECT_THAT(region.CentreCoords, IsBits(5, 6));
}

TEST(RotateEntity_AroundAxis, QuarterTurnOfAnArcRebuildsItsAngles) {
  TSettingsGuard settings;
  const TDXFEntity arc = RotateEntity_AroundAxis(ParseEntity("A c 0,0 r 1 0..90"), GetRotationMatrix(90));
  EXPECT_THAT(arc, IsNear("A c 0,0 r 1 90..180", 1e-12));
}

TEST(RotateEntity_AroundAxis, AnglesComeFromThePointsAndNotFromTheTurn) {
  TSettingsGuard settings;
  const TDXFEntity arc =
      RotateEntity_AroundAxis(ParseEntity("A c 1,0 r 1 700..800 from 2,0 to 1,1"), GetRotationMatrix(180));
  EXPECT_THAT(arc, IsNear("A c -1,0 r 1 180..270 from -2,0 to -1,-1", 1e-12));
}

TEST(RotateEntity_AroundAxis, KeepsRadiusAndTags) {
  TSettingsGuard settings;
  const TDXFEntity arc =
      RotateEntity_AroundAxis(ParseEntity("A c 0,0 r 1 0..90 from 2,0 to 0,2 colour \"blue\""), GetRotationMatrix(90));
  EXPECT_EQ(arc.radius, 1);
  EXPECT_EQ(arc.Colour, "blue");
}

TEST(RotateEntity_AroundAxis, LineIsCleanedUnlessNothingTurns) {
  TSettingsGuard settings;
  EXPECT_THAT(RotateEntity_AroundAxis(ParseEntity("L 1,0 2,0"), GetRotationMatrix(90)), IsBits("L 0,1 0,2"));
  EXPECT_THAT(RotateEntity_AroundAxis(ParseEntity("L 1,1e-9 2,0"), GetRotationMatrix(0)), IsBits("L 1,1e-9 2,0"));
}

TEST(RotateEntity_AroundPoint, TurnsAboutThePivot) {
  TSettingsGuard settings;
  const TRotationMatrix matrix = GetRotationMatrix(90);
  EXPECT_THAT(RotateEntity_AroundPoint(ParseEntity("L 1,1 3,1"), matrix, {1, 1}), IsBits("L 1,1 1,3"));
  EXPECT_THAT(RotateEntity_AroundPoint(ParseEntity("A c 3,1 r 1 0..90"), matrix, {1, 1}),
              IsNear("A c 1,3 r 1 90..180", 1e-12));
}

TEST(RotateEntity, RegionMarkerIsUnchanged) {
  TSettingsGuard settings;
  const TRotationMatrix matrix = GetRotationMatrix(90);
  for (const TDXFEntity& region : {RotateEntity_AroundAxis(MakeRegionMarker(), matrix),
                                   RotateEntity_AroundPoint(MakeRegionMarker(), matrix, {7, 7})}) {
    EXPECT_THAT(region.StartCoords, IsBits(1, 2));
    EXPECT_THAT(region.EndCoords, IsBits(3, 4));
    EXPECT_THAT(region.CentreCoords, IsBits(5, 6));
  }
}

TEST(RotateEntity, EntityWithoutGeometryTurnsItsEndsOnly) {
  TSettingsGuard settings;
  TDXFEntity point;
  point.StartCoords = {1, 0};
  point.CentreCoords = {1, 0};
  const TDXFEntity turned = RotateEntity_AroundAxis(point, GetRotationMatrix(90));
  EXPECT_THAT(turned.StartCoords, IsBits(0, 1));
  EXPECT_THAT(turned.CentreCoords, IsBits(1, 0));
}

}  // namespace
}  // namespace GeometryEngine

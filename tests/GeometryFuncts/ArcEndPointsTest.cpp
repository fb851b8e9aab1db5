#include "GeometryEngine/GeometryFuncts/ArcEndPoints.h"

#include <cmath>

#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using namespace support;

TEntityCoordinate Start(const TArcEndPoints& aEnds) {
  return {aEnds.startX, aEnds.startY};
}
TEntityCoordinate End(const TArcEndPoints& aEnds) {
  return {aEnds.endX, aEnds.endY};
}

TEST(GetArc_EndPoints, NoRotationGivesTheArcsOwnEnds) {
  TSettingsGuard settings;
  const TDXFEntity arc = ParseEntity("A c 1e-7,2 r 3 30..200");
  EXPECT_THAT(Start(GetArc_EndPoints(arc, 0)), IsBits(arc.StartCoords));
  EXPECT_THAT(End(GetArc_EndPoints(arc, 0)), IsBits(arc.EndCoords));
}

TEST(GetArc_EndPoints, TurnsTheWholeArcAboutTheOrigin) {
  TSettingsGuard settings;
  const TArcEndPoints ends = GetArc_EndPoints(ParseEntity("A c 5,0 r 1 0..90"), 90);
  EXPECT_THAT(Start(ends), IsNear(0, 6, 1e-14));
  EXPECT_THAT(End(ends), IsNear(-1, 5, 1e-14));
}

TEST(GetArc_EndPoints, StoredEndsPlayNoPart) {
  TSettingsGuard settings;
  const TArcEndPoints ends = GetArc_EndPoints(ParseEntity("A c 0,0 r 2 0..180 from 9,9 to 8,8"), 0);
  EXPECT_THAT(Start(ends), IsBits(2, 0));
  EXPECT_THAT(End(ends), IsNear(-2, 0, 1e-15));
}

TEST(GetArc_EndPoints, CleansTheTurnedCentreButNotTheEnds) {
  TSettingsGuard settings;
  const TArcEndPoints ends = GetArc_EndPoints(ParseEntity("A c 5,0 r 1 0..180"), 90);
  EXPECT_EQ(ends.startX, std::cos(90 * 0.017453292519943295));
  EXPECT_NE(ends.startX, 0);
}

}  // namespace
}  // namespace GeometryEngine

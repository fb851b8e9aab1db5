#include "xsec/prepare/Motion.h"

#include <gmock/gmock.h>

#include "tests/support/Geometry.h"

namespace xsec {
namespace {

using GeometryEngine::support::IsBits;
using GeometryEngine::support::IsNear;

TEST(Motion, ByNothingChangesNoBit) {
  const Motion none;
  EXPECT_THAT(none(Point{0.1, -0.0}), IsBits(0.1, -0.0));
  EXPECT_THAT(none.Back()(Point{-0.0, 1e300}), IsBits(-0.0, 1e300));
  const auto arc = GeometryEngine::TDXFEntity::Arc({1, 0}, {0, 1}, {0, 0}, 1, 360, 450);
  EXPECT_EQ(none(arc).startAngle, 360);
}

TEST(Motion, BringsAPointToTheOriginAndTurnsAboutIt) {
  const Motion motion({100, 20}, 90);
  EXPECT_THAT(motion(Point{100, 20}), IsNear(0, 0, 1e-14));
  EXPECT_THAT(motion(Point{103, 20}), IsNear(0, 3, 1e-14));
  const auto arc = motion(GeometryEngine::TDXFEntity::Arc({101, 20}, {100, 21}, {100, 20}, 1, 0, 300));
  EXPECT_THAT(arc.CentreCoords, IsNear(0, 0, 1e-14));
  EXPECT_DOUBLE_EQ(arc.startAngle, 90);
  EXPECT_DOUBLE_EQ(arc.endAngle, 30);
}

TEST(Motion, LeavesWhatALineHasForAnArcAlone) {
  const auto line = Motion({3, 4}, 30)(GeometryEngine::TDXFEntity::Line({1, 2}, {5, 6}));
  EXPECT_THAT(line.CentreCoords, IsBits(0, 0));
  EXPECT_EQ(line.startAngle, 0);
  EXPECT_EQ(line.endAngle, 0);
}

TEST(Motion, ByAQuarterTurnChangesCoordinatesForEachOther) {
  EXPECT_THAT(Motion({}, 90)(Point{3, 7}), IsBits(-7, 3));
  EXPECT_THAT(Motion({}, -90)(Point{3, 7}), IsBits(7, -3));
  EXPECT_THAT(Motion({}, 180)(Point{3, 7}), IsBits(-3, -7));
}

TEST(Motion, BackUndoesIt) {
  const Motion motion({-7, 1000}, 23.17);
  EXPECT_THAT(motion.Back()(motion(Point{3, 1004})), IsNear(3, 1004, 1e-12));
  EXPECT_THAT(motion(motion.Back()(Point{-2, 5})), IsNear(-2, 5, 1e-12));
  const Motion move({1e5, -4e4});
  EXPECT_THAT(move.Back()(move(Point{100000.1, -39999.7})), IsBits(100000.1, -39999.7));
}

}  // namespace
}  // namespace xsec

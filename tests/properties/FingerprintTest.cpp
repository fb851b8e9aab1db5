// The regions of a drawing don't depend on the order in which it is given, nor on the way its lines are stored, and
// they turn, move and mirror with it. Where a deliberate limit breaks this, a test says which.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"
#include "tests/properties/ExactSettings.h"
#include "tests/properties/Fingerprint.h"
#include "tests/properties/RandomDrawings.h"
#include "tests/support/Geometry.h"

namespace GeometryEngine::properties {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kFaces = 1;     // anticlockwise loops
constexpr std::int32_t kOutlines = 2;  // clockwise loops
// Of each area, or of a square unit where it is less: coordinates reach 1000.
constexpr double kAreaRounding = 1e-9;
constexpr double kAreaRounding_Moved = 1e-8;  // arcs have common chords of another slope then

/// The equation of two crossing circles' common chord has a slope of the centres' distance across by their distance in
/// height; beyond this one it costs digits (see below for what comes of it).
constexpr double kSteepestChord = 100;

double Distance(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  return std::hypot(aTo.x - aFrom.x, aTo.y - aFrom.y);
}

/// Whether two arcs of crossing circles have a level common chord, or one that is when the drawing is turned.
bool AreNearlyLevel(const TDXFEntity& aLeft, const TDXFEntity& aRight) {
  if (aLeft.EntityType != DXFArc || aRight.EntityType != DXFArc) return false;
  const TEntityCoordinate between = aRight.CentreCoords - aLeft.CentreCoords;
  const double distance = Distance(aLeft.CentreCoords, aRight.CentreCoords);
  if (distance > aLeft.radius + aRight.radius || distance < std::abs(aLeft.radius - aRight.radius)) return false;
  const auto [low, high] = std::minmax({std::abs(between.x), std::abs(between.y)});
  return high > low * kSteepestChord;
}

TEntityArray WithoutNearlyLevelArcs(const TEntityArray& aDrawing) {
  TEntityArray drawing;
  for (const TDXFEntity& entity : aDrawing) {
    const auto isNearlyLevel = [&](const TDXFEntity& aOther) { return AreNearlyLevel(entity, aOther); };
    if (std::ranges::none_of(drawing, isNearlyLevel)) drawing.push_back(entity);
  }
  return drawing;
}

std::vector<double> AreasOf(const std::vector<Fingerprint>& aLoops) {
  std::vector<double> areas;
  for (const Fingerprint& loop : aLoops) areas.push_back(loop.area);
  std::ranges::sort(areas);
  return areas;
}

void ExpectSameAreas(const std::vector<Fingerprint>& aActual, const std::vector<Fingerprint>& aExpected,
                     double aRounding = kAreaRounding) {
  const std::vector<double> expected = AreasOf(aExpected);
  const std::vector<double> areas = AreasOf(aActual);
  ASSERT_EQ(areas.size(), expected.size());
  for (std::size_t i = 0; i < areas.size(); ++i) {
    EXPECT_NEAR(areas[i], expected[i], aRounding * std::max(1.0, expected[i])) << i;
  }
}

class Fingerprints_OfRandomDrawings : public testing::TestWithParam<std::tuple<Kind, std::uint32_t>> {
 protected:
  Fingerprints_OfRandomDrawings()
      : fRandom(std::get<1>(GetParam())), fDrawing(WithoutNearlyLevelArcs(std::get<0>(GetParam()).draw(fRandom))) {}

  void ExpectToFollow(const Motion& aMotion) const {
    const std::vector<Fingerprint> moved = Fingerprints(Moved(fDrawing, aMotion), kFaces);
    const std::vector<Fingerprint> expected = Moved(Fingerprints(fDrawing, kFaces), aMotion);
    ExpectSame(moved, expected);
    ExpectSameAreas(moved, expected, kAreaRounding_Moved);
  }

  ExactSettings fSettings;
  Random fRandom;
  TEntityArray fDrawing;
};

TEST_P(Fingerprints_OfRandomDrawings, StayTheSameWhenEntitiesAreShuffled) {
  const std::vector<Fingerprint> expected = Fingerprints(fDrawing, kFaces);
  ASSERT_FALSE(expected.empty());
  Shuffle(fDrawing, fRandom);
  const std::vector<Fingerprint> regions = Fingerprints(fDrawing, kFaces);
  ExpectSame(regions, expected);
  ExpectSameAreas(regions, expected);
}

TEST_P(Fingerprints_OfRandomDrawings, StayTheSameWhenLinesAreStoredTheOtherWay) {
  const std::vector<Fingerprint> expected = Fingerprints(fDrawing, kFaces);
  for (TDXFEntity& entity : fDrawing) {
    if (entity.EntityType == DXFLine && fRandom.Chance(0.5)) std::swap(entity.StartCoords, entity.EndCoords);
  }
  const std::vector<Fingerprint> regions = Fingerprints(fDrawing, kFaces);
  ExpectSame(regions, expected);
  ExpectSameAreas(regions, expected);
}

TEST_P(Fingerprints_OfRandomDrawings, TurnWithTheDrawing) {
  const TEntityCoordinate pivot{fRandom.Between(-500, 500), fRandom.Between(-500, 500)};
  for (const double angle : {90.0, 180.0, 270.0}) {
    SCOPED_TRACE(angle);
    ExpectToFollow(TurnedBy(angle, pivot));
  }
}

TEST_P(Fingerprints_OfRandomDrawings, MoveWithTheDrawing) {
  ExpectToFollow(MovedBy(fRandom.Between(-1000, 1000), fRandom.Between(-1000, 1000)));
}

TEST_P(Fingerprints_OfRandomDrawings, MirrorWithTheDrawing) {
  const double x = fRandom.Between(-500, 500);
  const double y = fRandom.Between(-500, 500);
  ExpectToFollow(MirroredAbout(CreateEntity_Line(x, 0, x, 1)));
  ExpectToFollow(MirroredAbout(CreateEntity_Line(0, y, 1, y)));
}

/// A line or an arc in two, cut somewhere in its middle half.
std::pair<TDXFEntity, TDXFEntity> Split(const TDXFEntity& aEntity, double aPart) {
  if (aEntity.EntityType == DXFLine) {
    const TEntityCoordinate cut = aEntity.StartCoords + aPart * (aEntity.EndCoords - aEntity.StartCoords);
    return {CreateEntity_Line(aEntity.StartCoords, cut), CreateEntity_Line(cut, aEntity.EndCoords)};
  }
  const auto [xc, yc] = aEntity.CentreCoords;
  const double cut = aEntity.startAngle + aPart * aEntity.ArcSweep();
  return {CreateEntity_Arc(xc, yc, aEntity.radius, aEntity.startAngle, cut),
          CreateEntity_Arc(xc, yc, aEntity.radius, cut, aEntity.endAngle)};
}

TEST_P(Fingerprints_OfRandomDrawings, KeepTheirAreasWhenEntitiesAreSplit) {
  TEntityArray drawing;
  for (const TDXFEntity& entity : fDrawing) {
    const auto [first, second] = Split(entity, fRandom.Between(0.25, 0.75));
    drawing.push_back(first);
    drawing.push_back(second);
  }
  ExpectSameAreas(Fingerprints(drawing, kFaces), Fingerprints(fDrawing, kFaces));
}

INSTANTIATE_TEST_SUITE_P(Drawings, Fingerprints_OfRandomDrawings,
                         testing::Combine(testing::ValuesIn(kKinds), testing::Range(1U, 41U)), [](const auto& aInfo) {
                           return std::string(std::get<0>(aInfo.param).name) + "Seed" +
                                  std::to_string(std::get<1>(aInfo.param));
                         });

class Fingerprints_Limits : public testing::Test {
 protected:
  /// The entities and the area of each loop, in ascending order, of a drawing turned about a point of its
  /// neighbourhood.
  static std::vector<Fingerprint> Turned(const TEntityArray& aDrawing, double aAngle, std::int32_t aRegionType) {
    std::vector<Fingerprint> loops = Fingerprints(Moved(aDrawing, TurnedBy(aAngle, {0.3, 0.7})), aRegionType);
    std::ranges::sort(loops, {}, [](const Fingerprint& aLoop) { return aLoop.area; });
    return loops;
  }

  ExactSettings fSettings;
};

MATCHER_P2(IsLoop, aEntities, aArea, "") {
  return arg.entities == static_cast<std::size_t>(aEntities) && std::abs(arg.area - aArea) <= 1e-3 * std::abs(aArea);
}

TEntityArray TwoCircles(double aRise) {
  return {CreateEntity_Arc(0, 0, 200, 45, 225), CreateEntity_Arc(0, 0, 200, 225, 45),
          CreateEntity_Arc(300, aRise, 250, 45, 225), CreateEntity_Arc(300, aRise, 250, 225, 45)};
}

// The lens of circles with radii 200 and 250 at a distance of 300.
constexpr double kLens = 34498.65;
constexpr double kSmallCircle = std::numbers::pi * 200 * 200;
constexpr double kLargeCircle = std::numbers::pi * 250 * 250;

TEST_F(Fingerprints_Limits, CirclesWithCentresAtOneHeightCrossOnlyWhenTurnedAQuarterKept) {
  for (const double angle : {0.0, 180.0}) {
    EXPECT_THAT(Turned(TwoCircles(0), angle, kFaces), ElementsAre(IsLoop(2, kSmallCircle), IsLoop(2, kLargeCircle)));
  }
  for (const double angle : {90.0, 270.0}) {
    const std::vector<Fingerprint> loops = Turned(TwoCircles(0), angle, kFaces);
    ASSERT_EQ(loops.size(), 3U);
    EXPECT_NEAR(loops[0].area, kLens, 0.01);
    EXPECT_NEAR(loops[1].area, kSmallCircle - kLens, 0.01);
    EXPECT_NEAR(loops[2].area, kLargeCircle - kLens, 0.01);
  }
}

// The common chord is all but upright there, and its equation loses the digits that tell the crossings from points off
// the circles.
TEST_F(Fingerprints_Limits, CirclesWithCentresNearlyAtOneHeightMayCrossOnlyWhenTurnedAQuarterKept) {
  EXPECT_EQ(Turned(TwoCircles(1), 0, kFaces).size(), 3U);
  EXPECT_EQ(Turned(TwoCircles(0.001), 0, kFaces).size(), 2U);
  EXPECT_EQ(Turned(TwoCircles(0.001), 90, kFaces).size(), 3U);
}

// The sweep enters an arc where its left-most point is answered to be. This arc's answer is its end at x = -4.7: the
// line at -4.9 has been dismissed by then.
TEST_F(Fingerprints_Limits, LongArcMissesWhatLiesLeftOfItsAnsweredLeftMostPointKept) {
  const TEntityArray drawing = support::ParseEntities("A c 0,0 r 5 300..200; A c 0,0 r 5 200..300; L -4.9,-10 -4.9,10");
  EXPECT_THAT(Turned(drawing, 0, kFaces), ElementsAre(IsLoop(2, 25 * std::numbers::pi)));
  for (const double angle : {90.0, 180.0, 270.0}) EXPECT_EQ(Turned(drawing, angle, kFaces).size(), 2U) << angle;
}

TEST_F(Fingerprints_Limits, OutlineThatPassesAVertexTwiceIsOneLoopOrTwoKept) {
  const TEntityArray squares =
      support::ParseEntities("L 0,0 4,0; L 4,0 4,4; L 4,4 0,4; L 0,4 0,0; L 4,4 8,4; L 8,4 8,8; L 8,8 4,8; L 4,8 4,4");
  EXPECT_THAT(Turned(squares, 0, kOutlines), ElementsAre(IsLoop(8, -32)));
  EXPECT_THAT(Turned(squares, 90, kOutlines), ElementsAre(IsLoop(4, -16), IsLoop(4, -16)));
}

// The same within: walked from the vertex that the triangle shares with the square, the square's loop closes before it
// has been round the triangle.
TEST_F(Fingerprints_Limits, FaceThatPassesAVertexTwiceLeavesItsHoleOutOrTakesItInKept) {
  const TEntityArray drawing =
      support::ParseEntities("L 0,0 8,0; L 8,0 8,8; L 8,8 0,8; L 0,8 0,0; L 0,0 4,1; L 4,1 1,4; L 1,4 0,0");
  EXPECT_THAT(Turned(drawing, 0, kFaces), ElementsAre(IsLoop(3, 7.5), IsLoop(7, 56.5)));
  EXPECT_THAT(Turned(drawing, 90, kFaces), ElementsAre(IsLoop(3, 7.5), IsLoop(4, 64)));
}

// Two crossings of the first line lie 0.005 mm apart, with one x within the tolerance, so that they stand by height: it
// runs to and fro there. A walk that comes upon a piece from its other side goes looking for another way round, and
// what it takes on that way is missing in other faces.
TEST_F(Fingerprints_Limits, CloseCrossingsOfASteepLineThatFallsCostFacesFarAroundKept) {
  const TEntityArray drawing = support::ParseEntities(
      "L 5.05,0 4.95,10; L 0,5 10,5; L 0,4.505 10,5.505; L 3.11,0 3.81,10; L 3.11,0 7.31,10; L 2.11,0 6.31,10;"
      "L 2.11,0 5.31,10; L 0,0.63 10,9.57; L 0,0.63 10,2.57");
  EXPECT_EQ(Turned(drawing, 90, kFaces).size(), 23U);
  EXPECT_EQ(Turned(drawing, 0, kFaces).size(), 3U);
}

// A line of slope 3 that passes a circle of radius 1 at half the tolerance, as the upper side of a square: the
// discriminant is 10 times the difference of the squares there, and a ninth of that on a line of slope -1/3.
TEST_F(Fingerprints_Limits, LineThatAllButTouchesAnArcMeetsItInOneDirectionAndMissesItInAnotherKept) {
  const TEntityCoordinate along{1 / std::sqrt(10.0), 3 / std::sqrt(10.0)};
  const TEntityCoordinate across{-along.y, along.x};
  const TEntityCoordinate a = 1.00005 * across - 5.0 * along;
  const TEntityCoordinate b = a + 10.0 * along;
  const TEntityCoordinate c = b + 4.0 * across;
  const TEntityCoordinate d = a + 4.0 * across;
  TEntityArray drawing = support::ParseEntities("A c 0,0 r 1 0..180; A c 0,0 r 1 180..360");
  for (const auto& [from, to] : {std::pair{a, b}, {b, c}, {c, d}, {d, a}}) {
    drawing.push_back(CreateEntity_Line(from, to));
  }
  EXPECT_THAT(Turned(drawing, 0, kFaces), ElementsAre(IsLoop(2, std::numbers::pi), IsLoop(4, 40)));
  EXPECT_THAT(Turned(drawing, 90, kFaces), ElementsAre(IsLoop(3, std::numbers::pi), IsLoop(5, 40)));
}

}  // namespace
}  // namespace GeometryEngine::properties

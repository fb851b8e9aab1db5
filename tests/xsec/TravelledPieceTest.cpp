#include "xsec/TravelledPiece.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

#include <gmock/gmock.h>

#include "tests/support/Geometry.h"
#include "tests/xsec/Drawings.h"

namespace xsec {
namespace {

using GeometryEngine::support::IsNear;
using GeometryEngine::support::ParseEntities;
using GeometryEngine::support::ParseEntity;
using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr double kPi = std::numbers::pi;

/// The entities one after the other, each travelled from its start.
Loop LoopOf(std::string_view text) {
  Loop loop;
  for (const auto& entity : ParseEntities(text)) loop.push_back(Travel(entity, true));
  return loop;
}

Loop Reversed(const Loop& loop) {
  Loop reversed;
  for (auto piece = loop.rbegin(); piece != loop.rend(); ++piece) {
    reversed.push_back(*piece);
    std::swap(reversed.back().from, reversed.back().to);
    std::swap(reversed.back().startAngle, reversed.back().endAngle);
    reversed.back().sweep = -piece->sweep;
  }
  return reversed;
}

std::vector<double> Crossings(const TravelledPiece& piece, double y) {
  std::vector<double> crossings;
  AddCrossings(piece, y, crossings);
  std::sort(crossings.begin(), crossings.end());
  return crossings;
}

TEST(Travel, BackwardsSwapsEndsAndAnglesAndTurnsTheSweep) {
  const auto arc = ParseEntity("A c 1,2 r 4 350..80");
  const TravelledPiece forward = Travel(arc, true);
  EXPECT_DOUBLE_EQ(forward.sweep, 90);
  const TravelledPiece back = Travel(arc, false);
  EXPECT_THAT(back.from, IsNear(forward.to, 0));
  EXPECT_THAT(back.to, IsNear(forward.from, 0));
  EXPECT_DOUBLE_EQ(back.startAngle, 80);
  EXPECT_DOUBLE_EQ(back.endAngle, 350);
  EXPECT_DOUBLE_EQ(back.sweep, -90);
  EXPECT_THAT(MidPoint(back), IsNear(MidPoint(forward), 1e-12));
  EXPECT_THAT(PointAlong(back, 0), IsNear(back.from, 1e-12));
  EXPECT_THAT(PointAlong(back, 1), IsNear(back.to, 1e-12));
}

TEST(SignedArea, IsExactForArcsAndTurnsItsSignWithTheTravel) {
  const Loop circle = LoopOf(Circle(1e5, -3e5, 2));
  EXPECT_NEAR(SignedArea(circle), 4 * kPi, 1e-9);
  EXPECT_NEAR(SignedArea(Reversed(circle)), -4 * kPi, 1e-9);
  const Loop bite = LoopOf("L 0,0 4,0; L 4,0 4,1");
  Loop bitten = bite;
  bitten.push_back(Travel(ParseEntity("A c 4,2 r 1 90..270"), false));
  for (const auto& piece : LoopOf("L 4,3 4,4; L 4,4 0,4; L 0,4 0,0")) bitten.push_back(piece);
  EXPECT_NEAR(SignedArea(bitten), 16 - kPi / 2, 1e-12);
}

TEST(SignedArea, OfNothingIsZero) {
  EXPECT_EQ(SignedArea(Loop{}), 0);
}

TEST(SignedArea, OfAFlatArcKeepsItsDigits) {
  const double sweep = 1e-4;  // radians; the segment is two thirds of chord times height, all but a part of 1e-9
  const double radius = 1e6;
  const Point end{radius * std::cos(sweep), radius * std::sin(sweep)};
  const auto arc = GeometryEngine::TDXFEntity::Arc({radius, 0}, end, {0, 0}, radius, 0, sweep * 180 / kPi);
  const Loop segment = {Travel(arc, true), Travel(GeometryEngine::TDXFEntity::Line(end, {radius, 0}), true)};
  EXPECT_NEAR(SignedArea(segment) / (radius * radius * sweep * sweep * sweep / 12), 1, 1e-9);
}

TEST(Centroid, IsExactForArcsFarFromTheOrigin) {
  EXPECT_THAT(Centroid(LoopOf(Circle(1e5, -3e5, 2))), IsNear(1e5, -3e5, 1e-9));
  // Of a half disc 4 r / (3 pi) from its middle.
  const Loop half = LoopOf("L 99998,7 100002,7; A c 100000,7 r 2 0..180");
  EXPECT_THAT(Centroid(half), IsNear(1e5, 7 + 8 / (3 * kPi), 1e-9));
  EXPECT_THAT(Centroid(Reversed(half)), IsNear(1e5, 7 + 8 / (3 * kPi), 1e-9));
}

TEST(Centroid, OfAPlateWithABiteIsWhereTheBiteLeavesIt) {
  Loop bitten = LoopOf("L 0,0 4,0; L 4,0 4,1");
  bitten.push_back(Travel(ParseEntity("A c 4,2 r 1 90..270"), false));
  for (const auto& piece : LoopOf("L 4,3 4,4; L 4,4 0,4; L 0,4 0,0")) bitten.push_back(piece);
  const double bite = kPi / 2;
  const double x = (16 * 2 - bite * (4 - 4 / (3 * kPi))) / (16 - bite);
  EXPECT_THAT(Centroid(bitten), IsNear(x, 2, 1e-12));
}

TEST(Centroid, WithoutAreaIsTheMiddleOfTheBox) {
  EXPECT_THAT(Centroid(Loop{}), IsNear(0, 0, 0));
  EXPECT_THAT(Centroid(LoopOf("L 1,2 3,4; L 3,4 1,2")), IsNear(2, 3, 0));
}

TEST(Centroid, OfASliverThatIsRoundingAloneStaysInItsBox) {
  const Loop sliver = LoopOf("L 0.1,0.3 0.7,0.9; L 0.7,0.9 0.4,0.6; L 0.4,0.6 0.1,0.3");
  EXPECT_NEAR(SignedArea(sliver), 0, 1e-15);
  const Point centroid = Centroid(sliver);
  EXPECT_TRUE(Contains(Bounds(sliver), centroid)) << centroid.x << "," << centroid.y;
}

TEST(Length, OfArcAndLine) {
  EXPECT_DOUBLE_EQ(Length(Travel(ParseEntity("L 1,1 4,5"), true)), 5);
  EXPECT_NEAR(Length(Travel(ParseEntity("A c 0,0 r 2 90..180"), false)), kPi, 1e-12);
}

TEST(Bounds, OfAnArcReachItsExtremes) {
  const Extents box = Bounds(Travel(ParseEntity("A c 10,0 r 2 300..100"), true));
  EXPECT_NEAR(box.minX, 10 + 2 * std::cos(100 * kPi / 180), 1e-12);
  EXPECT_NEAR(box.maxX, 12, 1e-12);
  EXPECT_NEAR(box.minY, 2 * std::sin(300 * kPi / 180), 1e-12);
  EXPECT_NEAR(box.maxY, 2, 1e-12);
}

TEST(Distance, ToAnArcIsToItsCurveOrToItsNearerEnd) {
  const TravelledPiece arc = Travel(ParseEntity("A c 0,0 r 5 0..90"), false);
  EXPECT_NEAR(Distance(arc, Point{3, 4}), 0, 1e-12);
  EXPECT_NEAR(Distance(arc, Point{6, 8}), 5, 1e-12);
  EXPECT_NEAR(Distance(arc, Point{0, 0}), 5, 1e-12);
  EXPECT_NEAR(Distance(arc, Point{5, -3}), 3, 1e-12);
  EXPECT_NEAR(Distance(arc, Point{-3, 9}), 5, 1e-12);
}

TEST(Distance, ToALineIsToItsFootOrToItsNearerEnd) {
  const TravelledPiece line = Travel(ParseEntity("L 0,0 10,0"), true);
  EXPECT_DOUBLE_EQ(Distance(line, Point{4, -3}), 3);
  EXPECT_DOUBLE_EQ(Distance(line, Point{13, 4}), 5);
  EXPECT_DOUBLE_EQ(Distance(Travel(ParseEntity("L 2,2 2,2"), true), Point{5, 6}), 5);
}

TEST(AddCrossings, ArcIsCrossedOnEachOfItsStretches) {
  const TravelledPiece arc = Travel(ParseEntity("A c 0,0 r 5 180..360"), true);
  EXPECT_THAT(Crossings(arc, -3), ElementsAre(DoubleNear(-4, 1e-12), DoubleNear(4, 1e-12)));
  EXPECT_THAT(Crossings(arc, 3), IsEmpty());
  EXPECT_THAT(Crossings(Travel(ParseEntity("A c 0,0 r 5 80..100"), false), 4.99), SizeIs(2));
}

TEST(AddCrossings, OfAClosedLoopComeInPairsAtEveryHeightEvenThroughItsVertices) {
  const Loop loop = LoopOf("L 0,0 4,0; A c 4,2 r 2 270..90; L 4,4 2,2; L 2,2 0,4; L 0,4 0,2; L 0,2 0,0");
  for (const double y : {-1.0, 0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 0.1, 3.9999}) {
    std::vector<double> crossings;
    for (const TravelledPiece& piece : loop) AddCrossings(piece, y, crossings);
    EXPECT_EQ(crossings.size() % 2, 0U) << "at height " << y;
  }
}

TEST(IsInside, AgreesWithTheDiscWhateverItsPiecesAndTheirTravel) {
  std::mt19937 random(20);
  std::uniform_real_distribution<double> coordinate(-3, 3);
  const Loop loops[] = {LoopOf(Circle(0, 0, 2)), Reversed(LoopOf(Circle(0, 0, 2))),
                        LoopOf("A c 0,0 r 2 17..100; A c 0,0 r 2 100..195; A c 0,0 r 2 195..355; A c 0,0 r 2 355..17")};
  for (int i = 0; i < 3000; ++i) {
    const Point point{coordinate(random), coordinate(random)};
    const double radius = std::hypot(point.x, point.y);
    if (std::abs(radius - 2) < 1e-9) continue;
    for (const Loop& loop : loops) ASSERT_EQ(IsInside(loop, point), radius < 2) << point.x << ", " << point.y;
  }
}

TEST(IsInside, BeesWaistThatTouchesItselfIsInsideOnBothSides) {
  const Loop waist = LoopOf("L 0,0 2,1; L 2,1 4,0; L 4,0 4,2; L 4,2 2,1; L 2,1 0,2; L 0,2 0,0");
  EXPECT_TRUE(IsInside(waist, {0.5, 1}));
  EXPECT_TRUE(IsInside(waist, {3.5, 1}));
  EXPECT_FALSE(IsInside(waist, {2, 0.5}));
  EXPECT_FALSE(IsInside(waist, {2, 1.5}));
}

}  // namespace
}  // namespace xsec

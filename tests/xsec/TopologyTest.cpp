#include "xsec/output/Topology.h"

#include <cmath>
#include <numbers>
#include <set>

#include <gmock/gmock.h>

#include "tests/xsec/Drawings.h"
#include "xsec/output/LoopParting.h"

namespace xsec {

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::SizeIs;

constexpr double kTolerance = 1e-4;

Topology TopologyOf(std::string_view entities, double longestArc = 180) {
  return BuildTopology(Detect(entities).regions, kTolerance, longestArc);
}

/// The net area that a region's loops hold.
double AreaOf(const Topology& topology, std::size_t region) {
  double area = SignedArea(topology.regions[region].outline, topology.curves);
  for (const CurveLoop& hole : topology.regions[region].holes) area += SignedArea(hole, topology.curves);
  return area;
}

std::size_t EndOf(const Topology& topology, const CurveUse& use) {
  const Curve& curve = topology.curves[use.curve];
  return use.forward ? curve.to : curve.from;
}

/// Each curve of a loop begins where the one before it ends, and no point is visited twice.
bool IsSimpleLoop(const Topology& topology, const CurveLoop& loop) {
  std::set<std::size_t> points;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const CurveUse& next = loop[(i + 1) % loop.size()];
    const CurveUse turned{next.curve, !next.forward};
    if (EndOf(topology, loop[i]) != EndOf(topology, turned)) return false;
    points.insert(EndOf(topology, loop[i]));
  }
  return points.size() == loop.size();
}

void ExpectSound(const Topology& topology, const std::vector<Region>& regions) {
  ASSERT_EQ(topology.regions.size(), regions.size());
  for (std::size_t i = 0; i < regions.size(); ++i) {
    EXPECT_TRUE(IsSimpleLoop(topology, topology.regions[i].outline)) << i;
    for (const CurveLoop& hole : topology.regions[i].holes) EXPECT_TRUE(IsSimpleLoop(topology, hole)) << i;
    EXPECT_NEAR(AreaOf(topology, i), regions[i].netArea, 1e-9 * regions[i].baseArea) << i;
  }
}

TEST(BuildTopology, CurveBetweenTwoRegionsStandsOnce) {
  const Topology topology = TopologyOf("L 0,0 4,0; L 4,0 4,2; L 4,2 0,2; L 0,2 0,0; L 2,0 2,2");
  EXPECT_THAT(topology.curves, SizeIs(7));
  EXPECT_THAT(topology.points, SizeIs(6));
  ASSERT_THAT(topology.regions, SizeIs(2));
  EXPECT_THAT(topology.regions[0].outline, SizeIs(4));
}

TEST(BuildTopology, HoleAndRegionInsideShareTheirCurvesTheOtherWayRound) {
  const auto regions = Detect(Rectangle(0, 0, 10, 10) + Circle(5, 5, 2)).regions;
  const Topology topology = BuildTopology(regions, kTolerance, 180);
  ExpectSound(topology, regions);
  EXPECT_THAT(topology.curves, SizeIs(6));
  std::vector<int> uses(6, 0);
  for (const RegionLoops& region : topology.regions) {
    for (const CurveUse& use : region.outline) uses[use.curve] += 1;
    for (const CurveLoop& hole : region.holes) {
      for (const CurveUse& use : hole) uses[use.curve] += 10;
    }
  }
  std::sort(uses.begin(), uses.end());
  EXPECT_THAT(uses, ElementsAre(1, 1, 1, 1, 11, 11));
}

TEST(BuildTopology, LongArcsAreCutIntoEqualPartsOnBothSides) {
  const auto regions = Detect(Rectangle(0, 0, 10, 10) + Circle(5, 5, 2)).regions;
  const Topology topology = BuildTopology(regions, kTolerance, 90);
  ExpectSound(topology, regions);
  EXPECT_THAT(topology.curves, SizeIs(8));
  for (const Curve& curve : topology.curves) {
    if (curve.piece.isArc) {
      EXPECT_NEAR(curve.piece.sweep, 90, 1e-9);
    }
  }
}

TEST(BuildTopology, ArcsRunAnticlockwiseFromPointToPoint) {
  const Topology topology = TopologyOf("A c 0,0 r 4 0..90; A c 0,0 r 2 0..90; L 2,0 4,0; L 0,2 0,4", 30);
  for (const Curve& curve : topology.curves) {
    if (!curve.piece.isArc) continue;
    EXPECT_GT(curve.piece.sweep, 0);
    for (const std::size_t point : {curve.from, curve.to}) {
      EXPECT_NEAR(std::hypot(topology.points[point].x, topology.points[point].y), curve.piece.radius, 1e-12);
    }
  }
}

TEST(BuildTopology, BridgeBoundsNothingAndPartsTheLoops) {
  const auto regions = Detect(Rectangle(0, 0, 10, 10) + Rectangle(4, 4, 6, 6) + "L 6,5 10,5; L 0,0 2,2").regions;
  const Topology topology = BuildTopology(regions, kTolerance, 180);
  ExpectSound(topology, regions);
}

TEST(BuildTopology, RegionThatTouchesItselfInAPointHasAHole) {
  const auto regions = Detect(Rectangle(0, 0, 10, 10) + "L 10,5 6,3; L 6,3 6,7; L 6,7 10,5").regions;
  const Topology topology = BuildTopology(regions, kTolerance, 180);
  ExpectSound(topology, regions);
  std::size_t holes = 0;
  for (const RegionLoops& region : topology.regions) holes += region.holes.size();
  EXPECT_EQ(holes, 1U);
}

TEST(BuildTopology, PieceThatRunsPastAVertexOfAnotherRegionIsCutThere) {
  std::vector<Region> regions(2);
  const auto line = [](double x1, double y1, double x2, double y2) {
    return Travel(GeometryEngine::TDXFEntity::Line({x1, y1}, {x2, y2}), true);
  };
  regions[0].outline = {line(0, 0, 4, 0), line(4, 0, 4, 2), line(4, 2, 0, 2), line(0, 2, 0, 0)};
  regions[1].outline = {line(1, 2, 3, 2), line(3, 2, 3, 3), line(3, 3, 1, 3), line(1, 3, 1, 2)};
  const Topology topology = BuildTopology(regions, kTolerance, 180);
  EXPECT_THAT(topology.regions[0].outline, SizeIs(6));
  EXPECT_THAT(topology.curves, SizeIs(9));
}

TEST(BuildTopology, TwoArcsBetweenTheSamePointsAreTwoCurves) {
  const Topology topology = TopologyOf(Circle(0, 0, 2) + "L -2,0 2,0");
  EXPECT_THAT(topology.curves, SizeIs(3));
  EXPECT_THAT(topology.points, SizeIs(2));
}

}  // namespace

}  // namespace xsec

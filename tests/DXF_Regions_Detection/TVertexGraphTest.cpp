#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"

#include <limits>
#include <random>

#include <gmock/gmock.h>

#include "tests/support/Detection.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::THalfEdge;
using detail::TVertexGraph;
using support::IsBits;
using enum Maindataenum::TInputFields;

namespace {

constexpr double kTolerance = 1e-3;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Lines and arcs across one another, and some that come near the ends of others.
TEntityArray RandomDrawing(std::uint32_t aSeed) {
  std::mt19937 random(aSeed);
  const auto place = [&] {
    return static_cast<int>(random() % 40) * 0.25 + static_cast<int>(random() % 3) * 0.6 * kTolerance;
  };
  TEntityArray drawing;
  for (int i = 0; i < 40; ++i) {
    const TEntityCoordinate start{place(), place()};
    drawing.push_back(random() % 3 == 0 ? TDXFEntity::Arc({}, {}, start, 1 + place() / 4, 10.0 * (i % 18), 350)
                                        : TDXFEntity::Line(start, {place(), place()}));
  }
  return drawing;
}

void ExpectSame(const TVertexGraph& aGraph, const TVertexGraph& aExpected) {
  ASSERT_EQ(aGraph.VertexCount(), aExpected.VertexCount());
  ASSERT_EQ(aGraph.HalfEdgeCount(), aExpected.HalfEdgeCount());
  EXPECT_EQ(aGraph.IsRegular(), aExpected.IsRegular());
  for (TIndex v = 0; v < aGraph.VertexCount(); ++v) {
    EXPECT_THAT(aGraph.Point(v), IsBits(aExpected.Point(v)));
    EXPECT_EQ(aGraph.FirstHalfEdge(v), aExpected.FirstHalfEdge(v));
  }
  for (TIndex h = 0; h < aGraph.HalfEdgeCount(); ++h) {
    const THalfEdge& halfEdge = aGraph.HalfEdge(h);
    const THalfEdge& expected = aExpected.HalfEdge(h);
    EXPECT_EQ(halfEdge.fVertex, expected.fVertex);
    EXPECT_EQ(halfEdge.fFarVertex, expected.fFarVertex);
    EXPECT_EQ(halfEdge.fEntityIndex, expected.fEntityIndex);
    EXPECT_EQ(halfEdge.fTwin, expected.fTwin);
    EXPECT_EQ(halfEdge.fIsTravelled, expected.fIsTravelled);
    EXPECT_EQ(halfEdge.fIsLine, expected.fIsLine);
    EXPECT_EQ(halfEdge.fIsExact, expected.fIsExact);
  }
}

// Reads the vertices of one detection as its sweep has left them, and of the other from the nodes of the tree.
bool ExpectSameFromNodes(support::TDetection& aDetection, support::TDetection& aWithNodes) {
  EXPECT_GT(aWithNodes.driver.CoordinateTree().RootNode()->Children().size(), 0U);
  const TVertexGraph graph(aDetection.driver.CoordinateTree());
  ExpectSame(graph, TVertexGraph(aWithNodes.driver.CoordinateTree()));
  return graph.IsRegular();
}

}  // namespace

TEST(TVertexGraph, IsTheSameFromASweepAndFromNodes) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, kTolerance);
  int regular = 0;
  int endWhereTheyBegin = 0;
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    support::TDetection detection(RandomDrawing(seed));
    support::TDetection withNodes(RandomDrawing(seed));
    const TVertexGraph graph(detection.driver.CoordinateTree());
    regular += ExpectSameFromNodes(detection, withNodes);
    for (TIndex h = 0; h < graph.HalfEdgeCount(); ++h) {
      endWhereTheyBegin += graph.HalfEdge(h).fVertex == graph.HalfEdge(h).fFarVertex;
    }
  }
  EXPECT_GT(regular, 25);
  EXPECT_GT(endWhereTheyBegin, 0);
}

TEST(TVertexGraph, IsReadUnderTheToleranceOfItsOwnTime) {
  for (const double later :
       {kTolerance / 2, 2 * kTolerance, 1.0, kInfinity, 0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    support::TSettingsGuard settings;
    settings.With(ifLinearTolerance, kTolerance);
    support::TDetection detection(RandomDrawing(7));
    support::TDetection withNodes(RandomDrawing(7));
    settings.With(ifLinearTolerance, later);
    const bool isRegular = ExpectSameFromNodes(detection, withNodes);
    EXPECT_EQ(isRegular, later > 0 && later < 1) << later;
  }
}

TEST(TVertexGraph, IsNotRegularWithPiecesThatEndNowhereOrOtherwiseThanTheirVertices) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, kTolerance);
  for (const double far : {kInfinity, std::numeric_limits<double>::quiet_NaN(), 1e200, 5.0}) {
    const auto spoil = [&](support::TDetection& detection) {
      TEntityArray& pieces = detection.driver.CoordinateTree().pEntityStorage()->EntityArray();
      pieces[3].EndCoords.x = far;
      pieces[5].StartCoords.y = far;
    };
    support::TDetection detection(RandomDrawing(7));
    support::TDetection withNodes(RandomDrawing(7));
    spoil(detection);
    spoil(withNodes);
    EXPECT_FALSE(ExpectSameFromNodes(detection, withNodes)) << far;
  }
}

TEST(TVertexGraph, HasItsPiecesTakenAway) {
  support::TDetection detection(RandomDrawing(7));
  support::TDetection withNodes(RandomDrawing(7));
  for (support::TDetection* each : {&detection, &withNodes}) {
    each->driver.CoordinateTree().pEntityStorage()->EntityArray().resize(20);
  }
  EXPECT_FALSE(ExpectSameFromNodes(detection, withNodes));
}

TEST(TVertexGraph, NumberedByPlaceItIsTheSameInTheOrderOfTheTree) {
  support::TSettingsGuard settings;
  settings.With(ifLinearTolerance, kTolerance);
  support::TDetection detection(RandomDrawing(7));
  const TVertexGraph before(detection.driver.CoordinateTree());
  TVertexGraph graph(detection.driver.CoordinateTree());
  ASSERT_TRUE(graph.IsRegular());
  ASSERT_GT(graph.VertexCount(), 100);
  graph.NumberByPlace();
  ASSERT_EQ(graph.HalfEdgeCount(), before.HalfEdgeCount());
  int moved = 0;
  for (TIndex place = 0; place < graph.HalfEdgeCount(); ++place) {
    const TIndex h = graph.HalfEdgeInOrder(place);
    moved += h != place;
    const THalfEdge& halfEdge = graph.HalfEdge(h);
    const THalfEdge& expected = before.HalfEdge(place);
    EXPECT_THAT(graph.From(halfEdge), IsBits(before.From(expected)));
    EXPECT_THAT(graph.Point(halfEdge.fFarVertex), IsBits(before.Point(expected.fFarVertex)));
    EXPECT_EQ(h - graph.FirstHalfEdge(halfEdge.fVertex), place - before.FirstHalfEdge(expected.fVertex));
    EXPECT_EQ(graph.Degree(halfEdge.fVertex), before.Degree(expected.fVertex));
    EXPECT_EQ(halfEdge.fEntityIndex, expected.fEntityIndex);
    EXPECT_EQ(halfEdge.fTwin, graph.HalfEdgeInOrder(expected.fTwin));
  }
  EXPECT_GT(moved, graph.HalfEdgeCount() / 2);
}

TEST(TVertexGraph, WritesMarksByTheOrderOfTheTree) {
  support::TDetection detection(RandomDrawing(7));
  TEntityTree& tree = detection.driver.CoordinateTree();
  const TVertexGraph before(tree);
  TVertexGraph graph(tree);
  graph.NumberByPlace();
  const TIndex marked = graph.HalfEdgeInOrder(before.HalfEdgeCount() / 3);
  graph.WriteMarks([&](TIndex aHalfEdge) { return aHalfEdge == marked; });
  const TVertexGraph after(tree);
  for (TIndex place = 0; place < after.HalfEdgeCount(); ++place) {
    EXPECT_EQ(after.HalfEdge(place).fIsTravelled, place == before.HalfEdgeCount() / 3) << place;
  }
}

}  // namespace GeometryEngine

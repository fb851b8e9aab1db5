#include "xsec/PieceGraph.h"

#include <utility>

#include <gmock/gmock.h>

#include "tests/support/RunWithStack.h"

namespace xsec {
namespace {

using ::testing::ElementsAre;

PieceGraph GraphOf(std::size_t vertices, const std::vector<PieceGraph::Ends>& pieces) {
  PieceGraph graph{pieces, {}};
  graph.vertices.resize(vertices);
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    for (const std::size_t end : pieces[i]) graph.vertices[end].push_back(i);
  }
  return graph;
}

TEST(FindBridges, TriangleHasNoneAndASpurIsOne) {
  EXPECT_THAT(FindBridges(GraphOf(4, {{0, 1}, {1, 2}, {2, 0}, {2, 3}})), ElementsAre(false, false, false, true));
}

TEST(FindBridges, LinkBetweenTwoLoopsIsOne) {
  EXPECT_THAT(FindBridges(GraphOf(6, {{0, 1}, {1, 2}, {2, 0}, {2, 3}, {3, 4}, {4, 5}, {5, 3}})),
              ElementsAre(false, false, false, true, false, false, false));
}

TEST(FindBridges, LoopsThatShareAVertexHaveNone) {
  EXPECT_THAT(FindBridges(GraphOf(5, {{0, 1}, {1, 2}, {2, 0}, {2, 3}, {3, 4}, {4, 2}})),
              ElementsAre(false, false, false, false, false, false));
}

TEST(FindBridges, TwoPiecesBetweenTheSameVerticesAreALoop) {
  EXPECT_THAT(FindBridges(GraphOf(3, {{0, 1}, {1, 0}, {1, 2}})), ElementsAre(false, false, true));
}

TEST(FindBridges, PieceThatReturnsToItsVertexIsNone) {
  EXPECT_THAT(FindBridges(GraphOf(2, {{0, 0}, {0, 1}})), ElementsAre(false, true));
}

TEST(FindBridges, ForestIsAllBridges) {
  EXPECT_THAT(FindBridges(GraphOf(6, {{0, 1}, {1, 2}, {3, 4}, {4, 5}})), ElementsAre(true, true, true, true));
}

TEST(FindBridges, ChainOfManyPiecesNeedsNoDeepStack) {
  std::vector<PieceGraph::Ends> pieces;
  for (std::size_t i = 0; i < 100000; ++i) pieces.push_back({i, i + 1});
  pieces.push_back({100000, 50000});
  const PieceGraph graph = GraphOf(100001, pieces);
  std::vector<bool> isBridge;
  GeometryEngine::support::RunWithStack(256 * 1024, [&] { isBridge = FindBridges(graph); });
  ASSERT_EQ(isBridge.size(), pieces.size());
  EXPECT_TRUE(isBridge[49999]);
  EXPECT_FALSE(isBridge[50000]);
  EXPECT_FALSE(isBridge[100000]);
}

}  // namespace
}  // namespace xsec

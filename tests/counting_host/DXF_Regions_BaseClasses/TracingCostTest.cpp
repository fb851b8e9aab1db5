// How often tracing reads the tolerance: a measure of its work that grows with the pieces, and no faster.

#include <cstddef>
#include <string>

#include <gtest/gtest.h>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Kelvaralinks::dataStore;
using Maindataenum::TInputFields;

constexpr std::size_t kMostReads = 60;  // for each piece

// A vertex graph on a lattice, built without searches.
class TLatticeGraph {
 public:
  explicit TLatticeGraph(std::size_t aColumns, std::size_t aRows) : fColumns(aColumns) {
    fTree.pEntityStorage(&fPieces);
    for (std::size_t i = 0; i < aColumns * aRows; ++i) fTree.AddTreeNode_ToRoot()->Coordinates(PointOf(i));
  }

  /// Joins two vertices by their numbers, counted row by row.
  void Join(std::size_t aFrom, std::size_t aTo) {
    for (const std::size_t vertex : {aFrom, aTo}) {
      TTreeNode* node = fTree.RootNode()->GetNode(static_cast<TIndex>(vertex));
      fTree.AddTreeNode(node)->EntityIndex(fPieces.Count());
    }
    fPieces.AddEntity(TDXFEntity::Line(PointOf(aFrom), PointOf(aTo)));
  }

  TIndex CountFaces() {
    fDriver.DetermineRegions(fTree, 1);
    return fDriver.RegionTree().RootNode()->Count();
  }
  TIndex CountChains() {
    fDriver.DetectOrphanEntities(fTree);
    return fDriver.RegionTree().RootNode()->Count();
  }
  std::size_t Pieces() const { return static_cast<std::size_t>(fPieces.Count()); }

 private:
  TEntityCoordinate PointOf(std::size_t aVertex) const {
    return {static_cast<double>(aVertex % fColumns), static_cast<double>(aVertex / fColumns)};
  }

  std::size_t fColumns;
  TEntityBaseClass fDriver;
  TEntityStorage fPieces;
  TEntityTree fTree{"Coordinates_SlotPole"};
};

struct TracingCost : ::testing::TestWithParam<std::size_t> {
  support::TSettingsGuard settings;

  static void ExpectFewReads(const TLatticeGraph& aGraph) {
    EXPECT_LT(dataStore.Reads(TInputFields::ifLinearTolerance), kMostReads * aGraph.Pieces());
  }
};

TEST_P(TracingCost, OfAnOpenChain) {
  TLatticeGraph graph(GetParam() + 1, 1);
  for (std::size_t i = 0; i < GetParam(); ++i) graph.Join(i, i + 1);
  dataStore.ForgetReads();
  EXPECT_EQ(graph.CountFaces(), 0);
  ExpectFewReads(graph);
  dataStore.ForgetReads();
  EXPECT_EQ(graph.CountChains(), 1);
  ExpectFewReads(graph);
}

TEST_P(TracingCost, OfAComb) {
  const std::size_t teeth = GetParam() / 2;
  TLatticeGraph graph(teeth + 1, 2);
  for (std::size_t i = 0; i < teeth; ++i) graph.Join(i, i + 1);
  for (std::size_t i = 0; i < teeth; ++i) graph.Join(i, i + teeth + 1);
  dataStore.ForgetReads();
  EXPECT_EQ(graph.CountFaces(), 0);
  ExpectFewReads(graph);
}

TEST_P(TracingCost, OfARing) {
  const std::size_t half = GetParam() / 2;
  TLatticeGraph graph(half, 2);
  for (std::size_t i = 0; i + 1 < half; ++i) graph.Join(i, i + 1);
  for (std::size_t i = 0; i + 1 < half; ++i) graph.Join(half + i, half + i + 1);
  graph.Join(0, half);
  graph.Join(half - 1, 2 * half - 1);
  dataStore.ForgetReads();
  EXPECT_EQ(graph.CountFaces(), 1);
  ExpectFewReads(graph);
}

TEST_P(TracingCost, OfAGrid) {
  const std::size_t rows = 10;
  const std::size_t columns = GetParam() / (2 * rows);
  TLatticeGraph graph(columns, rows);
  for (std::size_t row = 0; row < rows; ++row) {
    for (std::size_t i = row * columns; i + 1 < (row + 1) * columns; ++i) graph.Join(i, i + 1);
  }
  for (std::size_t i = 0; i + columns < rows * columns; ++i) graph.Join(i, i + columns);
  dataStore.ForgetReads();
  EXPECT_EQ(static_cast<std::size_t>(graph.CountFaces()), (rows - 1) * (columns - 1));
  ExpectFewReads(graph);
}

// Loops in a row, each joined to the next by a bridge: no walk may go through all of those beyond its own.
TEST_P(TracingCost, OfAChainOfLoopsWhoseOutlinesAreDropped) {
  const std::size_t loops = GetParam() / 5;
  TLatticeGraph graph(2 * loops, 2);
  for (std::size_t i = 0; i < 2 * loops; ++i) graph.Join(i, i + 2 * loops);
  for (std::size_t i = 0; i + 1 < 2 * loops; ++i) graph.Join(i, i + 1);
  for (std::size_t i = 0; i + 1 < 2 * loops; i += 2) graph.Join(2 * loops + i, 2 * loops + i + 1);
  dataStore.ForgetReads();
  EXPECT_EQ(static_cast<std::size_t>(graph.CountFaces()), loops);
  ExpectFewReads(graph);
}

INSTANTIATE_TEST_SUITE_P(Pieces, TracingCost, ::testing::Values(200, 2000, 20000),
                         [](const auto& aParameter) { return std::to_string(aParameter.param); });

}  // namespace
}  // namespace GeometryEngine

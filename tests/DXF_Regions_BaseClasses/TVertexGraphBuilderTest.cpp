#include "GeometryEngine/DXF_Regions_BaseClasses/detail/TVertexGraphBuilder.h"

#include <gmock/gmock.h>

#include <random>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "tests/support/Geometry.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {

using detail::TVertexGraphBuilder;
using support::IsBits;
using enum Maindataenum::TInputFields;

namespace {

/// Lines and arcs between points of a lattice of halves of the tolerance, some with a not-a-number.
TEntityArray RandomPieces(double aTolerance, std::uint32_t aSeed) {
  std::mt19937 random(aSeed);
  const auto place = [&] { return static_cast<int>(random() % 7) * aTolerance / 2; };
  const auto point = [&] {
    const double x = place();
    return TEntityCoordinate{x, random() % 50 == 0 ? std::numeric_limits<double>::quiet_NaN() : place()};
  };
  TEntityArray pieces;
  for (int i = 0; i < 80; ++i) {
    const TEntityCoordinate start = point();
    const TEntityCoordinate end = point();
    pieces.push_back(random() % 2 == 0 ? TDXFEntity::Line(start, end)
                                       : TDXFEntity::Arc(start, end, {0, 0}, 1 + place(), 0, 90));
  }
  return pieces;
}

std::string NodesOf(const TEntityTree& aTree) {
  std::string text;
  for (TIndex i = 0; i < aTree.Count(); ++i) {
    const TTreeNode* node = aTree.GetNodeFromIndex(i);
    text += std::to_string(node->AbsoluteIndex()) + " " + std::to_string(node->Parent()->AbsoluteIndex()) + ":" +
            std::to_string(node->RelativeIndex()) + " " + std::to_string(node->EntityIndex()) + " " +
            support::ToText(node->Coordinates()) + "\n";
  }
  return text;
}

}  // namespace

TEST(TVertexGraphBuilder, GivesTheNodesAndPiecesOfAddingOneByOne) {
  support::TSettingsGuard settings;
  for (const double tolerance : {1e-3, 0.5, 0.0}) {
    settings.With(ifLinearTolerance, tolerance);
    for (std::uint32_t seed = 0; seed < 100; ++seed) {
      const TEntityArray pieces = RandomPieces(tolerance == 0 ? 1 : tolerance, seed);
      TEntityBaseClass driver;
      TEntityStorage expectedPieces;
      TEntityTree expected("Coordinates_SlotPole");
      expected.Clear();
      expected.pEntityStorage(&expectedPieces);
      for (const TDXFEntity& piece : pieces) driver.AddEntityToCoordinateTree(expected, piece);

      TEntityArray known;
      TEntityTree tree("Coordinates_SlotPole");
      tree.Clear();
      TVertexGraphBuilder graph(known, pieces.size());
      for (TDXFEntity piece : pieces) graph.Add(std::move(piece));
      graph.TakeGraph()->AddNodes(tree);
      ASSERT_THAT(known, IsBits(expectedPieces.EntityArray())) << "tolerance " << tolerance << " seed " << seed;
      ASSERT_EQ(NodesOf(tree), NodesOf(expected)) << "tolerance " << tolerance << " seed " << seed;
    }
  }
}

}  // namespace GeometryEngine

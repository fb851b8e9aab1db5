// A walk round a region that joins the pieces of each side.

#include <benchmark/benchmark.h>

#include <cmath>
#include <numbers>

#include "GeometryEngine/DXF_Regions_Detection/EntityMerging.h"
#include "benchmarks/support/Sizes.h"

namespace {

using namespace GeometryEngine;

constexpr std::size_t kPiecesOfASide = 4;

// The vertices of a region whose every side is drawn in pieces of one length.
TCoordinateArray SidesInPieces(std::size_t aPieces) {
  const std::size_t sides = aPieces / kPiecesOfASide;
  const auto corner = [&](std::size_t k) {
    const double angle = 2 * std::numbers::pi * static_cast<double>(k % sides) / static_cast<double>(sides);
    const auto radius = static_cast<double>(aPieces + k % 2);  // no two neighbouring sides of one slope
    return TEntityCoordinate{radius * std::cos(angle), radius * std::sin(angle)};
  };
  TCoordinateArray vertices;
  for (std::size_t k = 0; k < aPieces; ++k) {
    const double share = static_cast<double>(k % kPiecesOfASide) / kPiecesOfASide;
    const std::size_t side = k / kPiecesOfASide;
    vertices.push_back(corner(side) + share * (corner(side + 1) - corner(side)));
  }
  return vertices;
}

struct TRegion {
  explicit TRegion(const TCoordinateArray& aVertices) : vertices(aVertices) {
    tree.pEntityStorage(&storage);
    node = tree.AddTreeNode_ToRoot();
    for (std::size_t k = 0; k < vertices.size(); ++k) {
      const TEntityCoordinate& end = vertices[(k + 1) % vertices.size()];
      tree.AddTreeNode(node)->EntityIndex(storage.AddEntity(TDXFEntity::Line(vertices[k], end)) - 1);
    }
  }

  // Every piece in turn is offered to what has been joined so far; the nodes of what was joined go at the end.
  std::int32_t Merge() {
    TEntityMerge merge;
    merge.fParent = node;
    const std::vector<TTreeNode*> pieces(node->Children().begin(), node->Children().end());
    merge.fNode_A = pieces.front();
    merge.fEntity = storage.Entities(0);
    merge.fPoint_1 = vertices[0];
    merge.fPoint_2 = vertices[1];
    for (std::size_t k = 1; k < pieces.size(); ++k) {
      merge.fNode_B = pieces[k];
      const TDXFEntity next = tree.GetNodeEntity(*pieces[k]);
      const TEntityCoordinate& end = vertices[(k + 1) % vertices.size()];
      if (DetectMergeEntity(tree, merge, next, end, node->Count())) continue;
      merge.fNode_A = pieces[k];
      merge.fEntity = next;
      merge.fPoint_2 = end;
    }
    for (TTreeNode* removed : merge.fRemovals) tree.RemoveTreeNode(removed, false);
    return merge.fMergeCount;
  }

  TCoordinateArray vertices;
  TEntityStorage storage;
  TEntityTree tree{"Regions"};
  TTreeNode* node = nullptr;
};

void DetectMergeEntity(benchmark::State& aState) {
  const TCoordinateArray vertices = SidesInPieces(benchmarks::SizeOf(aState));
  std::int32_t merges = 0;
  for ([[maybe_unused]] const auto unused : aState) {
    aState.PauseTiming();
    TRegion region(vertices);
    aState.ResumeTiming();
    merges = region.Merge();
  }
  aState.SetComplexityN(aState.range(0));
  aState.counters["merges"] = merges;
}
BENCHMARK(DetectMergeEntity)->Apply(benchmarks::FromThousandToHundredThousand);

}  // namespace

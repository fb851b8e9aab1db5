#pragma once

// The vertex graph of a detection as an ordinary multigraph: which pieces meet at which vertices, and which of them lie
// on no closed loop.

#include <array>
#include <cstddef>
#include <vector>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

namespace xsec {

struct PieceGraph {
  using Ends = std::array<std::size_t, 2>;
  std::vector<Ends> pieces;  ///< the vertices at each piece's start and end
  std::vector<std::vector<std::size_t>>
      vertices;  ///< the pieces that end at each vertex; a closed piece is there twice
};

/// The graph that the coordinate tree of a detection holds; pieces are numbered as in its storage.
PieceGraph ReadPieceGraph(const GeometryEngine::TEntityTree& aCoordinateTree);

/// For each piece whether taking it out would part what it links: it dangles, or it is a bridge. Such a piece has the
/// same face on both of its sides and bounds no region.
/// COST: linear in pieces and vertices; no recursion.
std::vector<bool> FindBridges(const PieceGraph& aGraph);

}  // namespace xsec

#pragma once

// Pieces that are the only connection between two parts of a vertex graph. Private.

#include <cstdint>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"

namespace GeometryEngine::detail {

/// For each half-edge 1 when its piece is a bridge: when no way leads from one of its ends to the other without it.
/// SOURCE: R. Tarjan, "A note on finding the bridges of a graph", Information Processing Letters 2 (1974), 160-161.
/// REQUIRES: a regular graph. COST: proportional to the half-edges; no stack for the depth of the graph.
std::vector<std::uint8_t> FindBridges(const TVertexGraph& aGraph);

}  // namespace GeometryEngine::detail

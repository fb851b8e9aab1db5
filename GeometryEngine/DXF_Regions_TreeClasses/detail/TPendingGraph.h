#pragma once

// A vertex graph, in arrays instead of nodes. Private.

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingNodes.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// The vertices of a graph and the vertex of each half-edge, in the order in which their nodes are to be made: each
/// vertex just before its first half-edge. Half-edges 2 k and 2 k + 1 are those of piece k.
///
/// REQUIRES: no two vertices that are the same under the tolerance at the time.
class TPendingGraph : public TPendingNodes {
 public:
  TPendingGraph(TCoordinateArray aPoints, std::vector<TIndex> aVertexOf)
      : fPoints(std::move(aPoints)), fVertexOf(std::move(aVertexOf)), fIsTravelled(fVertexOf.size()) {}

  /// Under which no two vertices are the same.
  double Tolerance() const { return fTolerance; }
  const TCoordinateArray& Points() const { return fPoints; }
  std::span<const TIndex> VertexOfHalfEdges() const { return fVertexOf; }
  bool Travelled(TIndex aHalfEdge) const { return fIsTravelled[static_cast<std::size_t>(aHalfEdge)]; }
  void MarkTravelled(TIndex aHalfEdge) { fIsTravelled[static_cast<std::size_t>(aHalfEdge)] = true; }
  /// How many half-edges leave each vertex.
  std::vector<TIndex> GetCounts() const;

  void AddNodes(TEntityTree& aTree) const override;

 private:
  double fTolerance = ReadLinearTolerance();
  TCoordinateArray fPoints;       ///< by vertex
  std::vector<TIndex> fVertexOf;  ///< by half-edge
  std::vector<bool> fIsTravelled;
};

}  // namespace GeometryEngine::detail

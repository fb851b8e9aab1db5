#pragma once

// The vertex graph of a drawing's pieces, before it becomes a tree. Private.

#include <cstddef>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TPointIndex.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeRecord.h"

namespace GeometryEngine::detail {

/// Takes pieces as AddEntityToCoordinateTree would, one by one into an empty tree and an empty storage, and gives the
/// nodes that it would have made.
/// COST: constant for a piece, on average, as long as not many pieces join the same two vertices.
class TVertexGraphBuilder {
 public:
  /// Pieces go to `aPieces`, which is empty and is left to this object alone.
  TVertexGraphBuilder(TEntityArray& aPieces, std::size_t aExpectedPieces);

  void Add(TDXFEntity&& aPiece);
  const std::vector<TNodeRecord>& Nodes() const { return fNodes; }

 private:
  struct TVertex {
    TIndex fNode;
    TIndex fCount;         ///< of half-edges
    TIndex fLastHalfEdge;  ///< half-edges 2 k and 2 k + 1 are those of piece k
  };
  struct THalfEdge {
    TIndex fVertex;
    TIndex fPrevious;  ///< at the same vertex
  };

  bool IsKnown(const TDXFEntity& aPiece, TIndex aStartVertex, TIndex aEndVertex) const;
  TEntityCoordinate AddHalfEdge(const TEntityCoordinate& aEnd, TIndex aVertex);
  TIndex AddVertex(const TEntityCoordinate& aPoint);
  TVertex& VertexAt(TIndex aIndex) { return fVertices[static_cast<std::size_t>(aIndex)]; }
  const TVertex& VertexAt(TIndex aIndex) const { return fVertices[static_cast<std::size_t>(aIndex)]; }
  const THalfEdge& HalfEdgeAt(TIndex aIndex) const { return fHalfEdges[static_cast<std::size_t>(aIndex)]; }

  TEntityArray& fPieces;
  TPointIndex fPoints;  ///< of the vertices
  std::vector<TVertex> fVertices;
  std::vector<THalfEdge> fHalfEdges;
  std::vector<TNodeRecord> fNodes;
};

}  // namespace GeometryEngine::detail

#pragma once

// The vertex graph of a drawing's pieces, before it becomes a tree. Private.

#include <cstddef>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TEntityIndex.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TPointIndex.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeRecord.h"

namespace GeometryEngine::detail {

/// Takes pieces as AddEntityToCoordinateTree would, one by one into an empty tree and an empty storage, and gives the
/// nodes that it would have made.
/// COST: constant for a piece, on average.
class TVertexGraph {
 public:
  /// Pieces go to `aPieces`, which is empty and is left to this object alone.
  TVertexGraph(TEntityArray& aPieces, std::size_t aExpectedPieces);

  void Add(TDXFEntity&& aPiece);
  const std::vector<TNodeRecord>& Nodes() const { return fNodes; }

 private:
  struct TVertex {
    TIndex fNode;
    TIndex fHalfEdges;
  };
  TEntityCoordinate AddHalfEdge(const TEntityCoordinate& aEnd, TIndex aPiece);
  TIndex AddVertex(const TEntityCoordinate& aPoint);

  TEntityArray& fPieces;
  TEntityIndex fKnownPieces;
  TPointIndex fPoints;  ///< of the vertices
  std::vector<TVertex> fVertices;
  std::vector<TNodeRecord> fNodes;
};

}  // namespace GeometryEngine::detail

#pragma once

// The vertex graph of a drawing's pieces, before it becomes a tree. Private.

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TPointIndex.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingGraph.h"

namespace GeometryEngine::detail {

/// Takes pieces as AddEntityToCoordinateTree would, one by one into an empty tree and an empty storage, and gives the
/// graph of which the nodes are made that it would have made.
/// COST: constant for a piece, on average, as long as not many pieces join the same two vertices.
class TVertexGraphBuilder {
 public:
  /// For pieces that go to `aPieces`, which is empty and left to this object alone.
  TVertexGraphBuilder(TEntityArray& aPieces, std::size_t aMostPieces);

  void Add(TDXFEntity&& aPiece);
  /// Has memory fetch what the search for a piece's end will look at first.
  [[gnu::always_inline]] void FetchAhead(const TEntityCoordinate& aEnd) const { fPoints.FetchAhead(aEnd); }
  /// After the last piece; the object is used up.
  std::unique_ptr<TPendingGraph> TakeGraph();

 private:
  struct TVertex {
    TIndex fCount;         ///< of half-edges
    TIndex fLastHalfEdge;  ///< half-edges 2 k and 2 k + 1 are those of piece k
  };

  TPointMatch FindStart(const TEntityCoordinate& aStart) const;
  bool IsKnown(const TDXFEntity& aPiece, const TPointMatch& aStart, const TPointMatch& aEnd) const;
  bool LeadsToEqual(TIndex aVertex, const TEntityCoordinate& aFarEnd, const TDXFEntity& aPiece) const;
  TEntityCoordinate AddHalfEdge(const TEntityCoordinate& aEnd, TIndex aVertex);
  TIndex AddVertex(const TEntityCoordinate& aPoint);
  TVertex& VertexAt(TIndex aIndex) { return fVertices[static_cast<std::size_t>(aIndex)]; }
  const TVertex& VertexAt(TIndex aIndex) const { return fVertices[static_cast<std::size_t>(aIndex)]; }

  TEntityArray& fPieces;
  TPointIndex fPoints;  ///< of the vertices, no two of which are the same
  std::vector<TVertex> fVertices;
  std::vector<TIndex> fVertexOf;  ///< by half-edge
  std::vector<TIndex> fPrevious;  ///< by half-edge, the one before at the same vertex
  /// What a search for the last piece's end would find now, where that is certain: the next piece often starts there.
  TEntityCoordinate fLastEnd;
  std::optional<TPointMatch> fLastEndMatch;
};

}  // namespace GeometryEngine::detail

#include "GeometryEngine/DXF_Regions_BaseClasses/detail/TVertexGraphBuilder.h"

#include <utility>

namespace GeometryEngine::detail {

TVertexGraphBuilder::TVertexGraphBuilder(TEntityArray& aPieces, std::size_t aExpectedPieces) : fPieces(aPieces) {
  fPieces.reserve(aExpectedPieces);
  fPoints.Reserve(aExpectedPieces);
  fVertices.reserve(aExpectedPieces);
  fHalfEdges.reserve(2 * aExpectedPieces);
  fNodes.reserve(3 * aExpectedPieces);
}

void TVertexGraphBuilder::Add(TDXFEntity&& aPiece) {
  const TIndex startVertex = fPoints.FindFirst(aPiece.StartCoords);
  const TIndex endVertex = fPoints.FindFirst(aPiece.EndCoords);
  if (IsKnown(aPiece, startVertex, endVertex)) return;
  aPiece.StartCoords = AddHalfEdge(aPiece.StartCoords, startVertex);
  // A vertex just made at the start may be the first that is the same as the end.
  const bool isEndNew = endVertex == kNotFound && startVertex == kNotFound;
  aPiece.EndCoords = AddHalfEdge(aPiece.EndCoords, isEndNew ? fPoints.FindFirst(aPiece.EndCoords) : endVertex);
  fPieces.push_back(std::move(aPiece));
}

// A piece that equals this one ends at vertices, and they are the same as its ends.
bool TVertexGraphBuilder::IsKnown(const TDXFEntity& aPiece, TIndex aStartVertex, TIndex aEndVertex) const {
  if (aStartVertex == kNotFound || aEndVertex == kNotFound) return false;
  const bool isStartBusy = VertexAt(aStartVertex).fCount > VertexAt(aEndVertex).fCount;
  const TEntityCoordinate& near = isStartBusy ? aPiece.EndCoords : aPiece.StartCoords;
  const TEntityCoordinate& far = isStartBusy ? aPiece.StartCoords : aPiece.EndCoords;
  const auto leadsToEqual = [&](TIndex vertex) {
    for (TIndex h = VertexAt(vertex).fLastHalfEdge; h != kNotFound; h = HalfEdgeAt(h).fPrevious) {
      const TIndex farVertex = HalfEdgeAt(h ^ 1).fVertex;
      if (fPoints.Point(farVertex) == far && fPieces[static_cast<std::size_t>(h / 2)] == aPiece) return true;
    }
    return false;
  };
  return fPoints.FindFirstIf(near, leadsToEqual) != kNotFound;
}

TEntityCoordinate TVertexGraphBuilder::AddHalfEdge(const TEntityCoordinate& aEnd, TIndex aVertex) {
  const TIndex index = aVertex == kNotFound ? AddVertex(aEnd) : aVertex;
  TVertex& vertex = VertexAt(index);
  fNodes.push_back({vertex.fNode, vertex.fCount++, ToIndex(fPieces.size()), {}});
  fHalfEdges.push_back({index, vertex.fLastHalfEdge});
  vertex.fLastHalfEdge = ToIndex(fHalfEdges.size() - 1);
  return fPoints.Point(index);
}

TIndex TVertexGraphBuilder::AddVertex(const TEntityCoordinate& aPoint) {
  const TIndex index = fPoints.Count();
  fPoints.Add(aPoint);
  fVertices.push_back({ToIndex(fNodes.size()), 0, kNotFound});
  fNodes.push_back({kNotFound, index, kNotFound, aPoint});
  return index;
}

}  // namespace GeometryEngine::detail

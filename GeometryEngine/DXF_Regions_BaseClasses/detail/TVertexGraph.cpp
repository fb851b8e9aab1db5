#include "GeometryEngine/DXF_Regions_BaseClasses/detail/TVertexGraph.h"

#include <utility>

namespace GeometryEngine::detail {

TVertexGraph::TVertexGraph(TEntityArray& aPieces, std::size_t aExpectedPieces) : fPieces(aPieces) {
  fPieces.reserve(aExpectedPieces);
  fKnownPieces.Reserve(aExpectedPieces);
  fPoints.Reserve(aExpectedPieces);
  fNodes.reserve(3 * aExpectedPieces);
}

void TVertexGraph::Add(TDXFEntity&& aPiece) {
  const auto piece = [this](TIndex i) -> const TDXFEntity& { return fPieces[static_cast<std::size_t>(i)]; };
  if (fKnownPieces.FindFirst(aPiece, piece) != kNotFound) return;
  const TIndex index = ToIndex(fPieces.size());
  aPiece.StartCoords = AddHalfEdge(aPiece.StartCoords, index);
  aPiece.EndCoords = AddHalfEdge(aPiece.EndCoords, index);
  fKnownPieces.Add(aPiece);
  fPieces.push_back(std::move(aPiece));
}

TEntityCoordinate TVertexGraph::AddHalfEdge(const TEntityCoordinate& aEnd, TIndex aPiece) {
  const TIndex found = fPoints.FindFirst(aEnd);
  const TIndex index = found == kNotFound ? AddVertex(aEnd) : found;
  TVertex& vertex = fVertices[static_cast<std::size_t>(index)];
  fNodes.push_back({vertex.fNode, vertex.fHalfEdges++, aPiece, {}});
  return fPoints.Point(index);
}

TIndex TVertexGraph::AddVertex(const TEntityCoordinate& aPoint) {
  const TIndex index = fPoints.Count();
  fPoints.Add(aPoint);
  fVertices.push_back({ToIndex(fNodes.size()), 0});
  fNodes.push_back({kNotFound, index, kNotFound, aPoint});
  return index;
}

}  // namespace GeometryEngine::detail

#include "GeometryEngine/DXF_Regions_BaseClasses/detail/TVertexGraphBuilder.h"

#include <utility>

namespace GeometryEngine::detail {

TVertexGraphBuilder::TVertexGraphBuilder(TEntityArray& aPieces, std::size_t aMostPieces) : fPieces(aPieces) {
  fPieces.reserve(aMostPieces);
  fPoints.Reserve(aMostPieces);
  fVertices.reserve(aMostPieces);
  fVertexOf.reserve(2 * aMostPieces);
  fPrevious.reserve(2 * aMostPieces);
}

void TVertexGraphBuilder::Add(TDXFEntity&& aPiece) {
  const TPointMatch start = FindStart(aPiece.StartCoords);
  const TPointMatch end = fPoints.FindMatch_Distinct(aPiece.EndCoords);
  fLastEnd = aPiece.EndCoords;
  fLastEndMatch = end;
  if (IsKnown(aPiece, start, end)) return;
  // Moved first and given its ends then: a record that has just been changed is copied slowly.
  TDXFEntity& piece = fPieces.emplace_back(std::move(aPiece));
  piece.StartCoords = AddHalfEdge(piece.StartCoords, start.fFirst);
  // A vertex just made at the start may be the same as the end, and then the only one of them.
  const bool isStartNew = start.fFirst == kNotFound;
  const bool joinsStart = isStartNew && end.fFirst == kNotFound && piece.StartCoords == piece.EndCoords;
  const TIndex endVertex = joinsStart ? fPoints.Count() - 1 : end.fFirst;
  fLastEndMatch = {endVertex == kNotFound ? fPoints.Count() : endVertex, end.fIsOnly};
  if (isStartNew || fLastEnd != fLastEnd) fLastEndMatch.reset();  // or the same as nothing, not even itself
  piece.EndCoords = AddHalfEdge(piece.EndCoords, endVertex);
}

TPointMatch TVertexGraphBuilder::FindStart(const TEntityCoordinate& aStart) const {
  const bool isLastEnd = fLastEndMatch && aStart.x == fLastEnd.x && aStart.y == fLastEnd.y;
  return isLastEnd ? *fLastEndMatch : fPoints.FindMatch_Distinct(aStart);
}

std::unique_ptr<TPendingGraph> TVertexGraphBuilder::TakeGraph() {
  return std::make_unique<TPendingGraph>(fPoints.TakePoints(), std::move(fVertexOf));
}

// A piece that equals this one ends at vertices, and they are the same as its ends.
bool TVertexGraphBuilder::IsKnown(const TDXFEntity& aPiece, const TPointMatch& aStart, const TPointMatch& aEnd) const {
  if (aStart.fFirst == kNotFound || aEnd.fFirst == kNotFound) return false;
  const bool isStartBusy = VertexAt(aStart.fFirst).fCount > VertexAt(aEnd.fFirst).fCount;
  const TPointMatch& near = isStartBusy ? aEnd : aStart;
  const TEntityCoordinate& nearEnd = isStartBusy ? aPiece.EndCoords : aPiece.StartCoords;
  const TEntityCoordinate& farEnd = isStartBusy ? aPiece.StartCoords : aPiece.EndCoords;
  const auto leadsToEqual = [&](TIndex vertex) { return LeadsToEqual(vertex, farEnd, aPiece); };
  return near.fIsOnly ? leadsToEqual(near.fFirst) : fPoints.FindFirstIf(nearEnd, leadsToEqual) != kNotFound;
}

bool TVertexGraphBuilder::LeadsToEqual(TIndex aVertex, const TEntityCoordinate& aFarEnd,
                                       const TDXFEntity& aPiece) const {
  for (TIndex h = VertexAt(aVertex).fLastHalfEdge; h != kNotFound; h = fPrevious[static_cast<std::size_t>(h)]) {
    const TIndex farVertex = fVertexOf[static_cast<std::size_t>(h ^ 1)];
    if (fPoints.Point(farVertex) == aFarEnd && fPieces[static_cast<std::size_t>(h / 2)] == aPiece) return true;
  }
  return false;
}

TEntityCoordinate TVertexGraphBuilder::AddHalfEdge(const TEntityCoordinate& aEnd, TIndex aVertex) {
  const TIndex index = aVertex == kNotFound ? AddVertex(aEnd) : aVertex;
  TVertex& vertex = VertexAt(index);
  ++vertex.fCount;
  fPrevious.push_back(vertex.fLastHalfEdge);
  vertex.fLastHalfEdge = ToIndex(fVertexOf.size());
  fVertexOf.push_back(index);
  return fPoints.Point(index);
}

TIndex TVertexGraphBuilder::AddVertex(const TEntityCoordinate& aPoint) {
  const TIndex index = fPoints.Count();
  fPoints.Add(aPoint);
  fVertices.push_back({0, kNotFound});
  return index;
}

}  // namespace GeometryEngine::detail

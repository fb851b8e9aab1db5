#include "GeometryEngine/DXF_Regions_Detection/detail/GraphBridges.h"

#include <algorithm>

namespace GeometryEngine::detail {

namespace {

std::size_t At(TIndex aIndex) {
  return static_cast<std::size_t>(aIndex);
}

// A search that goes deeper as long as it meets vertices that are new. A piece along which it has gone deeper is a
// bridge when nothing that it found from there leads back to the piece's beginning or to what was met before.
class TBridgeSearch {
 public:
  explicit TBridgeSearch(const TVertexGraph& aGraph)
      : fGraph(aGraph),
        fOrder(At(aGraph.VertexCount()), kNotFound),
        fEarliest(At(aGraph.VertexCount()), kNotFound),
        fIsBridge(At(aGraph.HalfEdgeCount()), 0) {}

  std::vector<std::uint8_t> Run() {
    for (TIndex v = 0; v < fGraph.VertexCount(); ++v) {
      if (fOrder[At(v)] == kNotFound) SearchFrom(v);
    }
    return std::move(fIsBridge);
  }

 private:
  // A vertex on the way, the half-edge by which it was reached, and the one to look at next.
  struct TStep {
    TIndex fVertex;
    TIndex fReachedBy;
    TIndex fNext;
  };

  void SearchFrom(TIndex aVertex) {
    Reach(aVertex, kNotFound);
    while (!fWay.empty()) {
      TStep& step = fWay.back();
      if (step.fNext < fGraph.EndOfHalfEdges(step.fVertex)) {
        LookAt(step.fNext++);
      } else {
        Return();
      }
    }
  }

  void Reach(TIndex aVertex, TIndex aReachedBy) {
    fOrder[At(aVertex)] = fMet;
    fEarliest[At(aVertex)] = fMet++;
    fWay.push_back({aVertex, aReachedBy, fGraph.FirstHalfEdge(aVertex)});
  }

  void LookAt(TIndex aHalfEdge) {
    const THalfEdge& halfEdge = fGraph.HalfEdge(aHalfEdge);
    const TStep step = fWay.back();
    const bool leadsBack =
        step.fReachedBy != kNotFound && fGraph.HalfEdge(step.fReachedBy).fEntityIndex == halfEdge.fEntityIndex;
    if (leadsBack) return;
    const TIndex order = fOrder[At(halfEdge.fFarVertex)];
    if (order == kNotFound) return Reach(halfEdge.fFarVertex, aHalfEdge);
    fEarliest[At(step.fVertex)] = std::min(fEarliest[At(step.fVertex)], order);
  }

  void Return() {
    const TStep step = fWay.back();
    fWay.pop_back();
    if (fWay.empty()) return;
    const TIndex before = fWay.back().fVertex;
    fEarliest[At(before)] = std::min(fEarliest[At(before)], fEarliest[At(step.fVertex)]);
    if (fEarliest[At(step.fVertex)] == fOrder[At(step.fVertex)]) MarkBridge(step);
  }

  // Both half-edges of the piece.
  void MarkBridge(const TStep& aStep) {
    fIsBridge[At(aStep.fReachedBy)] = 1;
    const TIndex entity = fGraph.HalfEdge(aStep.fReachedBy).fEntityIndex;
    for (TIndex h = fGraph.FirstHalfEdge(aStep.fVertex); h < fGraph.EndOfHalfEdges(aStep.fVertex); ++h) {
      if (fGraph.HalfEdge(h).fEntityIndex == entity) fIsBridge[At(h)] = 1;
    }
  }

  const TVertexGraph& fGraph;
  std::vector<TIndex> fOrder;     // in which the vertices were met
  std::vector<TIndex> fEarliest;  // the first in that order that was seen from a vertex or from beyond it
  std::vector<std::uint8_t> fIsBridge;
  std::vector<TStep> fWay;
  TIndex fMet = 0;
};

}  // namespace

std::vector<std::uint8_t> FindBridges(const TVertexGraph& aGraph) {
  return TBridgeSearch(aGraph).Run();
}

}  // namespace GeometryEngine::detail

#pragma once

// Whether a walk can still close. Private.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"

namespace GeometryEngine::detail {

/// Searches from a walk's start backwards for a way that may close its loop.
///
/// REQUIRES: a regular graph that outlives the search.
class TWayBack {
 public:
  explicit TWayBack(const TVertexGraph& aGraph)
      : fGraph(aGraph), fReached(static_cast<std::size_t>(aGraph.VertexCount()), 0) {}

  /// False when no way of open half-edges leads from the first half-edge's far end to its beginning but by its own
  /// piece. True when there is one, and when looking at `aMost` half-edges has not settled it.
  template <class TIsOpen>
  bool MayExist(TIndex aFirst, std::size_t aMost, TIsOpen aIsOpen) {
    const THalfEdge& first = fGraph.HalfEdge(aFirst);
    Begin(first.fVertex);
    std::size_t looks = 0;
    for (std::size_t k = 0; k < fVertices.size(); ++k) {
      const TIndex vertex = fVertices[k];
      for (TIndex h = fGraph.FirstHalfEdge(vertex); h < fGraph.EndOfHalfEdges(vertex); ++h) {
        const THalfEdge& halfEdge = fGraph.HalfEdge(h);
        if (++looks > aMost) return true;
        if (halfEdge.fEntityIndex == first.fEntityIndex || !aIsOpen(halfEdge.fTwin)) continue;
        if (halfEdge.fFarVertex == first.fFarVertex) return true;
        Reach(halfEdge.fFarVertex);
      }
    }
    return false;
  }

 private:
  void Begin(TIndex aVertex) {
    ++fSearch;
    fVertices.clear();
    Reach(aVertex);
  }

  void Reach(TIndex aVertex) {
    std::uint32_t& reached = fReached[static_cast<std::size_t>(aVertex)];
    if (reached == fSearch) return;
    reached = fSearch;
    fVertices.push_back(aVertex);
  }

  const TVertexGraph& fGraph;
  std::uint32_t fSearch = 0;
  std::vector<std::uint32_t> fReached;  // by vertex the last search that has come there
  std::vector<TIndex> fVertices;        // from which the start can be reached, in the order of the search
};

}  // namespace GeometryEngine::detail

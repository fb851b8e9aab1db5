#pragma once

// In which order a walk tries the half-edges of a vertex. Private.

#include <cstdint>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"

namespace GeometryEngine::detail {

/// The half-edges of each vertex, linked in a ring clockwise. A walk that arrives by a piece has its sharpest turn next
/// to that piece in the ring, the next best one behind it, and so on, wherever directions leave no doubt about it.
///
/// REQUIRES: a graph that outlives the order.
/// COST: the directions at a vertex of three half-edges or more, when a walk first comes there; nothing at others.
class TTurnOrder {
 public:
  explicit TTurnOrder(const TVertexGraph& aGraph);

  /// Where a walk that arrives by a half-edge begins to go round the ring of its far vertex, as far as the half-edge's
  /// twin: it then comes by the turns from the sharpest to the least, and may take all of them but for their marks.
  /// kUnclear where the angles proper have to decide. REQUIRES: a half-edge with a far vertex.
  TIndex FirstTurn(TIndex aArriving) {
    TIndex& first = fFirstTurns[At(aArriving)];
    if (first == kUnknown) first = IsClear(aArriving) ? Clockwise(fGraph.HalfEdge(aArriving).fTwin) : kUnclear;
    return first;
  }
  /// The next half-edge of the same vertex. REQUIRES: a vertex at which somebody has arrived.
  TIndex Clockwise(TIndex aHalfEdge) const { return fClockwise[At(aHalfEdge)]; }

  static constexpr TIndex kUnclear = -2;

 private:
  static constexpr TIndex kUnknown = -3;

  static std::size_t At(TIndex aIndex) { return static_cast<std::size_t>(aIndex); }
  bool IsClear(TIndex aArriving);
  bool AreTurnsClear(TIndex aArriving) const;
  void MakeRing(TIndex aVertex);
  double GetArrivingDirection(const THalfEdge& aArriving) const;
  double GetDirection(const THalfEdge& aHalfEdge, std::int32_t aMode) const;

  const TVertexGraph& fGraph;
  std::vector<TIndex> fFirstTurns;               // by half-edge that arrives
  std::vector<TIndex> fClockwise;                // by half-edge, kNotFound until somebody arrives at its vertex
  std::vector<double> fLeaving;                  // the direction of each, where there are three or more
  std::vector<std::pair<double, TIndex>> fRing;  // of the vertex in hand
};

}  // namespace GeometryEngine::detail

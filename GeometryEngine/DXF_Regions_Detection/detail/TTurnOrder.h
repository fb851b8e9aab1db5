#pragma once

// In which order a walk tries the half-edges of a vertex. Private.

#include <cstdint>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"

namespace GeometryEngine::detail {

/// What a walk reads of a half-edge. Those of one vertex stand side by side.
struct TTurnRecord {
  static constexpr TIndex kUnclear = -2;
  static constexpr TIndex kUnknown = -3;

  TIndex fTwin = kNotFound;
  TIndex fFirstTurn = kUnknown;   ///< see TTurnOrder::FirstTurn
  TIndex fClockwise = kNotFound;  ///< the next half-edge of the vertex, once somebody has arrived there
  std::uint8_t fMarks = 0;        ///< the walks' own
};

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
  /// kUnclear where the angles proper have to decide, and for a half-edge without a far vertex.
  TIndex FirstTurn(TIndex aArriving) {
    TIndex& first = Record(aArriving).fFirstTurn;
    if (first == TTurnRecord::kUnknown) first = FindFirstTurn(aArriving);
    return first;
  }

  TTurnRecord& Record(TIndex aHalfEdge) { return fRecords[At(aHalfEdge)]; }
  const TTurnRecord& Record(TIndex aHalfEdge) const { return fRecords[At(aHalfEdge)]; }

 private:
  static std::size_t At(TIndex aIndex) { return static_cast<std::size_t>(aIndex); }
  TIndex Clockwise(TIndex aHalfEdge) const { return Record(aHalfEdge).fClockwise; }
  TIndex FindFirstTurn(TIndex aArriving);
  bool IsClear(TIndex aArriving);
  bool AreTurnsClear(TIndex aArriving) const;
  void MakeRing(TIndex aVertex);
  double GetArrivingDirection(const THalfEdge& aArriving) const;
  double GetDirection(const THalfEdge& aHalfEdge, std::int32_t aMode) const;

  const TVertexGraph& fGraph;
  std::vector<TTurnRecord> fRecords;             // by half-edge
  std::vector<double> fLeaving;                  // the direction of each, where there are three or more
  std::vector<std::pair<double, TIndex>> fRing;  // of the vertex in hand
};

}  // namespace GeometryEngine::detail

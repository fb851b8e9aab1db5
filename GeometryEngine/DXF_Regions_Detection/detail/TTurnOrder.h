#pragma once

// In which order a walk tries the half-edges of a vertex. Private.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/Directions.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"

namespace GeometryEngine::detail {

/// What is known about the turns of a walk that arrives by a half-edge.
enum class TTurnClarity : std::uint8_t { kUnknown, kClear, kUnclear };

/// What a walk reads of a half-edge, in eight bytes: walks wander about, and wait for memory. Those of one vertex stand
/// side by side.
class TTurnRecord {
 public:
  static constexpr std::size_t kLargestRing = 1U << 23U;  ///< half-edges of a vertex

  TIndex fTwin = kNotFound;

  /// The walks' own.
  std::uint32_t Marks() const { return fBits & kMarks; }
  void Mark(std::uint32_t aMarks) { fBits |= aMarks; }
  void Unmark(std::uint32_t aMarks) { fBits &= ~aMarks; }

  TTurnClarity Turns() const { return static_cast<TTurnClarity>((fBits >> kTurnsAt) & kTurns); }
  void Turns(TTurnClarity aClarity) { fBits |= static_cast<std::uint32_t>(aClarity) << kTurnsAt; }

  /// How many half-edges on the next one of the ring stands; 0 until the ring is made, and where this is the only one.
  TIndex ToNext() const { return static_cast<std::int32_t>(fBits) >> kToNextAt; }
  void ToNext(TIndex aToNext) { fBits |= static_cast<std::uint32_t>(aToNext) << kToNextAt; }

  /// True when the directions of the ring are so far apart that there is no doubt about any turn in it.
  bool IsInClearRing() const { return (fBits & kInClearRing) != 0; }
  void PutInClearRing() { fBits |= kInClearRing; }

 private:
  static constexpr std::uint32_t kMarks = 0x1F;
  static constexpr std::uint32_t kInClearRing = 0x20;
  static constexpr std::uint32_t kTurns = 0x3;
  static constexpr std::uint32_t kTurnsAt = 6;
  static constexpr std::uint32_t kToNextAt = 8;

  std::uint32_t fBits = 0;
};
static_assert(sizeof(TTurnRecord) == 8);

/// The half-edges of each vertex, linked in a ring clockwise. A walk that arrives by a piece has its sharpest turn next
/// to that piece in the ring, the next best one behind it, and so on, wherever directions leave no doubt about it.
///
/// REQUIRES: a graph that outlives the order.
/// COST: the directions at a vertex of three half-edges or more, when a walk first comes there; nothing at others. They
/// are found out roughly first, and only where that leaves doubt to the last bit.
class TTurnOrder {
 public:
  explicit TTurnOrder(const TVertexGraph& aGraph) : fGraph(aGraph) { ReadGraph(); }
  /// Forgets all marks and rings: the graph has been numbered anew.
  void ReadGraph();

  /// True when a walk that arrives by a half-edge comes by its turns from the sharpest to the least, and may take all
  /// of them but for their marks, when it goes round the ring of the far vertex from behind the half-edge's twin to
  /// that twin. False where the angles proper have to decide, and for a half-edge without a far vertex.
  bool HasClearTurns(TIndex aArriving) {
    const TTurnClarity turns = Record(aArriving).Turns();
    return (turns == TTurnClarity::kUnknown ? FindClarity(aArriving) : turns) == TTurnClarity::kClear;
  }
  /// The next half-edge of the same vertex. REQUIRES: one at which turns are clear for somebody.
  TIndex Clockwise(TIndex aHalfEdge) const { return aHalfEdge + Record(aHalfEdge).ToNext(); }

  TTurnRecord& Record(TIndex aHalfEdge) { return fRecords[At(aHalfEdge)]; }
  const TTurnRecord& Record(TIndex aHalfEdge) const { return fRecords[At(aHalfEdge)]; }

 private:
  static std::size_t At(TIndex aIndex) { return static_cast<std::size_t>(aIndex); }
  TTurnClarity FindClarity(TIndex aArriving);
  bool IsClear(TIndex aArriving);
  bool AreTurnsClear(TIndex aArriving) const;
  void MakeRing(TIndex aVertex);
  bool FillRing_Roughly(TIndex aVertex);
  void FillRing(TIndex aVertex);
  void SortRing();
  std::optional<TRoughDirection> GetRoughDirection(TIndex aHalfEdge) const;
  double GetArrivingDirection(const THalfEdge& aArriving) const;
  double GetDirection(const THalfEdge& aHalfEdge, std::int32_t aMode) const;
  /// REQUIRES: a half-edge in a ring of three or more that is not clear.
  double LeavingDirection(TIndex aHalfEdge) const { return fLeaving.find(aHalfEdge)->second; }

  struct TRingPlace {
    double fDirection;
    double fSlack;
    TIndex fHalfEdge;
  };

  const TVertexGraph& fGraph;
  std::vector<TTurnRecord> fRecords;  // by half-edge
  /// The directions of the half-edges in rings of three or more that are not clear: next to none, in most drawings.
  std::unordered_map<TIndex, double> fLeaving;
  std::vector<TRingPlace> fRing;  // of the vertex in hand, in descending order of directions
};

}  // namespace GeometryEngine::detail

#pragma once

// Tracing of the loops of a whole vertex graph. Private.

#include "GeometryEngine/DXF_Regions_Detection/detail/TGraphWalk.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"

namespace GeometryEngine::detail {

/// Walks that close, one after the other, and what they add up to.
///
/// A bridge of the graph can't be on a loop. Once the walks have stepped back often, bridges are looked for, and walks
/// neither start on one nor turn into one: what lies beyond would be walked in vain, by one walk after the other.
/// docs/numerics.md says why that changes no answer. The graph is numbered by place then: what long walks read would
/// not be at hand otherwise.
///
/// A clockwise loop whose area is within what all that rounding might come to has its sign from the area along its own
/// pieces, once loops in such doubt have stepped back `kMostStepsInDoubt` times beyond bridges.
///
/// REQUIRES: a graph that outlives the tracing and is left to it.
/// COST: few steps for each half-edge, and the steps that kept loops make beyond bridges and back.
class TLoopTracing {
 public:
  /// Small drawings never come to it. In large ones each such loop may walk all that its bridge joins it to.
  static constexpr std::size_t kMostStepsInDoubt = 1'000'000;

  explicit TLoopTracing(TVertexGraph& aGraph);

  /// Traces the loop that starts with the half-edge at a place in the order of the tree. False when there is none. A
  /// loop of negative area may have its sign right only, unless `aNegativeToo`.
  bool Trace(TIndex aPlace, bool aNegativeToo);

  /// Of the loop traced last.
  TGraphWalk& Walk() { return fWalk; }
  double Area() const { return fArea; }
  /// How often all walks together have stepped back.
  std::size_t StepsBack() const { return fWalk.StepsBack(); }

 private:
  bool WalkFrom(TIndex aPlace);
  void PrepareForLongWalks();
  void NumberByPlace();
  void FindMiddle();
  double GetMagnitude(TIndex aHalfEdge);
  double GetTermAboutMiddle(TIndex aHalfEdge);
  void CountFree();
  void CountOffLoop();
  void AddStepsOverBridges();
  bool IsTakenAsNegative();
  bool IsSurelyNegative() const;

  TVertexGraph& fGraph;
  TGraphWalk fWalk;
  double fArea = 0;
  double fPathArea = 0;           // the same without the steps to and fro, for loops that may be passed over
  std::size_t fStepsInDoubt = 0;  // back, beyond bridges of loops that may be clockwise
  bool fKnowsBridges = false;
  double fFree = 0;            // half-edges that no loop has taken, counted once bridges are known
  double fFreeMagnitudes = 0;  // of the area terms of their pieces about the middle, and somewhat more than that
  TEntityCoordinate fMiddle;   // of the drawing
  double fFromMiddle = 0;      // what the area about the origin may differ by from that about the middle, at most
};

}  // namespace GeometryEngine::detail

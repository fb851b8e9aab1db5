#pragma once

// A walk through a vertex graph that was read into arrays, for passes of many walks. Private; FindNextRegionEntity is
// the same walk through the tree itself.

#include <cstdint>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/WalkRule.h"

namespace GeometryEngine::detail {

/// Walks one after the other through one graph. Marks of travel are kept here from walk to walk, and taken over from
/// the tree at first; they are the walk's own until `WriteMarks` puts them into the tree.
///
/// REQUIRES: a graph that outlives the walk.
class TGraphWalk {
 public:
  static constexpr TIndex kNone = kNotFound;

  explicit TGraphWalk(const TVertexGraph& aGraph);

  /// Walks from a half-edge on, by the rules of FindNextRegionEntity.
  void Walk(TIndex aHalfEdge, bool aBacktracking);

  /// The half-edges of the last walk, in order; none when it was stepped back to its start.
  std::span<const TIndex> Path() const { return fPath; }
  /// True when the last walk closed a loop.
  bool HasClosed() const { return fHasClosed; }
  /// The signed area along the last walk. All its steps to and fro are summed up in their order, as the bits depend on
  /// it.
  double GetArea();
  /// What a half-edge adds to it.
  double GetAreaTerm(TIndex aHalfEdge);
  /// The centroid of the loop that the last walk has closed, given its area; of an open chain the bare sum.
  TEntityCoordinate GetCentroid(double aArea);

  /// From now on walks pass by these half-edges (1 stands for a bridge) as if they were travelled.
  void AvoidBridges(std::vector<std::uint8_t> aIsBridge);
  bool IsBridge(TIndex aHalfEdge) const { return !fIsBridge.empty() && fIsBridge[At(aHalfEdge)] != 0; }
  /// True when the last walk came by a bridge that it might have turned into.
  bool PassedByBridges() const { return fPassedByBridges; }
  /// Walks the last walk's loop once more, over bridges and back.
  void WalkAgainOverBridges();
  /// How often all walks together have stepped back.
  std::size_t StepsBack() const { return fStepsBack; }

  bool IsTravelled(TIndex aHalfEdge) const { return fIsTravelled[At(aHalfEdge)] != 0; }
  void WriteMarks() const;

  // The rules' view of the walk (WalkRule.h) --------------------------------------------------------------------------

  void Enter(TIndex aHalfEdge);
  TTurn<TIndex> FindSharpestTurn();
  bool IsOnPath(TIndex aHalfEdge) const;
  bool IsStart(const TEntityCoordinate& aPoint) const;
  void Close(const TTurn<TIndex>& aLast);
  TIndex StepBack();
  bool Backtracks() const { return fBacktracks; }

 private:
  static std::size_t At(TIndex aIndex) { return static_cast<std::size_t>(aIndex); }
  void PutOnPath(TIndex aHalfEdge);
  void TakeOffPath(TIndex aHalfEdge);
  void FreeBlocked();
  void Begin(TIndex aHalfEdge);
  TEntityCoordinate GetCentroidTerm(TIndex aHalfEdge);
  bool MayTake(TIndex aCandidate, TIndex aLast);
  bool IsSameEntity(TIndex aCandidate, TIndex aLast) const;
  TIndex FindClearlySharpest(TIndex aLast);
  TTurn<TIndex> FindByAngle(TIndex aLast);
  double GetClearTurn(TIndex aLast, TIndex aCandidate);
  double DirectionLeaving(TIndex aHalfEdge);
  double DirectionArriving(TIndex aHalfEdge);
  double GetDirection(TIndex aHalfEdge, std::int32_t aMode) const;

  const TVertexGraph& fGraph;
  std::vector<std::uint8_t> fIsTravelled;   // by half-edge
  std::vector<std::uint32_t> fTimesOnPath;  // by entity
  std::vector<double> fLeaving;             // by half-edge, unknown until it is asked for
  std::vector<double> fArriving_Arcs;       // the same
  std::vector<double> fAreaTerms;           // by half-edge, not a number until it is asked for

  std::vector<TEntityCoordinate> fCentroidTerms;  // the same, once a walk has gone to and fro

  TEntityCoordinate fStart;
  bool fBacktracks = false;
  bool fAvoidsBridges = false;
  bool fPassedByBridges = false;
  bool fHasClosed = false;
  std::vector<std::uint8_t> fIsBridge;  // by half-edge, once bridges are avoided
  std::size_t fStepsBack = 0;
  std::vector<TIndex> fPath;
  std::vector<TIndex> fBlocked;
  std::vector<TIndex> fSteps;     // half-edges whose terms were added, and the complements of those taken out again
  TEntityCoordinate fLastVertex;  // where the loop's last half-edge begins,
  TEntityCoordinate fLastFarEnd;  // and where it ends
};

}  // namespace GeometryEngine::detail

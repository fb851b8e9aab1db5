#pragma once

// A walk through a vertex graph that was read into arrays, for passes of many walks. Private; FindNextRegionEntity is
// the same walk through the tree itself.

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TTurnOrder.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TWalkSums.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TWayBack.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/WalkRule.h"

namespace GeometryEngine::detail {

/// Walks one after the other through one graph. Marks of travel are kept here from walk to walk, and taken over from
/// the tree at first; they are the walk's own until `WriteMarks` puts them into the tree.
///
/// A walk that steps back time and again looks whether any way leads to its start at all, and is over when there is
/// none: it would only step back over all of its path.
///
/// REQUIRES: a graph that outlives the walk.
class TGraphWalk {
 public:
  static constexpr TIndex kNone = kNotFound;

  explicit TGraphWalk(const TVertexGraph& aGraph);
  /// Forgets all walks and what was marked, but for the marks of the tree: the graph, a regular one, has been numbered
  /// anew.
  void ReadGraph();

  /// Walks from a half-edge on, by the rules of FindNextRegionEntity.
  void Walk(TIndex aHalfEdge, bool aBacktracking);

  /// The half-edges of the last walk, in order; none when it was stepped back to its start.
  std::span<const TIndex> Path() const { return fPath; }
  /// How often all walks together may step back. A walk that finds itself beyond that when it looks for a way to its
  /// start gives up.
  void StopAfter(std::size_t aStepsBack) { fMostStepsBack = aStepsBack; }
  bool HasSteppedBackOften() const { return fStepsBack > fMostStepsBack; }
  /// True when the last walk gave up for that reason.
  bool HasStopped() const { return fHasStopped; }
  /// True when the last walk closed a loop.
  bool HasClosed() const { return fHasClosed; }
  /// The signed area along the last walk. All its steps to and fro are summed up in their order, as the bits depend on
  /// it.
  double GetArea();
  /// The centroid of the loop that the last walk has closed, given its area; of an open chain the bare sum.
  /// REQUIRES: that GetArea was called before.
  TEntityCoordinate GetCentroid(double aArea);
  TWalkSums& Sums() { return fSums; }

  /// From now on walks pass by these half-edges (1 stands for a bridge) as if they were travelled.
  void AvoidBridges(std::span<const std::uint8_t> aIsBridge);
  bool IsBridge(TIndex aHalfEdge) const { return (Marks(aHalfEdge) & kBridge) != 0; }
  /// True when the last walk came by a bridge that it would have turned into.
  bool PassedByBridges() const { return !fPassed.empty(); }
  /// Puts the steps over these bridges and back among those of the last walk. REQUIRES: a walk that has closed.
  void AddStepsOverBridges();
  /// How often all walks together have stepped back.
  std::size_t StepsBack() const { return fStepsBack; }

  /// Marks a half-edge as travelled by an earlier walk.
  void Take(TIndex aHalfEdge) { Mark(aHalfEdge, kTaken); }
  bool IsTravelled(TIndex aHalfEdge) const { return (Marks(aHalfEdge) & (kTaken | kWalked)) != 0; }
  void WriteMarks() const;

  // The rules' view of the walk (WalkRule.h) --------------------------------------------------------------------------

  void Enter(TIndex aHalfEdge);
  TTurn<TIndex> FindSharpestTurn();
  bool IsOnPath(TIndex aHalfEdge) const;
  bool IsStart(const TTurn<TIndex>& aTurn) const;
  void Close(const TTurn<TIndex>& aLast);
  bool StepBack();
  bool Backtracks() const { return fBacktracks; }

 private:
  static constexpr std::uint32_t kTaken = 1;   // travelled before the walk in hand
  static constexpr std::uint32_t kWalked = 2;  // by the walk in hand: on its path, stepped back from or passed by
  static constexpr std::uint32_t kTwinOnPath = 4;
  static constexpr std::uint32_t kBridge = 8;
  static constexpr std::uint32_t kDeadEnd = 16;  // leads to a vertex that nothing else leaves

  /// A bridge that was passed by, and after how many steps.
  struct TPassed {
    std::size_t fSteps;
    TIndex fBridge;
  };

  static std::size_t At(TIndex aIndex) { return static_cast<std::size_t>(aIndex); }
  void ReadMarks();
  void KeepMarks();
  void TakeOffPath(TIndex aHalfEdge);
  std::uint32_t Marks(TIndex aHalfEdge) const { return fOrder.Record(aHalfEdge).Marks(); }
  void Mark(TIndex aHalfEdge, std::uint32_t aMarks) { fOrder.Record(aHalfEdge).Mark(aMarks); }
  void Unmark(TIndex aHalfEdge, std::uint32_t aMarks) { fOrder.Record(aHalfEdge).Unmark(aMarks); }
  void FreeBlocked();
  void GiveUp();
  bool IsLost();
  void MarkDeadEnds();
  bool MayTake(TIndex aCandidate);
  bool PassBy(TIndex aCandidate);
  TTurn<TIndex> FindByAngle(TIndex aLast);
  TTurn<TIndex> FindSharpestAngle(TIndex aLast) const;
  bool HasGoneToAndFro() const;

  const TVertexGraph& fGraph;
  TTurnOrder fOrder;
  TWayBack fWayBack;
  TWalkSums fSums;
  std::vector<std::uint32_t> fTimesOnPath;  // by entity, unless the graph is regular

  TEntityCoordinate fStart;
  TIndex fFirst = kNone;
  TIndex fStartVertex = kNotFound;
  TIndex fSteppedBack = kNone;  // what was just stepped back from: those before it in the ring are not free any more
  bool fBacktracks = false;
  bool fAvoidsBridges = false;
  bool fHasClosed = false;
  bool fHasStopped = false;
  std::size_t fStepsBack = 0;
  std::size_t fMostStepsBack = std::numeric_limits<std::size_t>::max();
  std::size_t fNextLook = 0;  // so many half-edges blocked, and the walk looks whether there is a way to its start
  std::vector<TIndex> fPath;
  std::vector<TIndex> fBlocked;
  std::vector<TPassed> fPassed;
  std::vector<TIndex> fSteps;        // as TWalkSums has them
  std::vector<TIndex> fWalkedSteps;  // those over which steps over bridges are added, meanwhile
  TEntityCoordinate fCentroidSum;    // along steps to and fro
  TEntityCoordinate fLastVertex;     // where the loop's last half-edge begins,
  TEntityCoordinate fLastFarEnd;     // and where it ends
};

}  // namespace GeometryEngine::detail

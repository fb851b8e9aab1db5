#pragma once

// The rule by which a walk through a vertex graph goes on, whatever the graph is kept in. Private.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

inline constexpr std::int32_t kVector_Arriving = 0;
inline constexpr std::int32_t kVector_Leaving = 1;

/// A half-edge that may be taken at the vertex just reached.
template <class THalfEdge>
struct TTurn {
  static constexpr double kBelowEveryTurn = -1e12;  // degrees; the first candidate at a vertex beats it

  THalfEdge fHalfEdge{};
  TEntityCoordinate fFarEnd;
  double fAngle = kBelowEveryTurn;  ///< degrees, anticlockwise from where the walk came from
};

/// How far to the left it is from the arriving vector to an entity that leaves the vertex for its far end.
inline double GetTurnAngle(const TVector_Single& aArriving, const TEntityCoordinate& aVertex,
                           const TEntityCoordinate& aFarEnd, const TDXFEntity& aEntity) {
  const TVector_Single leaving = GetEntityVector(aVertex, aFarEnd, aEntity, kVector_Leaving);
  return GetAngleBetweenVectors(aArriving, leaving) * kDegreesPerRadian;
}

template <class THalfEdge>
bool IsSharper(const TTurn<THalfEdge>& aTurn, const TTurn<THalfEdge>& aBest, const TEntityCoordinate& aVertex) {
  if (aTurn.fAngle > aBest.fAngle) return true;
  return aTurn.fAngle == aBest.fAngle && IsPointLeft_Line(aTurn.fFarEnd, aVertex, aBest.fFarEnd) > 0;
}

/// Walks on from the far end of the half-edge entered last until the walk is over. A walk has
/// - `Enter(halfEdge)`: marks it as travelled, puts it on the path and its terms into the sums;
/// - `FindSharpestTurn()`: where to go from the far end of the half-edge entered last; none at a dead end;
/// - `IsOnPath(halfEdge)`: whether an end of its entity is on the path already;
/// - `IsStart(turn)`, `Close(turn)`: whether it leads to where the loop closes, and the loop's last half-edge;
/// - `StepBack()`: takes two half-edges off the path and enters the first of them again; false when there is but one;
/// - `Backtracks()`, and `kNone`, which stands for no half-edge.
///
/// Ends for every input. A step forwards marks a half-edge that was free, and no mark is taken back before the walk
/// is over, so there are at most as many of them as half-edges. A step back shortens the path by one, so there are at
/// most as many of those as steps forwards. Neither argument rests on a comparison of coordinates.
template <class TWalk>
void WalkToEnd(TWalk& aWalk) {
  for (;;) {
    const auto best = aWalk.FindSharpestTurn();
    const bool deadEnd = best.fHalfEdge == TWalk::kNone;
    if (deadEnd && !aWalk.Backtracks()) return;
    if (deadEnd || (aWalk.Backtracks() && aWalk.IsOnPath(best.fHalfEdge))) {
      if (!aWalk.StepBack()) return;
      continue;
    }
    // KEPT: a loop closes where it first comes back to its start. One that passes a vertex twice is traced as a whole
    // from every other vertex, but falls apart at that one; hosts index regions by what this rule yields.
    if (aWalk.IsStart(best)) return aWalk.Close(best);
    aWalk.Enter(best.fHalfEdge);
  }
}

}  // namespace GeometryEngine::detail

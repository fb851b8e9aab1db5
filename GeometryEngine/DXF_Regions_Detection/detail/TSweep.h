#pragma once

// The sweep that finds which entities of a drawing meet. Private.

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TRecordedPoints.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TRightEnds.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/TInterceptionPoints.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TActiveHeights.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TSweepHeights.h"

namespace GeometryEngine::detail {

/// A sweep from left to right over entities that are sorted by left-most x.
///
/// Each entity that it reaches is held against those reached before, the last of them first: the ones that lie wholly
/// to the left are left behind and their ends recorded, the others tested as pairs. Here only those come up that are
/// left behind just then, or whose heights meet the entity's; the others can't report a point (TSweepHeights).
///
/// COST: n log n, and the pairs whose heights meet.
class TSweep {
 public:
  /// REQUIRES: entities that stay as they are while the sweep lives.
  TSweep(std::span<const TDXFEntity> aEntities, TRecordedPoints& aRecords);
  void Run();

 private:
  void Enter(TIndex aIndex);
  void LeaveBehind(double aLeft);
  void FindCandidates(TIndex aIndex);
  void FindTouchingArcs(TIndex aIndex);
  void RecordMeetings(TIndex aIndex);
  void RecordEnds(TIndex aIndex);
  void RecordPair(TIndex aEntering, TIndex aActive);
  void Activate(TIndex aIndex);
  void Deactivate(TIndex aIndex);

  bool CanMeet(TIndex aIndex) const;
  const TDXFEntity& EntityAt(TIndex aIndex) const { return fEntities[static_cast<std::size_t>(aIndex)]; }
  const std::optional<THeights>& HeightsAt(TIndex aIndex) const { return fHeights[static_cast<std::size_t>(aIndex)]; }

  std::span<const TDXFEntity> fEntities;
  TRecordedPoints& fRecords;
  bool fAnyMeets;  ///< false when nothing is the same as anything, so that no pair has a point
  TSweepHeights fReach;
  std::vector<std::optional<THeights>> fHeights;
  TActiveHeights fActive;          ///< lines and arcs that the sweep has reached and not left behind, but the unbounded
  TActiveHeights fActiveCircles;   ///< the arcs among them, by the heights of their circles
  std::vector<TIndex> fUnbounded;  ///< those of no known heights
  TRightEnds fRightEnds;           ///< of all that is not left behind
  std::vector<TIndex> fLeftBehind;  ///< by the entity that the sweep has just reached
  std::vector<TIndex> fCandidates;  ///< to be tested with it
  TInterceptionPoints fPoints;
};

}  // namespace GeometryEngine::detail

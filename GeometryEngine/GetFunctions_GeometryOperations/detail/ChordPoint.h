#pragma once

#include <algorithm>
#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/FloatingPoint/detail/TSinesCosines.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"

namespace GeometryEngine::detail {

/// How an arc is walked chord by chord.
struct TChordWalk {
  TTravelDirection fDirection;
  double fStartAngle;  ///< degrees
  double fStep;        ///< degrees
};

/// The direction, in degrees, after so many steps from the start angle; 0 in a direction of travel that is none.
inline double GetWalkedAngle(const TChordWalk& aWalk, std::int64_t aIndex) {
  switch (aWalk.fDirection) {
    case Travel_AntiClockwise:
      return aWalk.fStartAngle + static_cast<double>(aIndex) * aWalk.fStep;
    case Travel_Clockwise:
      return aWalk.fStartAngle - static_cast<double>(aIndex) * aWalk.fStep;
  }
  return 0;
}

/// Those of the points `aFirst` and the following.
inline void ComputeDirections(const TChordWalk& aWalk, std::int64_t aFirst, std::size_t aCount,
                              TSinesCosines& aDirections) {
  aDirections.Compute(aCount, [&](std::size_t i) {
    return GetWalkedAngle(aWalk, aFirst + static_cast<std::int64_t>(i)) * kRadiansPerDegree;
  });
}

/// Calls `aVisit` with the points that `GetArc_LineSegmentCoord` gives for `aFirst` to `aLast`, in this order, some at
/// once: less than half the time of one by one.
template <class TVisit>
void ForEachChordPoint(const TDXFEntity& aArc, const TChordWalk& aWalk, std::int64_t aFirst, std::int64_t aLast,
                       const TVisit& aVisit) {
  TSinesCosines directions;
  constexpr auto kMost = static_cast<std::int64_t>(TSinesCosines::kMost);
  for (std::int64_t first = aFirst; first <= aLast; first += kMost) {
    const auto count = static_cast<std::size_t>(std::min(kMost, aLast + 1 - first));
    ComputeDirections(aWalk, first, count, directions);
    for (std::size_t i = 0; i < count; ++i) aVisit(GetCirclePoint(aArc.CentreCoords, aArc.radius, directions[i]));
  }
}

/// Calls `aVisit` with the ends of each of so many chords in turn, from point 0 on.
template <class TVisit>
void ForEachChord(const TDXFEntity& aArc, const TChordWalk& aWalk, std::int64_t aCount, const TVisit& aVisit) {
  TSinesCosines directions;
  constexpr auto kMost = static_cast<std::int64_t>(TSinesCosines::kMost) - 1;
  for (std::int64_t first = 0; first < aCount; first += kMost) {
    const auto chords = static_cast<std::size_t>(std::min(kMost, aCount - first));
    ComputeDirections(aWalk, first, chords + 1, directions);
    TEntityCoordinate from = GetCirclePoint(aArc.CentreCoords, aArc.radius, directions[0]);
    for (std::size_t i = 1; i <= chords; ++i) {
      const TEntityCoordinate to = GetCirclePoint(aArc.CentreCoords, aArc.radius, directions[i]);
      aVisit(from, to);
      from = to;
    }
  }
}

}  // namespace GeometryEngine::detail

#pragma once

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/FloatingPoint/detail/ForEachSineCosine.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"

namespace GeometryEngine::detail {

/// The directions of a walk along an arc, chord by chord. UNITS of start angle and step: degrees.
/// DEGENERATE: 0 all along in a direction of travel that is none.
inline TAngleSteps GetWalkedAngles(TTravelDirection aDirection, double aStartAngle, double aStep) {
  switch (aDirection) {
    case Travel_AntiClockwise:
      return {aStartAngle, aStep, kRadiansPerDegree};
    case Travel_Clockwise:
      return {aStartAngle, -aStep, kRadiansPerDegree};
  }
  return {0, 0, kRadiansPerDegree};
}

/// Calls `aVisit` with the points that `GetArc_LineSegmentCoord` gives for `aFirst` to `aLast`, in this order, some at
/// once: less than half the time of one by one.
template <class TVisit>
void ForEachChordPoint(const TDXFEntity& aArc, const TAngleSteps& aWalk, std::int64_t aFirst, std::int64_t aLast,
                       const TVisit& aVisit) {
  ForEachSineCosine(aWalk, aFirst, aLast, [&](const TSineCosine& aDirection) {
    aVisit(GetCirclePoint(aArc.CentreCoords, aArc.radius, aDirection));
  });
}

/// Calls `aVisit` with the ends of chords `aFirst` to `aLast` in turn; chord i runs from point i to point i + 1.
template <class TVisit>
void ForEachChord(const TDXFEntity& aArc, const TAngleSteps& aWalk, std::int64_t aFirst, std::int64_t aLast,
                  const TVisit& aVisit) {
  if (aFirst > aLast) return;
  bool isStart = true;
  TEntityCoordinate from;
  ForEachChordPoint(aArc, aWalk, aFirst, aLast + 1, [&](const TEntityCoordinate& aTo) {
    if (!isStart) aVisit(from, aTo);
    isStart = false;
    from = aTo;
  });
}

}  // namespace GeometryEngine::detail

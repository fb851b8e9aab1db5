#pragma once

#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/FloatingPoint/detail/ForEachSineCosine.h"
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

/// Calls `aVisit` with the points that `GetArc_LineSegmentCoord` gives for `aFirst` to `aLast`, in this order, some at
/// once: less than half the time of one by one.
template <class TVisit>
void ForEachChordPoint(const TDXFEntity& aArc, const TChordWalk& aWalk, std::int64_t aFirst, std::int64_t aLast,
                       const TVisit& aVisit) {
  const auto radiansOf = [&](std::int64_t aIndex) { return GetWalkedAngle(aWalk, aIndex) * kRadiansPerDegree; };
  ForEachSineCosine(aFirst, aLast, radiansOf, [&](const TSineCosine& aDirection) {
    aVisit(GetCirclePoint(aArc.CentreCoords, aArc.radius, aDirection));
  });
}

/// Calls `aVisit` with the ends of each of so many chords in turn, from point 0 on.
template <class TVisit>
void ForEachChord(const TDXFEntity& aArc, const TChordWalk& aWalk, std::int64_t aCount, const TVisit& aVisit) {
  bool isStart = true;
  TEntityCoordinate from;
  ForEachChordPoint(aArc, aWalk, 0, aCount, [&](const TEntityCoordinate& aTo) {
    if (!isStart) aVisit(from, aTo);
    isStart = false;
    from = aTo;
  });
}

}  // namespace GeometryEngine::detail

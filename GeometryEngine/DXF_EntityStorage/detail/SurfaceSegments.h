#pragma once

#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordCount.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/LimitedSegments.h"

namespace GeometryEngine::detail {

/// The chords of an arc in the surface polyline of its chain.
inline TArcSegments GetSurfaceSegments(const TDXFEntity& aArc) {
  return GetLimitedSegments(GetArcSegmentPoints_Surf(aArc, kSurfChordTolerance));
}

}  // namespace GeometryEngine::detail

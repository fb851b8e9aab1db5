#pragma once

#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/LimitedSegments.h"

namespace GeometryEngine::detail {

/// The chords of an arc in the surface polyline of its chain.
inline TArcSegments GetSurfaceSegments(const TDXFEntity& aArc) {
  constexpr double kSurfaceResolution = 0.01;  // how far a chord may stay from its arc, drawing length units
  return GetLimitedSegments(GetArcSegmentPoints_Surf(aArc, kSurfaceResolution));
}

}  // namespace GeometryEngine::detail

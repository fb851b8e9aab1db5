#pragma once

#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"

namespace GeometryEngine::detail {

/// The same arc in at most a million chords, for whoever lists or sums up all of them: finer ones differ from the arc
/// by rounding only, and no radius and no setting, not even an infinite one, takes their time and memory for ever.
inline TArcSegments GetLimitedSegments(const TArcSegments& aSegments) {
  constexpr std::int32_t kMostChords = 1'000'000;
  if (aSegments.aCount <= kMostChords) return aSegments;
  return {kMostChords, aSegments.aStep * aSegments.aCount / kMostChords};
}

}  // namespace GeometryEngine::detail

#pragma once

// The whole way of a detection request on a drawing from bytes, with what has to hold of every answer.

#include <functional>

#include "tests/fuzz/Bytes.h"

namespace fuzz {

/// Runs every pass of a driver, and of the region nodes that it fills. `aBetween` is called between every two calls:
/// it may change settings. `aSteady` says that it changes nothing, so that more has to hold.
void RunDetection(const GeometryEngine::TEntityArray& aDrawing, std::int32_t aRegionType, bool aSteady,
                  const std::function<void()>& aBetween);

}  // namespace fuzz

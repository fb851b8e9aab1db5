#pragma once

// Two questions about regions that need neither their entities nor their tree.

#include <cstdint>
#include <span>
#include <string_view>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// True when the host's machine-type selector is 6 and the name contains "RotorPole", in exactly these letters.
GEOMETRYENGINE_API bool IsSYNCRotorWinding_Region(std::string_view aRegionName);

/// True when the index is in the list of merged regions.
GEOMETRYENGINE_API bool RegionMerged(std::int32_t aRegionIndex, std::span<const std::int32_t> aMergedRegions);

}  // namespace GeometryEngine

#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API bool IsSYNCRotorWinding_Region(std::string_view aRegionName);
GEOMETRYENGINE_API bool RegionMerged(std::int32_t aRegionIndex, std::span<const std::int32_t> aMergedRegions);

}  // namespace GeometryEngine

#pragma once

// Division of a machine's axial length into blocks.
//
// A host that runs with floating-point traps holds a TFloatEnvironment round these.

#include <cstdint>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TAxialBlock.h"

namespace GeometryEngine {

/// The length from `aStart` cut by `aCount` gaps into aCount + 1 equal blocks, in axial order, none of them shifted by
/// an angle.
/// DEGENERATE: one block over the whole length when there are no gaps or when they leave nothing of it, gaps that are
/// exactly as long as the length included.
GEOMETRYENGINE_API TAxialBlockArray GetAxialBlocks(double aStart, double aLength, std::int32_t aCount, double aGap);

}  // namespace GeometryEngine

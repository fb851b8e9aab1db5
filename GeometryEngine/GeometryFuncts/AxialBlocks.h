#pragma once

#include <cstdint>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Definitions/TAxialBlock.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TAxialBlockArray GetAxialBlocks(double aStart, double aLength, std::int32_t aCount, double aGap);

}  // namespace GeometryEngine

#pragma once

#include <cstdint>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TMachineLocation.h"

namespace GeometryEngine {

GEOMETRYENGINE_API std::int32_t GetDuplicationNumber_Regions(TMachineLocation aLocation);

}  // namespace GeometryEngine

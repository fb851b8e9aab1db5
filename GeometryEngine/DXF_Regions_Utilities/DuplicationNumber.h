#pragma once

// How often a machine part is repeated round the axis, as the host's settings say.

#include <cstdint>

#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TMachineLocation.h"

namespace GeometryEngine {

/// The host's duplication number for parts at this location; which setting holds it depends on the machine-type
/// selector too.
/// On purpose: for machine type 4 the two locations read each other's setting; hosts fill the settings of that type
/// accordingly.
/// DEGENERATE: 1 for every location without a setting of its own. A setting that is no whole number is cut towards
/// zero, a not-a-number one gives 0.
GEOMETRYENGINE_API std::int32_t GetDuplicationNumber_Regions(TMachineLocation aLocation);

}  // namespace GeometryEngine

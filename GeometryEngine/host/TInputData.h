#pragma once

#include <cstdint>

#include "GeometryEngine/Export.h"

namespace Kelvaralinks {

/// The host's input-data record; the geometry reads one byte of it.
struct TInputData {
  std::uint8_t MachineType = 0;  ///< machine-type selector; 1, 4, 6 and 8 change rules of the library
};

GEOMETRYENGINE_API extern TInputData InputData;

}  // namespace Kelvaralinks

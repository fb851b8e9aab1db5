#pragma once

// The host's input-data record. Numbered settings are in TDataStore.h.

#include <cstdint>

#include "GeometryEngine/Export.h"

namespace Kelvaralinks {

/// What the geometry reads of the host's input data: one byte.
struct TInputData {
  std::uint8_t MachineType = 0;  ///< machine-type selector; 1, 4, 6 and 8 change rules of the library
};

/// The one record of the process.
GEOMETRYENGINE_API extern TInputData InputData;

}  // namespace Kelvaralinks

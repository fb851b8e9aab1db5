#pragma once

#include <cstdint>

namespace Maindataenum {

/// Input fields of the host's data store, by number. Only the fields that the geometry reads have a name here; starting
/// values are in StartingValues.h.
enum class TInputFields : std::uint16_t {
  ifSlotDuplications = 1554,    ///< duplication number of a machine part
  ifPoleDuplications = 1559,    ///< duplication number of a machine part
  ifBarDuplications = 1639,     ///< duplication number of a machine part
  ifLinearTolerance = 6525,     ///< linear drawing tolerance, drawing length units
  ifSnappingMode = 6526,        ///< coordinate snapping mode: 1, 0, or any other value for neither
  ifAngleTolerance = 6527,      ///< angle tolerance, degrees
  ifMinimumLabelArea = 6528,    ///< regions of a greater area have their label point placed
  ifArcResolution = 6529,       ///< chord segments per 10 degrees of arc, at least 3
  ifUniqueRegionNames = 12096,  ///< 1 switches unique region names on
};

}  // namespace Maindataenum

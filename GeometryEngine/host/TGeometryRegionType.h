#pragma once

#include <cstdint>
#include <string_view>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// Kinds of region, ordinals 0 to 60. Ordinals on which a rule of the library rests have a name.
enum class TGeometryRegionType : std::uint8_t {
  rtLaminationStator = 0,
  rtAirGap = 2,
  rtWedge = 6,
  rtConductor = 9,
  rtImpregnation = 16,
  rtLiner = 17,
  rtCoilDivider = 18,
  rtSlotOpening = 19,
  rtLaminationRotor = 20,
  rtRotorBar = 22,
  rtMagnetPocket = 33,
  rtSurrounding = 35,
  rtCoolingDuct = 45,
  rtComposite = 57,
  rtCompositeEmpty = 58,
  rtUndefined = 60,
};
using enum TGeometryRegionType;

inline constexpr std::uint8_t kLastRegionType = 60;

/// The display name of a region type; empty above ordinal 60.
GEOMETRYENGINE_API std::string_view GetRegionTypeString(TGeometryRegionType aType);

}  // namespace GeometryEngine

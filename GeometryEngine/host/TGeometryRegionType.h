#pragma once

#include <cstdint>
#include <string_view>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// Kinds of region of a machine's cross-section, ordinals 0 to 60. Where a rule of the library rests on a kind, the
/// note beside it says which; the others only carry their name.
enum class TGeometryRegionType : std::uint8_t {
  rtLaminationStator = 0,  ///< shown as "Lamination" in three dimensions
  rtStatorBackIron = 1,
  rtAirGap = 2,  ///< never given a unique name
  rtStatorAir = 3,
  rtStatorSlot = 4,
  rtStatorTooth = 5,
  rtWedge = 6,  ///< keeps its plain name in finite-element models
  rtStatorDuct = 7,
  rtWinding = 8,
  rtConductor = 9,  ///< found by conductor name
  rtConductorInsulation = 10,
  rtConductorStrand = 11,
  rtEndWinding = 12,
  rtPhaseSeparator = 13,
  rtPottingCompound = 14,
  rtGroundInsulation = 15,
  rtImpregnation = 16,     ///< keeps its plain name in finite-element models
  rtLiner = 17,            ///< keeps its plain name in finite-element models
  rtCoilDivider = 18,      ///< keeps its plain name in finite-element models
  rtSlotOpening = 19,      ///< keeps its plain name in finite-element models
  rtLaminationRotor = 20,  ///< shown as "Lamination" in three dimensions
  rtRotorSlot = 21,
  rtRotorBar = 22,  ///< shown as "Bars", and left without a unique name, by machine type
  rtRotorBarOpening = 23,
  rtEndRing = 24,
  rtRotorTooth = 25,
  rtRotorWinding = 26,
  rtRotorConductor = 27,
  rtRotorLiner = 28,
  rtRotorWedge = 29,
  rtRotorAir = 30,
  rtMagnet = 31,
  rtMagnetCoating = 32,
  rtMagnetPocket = 33,  ///< keeps its plain name in finite-element models
  rtMagnetAdhesive = 34,
  rtSurrounding = 35,  ///< never given a unique name
  rtPoleCore = 36,
  rtPoleShoe = 37,
  rtPoleCoil = 38,
  rtDamperBar = 39,
  rtCommutatorSegment = 40,
  rtBrush = 41,
  rtFluxBarrier = 42,
  rtRotorBridge = 43,
  rtRotorDuct = 44,
  rtCoolingDuct = 45,  ///< keeps its plain name in finite-element models
  rtCoolant = 46,
  rtHousing = 47,
  rtHousingJacket = 48,
  rtShaft = 49,
  rtShaftBore = 50,
  rtBearing = 51,
  rtSleeve = 52,
  rtBandage = 53,
  rtBalancePlate = 54,
  rtEndShield = 55,
  rtSensor = 56,
  rtComposite = 57,       ///< stands for its mapped type too
  rtCompositeEmpty = 58,  ///< stands for its mapped type too; valid without entities
  rtUserDefined = 59,
  rtUndefined = 60,  ///< what a new region starts as
};
using enum TGeometryRegionType;

inline constexpr std::uint8_t kLastRegionType = 60;

/// The display name of a region type, unique among the types; empty above ordinal 60.
GEOMETRYENGINE_API std::string_view GetRegionTypeString(TGeometryRegionType aType);

}  // namespace GeometryEngine

#include "GeometryEngine/host/TGeometryRegionType.h"

#include <array>

namespace GeometryEngine {

namespace {
// In the order of the ordinals.
constexpr std::array<std::string_view, kLastRegionType + 1> kDisplayNames = {
    "Stator Lamination",
    "Stator Back Iron",
    "Air Gap",
    "Stator Air",
    "Stator Slot",
    "Stator Tooth",
    "Slot Wedge",
    "Stator Duct",
    "Winding",
    "Conductor",
    "Conductor Insulation",
    "Conductor Strand",
    "End Winding",
    "Phase Separator",
    "Potting Compound",
    "Ground Insulation",
    "Impregnation",
    "Slot Liner",
    "Coil Divider",
    "Slot Opening",
    "Rotor Lamination",
    "Rotor Slot",
    "Rotor Bar",
    "Rotor Bar Opening",
    "End Ring",
    "Rotor Tooth",
    "Rotor Winding",
    "Rotor Conductor",
    "Rotor Liner",
    "Rotor Wedge",
    "Rotor Air",
    "Magnet",
    "Magnet Coating",
    "Magnet Pocket",
    "Magnet Adhesive",
    "Surrounding",
    "Pole Core",
    "Pole Shoe",
    "Pole Coil",
    "Damper Bar",
    "Commutator Segment",
    "Brush",
    "Flux Barrier",
    "Rotor Bridge",
    "Rotor Duct",
    "Cooling Duct",
    "Coolant",
    "Housing",
    "Housing Jacket",
    "Shaft",
    "Shaft Bore",
    "Bearing",
    "Retaining Sleeve",
    "Bandage",
    "Balance Plate",
    "End Shield",
    "Sensor",
    "Composite",
    "Composite Without Outline",
    "User Defined",
    "Undefined",
};
}  // namespace

std::string_view GetRegionTypeString(TGeometryRegionType aType) {
  const auto ordinal = static_cast<std::uint8_t>(aType);
  return ordinal <= kLastRegionType ? kDisplayNames[ordinal] : std::string_view{};
}

}  // namespace GeometryEngine

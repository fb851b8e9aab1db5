#pragma once

#include <array>
#include <string_view>

namespace GeometryEngine {

/// Names of the hairpin regions of an armature slot.
/// KEPT: the letter L is absent and M is the twelfth entry; drawings of existing projects carry these names.
inline constexpr std::array<std::string_view, 12> kArmatureSlotRegion_Hairpin = {
    "ArmatureSlotA", "ArmatureSlotB", "ArmatureSlotC", "ArmatureSlotD", "ArmatureSlotE", "ArmatureSlotF",
    "ArmatureSlotG", "ArmatureSlotH", "ArmatureSlotI", "ArmatureSlotJ", "ArmatureSlotK", "ArmatureSlotM",
};

}  // namespace GeometryEngine

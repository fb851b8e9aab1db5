#pragma once

// Fixed region names that drawings and exports agree on. How a region gets its name is TTreeNode_CoreProperties.

#include <array>
#include <string_view>

namespace GeometryEngine {

/// Names of the hairpin regions of an armature slot, in the order of the conductors' layers.
/// KEPT: the letter L is absent and M is the twelfth entry; drawings of existing projects carry these names.
inline constexpr std::array<std::string_view, 12> kArmatureSlotRegion_Hairpin = {
    "ArmatureSlotA", "ArmatureSlotB", "ArmatureSlotC", "ArmatureSlotD", "ArmatureSlotE", "ArmatureSlotF",
    "ArmatureSlotG", "ArmatureSlotH", "ArmatureSlotI", "ArmatureSlotJ", "ArmatureSlotK", "ArmatureSlotM",
};

}  // namespace GeometryEngine

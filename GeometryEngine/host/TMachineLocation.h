#pragma once

#include <cstdint>

namespace GeometryEngine {

/// Where a machine part sits. The armature and the field each have a duplication number in the settings; every other
/// location stands for parts that occur once.
enum class TMachineLocation : std::uint8_t {
  mlNone = 0,
  mlShaft = 1,
  mlArmature = 2,
  mlField = 3,
};
using enum TMachineLocation;

}  // namespace GeometryEngine

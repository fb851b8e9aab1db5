#pragma once

#include <cstdint>

namespace GeometryEngine {

/// Where a machine part sits. Only the two values that select a duplication number have a name.
enum class TMachineLocation : std::uint8_t {
  mlNone = 0,
  mlShaft = 1,
  mlArmature = 2,
  mlField = 3,
};
using enum TMachineLocation;

}  // namespace GeometryEngine

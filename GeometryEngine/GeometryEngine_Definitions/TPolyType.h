#pragma once

#include <cstdint>
#include <string_view>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// What a region's outline is: a single point, an open chain, or a closed one.
enum class TPolyType : std::uint8_t { ptPoint = 0, ptPolyLine = 1, ptClosed = 2 };
using enum TPolyType;

inline namespace TPolyType_Helper {

/// The display name; empty for a value that is none of the three.
GEOMETRYENGINE_API std::string_view ToString(TPolyType aPolyType);

}  // namespace TPolyType_Helper

}  // namespace GeometryEngine

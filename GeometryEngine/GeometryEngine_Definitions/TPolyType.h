#pragma once

#include <cstdint>
#include <string_view>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

enum class TPolyType : std::uint8_t { ptPoint = 0, ptPolyLine = 1, ptClosed = 2 };
using enum TPolyType;

inline namespace TPolyType_Helper {
GEOMETRYENGINE_API std::string_view ToString(TPolyType aPolyType);
}  // namespace TPolyType_Helper

}  // namespace GeometryEngine

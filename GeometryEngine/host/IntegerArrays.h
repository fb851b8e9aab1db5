#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// A growable array of 32-bit integers.
using TIntegerArray = std::vector<std::int32_t>;

GEOMETRYENGINE_API bool GetIsElementInArray_Integer(std::span<const std::int32_t> aArray, std::int32_t aValue);
/// Removes the first element equal to `aValue`; nothing when there is none.
GEOMETRYENGINE_API void RemoveElementFromArray_Integer(TIntegerArray& aArray, std::int32_t aValue);

}  // namespace GeometryEngine

#pragma once

// Membership and removal on arrays of 32-bit integers. Arrays of coordinates and entities have helpers of their own in
// GeometryEngine_Arrays.

#include <cstdint>
#include <span>
#include <vector>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// A growable array of 32-bit integers.
using TIntegerArray = std::vector<std::int32_t>;

/// True when some element equals `aValue`; false for an empty array.
GEOMETRYENGINE_API bool GetIsElementInArray_Integer(std::span<const std::int32_t> aArray, std::int32_t aValue);

/// Removes the first element equal to `aValue` and keeps the order of the others; nothing when there is none.
GEOMETRYENGINE_API void RemoveElementFromArray_Integer(TIntegerArray& aArray, std::int32_t aValue);

}  // namespace GeometryEngine

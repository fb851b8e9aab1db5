#pragma once

#include <cstddef>
#include <cstdint>

#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// Position in a container. Signed, so that "not found" has a value of its own.
using TIndex = std::int32_t;

/// What every search answers that finds nothing.
inline constexpr TIndex kNotFound = -1;

/// The one place where a container size becomes an index; sizes above the range saturate.
constexpr TIndex ToIndex(std::size_t aSize) {
  return aSize > static_cast<std::size_t>(INT32_MAX) ? INT32_MAX : static_cast<TIndex>(aSize);
}

/// True when `aIndex` addresses an element of a container of `aSize` elements.
constexpr bool IsIndexWithin(TIndex aIndex, std::size_t aSize) {
  return aIndex >= 0 && static_cast<std::size_t>(aIndex) < aSize;
}

}  // namespace GeometryEngine

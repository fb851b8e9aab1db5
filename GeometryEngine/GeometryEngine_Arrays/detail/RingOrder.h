#pragma once

// Neighbours in an array that is read as a closed ring: after the last element comes the first, before the first the
// last. The one home of that rule for coordinates and entities. Private: hosts use the array helpers.

#include <cstddef>
#include <limits>
#include <span>

#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// The index after `aIndex`. An index outside the array is stepped all the same; only the step past the largest index
/// there is starts over at 0.
constexpr TIndex GetRingNext(TIndex aIndex, std::size_t aSize) {
  const bool starts_over = aIndex == ToIndex(aSize) - 1 || aIndex == std::numeric_limits<TIndex>::max();
  return starts_over ? 0 : aIndex + 1;
}

/// The index before `aIndex`; `kNotFound` for a negative one.
constexpr TIndex GetRingPrevious(TIndex aIndex, std::size_t aSize) {
  if (aIndex < 0) return kNotFound;
  return aIndex == 0 ? ToIndex(aSize) - 1 : aIndex - 1;
}

/// The element, or a fresh one when the index addresses none.
template <typename TElement>
TElement GetElementOrEmpty(std::span<const TElement> aElements, TIndex aIndex) {
  return IsIndexWithin(aIndex, aElements.size()) ? aElements[static_cast<std::size_t>(aIndex)] : TElement{};
}

/// Index of the first element that equals `aElement` by the element's own equality, else `kNotFound`.
template <typename TElement>
TIndex GetFirstEqual(std::span<const TElement> aElements, const TElement& aElement) {
  for (std::size_t i = 0; i < aElements.size(); ++i) {
    if (aElements[i] == aElement) return ToIndex(i);
  }
  return kNotFound;
}

}  // namespace GeometryEngine::detail

#include "GeometryEngine/host/IntegerArrays.h"

#include <algorithm>

namespace GeometryEngine {

bool GetIsElementInArray_Integer(std::span<const std::int32_t> aArray, std::int32_t aValue) {
  return std::ranges::find(aArray, aValue) != aArray.end();
}

void RemoveElementFromArray_Integer(TIntegerArray& aArray, std::int32_t aValue) {
  const auto found = std::ranges::find(aArray, aValue);
  if (found != aArray.end()) aArray.erase(found);
}

}  // namespace GeometryEngine

#include "GeometryEngine/GeometryEngine_Arrays/Coordinate3DArrays.h"

#include "GeometryEngine/GeometryEngine_Arrays/detail/RingOrder.h"

namespace GeometryEngine {

inline namespace TCoordinate_3D_Array_Helper {

void AddCoordinate_3D(TCoordinate_3D_Array& aCoordinates, const TCoordinate_3D& aCoordinate_3D) {
  aCoordinates.push_back(aCoordinate_3D);
}

TIndex IndexOf(std::span<const TCoordinate_3D> aCoordinates, const TCoordinate_3D& aCoordinate) {
  return detail::GetFirstEqual(aCoordinates, aCoordinate);
}

bool Contains(std::span<const TCoordinate_3D> aCoordinates, const TCoordinate_3D& aCoordinate) {
  return IndexOf(aCoordinates, aCoordinate) != kNotFound;
}

}  // namespace TCoordinate_3D_Array_Helper

}  // namespace GeometryEngine

#include "GeometryEngine/GeometryEngine_Arrays/CoordinateArrays.h"

#include <algorithm>
#include <utility>

#include "GeometryEngine/GeometryEngine_Arrays/detail/RingOrder.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"

namespace GeometryEngine {

inline namespace TCoordinateArray_Helper {

void AddCoordinate(TCoordinateArray& aCoordinates, const TEntityCoordinate& aCoordinate) {
  aCoordinates.push_back(aCoordinate);
}

TIndex IndexOf(std::span<const TEntityCoordinate> aCoordinates, const TEntityCoordinate& aCoordinate) {
  return detail::GetFirstEqual(aCoordinates, aCoordinate);
}

bool Contains(std::span<const TEntityCoordinate> aCoordinates, const TEntityCoordinate& aCoordinate) {
  return IndexOf(aCoordinates, aCoordinate) != kNotFound;
}

TIndex GetCoordinateIndex_Next(std::span<const TEntityCoordinate> aCoordinates, TIndex aIndex) {
  return detail::GetRingNext(aIndex, aCoordinates.size());
}

TEntityCoordinate GetCoordinate_Next(std::span<const TEntityCoordinate> aCoordinates, TIndex aIndex) {
  return detail::GetElementOrEmpty(aCoordinates, GetCoordinateIndex_Next(aCoordinates, aIndex));
}

TEntityCoordinate GetCoordinate_Next(std::span<const TEntityCoordinate> aCoordinates,
                                     const TEntityCoordinate& aCoordinate) {
  const TIndex index = IndexOf(aCoordinates, aCoordinate);
  return index == kNotFound ? TEntityCoordinate{} : GetCoordinate_Next(aCoordinates, index);
}

TEntityCoordinate GetCoordinate_Previous(std::span<const TEntityCoordinate> aCoordinates,
                                         const TEntityCoordinate& aCoordinate) {
  const TIndex index = IndexOf(aCoordinates, aCoordinate);
  return detail::GetElementOrEmpty(aCoordinates, detail::GetRingPrevious(index, aCoordinates.size()));
}

void CopyArray(TCoordinateArray& aCoordinates, std::span<const TEntityCoordinate> aArray) {
  // Built aside first: aArray may be a view of aCoordinates itself.
  TCoordinateArray copy(aArray.begin(), aArray.end());
  aCoordinates = std::move(copy);
}

void Rotate(TCoordinateArray& aCoordinates, const TRotationMatrix& aRotationMatrix) {
  for (TEntityCoordinate& coordinate : aCoordinates) coordinate = RotateByAngle_Matrix(aRotationMatrix, coordinate);
}

void Rotate_AboutPoint(TCoordinateArray& aCoordinates, const TRotationMatrix& aRotationMatrix,
                       const TEntityCoordinate& aPoint) {
  // aPoint may be one of the elements: it turns about itself and stays where it is.
  for (TEntityCoordinate& coordinate : aCoordinates) {
    coordinate = RotateByAngle_AboutPoint_Matrix(aRotationMatrix, aPoint, coordinate);
  }
}

void Mirror(TCoordinateArray& aCoordinates, const TDXFEntity& aMirrorLine) {
  for (TEntityCoordinate& coordinate : aCoordinates) coordinate = MirrorPoint_AboutLine(coordinate, aMirrorLine);
}

void Translate(TCoordinateArray& aCoordinates, double xDistance, double yDistance) {
  const TEntityCoordinate distance{xDistance, yDistance};
  for (TEntityCoordinate& coordinate : aCoordinates) coordinate = coordinate + distance;
}

}  // namespace TCoordinateArray_Helper

void AddCoordinateToArray(TCoordinateArray& aArray, const TEntityCoordinate& aCoordinate) {
  AddCoordinate(aArray, aCoordinate);
}

void RemoveCoordinateFromArray(TCoordinateArray& aArray, TIndex aIndex) {
  if (IsIndexWithin(aIndex, aArray.size())) aArray.erase(aArray.begin() + aIndex);
}

bool IsCoordinateInArray(std::span<const TEntityCoordinate> aArray, const TEntityCoordinate& aCoordinate) {
  return std::count(aArray.begin(), aArray.end(), aCoordinate) > 0;
}

}  // namespace GeometryEngine

#include "GeometryEngine/DXF_SweepLine_Utilities/TInterceptionPoints.h"

#include <algorithm>

#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"

namespace GeometryEngine {

void TInterceptionPoints::AddUnique(const TEntityCoordinate& aPoint) {
  if (std::find(fPoints.begin(), fPoints.end(), aPoint) == fPoints.end()) fPoints.push_back(aPoint);
}

void TInterceptionPoints::RemoveNotTouching(const TDXFEntity& aArc) {
  std::erase_if(fPoints, [&](const TEntityCoordinate& aPoint) { return !PointTouchingArc(aArc, aPoint); });
}

void TInterceptionPoints::Clear() {
  fPoints.clear();
}

bool TInterceptionPoints::IsEmpty() const {
  return fPoints.empty();
}

TIndex TInterceptionPoints::GetCount() const {
  return ToIndex(fPoints.size());
}

TEntityCoordinate TInterceptionPoints::GetPoint(TIndex aIndex) const {
  if (!IsIndexWithin(aIndex, fPoints.size())) return {};
  return fPoints[static_cast<std::size_t>(aIndex)];
}

const TCoordinateArray& TInterceptionPoints::Points() const {
  return fPoints;
}

}  // namespace GeometryEngine

#include "GeometryEngine/DXF_Regions_TreeClasses/TDetectedRegion_Toroid.h"

namespace GeometryEngine {

namespace {

double AreaOf(const TDetectedRegion_Toroid& aRegion) {
  return aRegion.DetectedTreeNode == nullptr ? 0.0 : aRegion.DetectedTreeNode->GaussArea();
}

}  // namespace

std::int32_t TTreeNodeComparer_Area::Compare(const TDetectedRegion_Toroid& aLeft,
                                             const TDetectedRegion_Toroid& aRight) const {
  const double difference = AreaOf(aLeft) - AreaOf(aRight);
  if (difference > 0) return -1;
  return difference < 0 ? 1 : 0;
}

}  // namespace GeometryEngine

#pragma once

// Detected regions in the order of their signed areas, for hosts that build toroid-shaped regions from them.

#include <cstdint>

#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

/// A region node and whether the host has used it already.
struct TDetectedRegion_Toroid {
  TTreeNode* DetectedTreeNode = nullptr;  ///< a region of a region tree, not owned
  bool UsedInToroid = false;
};

/// Orders detected regions by signed area, the largest first. There is no tolerance and no further criterion: regions
/// of equal area compare equal, and a clockwise loop stands behind every anticlockwise one.
///
///   std::ranges::stable_sort(regions, [](const auto& left, const auto& right) {
///     return TTreeNodeComparer_Area{}.Compare(left, right) < 0;
///   });
///
/// REQUIRES: areas that are numbers, for a sort; one that is not a number compares equal to everything.
class GEOMETRYENGINE_API TTreeNodeComparer_Area {
 public:
  /// -1 when the left area is larger, 1 when it is smaller, 0 otherwise. DEGENERATE: a record without a node has area
  /// 0.
  std::int32_t Compare(const TDetectedRegion_Toroid& aLeft, const TDetectedRegion_Toroid& aRight) const;
};

}  // namespace GeometryEngine

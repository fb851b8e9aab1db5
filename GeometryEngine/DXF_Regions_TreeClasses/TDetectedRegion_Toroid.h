#pragma once

#include <cstdint>

#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

struct TDetectedRegion_Toroid {
  TTreeNode* DetectedTreeNode = nullptr;  ///< not owned
  bool UsedInToroid = false;
};

/// Orders detected regions by signed area, largest first.
class GEOMETRYENGINE_API TTreeNodeComparer_Area {
 public:
  /// -1 when the left area is larger, 1 when it is smaller, 0 otherwise.
  std::int32_t Compare(const TDetectedRegion_Toroid& aLeft, const TDetectedRegion_Toroid& aRight) const;
};

}  // namespace GeometryEngine

#pragma once

// A host's whole detection request in one call, for tests that compare what comes out of it.

#include <cstddef>
#include <optional>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"

namespace GeometryEngine::support {

struct DetectedRegion {
  double baseArea = 0;
  double netArea = 0;
  TEntityCoordinate centroid;
  TEntityCoordinate label;
  std::size_t entities = 0;
  double perimeter = 0;               ///< of the outline
  std::optional<std::size_t> parent;  ///< position in the same list
};

/// The bounded faces of a drawing, nested, with net areas and label points.
std::vector<DetectedRegion> DetectRegions(const TEntityArray& aEntities);

/// The same with a driver and a storage of the caller's, which may have been used before.
std::vector<DetectedRegion> DetectRegions(TEntityBaseClass& aDriver, TEntityStorage& aStorage);

}  // namespace GeometryEngine::support

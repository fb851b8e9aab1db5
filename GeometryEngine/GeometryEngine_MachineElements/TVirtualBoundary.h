#pragma once

#include <cstdint>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine {

/// Which of an element's two boundaries.
enum class TBoundaryLocation : std::uint8_t { blInnerBoundary = 0, blOuterBoundary = 1 };
using enum TBoundaryLocation;

/// A line or an arc that bounds a machine element without being drawn.
struct TVirtualBoundary {
  bool Enabled = false;  ///< the boundary is in use
  TDXFEntity BoundaryEntity;
};

using TVirtualBoundaryArray = std::vector<TVirtualBoundary>;

}  // namespace GeometryEngine

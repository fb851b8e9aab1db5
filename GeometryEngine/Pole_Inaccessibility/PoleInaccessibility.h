#pragma once

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"

namespace GeometryEngine {

/// (0, 0) for a nil node.
GEOMETRYENGINE_API TEntityCoordinate GetPoleInaccessibility(TTreeNode_Geometry* aRegion, double aPrecision,
                                                            double aMinimumDistance);

}  // namespace GeometryEngine

#pragma once

// The pole of inaccessibility of a region of the geometry tree. The search itself, over chains, is PoleSearch.h.

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"

namespace GeometryEngine {

/// A point well inside the material of `aRegion`, clear of its internal chain and of its children: see
/// FindPoleInaccessibility for the two lengths and for what happens to regions that offer no such point. The bounds of
/// the region's outline are recomputed; nothing else of it changes.
/// `TTreeNode_Geometry::UpdateRegionCoordinate` asks for it with 1.0 and 0.001.
/// DEGENERATE: (0, 0) for a nil node.
GEOMETRYENGINE_API TEntityCoordinate GetPoleInaccessibility(TTreeNode_Geometry* aRegion, double aPrecision,
                                                            double aMinimumDistance);

}  // namespace GeometryEngine

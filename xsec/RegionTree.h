#pragma once

// The hand-over to the library's geometry tree, which names the regions and gives their areas, centroids and labels.

#include <span>
#include <vector>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "xsec/Nesting.h"
#include "xsec/Regions.h"

namespace xsec {

/// Takes each face of the driver into a node of a geometry tree, nested as the regions' parents say, and fills in what
/// the nodes answer: unique name, type, areas, centroid and label point. Name and parent must stand already.
/// REQUIRES: as many regions as faces, in the same order.
void FillFromGeometryTree(GeometryEngine::TEntityBaseClass& aDriver, std::span<const TracedLoop> aFaces,
                          std::vector<Region>& aRegions);

}  // namespace xsec

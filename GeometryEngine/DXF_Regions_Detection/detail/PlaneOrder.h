#pragma once

// Points in an order in which those near each other in the plane are near each other in memory. Private.

#include <span>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// The place of each point in that order: cell by cell along a Z-shaped curve over the drawing, as they come within a
/// cell.
/// SOURCE: G. M. Morton, "A computer oriented geodetic data base and a new technique in file sequencing", IBM 1966.
/// DEGENERATE: points that are not finite, or in a drawing that is not, have their places too.
/// COST: proportional to the points.
std::vector<TIndex> GetPlaneOrder(std::span<const TEntityCoordinate> aPoints);

}  // namespace GeometryEngine::detail

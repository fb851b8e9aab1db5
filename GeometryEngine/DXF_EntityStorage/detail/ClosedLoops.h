#pragma once

#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::detail {

/// Puts pieces that make closed loops in order, loop by loop: each loop starts with the first piece that is left,
/// walked from its start, and goes on with the first piece that touches. Empty when some piece belongs to no closed
/// loop. COST: in proportion to the pieces, as long as few meet in one place.
std::vector<TEntityArray> OrderIntoClosedLoops(TEntityArray aPieces);

}  // namespace GeometryEngine::detail

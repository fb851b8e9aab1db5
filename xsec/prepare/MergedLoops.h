#pragma once

// Outlines as they were drawn.

#include <vector>

#include "xsec/Regions.h"

namespace xsec {

/// Joins consecutive pieces of one entity in the outlines and holes, whoever cut them, and wherever others meet them. A
/// joined piece bears the lowest index of its parts.
void MergePieces(std::vector<Region>& aRegions);

}  // namespace xsec

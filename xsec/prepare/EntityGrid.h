#pragma once

// Which lines and arcs come close to each other, found without looking at all pairs.

#include <vector>

#include "xsec/prepare/Preparation.h"

namespace xsec {

/// Every pair of parts that may be within the reach of each other, in ascending order; some are not.
/// COST: linear in the parts where they are spread evenly; pairs within a cell of a grid that follows the curves.
std::vector<PartPair> NearPairs(const std::vector<Part>& aParts, double aReach);

}  // namespace xsec

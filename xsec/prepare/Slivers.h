#pragma once

// Regions too small or too thin to be meant, and how they become part of a neighbour.

#include <cstddef>
#include <vector>

#include "xsec/Regions.h"

namespace xsec {

/// Smaller than the area, or thinner on average than the tolerance.
bool IsSliver(const Region& aRegion, double aArea, double aTolerance);

/// The pieces, by their indexes, to leave out so that each sliver joins the neighbour that it shares most of its
/// outline with, smallest first; of slivers that lie side by side only one, the others have to wait for another
/// detection. Each is added to the cures. Slivers without a neighbour stay.
std::vector<std::size_t> PiecesRoundSlivers(const std::vector<Region>& aRegions, std::vector<Cure>& aCures);

}  // namespace xsec

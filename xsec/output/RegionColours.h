#pragma once

// Fill colours for a picture of the regions.

#include <cstddef>
#include <string>
#include <vector>

#include "xsec/Regions.h"

namespace xsec {

/// Regions of one name and one size, such as the magnets of a rotor: they share a colour.
struct RegionKind {
  std::string name;
  double netArea = 0;  ///< of its first region
  std::vector<std::size_t> regions;
};

/// The kinds in the order of their names and then of their areas, largest first, so that the same drawing always gives
/// the same colours.
std::vector<RegionKind> GroupRegions(const std::vector<Region>& aRegions);

/// The colour of the kind at this place, as "#rrggbb". What lies deeper is darker.
std::string FillColour(std::size_t aKind, std::size_t aDepth);

}  // namespace xsec

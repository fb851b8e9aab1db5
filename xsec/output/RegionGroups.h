#pragma once

// Regions that bear one name, type or material, and what they come to together.

#include <cstddef>
#include <string>
#include <vector>

#include "xsec/Regions.h"

namespace xsec {

struct RegionGroup {
  std::string name;
  std::vector<std::size_t> regions;
  double netArea = 0;  ///< UNITS: mm2, of the regions as drawn
};

/// The groups in the order of their first regions.
std::vector<RegionGroup> GroupByName(const std::vector<Region>& aRegions);
std::vector<RegionGroup> GroupByType(const std::vector<Region>& aRegions);
/// Regions without a material make no group.
std::vector<RegionGroup> GroupByMaterial(const std::vector<Region>& aRegions);

}  // namespace xsec

#pragma once

// What has changed between the regions of two drawings, as their JSON files have them.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "xsec/TravelledPiece.h"

namespace xsec {

/// A region as far as a comparison looks at it.
struct FoundRegion {
  std::size_t id = 0;
  std::string name;
  std::string uniqueName;
  double baseArea = 0;
  double netArea = 0;
  Point centroid;
};

struct FoundRegions {
  double tolerance = 0;  ///< UNITS: millimetres
  std::vector<FoundRegion> regions;
};

/// Reads what JsonText wrote. Throws InputError when it is something else.
FoundRegions ParseRegions(std::string_view aText, const std::string& aPath);
FoundRegions LoadRegions(const std::string& aPath);

struct RegionChange {
  enum class Kind { Removed, Added, Changed };
  Kind kind;
  std::optional<FoundRegion> before;
  std::optional<FoundRegion> after;
};

/// Regions are the same when centroid, areas and name are: places within aTolerance, areas within that along a square's
/// sides. What is left is paired by name: first with the nearest of that name that overlaps it, as far as the sizes can
/// tell, then with one of the same area. Pairs are changed, the rest removed or added.
/// COST: the regions times those that bear the same name, for what has changed; near-linear for what has not.
std::vector<RegionChange> CompareRegions(const FoundRegions& aBefore, const FoundRegions& aAfter, double aTolerance);

/// One line for people.
std::string LineOf(const RegionChange& aChange, double aTolerance);

}  // namespace xsec

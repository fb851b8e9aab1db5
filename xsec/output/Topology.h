#pragma once

// The regions as points, curves and loops that share them: what a mesher wants. Each curve stands once, however many
// regions lie beside it, and ends where another curve meets it.

#include <cstddef>
#include <vector>

#include "xsec/Regions.h"
#include "xsec/output/CurveLoops.h"

namespace xsec {

struct Topology {
  std::vector<Point> points;
  std::vector<Curve> curves;
  std::vector<RegionLoops> regions;  ///< one for each region, in their order
};

/// Curves with the same region on both sides are left out: they bound nothing. A loop that comes back to one of its own
/// points before its end is parted there, so that every loop is simple; what is no part of the outline then is a hole.
/// Arcs longer than aLongestArc (degrees) are cut into equal parts. Points along a curve closer to it than aTolerance
/// cut it.
Topology BuildTopology(const std::vector<Region>& aRegions, double aTolerance, double aLongestArc);

}  // namespace xsec

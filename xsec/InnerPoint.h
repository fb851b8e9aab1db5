#pragma once

// Points inside a region: the test whether a point is one, and the search for one along scan lines. Both go over true
// arcs and owe nothing to the library, so that they can judge its label points.

#include <cstddef>
#include <optional>
#include <vector>

#include "xsec/TravelledPiece.h"

namespace xsec {

/// The space of a region as loops: within the first and outside all others. Refers to the loops, owns none.
struct RegionSpace {
  const Loop* outline;
  std::vector<const Loop*> holes;
};

struct InnerPoint {
  Point point;
  double clearance = 0;  ///< to the nearest loop
};

bool IsInside(const RegionSpace& aSpace, const Point& aPoint);
double Clearance(const RegionSpace& aSpace, const Point& aPoint);

/// The middles of the widest stretches inside the space along so many horizontal lines.
std::vector<Point> FindInnerPoints(const RegionSpace& aSpace, std::size_t aHeights);

/// The one of these with the most clearance.
/// DEGENERATE: nothing when no line finds a stretch of some width, as in a sliver.
std::optional<InnerPoint> FindInnerPoint(const RegionSpace& aSpace, std::size_t aHeights);

}  // namespace xsec

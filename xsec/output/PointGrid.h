#pragma once

// Points by number, and a grid that finds those in a box.

#include <cstddef>
#include <map>
#include <utility>
#include <vector>

#include "xsec/CellGrid.h"
#include "xsec/TravelledPiece.h"

namespace xsec {

/// Numbers points in the order of their first mention. Points are the same when their coordinates are.
class PointNumbers {
 public:
  std::size_t Number(const Point& aPoint);
  const std::vector<Point>& Points() const { return fPoints; }

 private:
  std::map<std::pair<double, double>, std::size_t> fNumbers;
  std::vector<Point> fPoints;
};

/// COST: about one point a cell.
class PointGrid {
 public:
  /// The points must outlive the grid.
  explicit PointGrid(const std::vector<Point>& aPoints);

  /// Indexes of the points in the box, ascending.
  std::vector<std::size_t> Find(const Extents& aBox) const;

  /// Indexes of the points closer to the piece than a distance, ascending.
  /// COST: the cells along the piece, not those of its box.
  std::vector<std::size_t> FindAlong(const TravelledPiece& aPiece, double aDistance) const;

 private:
  const std::vector<Point>& fPoints;
  CellGrid fGrid;
};

}  // namespace xsec

#pragma once

// Which of many boxes hold a point.

#include <cstddef>
#include <cstdint>
#include <map>
#include <unordered_map>
#include <vector>

#include "xsec/TravelledPiece.h"

namespace xsec {

/// Grids of cells of doubling size; a box stands in the grid whose cells are about as large as it is, so that small
/// boxes are not looked at far from where they are, and large ones do not fill many cells.
class BoxIndex {
 public:
  explicit BoxIndex(const std::vector<Extents>& aBoxes);

  /// Indexes of the boxes that hold the point, in no order that means anything.
  /// COST: a cell for each size of boxes that occurs, and the boxes in them.
  std::vector<std::size_t> Find(const Point& aPoint) const;

 private:
  struct Cell {
    std::int64_t column;
    std::int64_t row;
    auto operator<=>(const Cell&) const = default;
  };
  struct CellHash {
    std::size_t operator()(const Cell& aCell) const;
  };
  using Grid = std::unordered_map<Cell, std::vector<std::size_t>, CellHash>;

  static Cell CellOf(const Point& aPoint, int aLevel);
  void Insert(std::size_t aIndex);

  std::vector<Extents> fBoxes;
  std::map<int, Grid> fGrids;  // by the binary logarithm of the cells' side
};

}  // namespace xsec

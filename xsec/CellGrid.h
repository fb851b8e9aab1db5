#pragma once

// Things by the place where they lie: a grid of about square cells over a box, about as many as there are things.

#include <cstddef>
#include <vector>

#include "xsec/TravelledPiece.h"

namespace xsec {

/// What lies outside the box belongs to the outermost cells.
class CellGrid {
 public:
  CellGrid(const Extents& aBox, std::size_t aThings);

  /// Puts a thing into the cells that the box touches. REQUIRES: things come in ascending order of their numbers.
  void Add(const Extents& aBox, std::size_t aNumber);

  /// Boxes that hold a piece, each about as large as a cell, so that they touch few cells beside it.
  std::vector<Extents> BoxesAlong(const TravelledPiece& aPiece) const;

  /// Calls `take` with the number of every thing in the cells that the box touches, once for each of these cells that
  /// the thing stands in.
  template <typename Take>
  void Visit(const Extents& aBox, Take&& aTake) const {
    for (std::size_t row = Row(aBox.minY); row <= Row(aBox.maxY); ++row) {
      for (std::size_t column = Column(aBox.minX); column <= Column(aBox.maxX); ++column) {
        for (const std::size_t number : fCells[row * fColumns + column]) aTake(number);
      }
    }
  }

 private:
  std::size_t Column(double aX) const;
  std::size_t Row(double aY) const;

  Extents fBox;
  std::size_t fColumns;
  std::size_t fRows;
  std::vector<std::vector<std::size_t>> fCells;  ///< numbers, ascending
};

}  // namespace xsec

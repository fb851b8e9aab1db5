#pragma once

// Points by the place where they lie, found again under the tolerance.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "xsec/TravelledPiece.h"

namespace xsec {

/// Numbers of things that stand at points. Cells of eight times the reach, so that a point's neighbours within the
/// reach, along either axis, lie in at most four of them, and mostly in one.
class PointCells {
 public:
  /// Makes room for so many points; more may come.
  explicit PointCells(double aReach, std::size_t aCount = 0) : fReach(aReach), fSide(8 * aReach) {
    fThings.reserve(aCount);
    fCells.reserve(aCount);
  }

  void Add(const Point& aPoint, std::size_t aNumber) {
    const std::size_t added = fThings.size();
    fThings.push_back({aNumber, kNone});
    const auto [place, isNew] = fCells.try_emplace(Key(Cell(aPoint.x), Cell(aPoint.y)), Chain{added, added});
    if (isNew) return;
    fThings[place->second.last].next = added;
    place->second.last = added;
  }

  /// Calls `take` for the number of every thing that may be within the reach, until it answers true. Those of a cell
  /// come in the order in which they were added.
  template <typename Take>
  bool Visit(const Point& aPoint, Take&& take) const {
    for (std::int64_t r = Cell(aPoint.y - fReach); r <= Cell(aPoint.y + fReach); ++r) {
      for (std::int64_t c = Cell(aPoint.x - fReach); c <= Cell(aPoint.x + fReach); ++c) {
        const auto place = fCells.find(Key(c, r));
        if (place == fCells.end()) continue;
        for (std::size_t i = place->second.first; i != kNone; i = fThings[i].next) {
          if (take(fThings[i].number)) return true;
        }
      }
    }
    return false;
  }

 private:
  static constexpr double kLargestCell = 4e18;

  struct Thing {
    std::size_t number;
    std::size_t next;  ///< in the same cell
  };
  /// What stands in a cell, by its place among all things.
  struct Chain {
    std::size_t first;
    std::size_t last;
  };

  std::int64_t Cell(double value) const {
    const double cell = std::floor(value / fSide);
    return static_cast<std::int64_t>(std::fmin(std::fmax(cell, -kLargestCell), kLargestCell));
  }
  // Cells may share a key; whoever visits compares the points themselves.
  static std::uint64_t Key(std::int64_t column, std::int64_t row) {
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;
    return static_cast<std::uint64_t>(column) * kSpread + static_cast<std::uint64_t>(row);
  }

  double fReach;
  double fSide;
  std::vector<Thing> fThings;
  std::unordered_map<std::uint64_t, Chain> fCells;
};

}  // namespace xsec

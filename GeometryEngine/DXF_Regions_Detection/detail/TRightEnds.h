#pragma once

// Which of the entities that the sweep has reached ends first. Private.

#include <cstddef>
#include <vector>

#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// Entities by their right-most x, a heap with the left-most of these on top.
///
/// Which of two children goes up is chosen by their values, not by a branch: half of those would be foreseen wrongly.
/// COST: log n for a change.
class TRightEnds {
 public:
  bool IsEmpty() const { return fEnds.empty(); }
  /// REQUIRES: not empty, as below.
  double Least() const { return fEnds.front().fRight; }

  /// REQUIRES: a number.
  void Add(double aRight, TIndex aEntity) {
    fEnds.push_back({aRight, aEntity});
    Rise(fEnds.size() - 1);
  }

  /// Removes the one with the least x; any of them, where several have it.
  TIndex TakeLeast() {
    const TIndex entity = fEnds.front().fEntity;
    const TEnd last = fEnds.back();
    fEnds.pop_back();
    if (fEnds.empty()) return entity;
    const std::size_t gap = SinkGap();
    fEnds[gap] = last;
    Rise(gap);
    return entity;
  }

 private:
  struct TEnd {
    double fRight;
    TIndex fEntity;
  };

  /// Moves ends up from below a gap at the top until it is at the bottom; says where.
  std::size_t SinkGap() {
    std::size_t gap = 0;
    std::size_t child = 1;
    for (; child + 1 < fEnds.size(); child = 2 * gap + 1) {
      child += static_cast<std::size_t>(fEnds[child + 1].fRight < fEnds[child].fRight);
      fEnds[gap] = fEnds[child];
      gap = child;
    }
    if (child >= fEnds.size()) return gap;
    fEnds[gap] = fEnds[child];
    return child;
  }

  void Rise(std::size_t aPlace) {
    const TEnd end = fEnds[aPlace];
    std::size_t place = aPlace;
    for (; place > 0 && end.fRight < fEnds[(place - 1) / 2].fRight; place = (place - 1) / 2) {
      fEnds[place] = fEnds[(place - 1) / 2];
    }
    fEnds[place] = end;
  }

  std::vector<TEnd> fEnds;
};

}  // namespace GeometryEngine::detail

#pragma once

// Whether points lie inside an outline, for many points and long outlines.

#include <optional>

#include "xsec/BoxIndex.h"
#include "xsec/TravelledPiece.h"

namespace xsec {

/// Answers what IsInside of the loop answers, of the same crossings.
class OutlineIndex {
 public:
  /// The loop must outlive the index.
  explicit OutlineIndex(const Loop& aLoop);

  /// COST: the pieces at the height of the point, and a cell for each size of pieces.
  bool IsInside(const Point& aPoint) const;

 private:
  const Loop& fLoop;
  std::optional<BoxIndex> fHeights;  ///< pieces by the heights that they reach over; none when there are but a few
};

}  // namespace xsec

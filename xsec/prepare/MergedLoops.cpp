#include "xsec/prepare/MergedLoops.h"

#include <algorithm>

namespace xsec {

namespace {

/// Whether the second goes on where the first leads; a piece that is walked back over does not.
bool CanJoin(const TravelledPiece& a, const TravelledPiece& b) {
  if (a.source != b.source || a.source == kNone || a.isArc != b.isArc) return false;
  if (a.isArc) return (a.sweep < 0) == (b.sweep < 0);
  const Point first = a.to - a.from;
  const Point second = b.to - b.from;
  return first.x * second.x + first.y * second.y > 0;
}

void Join(TravelledPiece& piece, const TravelledPiece& next) {
  piece.to = next.to;
  piece.endAngle = next.endAngle;
  piece.sweep += next.sweep;
  piece.index = std::min(piece.index, next.index);
}

Loop Merged(const Loop& loop) {
  const std::size_t count = loop.size();
  std::size_t first = 0;
  while (first + 1 < count && CanJoin(loop[(first + count - 1) % count], loop[first])) ++first;
  Loop merged;
  for (std::size_t k = 0; k < count; ++k) {
    const TravelledPiece& piece = loop[(first + k) % count];
    if (!merged.empty() && CanJoin(merged.back(), piece)) {
      Join(merged.back(), piece);
    } else {
      merged.push_back(piece);
    }
  }
  return merged;
}

}  // namespace

void MergePieces(std::vector<Region>& aRegions) {
  for (Region& region : aRegions) {
    region.outline = Merged(region.outline);
    for (Loop& hole : region.holes) hole = Merged(hole);
  }
}

}  // namespace xsec

#include "xsec/prepare/MergedLoops.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace xsec {

namespace {

/// The points where two pieces meet and no third.
class PassedPoints {
 public:
  explicit PassedPoints(const Detection& detection) {
    for (const Region& region : detection.regions) {
      Add(region.outline);
      for (const Loop& hole : region.holes) Add(hole);
    }
    for (const OpenPiece& open : detection.diagnostics.openPieces) Add({open.piece});
  }

  bool Holds(const Point& point) const { return fPieces.at({point.x, point.y}).size() == 2; }

 private:
  void Add(const Loop& loop) {
    for (const TravelledPiece& piece : loop) {
      fPieces[{piece.from.x, piece.from.y}].insert(piece.index);
      fPieces[{piece.to.x, piece.to.y}].insert(piece.index);
    }
  }

  std::map<std::pair<double, double>, std::set<std::size_t>> fPieces;
};

/// Whether the second goes on where the first leads; a piece that is walked back over does not.
bool CanJoin(const TravelledPiece& a, const TravelledPiece& b, const PassedPoints& passed) {
  if (a.source != b.source || a.source == kNone || a.isArc != b.isArc || !passed.Holds(a.to)) return false;
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

Loop Merged(const Loop& loop, const PassedPoints& passed) {
  const std::size_t count = loop.size();
  std::size_t first = 0;
  while (first + 1 < count && CanJoin(loop[(first + count - 1) % count], loop[first], passed)) ++first;
  Loop merged;
  for (std::size_t k = 0; k < count; ++k) {
    const TravelledPiece& piece = loop[(first + k) % count];
    if (!merged.empty() && CanJoin(merged.back(), piece, passed)) {
      Join(merged.back(), piece);
    } else {
      merged.push_back(piece);
    }
  }
  return merged;
}

}  // namespace

void MergePieces(Detection& aDetection) {
  const PassedPoints passed(aDetection);
  for (Region& region : aDetection.regions) {
    region.outline = Merged(region.outline, passed);
    for (Loop& hole : region.holes) hole = Merged(hole, passed);
  }
}

}  // namespace xsec

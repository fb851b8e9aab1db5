#include "xsec/SourceLookup.h"

#include <algorithm>
#include <utility>

namespace xsec {

namespace {

/// A piece's middle may lie off its source by what its ends have moved: to a vertex, and to 0 from near it.
constexpr double kReachInTolerances = 4;

Extents BoxOf(const std::vector<TravelledPiece>& pieces) {
  Extents box = EmptyExtents();
  for (const TravelledPiece& piece : pieces) Widen(box, Bounds(piece));
  return box;
}

}  // namespace

SourceLookup::SourceLookup(std::vector<TravelledPiece> aSources)
    : fSources(std::move(aSources)), fGrid(BoxOf(fSources), fSources.size()) {
  for (std::size_t source = 0; source < fSources.size(); ++source) {
    for (const Extents& box : fGrid.BoxesAlong(fSources[source])) fGrid.Add(box, source);
  }
}

std::size_t SourceLookup::Find(const TravelledPiece& aPiece, double aTolerance) const {
  const Point middle = MidPoint(aPiece);
  const double reach = kReachInTolerances * aTolerance;
  std::pair best(reach, kNone);
  fGrid.Visit(Widened({middle.x, middle.y, middle.x, middle.y}, reach), [&](std::size_t source) {
    if (fSources[source].isArc != aPiece.isArc) return;
    best = std::min(best, std::pair(Distance(fSources[source], middle), source));
  });
  return best.second;
}

}  // namespace xsec

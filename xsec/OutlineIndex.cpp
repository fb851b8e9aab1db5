#include "xsec/OutlineIndex.h"

#include <vector>

namespace xsec {

namespace {

constexpr std::size_t kFewPieces = 64;
constexpr double kSlack = 1e-9;  // of what a piece reaches over: the tops of arcs are rounded

Extents HeightsOf(const TravelledPiece& piece) {
  const Extents box = Bounds(piece);
  const double slack = kSlack * Length(piece);
  return {0, box.minY - slack, 0, box.maxY + slack};
}

std::vector<Extents> HeightsOf(const Loop& loop) {
  std::vector<Extents> heights;
  for (const TravelledPiece& piece : loop) heights.push_back(HeightsOf(piece));
  return heights;
}

}  // namespace

OutlineIndex::OutlineIndex(const Loop& aLoop) : fLoop(aLoop) {
  if (aLoop.size() > kFewPieces) fHeights.emplace(HeightsOf(aLoop));
}

bool OutlineIndex::IsInside(const Point& aPoint) const {
  if (!fHeights) return xsec::IsInside(fLoop, aPoint);
  std::vector<double> crossings;
  for (const std::size_t piece : fHeights->Find({0, aPoint.y})) AddCrossings(fLoop[piece], aPoint.y, crossings);
  return xsec::IsInside(crossings, aPoint);
}

}  // namespace xsec

#include "GeometryEngine/Pole_Inaccessibility/detail/PoleSegments.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "GeometryEngine/GeometryEngine_Entity_Operations/detail/SegmentDistance.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

bool IsFinite(const TEntityCoordinate& aPoint) {
  return std::isfinite(aPoint.x) && std::isfinite(aPoint.y);
}

/// How many groups so many make, the last one full or not.
std::size_t CountGroups(std::size_t aCount) {
  return (aCount + kGroupSize - 1) / kGroupSize;
}

double GetLargest(const TEntityCoordinate& aPoint) {
  return std::max(std::abs(aPoint.x), std::abs(aPoint.y));
}

}  // namespace

TPoleSegments::TPoleSegments(std::span<const TEntityStorage* const> aChains) {
  for (const TEntityStorage* chain : aChains) {
    const bool isWhole = AddChain(*chain);
    if (!isWhole || chain != aChains.front()) continue;
    fFirstChain = fGroupBoxes.front();
    for (const TPlaneBox& box : fGroupBoxes) fFirstChain->Unite(box);
  }
  FillLastGroup();
  GroupBoxes();
}

/// False when the chain has no polyline, or not a whole one: a segment with an end that is not finite is left out. Its
/// distance from any point is infinite or not a number, which makes no other distance smaller.
bool TPoleSegments::AddChain(const TEntityStorage& aChain) {
  const TCoordinateArray vertices = aChain.GetVertices_Surf(false);
  if (vertices.size() < 2) return false;
  ReserveFirst(vertices.size());
  const std::size_t before = fCount;
  TEntityCoordinate start = vertices.back();
  for (const TEntityCoordinate& end : vertices) {
    if (IsFinite(end)) fLargest = std::max(fLargest, GetLargest(end));
    if (IsFinite(start) && IsFinite(end)) AddSegment(start, end);
    start = end;
  }
  return fCount - before == vertices.size();
}

/// The first chain is the only one mostly, or the longest.
void TPoleSegments::ReserveFirst(std::size_t aSegments) {
  if (!fGroups.empty()) return;
  const std::size_t groups = CountGroups(aSegments);
  fGroups.reserve(groups);
  fGroupBoxes.reserve(groups);
}

void TPoleSegments::FillLastGroup() {
  const std::size_t count = fCount % kGroupSize;
  if (count == 0) return;
  for (std::size_t place = count; place < kGroupSize; ++place) fGroups.back().Set(place, fGroups.back().Get(count - 1));
}

void TPoleSegments::GroupBoxes() {
  const std::size_t groups = CountGroups(fGroupBoxes.size());
  std::vector<TPlaneBox> whole;
  whole.reserve(TBlockTree<TPlaneBox>::GetRoom(groups));
  fBoxes.reserve(groups);
  for (std::size_t i = 0; i < fGroupBoxes.size(); ++i) {
    const std::size_t place = i % kGroupSize;
    if (place == 0) {
      fBoxes.emplace_back();
      whole.push_back(fGroupBoxes[i]);
    }
    fBoxes.back().Set(place, fGroupBoxes[i]);
    whole.back().Unite(fGroupBoxes[i]);
  }
  fTree = TBlockTree<TPlaneBox>(std::move(whole));
}

void TPoleSegments::AddSegment(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd) {
  const TPlaneBox box = TPlaneBox::Around(aStart, aEnd);
  const std::size_t place = fCount++ % kGroupSize;
  if (place == 0) {
    fGroups.emplace_back();
    fGroupBoxes.push_back(box);
  }
  fGroupBoxes.back().Unite(box);
  fGroups.back().Set(place, TMeasuredSegment::Of(aStart, aEnd));
}

/// More than what rounding can change in a distance: some last places of the largest coordinate, since the closest
/// point of a segment is one between its ends, whatever is rounded on the way.
double TPoleSegments::GetRounding(double aLargest) const {
  constexpr double kLastPlaces = 64 * std::numeric_limits<double>::epsilon();
  constexpr double kLeast = 1e-150;  // drawing length units: squares of less may vanish
  return std::max(kLastPlaces * std::max(fLargest, aLargest), kLeast);
}

double TPoleSegments::GetGreatestDistance(const TPlaneBox& aBox) const {
  if (!fFirstChain) return kInfinity;
  const TPlaneBox& chain = *fFirstChain;
  const double besides = std::max({chain.fMin_X - aBox.fMin_X, aBox.fMax_X - chain.fMax_X, 0.0});
  const double beyond = std::max({chain.fMin_Y - aBox.fMin_Y, aBox.fMax_Y - chain.fMax_Y, 0.0});
  const double across = std::max(aBox.fMax_X - chain.fMin_X, chain.fMax_X - aBox.fMin_X);
  const double along = std::max(aBox.fMax_Y - chain.fMin_Y, chain.fMax_Y - aBox.fMin_Y);
  return std::min(besides + along, beyond + across) + GetRounding(aBox);
}

double TPoleSegments::GetDistanceOfBox(const TPlaneBox& aBox) const {
  if (fGroups.empty()) return kInfinity;
  return std::sqrt(GetSquaredBoxDistance(fGroups.front().Get(0).fStart, aBox));
}

double TPoleSegments::GetRounding(const TPlaneBox& aBox) const {
  return GetRounding(std::max(GetLargest({aBox.fMin_X, aBox.fMin_Y}), GetLargest({aBox.fMax_X, aBox.fMax_Y})));
}

double TPoleSegments::GetDistance(const TEntityCoordinate& aPoint) {
  if (fGroups.empty() || !IsFinite(aPoint)) return kInfinity;
  const double rounding = GetRounding(GetLargest(aPoint));
  const auto getSquaredReach = [rounding](double aSquaredDistance) {
    const double reach = std::sqrt(aSquaredDistance) + rounding;
    return reach * reach;
  };
  const std::size_t first = fClosest;
  double least = GetLeastSquaredDistance(aPoint, fGroups[first]);
  double squaredReach = getSquaredReach(least);
  const auto lookAt = [&](std::size_t aGroup) {
    const double next = GetLeastSquaredDistance(aPoint, fGroups[aGroup]);
    if (!(next < least)) return;
    least = next;
    squaredReach = getSquaredReach(least);
    fClosest = aGroup;
  };
  const auto mayBeCloser = [&](const TPlaneBox& aBox) { return !(GetSquaredBoxDistance(aPoint, aBox) > squaredReach); };
  fTree.ForEach(mayBeCloser, [&](std::size_t aPlace) {
    const TGroupNumbers squares = GetSquaredBoxDistances(aPoint, fBoxes[aPlace]);
    const std::size_t begin = aPlace * kGroupSize;
    const std::size_t count = std::min(kGroupSize, fGroups.size() - begin);
    for (std::size_t i = 0; i < count; ++i) {
      if (!(squares[i] > squaredReach) && begin + i != first) lookAt(begin + i);
    }
  });
  return std::sqrt(least);
}

}  // namespace GeometryEngine::detail

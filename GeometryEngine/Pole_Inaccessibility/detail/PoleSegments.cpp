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

double GetLargest(const TEntityCoordinate& aPoint) {
  return std::max(std::abs(aPoint.x), std::abs(aPoint.y));
}

/// How far a value lies outside a range.
double GetExcess(double aValue, double aLow, double aHigh) {
  return std::max(std::max(aLow - aValue, aValue - aHigh), 0.0);
}

}  // namespace

TPlaneBox TPlaneBox::Around(const TEntityCoordinate& aPoint_A, const TEntityCoordinate& aPoint_B) {
  return {std::min(aPoint_A.x, aPoint_B.x), std::max(aPoint_A.x, aPoint_B.x), std::min(aPoint_A.y, aPoint_B.y),
          std::max(aPoint_A.y, aPoint_B.y)};
}

void TPlaneBox::Unite(const TPlaneBox& aOther) {
  fMin_X = std::min(fMin_X, aOther.fMin_X);
  fMax_X = std::max(fMax_X, aOther.fMax_X);
  fMin_Y = std::min(fMin_Y, aOther.fMin_Y);
  fMax_Y = std::max(fMax_Y, aOther.fMax_Y);
}

void TPoleSegments::TGroup::Set(std::size_t aPlace, const TMeasuredSegment& aSegment) {
  fStart_X[aPlace] = aSegment.fStart.x;
  fStart_Y[aPlace] = aSegment.fStart.y;
  fAlong_X[aPlace] = aSegment.fAlong.x;
  fAlong_Y[aPlace] = aSegment.fAlong.y;
  fSquaredLength[aPlace] = aSegment.fSquaredLength;
}

TMeasuredSegment TPoleSegments::TGroup::Get(std::size_t aPlace) const {
  return {{fStart_X[aPlace], fStart_Y[aPlace]}, {fAlong_X[aPlace], fAlong_Y[aPlace]}, fSquaredLength[aPlace]};
}

/// The least of its segments. One that is not a number is passed over.
double TPoleSegments::TGroup::GetSquaredDistance(const TEntityCoordinate& aPoint) const {
  TNumbers squares;
  for (std::size_t i = 0; i < kGroupSize; ++i) squares[i] = GetSquaredSegmentDistance(aPoint, Get(i));
  for (double& square : squares) square = square < kInfinity ? square : kInfinity;
  for (std::size_t half = kGroupSize / 2; half > 0; half /= 2) {
    for (std::size_t i = 0; i < half; ++i) squares[i] = std::min(squares[i], squares[half + i]);
  }
  return squares[0];
}

TPoleSegments::TPoleSegments(std::span<const TEntityStorage* const> aChains) {
  for (const TEntityStorage* chain : aChains) {
    const bool isWhole = AddChain(*chain);
    if (!isWhole || chain != aChains.front()) continue;
    fFirstChain = fBoxes.front();
    for (const TPlaneBox& box : fBoxes) fFirstChain->Unite(box);
  }
  FillLastGroup();
  fTree = TBlockTree<TPlaneBox>(std::move(fBoxes));
}

/// False when the chain has no polyline, or not a whole one: a segment with an end that is not finite is left out. Its
/// distance from any point is infinite or not a number, which makes no other distance smaller.
bool TPoleSegments::AddChain(const TEntityStorage& aChain) {
  const TCoordinateArray vertices = aChain.GetVertices_Surf(false);
  if (vertices.size() < 2) return false;
  const std::size_t before = fCount;
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    const TEntityCoordinate& end = i + 1 < vertices.size() ? vertices[i + 1] : vertices.front();
    if (!IsFinite(vertices[i]) || !IsFinite(end)) continue;
    fLargest = std::max({fLargest, GetLargest(vertices[i]), GetLargest(end)});
    AddSegment(vertices[i], end);
  }
  return fCount - before == vertices.size();
}

void TPoleSegments::FillLastGroup() {
  const std::size_t count = fCount % kGroupSize;
  if (count == 0) return;
  for (std::size_t place = count; place < kGroupSize; ++place) fGroups.back().Set(place, fGroups.back().Get(count - 1));
}

void TPoleSegments::AddSegment(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd) {
  const TPlaneBox box = TPlaneBox::Around(aStart, aEnd);
  const std::size_t place = fCount++ % kGroupSize;
  if (place == 0) {
    fGroups.emplace_back();
    fBoxes.push_back(box);
  }
  fBoxes.back().Unite(box);
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
  const double largest = std::max(GetLargest({aBox.fMin_X, aBox.fMin_Y}), GetLargest({aBox.fMax_X, aBox.fMax_Y}));
  return std::min(besides + along, beyond + across) + GetRounding(largest);
}

double TPoleSegments::GetDistance(const TEntityCoordinate& aPoint) {
  if (fGroups.empty() || !IsFinite(aPoint)) return kInfinity;
  const double rounding = GetRounding(GetLargest(aPoint));
  const auto getSquaredReach = [rounding](double aSquaredDistance) {
    const double reach = std::sqrt(aSquaredDistance) + rounding;
    return reach * reach;
  };
  double least = fGroups[fClosest].GetSquaredDistance(aPoint);
  double squaredReach = getSquaredReach(least);
  const auto mayBeCloser = [&](const TPlaneBox& aBox) {
    const double dx = GetExcess(aPoint.x, aBox.fMin_X, aBox.fMax_X);
    const double dy = GetExcess(aPoint.y, aBox.fMin_Y, aBox.fMax_Y);
    return !(dx * dx + dy * dy > squaredReach);
  };
  fTree.ForEach(mayBeCloser, [&](std::size_t aPlace) {
    const double next = fGroups[aPlace].GetSquaredDistance(aPoint);
    if (next < least) {
      least = next;
      squaredReach = getSquaredReach(least);
      fClosest = aPlace;
    }
  });
  return std::sqrt(least);
}

}  // namespace GeometryEngine::detail

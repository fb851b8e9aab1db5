#include "GeometryEngine/Pole_Inaccessibility/detail/SegmentGroups.h"

#include <algorithm>
#include <limits>

#include "GeometryEngine/FloatingPoint/detail/WideLoops.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// How far a value lies outside a range.
inline double GetExcess(double aValue, double aLow, double aHigh) {
  return std::max(std::max(aLow - aValue, aValue - aHigh), 0.0);
}

inline double GetSquaredExcess(const TEntityCoordinate& aPoint, const TPlaneBox& aBox) {
  const double dx = GetExcess(aPoint.x, aBox.fMin_X, aBox.fMax_X);
  const double dy = GetExcess(aPoint.y, aBox.fMin_Y, aBox.fMax_Y);
  return dx * dx + dy * dy;
}

// Loops without branches, which take several segments at once.
inline double GetLeast(const TEntityCoordinate& aPoint, const TSegmentGroup& aSegments) {
  TGroupNumbers shares;
  for (std::size_t i = 0; i < kGroupSize; ++i) shares[i] = GetShareOfClosest(aPoint, aSegments.Get(i));
  TGroupNumbers squares;
  for (std::size_t i = 0; i < kGroupSize; ++i) {
    squares[i] = GetSquaredDistance_AtShare(aPoint, aSegments.Get(i), shares[i]);
  }
  for (double& square : squares) square = square < kInfinity ? square : kInfinity;
  for (std::size_t half = kGroupSize / 2; half > 0; half /= 2) {
    for (std::size_t i = 0; i < half; ++i) squares[i] = std::min(squares[i], squares[half + i]);
  }
  return squares[0];
}

inline TGroupNumbers GetSquaredExcesses(const TEntityCoordinate& aPoint, const TBoxGroup& aBoxes) {
  TGroupNumbers squares;
  for (std::size_t i = 0; i < kGroupSize; ++i) squares[i] = GetSquaredExcess(aPoint, aBoxes.Get(i));
  return squares;
}

double GetLeast_Common(const TEntityCoordinate& aPoint, const TSegmentGroup& aSegments) {
  return GetLeast(aPoint, aSegments);
}
GEOMETRYENGINE_WIDE_LOOPS double GetLeast_Wide(const TEntityCoordinate& aPoint, const TSegmentGroup& aSegments) {
  return GetLeast(aPoint, aSegments);
}

TGroupNumbers GetSquaredExcesses_Common(const TEntityCoordinate& aPoint, const TBoxGroup& aBoxes) {
  return GetSquaredExcesses(aPoint, aBoxes);
}
GEOMETRYENGINE_WIDE_LOOPS TGroupNumbers GetSquaredExcesses_Wide(const TEntityCoordinate& aPoint,
                                                                const TBoxGroup& aBoxes) {
  return GetSquaredExcesses(aPoint, aBoxes);
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

double GetSquaredBoxDistance(const TEntityCoordinate& aPoint, const TPlaneBox& aBox) {
  return GetSquaredExcess(aPoint, aBox);
}

// A segment without length stands still at its start: any length will do to divide by.
void TSegmentGroup::Set(std::size_t aPlace, const TMeasuredSegment& aSegment) {
  const bool hasLength = aSegment.fSquaredLength != 0;
  fStart_X[aPlace] = aSegment.fStart.x;
  fStart_Y[aPlace] = aSegment.fStart.y;
  fAlong_X[aPlace] = hasLength ? aSegment.fAlong.x : 0;
  fAlong_Y[aPlace] = hasLength ? aSegment.fAlong.y : 0;
  fSquaredLength[aPlace] = hasLength ? aSegment.fSquaredLength : 1;
}

TMeasuredSegment TSegmentGroup::Get(std::size_t aPlace) const {
  return {{fStart_X[aPlace], fStart_Y[aPlace]}, {fAlong_X[aPlace], fAlong_Y[aPlace]}, fSquaredLength[aPlace]};
}

void TBoxGroup::Set(std::size_t aPlace, const TPlaneBox& aBox) {
  fMin_X[aPlace] = aBox.fMin_X;
  fMax_X[aPlace] = aBox.fMax_X;
  fMin_Y[aPlace] = aBox.fMin_Y;
  fMax_Y[aPlace] = aBox.fMax_Y;
}

TPlaneBox TBoxGroup::Get(std::size_t aPlace) const {
  return {fMin_X[aPlace], fMax_X[aPlace], fMin_Y[aPlace], fMax_Y[aPlace]};
}

double GetLeastSquaredDistance(const TEntityCoordinate& aPoint, const TSegmentGroup& aSegments) {
  return ChooseLoops(GetLeast_Wide, GetLeast_Common)(aPoint, aSegments);
}

TGroupNumbers GetSquaredBoxDistances(const TEntityCoordinate& aPoint, const TBoxGroup& aBoxes) {
  return ChooseLoops(GetSquaredExcesses_Wide, GetSquaredExcesses_Common)(aPoint, aBoxes);
}

}  // namespace GeometryEngine::detail

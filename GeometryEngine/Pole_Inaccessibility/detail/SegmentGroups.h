#pragma once

// Segments and boxes eight by eight: a distance from all of them takes little more than one from one of them. Private.

#include <array>
#include <cstddef>

#include "GeometryEngine/GeometryEngine_Entity_Operations/detail/SegmentDistance.h"

namespace GeometryEngine::detail {

inline constexpr std::size_t kGroupSize = 8;
using TGroupNumbers = std::array<double, kGroupSize>;

/// A box of the plane, sides included.
struct TPlaneBox {
  double fMin_X;
  double fMax_X;
  double fMin_Y;
  double fMax_Y;

  static TPlaneBox Around(const TEntityCoordinate& aPoint_A, const TEntityCoordinate& aPoint_B);
  void Unite(const TPlaneBox& aOther);
};

/// The square of how far a point is outside a box; 0 inside.
double GetSquaredBoxDistance(const TEntityCoordinate& aPoint, const TPlaneBox& aBox);

/// Segments in a row, number by number.
struct TSegmentGroup {
  TGroupNumbers fStart_X;
  TGroupNumbers fStart_Y;
  TGroupNumbers fAlong_X;
  TGroupNumbers fAlong_Y;
  TGroupNumbers fSquaredLength;

  void Set(std::size_t aPlace, const TMeasuredSegment& aSegment);
  TMeasuredSegment Get(std::size_t aPlace) const;
};

/// Boxes in a row, likewise.
struct TBoxGroup {
  TGroupNumbers fMin_X;
  TGroupNumbers fMax_X;
  TGroupNumbers fMin_Y;
  TGroupNumbers fMax_Y;

  void Set(std::size_t aPlace, const TPlaneBox& aBox);
  TPlaneBox Get(std::size_t aPlace) const;
};

/// The least GetSquaredSegmentDistance of a group, infinite when none is a number. REQUIRES: all eight set; a finite
/// point.
double GetLeastSquaredDistance(const TEntityCoordinate& aPoint, const TSegmentGroup& aSegments);

/// GetSquaredBoxDistance of each box that was set; of others anything.
TGroupNumbers GetSquaredBoxDistances(const TEntityCoordinate& aPoint, const TBoxGroup& aBoxes);

}  // namespace GeometryEngine::detail

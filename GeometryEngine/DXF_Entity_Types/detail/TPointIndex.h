#pragma once

// The first of many points that is the same as a given one under the linear tolerance. Private.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Entity_Types/detail/PointSameness.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TCellChains.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TToleranceCells.h"

namespace GeometryEngine::detail {

/// What a search finds: the first point that is the same, and whether it is the only one.
struct TPointMatch {
  TIndex fFirst = kNotFound;
  bool fIsOnly = true;
};

/// Points 0, 1, 2, ... in the order in which they were added. A search answers what a comparison point by point from
/// the first one on would: sameness under a tolerance is not transitive, so the order decides. Cells only propose
/// points; the points' own == decides.
///
/// REQUIRES: the tolerance as it was when the index was made; see `IsCurrent`.
/// COST: constant on average, as long as few different points lie within some tolerances of each other.
class TPointIndex {
 public:
  TPointIndex() : fCells(GetLinearTolerance()) {}

  /// False once the tolerance is another one; what a search then answers is wrong.
  bool IsCurrent() const { return fCells.ServesTolerance(GetLinearTolerance()); }

  void Reserve(std::size_t aCount) {
    fPoints.reserve(aCount);
    fChains.Reserve(aCount);
  }

  void Add(const TEntityCoordinate& aPoint) {
    fPoints.push_back(aPoint);
    if (CanMatch(aPoint)) {
      fChains.Add(GetHash(aPoint));
    } else {
      fChains.AddHidden();
    }
  }

  TIndex Count() const { return fChains.Count(); }
  const TEntityCoordinate& Point(TIndex aIndex) const { return fPoints[static_cast<std::size_t>(aIndex)]; }

  /// The points themselves; the index is used up.
  TCoordinateArray TakePoints() { return std::move(fPoints); }

  /// The first point that is the same as `aPoint`; kNotFound when none is.
  TIndex FindFirst(const TEntityCoordinate& aPoint) const {
    return FindFirstIf(aPoint, [](TIndex) { return true; });
  }

  /// The first point that is the same as `aPoint`, and whether others are too.
  TPointMatch FindMatch(const TEntityCoordinate& aPoint) const {
    TPointMatch match;
    const auto never = [&](TIndex i) {
      match = {EarlierOf(match.fFirst, i), match.fFirst == kNotFound};
      return false;
    };
    FindFirstIf(aPoint, never);
    return match;
  }

  /// The same, given that no two of the points are the same. One with the very numbers of `aPoint` is the only match
  /// then, since any other would be the same as that one.
  TPointMatch FindMatch_Distinct(const TEntityCoordinate& aPoint) const {
    TPointMatch match;
    const auto hasItsNumbers = [&](TIndex i) {
      match = {EarlierOf(match.fFirst, i), match.fFirst == kNotFound};
      return Point(i).x == aPoint.x && Point(i).y == aPoint.y;
    };
    const TIndex equal = FindFirstIf(aPoint, hasItsNumbers);
    return equal == kNotFound ? match : TPointMatch{equal, true};
  }

  /// Has memory fetch what a search for this point will look at first.
  [[gnu::always_inline]] void FetchAhead(const TEntityCoordinate& aPoint) const {
    if (CanMatch(aPoint)) fChains.FetchAhead(GetHash(aPoint));
  }

  /// The first among the points that are the same as `aPoint` whose index `aAccepts`.
  template <class TAccepts>
  TIndex FindFirstIf(const TEntityCoordinate& aPoint, const TAccepts& aAccepts) const {
    TIndex first = kNotFound;
    if (!CanMatch(aPoint)) return first;
    const TCellRange columns = fCells.GetCellsAround(aPoint.x);
    const TCellRange rows = fCells.GetCellsAround(aPoint.y);
    for (std::int64_t column = columns.fFirst; column <= columns.fLast; ++column) {
      for (std::int64_t row = rows.fFirst; row <= rows.fLast; ++row) {
        first = EarlierOf(first, FindFirstInChain(GetHash(column, row), aPoint, first, aAccepts));
      }
    }
    return first;
  }

 private:
  static std::uint64_t GetHash(std::int64_t aColumn, std::int64_t aRow) { return MixCell(MixCell(0, aColumn), aRow); }

  std::uint64_t GetHash(const TEntityCoordinate& aPoint) const {
    return GetHash(fCells.GetCell(aPoint.x), fCells.GetCell(aPoint.y));
  }

  static TIndex EarlierOf(TIndex aLeft, TIndex aRight) {
    if (aLeft == kNotFound || aRight == kNotFound) return std::max(aLeft, aRight);
    return std::min(aLeft, aRight);
  }

  bool CanMatch(const TEntityCoordinate& aPoint) const {
    return fCells.CanMatch(aPoint.x) && fCells.CanMatch(aPoint.y);
  }

  template <class TAccepts>
  TIndex FindFirstInChain(std::uint64_t aHash, const TEntityCoordinate& aPoint, TIndex aBefore,
                          const TAccepts& aAccepts) const {
    const double tolerance = ReadLinearTolerance();
    for (TIndex i = fChains.First(aHash); i != kNotFound; i = fChains.Next(i)) {
      if (aBefore != kNotFound && i >= aBefore) return kNotFound;
      if (fChains.HasHash(i, aHash) && AreSame(Point(i), aPoint, tolerance) && aAccepts(i)) return i;
    }
    return kNotFound;
  }

  TToleranceCells fCells;
  TCellChains fChains;
  TCoordinateArray fPoints;
};

}  // namespace GeometryEngine::detail

#include "GeometryEngine/Pole_Inaccessibility/PoleSearch.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"
#include "GeometryEngine/Pole_Inaccessibility/detail/PoleOutlines.h"
#include "GeometryEngine/Pole_Inaccessibility/detail/PoleSegments.h"

namespace GeometryEngine {

namespace {

constexpr double kSquareRootOf2 = 1.4142135623730951;  // half a square's diagonal, in half sides
constexpr std::int32_t kLargestSplitCount = 1000;      // splits after which one more ends the search
constexpr std::size_t kLargestGrid = 1000000;          // cells
constexpr std::int32_t kSplitsBeforeDoubt = 16;        // most searches are over by then
constexpr double kLongestDoubted = 150;                // minimum distances; longer boxes would take too many cells
constexpr std::size_t kMostLookedAhead = 2000;         // cells; all splits together make twice as many

double GetCellSize(const TEntityStorage& aBox) {
  return std::min(aBox.Max_X() - aBox.Min_X(), aBox.Max_Y() - aBox.Min_Y());
}

/// The box with as much above and to the right as squares over it may overhang.
detail::TPlaneBox GetCoveredBox(const TEntityStorage& aBox) {
  const double size = GetCellSize(aBox);
  return {aBox.Min_X(), aBox.Max_X() + size, aBox.Min_Y(), aBox.Max_Y() + size};
}

/// How far the corners of a cell are from its centre.
double GetCornerDistance(double aHalfWidth) {
  return aHalfWidth * kSquareRootOf2;
}

/// The chains of a region, prepared for many measurements: outline, internal chain, children.
class TMeasuredRegion {
 public:
  explicit TMeasuredRegion(const TPoleRegion& aRegion) : TMeasuredRegion(GetChains(aRegion), aRegion) {}

  double GetSignedDistance(const TEntityCoordinate& aPoint) {
    const double distance = fSegments.GetDistance(aPoint);
    return fOutlines.Hold(aPoint) ? distance : -distance;
  }

  /// True when no square over the box, and no part of one, has its centre farther inside than this.
  bool IsThinnerThan(double aDistance, const TEntityStorage& aBox) const {
    return fSegments.GetGreatestDistance(GetCoveredBox(aBox)) <= aDistance;
  }

  /// More than what rounding changes in the distances of cells over the box, however often they have been quartered:
  /// with each split it moves a centre by a last place at most.
  double GetRounding(const TEntityStorage& aBox) const {
    constexpr double kSplits = 64;  // times the rounding of a distance, itself 64 last places: four for each split
    return kSplits * fSegments.GetRounding(GetCoveredBox(aBox));
  }

  /// How far a certain point of the boundaries is from the box.
  double GetDistanceOfBox(const TEntityStorage& aBox) const {
    return fSegments.GetDistanceOfBox({aBox.Min_X(), aBox.Max_X(), aBox.Min_Y(), aBox.Max_Y()});
  }

  TCell MakeCell(double aCenter_X, double aCenter_Y, double aHalfWidth) {
    return {aCenter_X, aCenter_Y, aHalfWidth, GetSignedDistance({aCenter_X, aCenter_Y})};
  }

 private:
  using TChains = std::vector<const TEntityStorage*>;

  TMeasuredRegion(const TChains& aChains, const TPoleRegion& aRegion)
      : fSegments(aChains), fOutlines(aRegion.fOutline != nullptr ? aChains : TChains()) {}

  static TChains GetChains(const TPoleRegion& aRegion) {
    TChains chains{aRegion.fOutline, aRegion.fInternal};
    chains.insert(chains.end(), aRegion.fChildOutlines.begin(), aRegion.fChildOutlines.end());
    std::erase(chains, nullptr);
    return chains;
  }

  detail::TPoleSegments fSegments;
  detail::TPoleOutlines fOutlines;
};

/// Negative when the left bound comes first: the greater one, and any one before what is no number.
int CompareBounds(double aLeft, double aRight) {
  if (aLeft > aRight) return -1;
  if (aLeft < aRight) return 1;
  return static_cast<int>(std::isnan(aLeft)) - static_cast<int>(std::isnan(aRight));
}

/// The cells that wait to be looked at, the one of the greatest bound first; cells of equal bound in the order in which
/// they came.
class TPendingCells {
 public:
  void Reserve(std::size_t aCount) {
    fCells.reserve(aCount + kCellsOfFewSplits);
    fWaiting.reserve(aCount + kCellsOfFewSplits);
  }
  bool AreThere() const { return !fWaiting.empty(); }

  void Add(const TCell& aCell) {
    fWaiting.push_back({aCell.fMaxDistance, static_cast<std::uint32_t>(fCells.size())});
    std::ranges::push_heap(fWaiting, TComesLater());
    fCells.push_back(aCell);
  }

  TCell TakeFirst() {
    std::ranges::pop_heap(fWaiting, TComesLater());
    const std::uint32_t first = fWaiting.back().fNumber;
    fWaiting.pop_back();
    return fCells[first];
  }

  template <typename TAccepts>
  bool AreAll(const TAccepts& aAccepts) const {
    return std::ranges::all_of(fWaiting, [&](const TWaiting& waiting) { return aAccepts(fCells[waiting.fNumber]); });
  }

  /// The cell that comes first among those with the greatest distance; `aBest` unless that is greater than its own.
  TCell FindDeepest(const TCell& aBest) const {
    const TWaiting* deepest = nullptr;
    double distance = aBest.fDistance;
    for (const TWaiting& waiting : fWaiting) {
      const double other = fCells[waiting.fNumber].fDistance;
      const bool isDeeper =
          other > distance || (deepest != nullptr && other == distance && TComesLater()(*deepest, waiting));
      if (!isDeeper) continue;
      deepest = &waiting;
      distance = other;
    }
    return deepest == nullptr ? aBest : fCells[deepest->fNumber];
  }

 private:
  struct TWaiting {
    double fBound;
    std::uint32_t fNumber;  // of the cell
  };
  struct TComesLater {
    bool operator()(const TWaiting& aLeft, const TWaiting& aRight) const {
      const int order = CompareBounds(aLeft.fBound, aRight.fBound);
      return order != 0 ? order > 0 : aLeft.fNumber > aRight.fNumber;
    }
  };

  static constexpr std::size_t kCellsOfFewSplits = 4 * (kSplitsBeforeDoubt + 1);

  std::vector<TCell> fCells;       // in the order in which they came
  std::vector<TWaiting> fWaiting;  // a heap
};

// The low sides of a row of cells from `aLow` up to `aHigh`; none when the row is endless or too long for a grid.
std::vector<double> GetGridSteps(double aLow, double aHigh, double aStep) {
  std::vector<double> steps;
  double position = aLow;
  while (position < aHigh) {
    steps.push_back(position);
    const double next = position + aStep;
    if (!(next > position) || steps.size() > kLargestGrid) return {};
    position = next;
  }
  return steps;
}

// Empty when the box would need more than the largest grid.
// KEPT: more than 1000 columns or rows alone are no reason to give up: such a grid is completed and searched.
TPendingCells CoverWithCells(const TEntityStorage& aBox, TMeasuredRegion& aRegion) {
  const double size = GetCellSize(aBox);
  const double half = size / 2;
  const std::vector<double> columns = GetGridSteps(aBox.Min_X(), aBox.Max_X(), size);
  const std::vector<double> rows = GetGridSteps(aBox.Min_Y(), aBox.Max_Y(), size);
  TPendingCells cells;
  if (columns.size() * rows.size() > kLargestGrid) return cells;
  cells.Reserve(columns.size() * rows.size());
  for (const double x : columns) {
    for (const double y : rows) cells.Add(aRegion.MakeCell(x + half, y + half, half));
  }
  return cells;
}

std::array<TCell, 4> GetQuarters(const TCell& aCell, TMeasuredRegion& aRegion) {
  const double half = aCell.fHalfWidth / 2;
  const double left = aCell.fCenter_X - half;
  const double right = aCell.fCenter_X + half;
  const double below = aCell.fCenter_Y - half;
  const double above = aCell.fCenter_Y + half;
  return {aRegion.MakeCell(left, below, half), aRegion.MakeCell(right, below, half),
          aRegion.MakeCell(left, above, half), aRegion.MakeCell(right, above, half)};
}

/// Looks ahead of a search that has found nothing yet, in as few cells as that takes.
class TOutlook {
 public:
  TOutlook(TMeasuredRegion& aRegion, const TEntityStorage& aBox, double aMinimumDistance)
      : fRegion(aRegion),
        fMinimumDistance(aMinimumDistance),
        fLongestSide(std::max(aBox.Max_X() - aBox.Min_X(), aBox.Max_Y() - aBox.Min_Y())),
        fRounding(aRegion.GetRounding(aBox)),
        fLeastBound(-(aRegion.GetDistanceOfBox(aBox) + fRounding)) {}

  /// True when the search finds nothing that lies farther inside than the minimum distance, neither among the cells
  /// that wait nor among their parts. False also when too many would have to be looked at.
  bool IsHopeless(const TPendingCells& aPending) {
    const bool isTame = fRounding <= kLargestRounding;
    const bool isSmall = fLongestSide <= kLongestDoubted * fMinimumDistance;
    return isTame && isSmall && aPending.AreAll([this](const TCell& aCell) { return LeadsNowhere(aCell); });
  }

 private:
  static constexpr double kLargestRounding = 1e100;  // drawing length units; squares of any distance are finite then

  bool LeadsNowhere(const TCell& aCell) {
    for (fCells.assign(1, aCell); !fCells.empty();) {
      const TCell cell = fCells.back();
      fCells.pop_back();
      if (cell.fDistance > fMinimumDistance || fMeasured > kMostLookedAhead) return false;
      if (IsShallow(cell) || IsNeverSplit(cell)) continue;
      const auto quarters = GetQuarters(cell, fRegion);
      fCells.insert(fCells.end(), quarters.begin(), quarters.end());
      fMeasured += quarters.size();
    }
    return true;
  }

  /// True when all of the cell is so close to a boundary that no part of it lies far enough inside.
  bool IsShallow(const TCell& aCell) const {
    return std::abs(aCell.fDistance) + GetCornerDistance(aCell.fHalfWidth) + fRounding <= fMinimumDistance;
  }

  /// As long as nothing is found every cell is split, so one of those that wait always holds the place of the box that
  /// is closest to a certain point of the boundaries. A cell with a bound below all that this one's can be never comes
  /// first.
  bool IsNeverSplit(const TCell& aCell) const { return aCell.fMaxDistance < fLeastBound; }

  TMeasuredRegion& fRegion;
  double fMinimumDistance;
  double fLongestSide;  // of the box
  double fRounding;
  double fLeastBound;
  std::size_t fMeasured = 0;  // cells
  std::vector<TCell> fCells;  // to be looked at
};

bool HasInsideBox(TEntityStorage& aOutline) {
  aOutline.CalculateMinMaxValues();
  return aOutline.Min_X() < aOutline.Max_X() && aOutline.Min_Y() < aOutline.Max_Y();
}

// KEPT: a cell's bound is held against the best cell's bound, not against its distance. Cells come in the order of
// their bounds, so the first one found inside ends the splitting, and the precision weighs only while the best is the
// centroid, a cell without width. Labels of existing projects stand where this search leaves them.
bool IsWorthSplitting(const TCell& aCell, const TCell& aBest, double aPrecision, double aMinimumDistance) {
  return !(aBest.fDistance > aMinimumDistance) || aCell.fMaxDistance - aBest.fMaxDistance > aPrecision;
}

}  // namespace

TCell::TCell(double aCenter_X, double aCenter_Y, double aHalfWidth, const TPoleRegion& aRegion)
    : TCell(aCenter_X, aCenter_Y, aHalfWidth, GetSignedDistance(aRegion, {aCenter_X, aCenter_Y})) {}

TCell::TCell(double aCenter_X, double aCenter_Y, double aHalfWidth, double aDistance)
    : fCenter_X(aCenter_X),
      fCenter_Y(aCenter_Y),
      fHalfWidth(aHalfWidth),
      fDistance(aDistance),
      fMaxDistance(aDistance + GetCornerDistance(aHalfWidth)) {}

int CellComparer(const TCell& aLeft, const TCell& aRight) {
  return CompareBounds(aLeft.fMaxDistance, aRight.fMaxDistance);
}

double GetSignedDistance(const TPoleRegion& aRegion, const TEntityCoordinate& aPoint) {
  return TMeasuredRegion(aRegion).GetSignedDistance(aPoint);
}

TEntityCoordinate FindPoleInaccessibility(const TPoleRegion& aRegion, double aPrecision, double aMinimumDistance) {
  const TFloatEnvironment environment;
  const bool searchable = aRegion.fSearchable && aRegion.fOutline != nullptr;
  if (!searchable || !HasInsideBox(*aRegion.fOutline)) return aRegion.fCentroid;
  TMeasuredRegion region(aRegion);
  TCell best = region.MakeCell(aRegion.fCentroid.x, aRegion.fCentroid.y, 0);
  // Nothing would be found that ends the splitting before it is given up.
  const bool isHopeless =
      !(best.fDistance > aMinimumDistance) && region.IsThinnerThan(aMinimumDistance, *aRegion.fOutline);
  if (isHopeless) return aRegion.fCentroid;
  TPendingCells pending = CoverWithCells(*aRegion.fOutline, region);
  std::int32_t splits = 0;
  while (pending.AreThere()) {
    // KEPT: a search that has used up its splits answers the centroid, not the best cell it has found.
    if (splits > kLargestSplitCount) return aRegion.fCentroid;
    const bool isDoubtful = splits == kSplitsBeforeDoubt && !(best.fDistance > aMinimumDistance);
    if (isDoubtful && TOutlook(region, *aRegion.fOutline, aMinimumDistance).IsHopeless(pending)) {
      return aRegion.fCentroid;
    }
    const TCell cell = pending.TakeFirst();
    if (cell.fDistance > best.fDistance) best = cell;
    if (IsWorthSplitting(cell, best, aPrecision, aMinimumDistance)) {
      for (const TCell& quarter : GetQuarters(cell, region)) pending.Add(quarter);
      ++splits;
    } else if (aPrecision >= 0) {
      // Bounds fall from here on: no later cell is worth it either, whichever of them is the best by then.
      best = pending.FindDeepest(best);
      break;
    }
  }
  return {best.fCenter_X, best.fCenter_Y};
}

}  // namespace GeometryEngine

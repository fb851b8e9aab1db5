#include "GeometryEngine/Pole_Inaccessibility/PoleSearch.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <set>

namespace GeometryEngine {

namespace {

constexpr double kSquareRootOf2 = 1.4142135623730951;  // half a square's diagonal, in half sides
constexpr std::int32_t kLargestSplitCount = 1000;      // splits after which one more ends the search
constexpr std::size_t kLargestGrid = 1000000;          // cells

struct TGreatestBoundFirst {
  bool operator()(const TCell& aLeft, const TCell& aRight) const { return CellComparer(aLeft, aRight) < 0; }
};

// Cells of equal bound keep the order in which they came.
using TPendingCells = std::multiset<TCell, TGreatestBoundFirst>;

double DistanceToChain(const TEntityStorage* aChain, const TEntityCoordinate& aPoint) {
  return aChain != nullptr ? aChain->MinPointToEntitiesDistance(aPoint) : std::numeric_limits<double>::infinity();
}

bool IsInsideChain(const TEntityStorage* aChain, const TEntityCoordinate& aPoint, bool aIncludePointOnEntity) {
  return aChain != nullptr && aChain->PointInsideEntities(aPoint, aIncludePointOnEntity);
}

bool IsInsideMaterial(const TPoleRegion& aRegion, const TEntityCoordinate& aPoint) {
  const auto isInsideChild = [&](const TEntityStorage* child) { return IsInsideChain(child, aPoint, true); };
  return IsInsideChain(aRegion.fOutline, aPoint, false) && !IsInsideChain(aRegion.fInternal, aPoint, true) &&
         std::none_of(aRegion.fChildOutlines.begin(), aRegion.fChildOutlines.end(), isInsideChild);
}

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
TPendingCells CoverWithCells(const TPoleRegion& aRegion) {
  const TEntityStorage& box = *aRegion.fOutline;
  const double size = std::min(box.Max_X() - box.Min_X(), box.Max_Y() - box.Min_Y());
  const double half = size / 2;
  const std::vector<double> columns = GetGridSteps(box.Min_X(), box.Max_X(), size);
  const std::vector<double> rows = GetGridSteps(box.Min_Y(), box.Max_Y(), size);
  TPendingCells cells;
  if (columns.size() * rows.size() > kLargestGrid) return cells;
  for (const double x : columns) {
    for (const double y : rows) cells.emplace(x + half, y + half, half, aRegion);
  }
  return cells;
}

void AddQuarters(TPendingCells& aCells, const TCell& aCell, const TPoleRegion& aRegion) {
  const double half = aCell.fHalfWidth / 2;
  aCells.emplace(aCell.fCenter_X - half, aCell.fCenter_Y - half, half, aRegion);
  aCells.emplace(aCell.fCenter_X + half, aCell.fCenter_Y - half, half, aRegion);
  aCells.emplace(aCell.fCenter_X - half, aCell.fCenter_Y + half, half, aRegion);
  aCells.emplace(aCell.fCenter_X + half, aCell.fCenter_Y + half, half, aRegion);
}

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
    : fCenter_X(aCenter_X),
      fCenter_Y(aCenter_Y),
      fHalfWidth(aHalfWidth),
      fDistance(GetSignedDistance(aRegion, {aCenter_X, aCenter_Y})),
      fMaxDistance(fDistance + fHalfWidth * kSquareRootOf2) {}

int CellComparer(const TCell& aLeft, const TCell& aRight) {
  const bool leftHasBound = !std::isnan(aLeft.fMaxDistance);
  const bool rightHasBound = !std::isnan(aRight.fMaxDistance);
  if (leftHasBound != rightHasBound) return leftHasBound ? -1 : 1;
  if (aLeft.fMaxDistance > aRight.fMaxDistance) return -1;
  return aLeft.fMaxDistance < aRight.fMaxDistance ? 1 : 0;
}

double GetSignedDistance(const TPoleRegion& aRegion, const TEntityCoordinate& aPoint) {
  double distance = std::min(DistanceToChain(aRegion.fOutline, aPoint), DistanceToChain(aRegion.fInternal, aPoint));
  for (const TEntityStorage* child : aRegion.fChildOutlines) {
    distance = std::min(distance, DistanceToChain(child, aPoint));
  }
  return IsInsideMaterial(aRegion, aPoint) ? distance : -distance;
}

TEntityCoordinate FindPoleInaccessibility(const TPoleRegion& aRegion, double aPrecision, double aMinimumDistance) {
  const bool searchable = aRegion.fSearchable && aRegion.fOutline != nullptr;
  if (!searchable || !HasInsideBox(*aRegion.fOutline)) return aRegion.fCentroid;
  TCell best(aRegion.fCentroid.x, aRegion.fCentroid.y, 0, aRegion);
  TPendingCells pending = CoverWithCells(aRegion);
  std::int32_t splits = 0;
  while (!pending.empty()) {
    // KEPT: a search that has used up its splits answers the centroid, not the best cell it has found.
    if (splits > kLargestSplitCount) return aRegion.fCentroid;
    const TCell cell = *pending.begin();
    pending.erase(pending.begin());
    if (cell.fDistance > best.fDistance) best = cell;
    if (!IsWorthSplitting(cell, best, aPrecision, aMinimumDistance)) continue;
    AddQuarters(pending, cell, aRegion);
    ++splits;
  }
  return {best.fCenter_X, best.fCenter_Y};
}

}  // namespace GeometryEngine

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <vector>

#include "tests/reference/plain/TTreeNode_Geometry.h"

namespace GeometryEngine::Plain {

namespace {

constexpr std::size_t kLargestGrid = 1000000;
constexpr std::int32_t kLargestSplitCount = 1000;

/// A region, and the surfaces of its chains and of its children's outlines as polylines.
struct TSurfaces {
  explicit TSurfaces(const TTreeNode_Geometry& aRegion)
      : fRegion(aRegion),
        fPolylines{aRegion.fEntities.GetVertices_Surf(false), aRegion.fEntities_Internal.GetVertices_Surf(false)} {
    for (const TTreeNode_Geometry* child : aRegion.fChildren) {
      fPolylines.push_back(child->fEntities.GetVertices_Surf(false));
    }
  }

  bool IsInside(const TEntityCoordinate& aPoint) const {
    const auto isInChild = [&](const TTreeNode_Geometry* child) {
      return child->fEntities.PointInsideEntities(aPoint, true);
    };
    return fRegion.fEntities.PointInsideEntities(aPoint, false) &&
           !fRegion.fEntities_Internal.PointInsideEntities(aPoint, true) &&
           std::ranges::none_of(fRegion.fChildren, isInChild);
  }

  double SignedDistance(const TEntityCoordinate& aPoint) const {
    double distance = std::numeric_limits<double>::infinity();
    for (const TCoordinateArray& polyline : fPolylines) {
      distance = std::min(distance, Plain::DistanceToPolyline(polyline, aPoint));
    }
    return IsInside(aPoint) ? distance : -distance;
  }

  const TTreeNode_Geometry& fRegion;
  std::vector<TCoordinateArray> fPolylines;
};

struct TCell {
  TCell(const TSurfaces& aSurfaces, const TEntityCoordinate& aCentre, double aHalfWidth)
      : fCentre(aCentre),
        fHalfWidth(aHalfWidth),
        fDistance(aSurfaces.SignedDistance(aCentre)),
        fBound(fDistance + aHalfWidth * 1.4142135623730951) {}

  TEntityCoordinate fCentre;
  double fHalfWidth;
  double fDistance;
  double fBound;
};

/// A bound that is no number comes last.
struct TIsBetter {
  bool operator()(const TCell& A, const TCell& B) const {
    if (std::isnan(A.fBound) || std::isnan(B.fBound)) return !std::isnan(A.fBound) && std::isnan(B.fBound);
    return A.fBound > B.fBound;
  }
};

/// The best cell first, of equally good ones the oldest.
using TPendingCells = std::multiset<TCell, TIsBetter>;

std::vector<double> GridSteps(double aLow, double aHigh, double aStep) {
  std::vector<double> steps;
  for (double position = aLow; position < aHigh; position += aStep) {
    steps.push_back(position);
    if (!(position + aStep > position) || steps.size() > kLargestGrid) return {};
  }
  return steps;
}

TPendingCells Cover(const TSurfaces& aSurfaces) {
  const TEntityStorage& box = aSurfaces.fRegion.fEntities;
  const double size = std::min(box.Max_X() - box.Min_X(), box.Max_Y() - box.Min_Y());
  const std::vector<double> columns = GridSteps(box.Min_X(), box.Max_X(), size);
  const std::vector<double> rows = GridSteps(box.Min_Y(), box.Max_Y(), size);
  TPendingCells cells;
  if (columns.size() * rows.size() > kLargestGrid) return cells;
  for (const double x : columns) {
    for (const double y : rows) cells.emplace(aSurfaces, TEntityCoordinate{x + size / 2, y + size / 2}, size / 2);
  }
  return cells;
}

}  // namespace

TEntityCoordinate FindPoleInaccessibility(TTreeNode_Geometry& aRegion, bool aSearchable, double aPrecision,
                                          double aMinimumDistance) {
  TEntityStorage& outline = aRegion.fEntities;
  if (!aSearchable) return aRegion.fCentroid;
  outline.CalculateMinMaxValues();
  if (!(outline.Min_X() < outline.Max_X() && outline.Min_Y() < outline.Max_Y())) return aRegion.fCentroid;
  const TSurfaces surfaces(aRegion);
  TCell best(surfaces, aRegion.fCentroid, 0);
  TPendingCells pending = Cover(surfaces);
  std::int32_t splits = 0;
  while (!pending.empty()) {
    if (splits > kLargestSplitCount) return aRegion.fCentroid;
    const TCell cell = *pending.begin();
    pending.erase(pending.begin());
    if (cell.fDistance > best.fDistance) best = cell;
    if (best.fDistance > aMinimumDistance && !(cell.fBound - best.fBound > aPrecision)) continue;
    const double half = cell.fHalfWidth / 2;
    const auto [x, y] = cell.fCentre;
    for (const TEntityCoordinate& centre :
         TCoordinateArray{{x - half, y - half}, {x + half, y - half}, {x - half, y + half}, {x + half, y + half}}) {
      pending.emplace(surfaces, centre, half);
    }
    ++splits;
  }
  return best.fCentre;
}

}  // namespace GeometryEngine::Plain

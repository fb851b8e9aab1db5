#include "xsec/prepare/EntityGrid.h"

#include <algorithm>
#include <cmath>

namespace xsec {

namespace {

/// Parts of a curve that a cell's side is long; more hug the curve closer and cost more boxes.
constexpr double kStepsPerCell = 1;
constexpr double kMostStepsPerEntity = 4096;

/// A square grid over the drawing, about as many cells as entities.
class Grid {
 public:
  Grid(const std::vector<TravelledPiece>& curves, double reach) : fBox(EmptyExtents()), fReach(reach) {
    for (const TravelledPiece& curve : curves) Widen(fBox, Bounds(curve));
    fSide = static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(curves.size() + 1))));
    fCell = std::max({fBox.maxX - fBox.minX, fBox.maxY - fBox.minY, reach}) / static_cast<double>(fSide);
  }

  std::size_t CountCells() const { return fSide * fSide; }

  /// The cells that come within the reach of the curve, ascending, each once.
  std::vector<std::size_t> CellsOf(const TravelledPiece& curve) const {
    std::vector<std::size_t> cells;
    const double steps = std::clamp(std::ceil(Length(curve) / fCell * kStepsPerCell), 1.0, kMostStepsPerEntity);
    const double step = Length(curve) / steps;
    const double bulge = fReach + (curve.isArc ? step * step / (8 * curve.radius) * 2 : 0);
    for (double k = 0; k < steps; ++k) {
      AddCells(PointAlong(curve, k / steps), PointAlong(curve, (k + 1) / steps), bulge, cells);
    }
    std::sort(cells.begin(), cells.end());
    cells.erase(std::unique(cells.begin(), cells.end()), cells.end());
    return cells;
  }

 private:
  std::size_t Index(double value, double min) const {
    const double part = std::floor((value - min) / fCell);
    return static_cast<std::size_t>(std::clamp(part, 0.0, static_cast<double>(fSide - 1)));
  }

  void AddCells(const Point& a, const Point& b, double bulge, std::vector<std::size_t>& cells) const {
    const auto [left, right] = std::minmax(a.x, b.x);
    const auto [bottom, top] = std::minmax(a.y, b.y);
    for (std::size_t row = Index(bottom - bulge, fBox.minY); row <= Index(top + bulge, fBox.minY); ++row) {
      for (std::size_t column = Index(left - bulge, fBox.minX); column <= Index(right + bulge, fBox.minX); ++column) {
        cells.push_back(row * fSide + column);
      }
    }
  }

  Extents fBox;
  double fReach;
  double fCell = 1;
  std::size_t fSide = 1;
};

bool AreBoxesNear(const Extents& a, const Extents& b, double reach) {
  return a.minX <= b.maxX + reach && b.minX <= a.maxX + reach && a.minY <= b.maxY + reach && b.minY <= a.maxY + reach;
}

/// Circles that lie beside or within each other with more than the reach between.
bool AreCirclesApart(const TravelledPiece& a, const TravelledPiece& b, double reach) {
  if (!a.isArc || !b.isArc) return false;
  const double distance = Distance(a.centre, b.centre);
  return distance > a.radius + b.radius + reach || distance < std::abs(a.radius - b.radius) - reach;
}

}  // namespace

std::vector<PartPair> NearPairs(const std::vector<Part>& aParts, double aReach) {
  std::vector<TravelledPiece> curves;
  std::vector<Extents> boxes;
  for (const Part& part : aParts) {
    curves.push_back(Travel(part.geometry, true));
    boxes.push_back(Bounds(curves.back()));
  }
  const Grid grid(curves, aReach);
  std::vector<std::vector<std::size_t>> cells(grid.CountCells());
  std::vector<std::size_t> lastSeenFor(aParts.size(), kNone);
  std::vector<PartPair> pairs;
  for (std::size_t i = 0; i < curves.size(); ++i) {
    const std::size_t first = pairs.size();
    for (const std::size_t cell : grid.CellsOf(curves[i])) {
      for (const std::size_t other : cells[cell]) {
        if (lastSeenFor[other] == i) continue;
        lastSeenFor[other] = i;
        if (!AreBoxesNear(boxes[other], boxes[i], aReach) || AreCirclesApart(curves[other], curves[i], aReach))
          continue;
        pairs.emplace_back(other, i);
      }
      cells[cell].push_back(i);
    }
    std::sort(pairs.begin() + static_cast<std::ptrdiff_t>(first), pairs.end());
  }
  return pairs;
}

}  // namespace xsec

#include "xsec/SourceLookup.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace xsec {

namespace {

/// A piece's middle may lie off its source by what its ends have moved: to a vertex, and to 0 from near it.
constexpr double kReachInTolerances = 4;
constexpr std::size_t kSlicesPerSide = 4;  // no entity within the grid is longer than about so many of its sides

/// The cell along one axis that a value falls into; beyond the ends it is the outermost one.
std::size_t Cell(double value, double min, double max, std::size_t side) {
  const double part = (value - min) / (max - min);
  if (!(part > 0)) return 0;
  return std::min(side - 1, static_cast<std::size_t>(std::min(part, 1.0) * static_cast<double>(side)));
}

}  // namespace

SourceLookup::SourceLookup(std::vector<TravelledPiece> aSources) : fSources(std::move(aSources)), fBox(EmptyExtents()) {
  for (const TravelledPiece& source : fSources) Widen(fBox, Bounds(source));
  fSide = static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<double>(fSources.size() + 1))));
  fCells.resize(fSide * fSide);
  for (std::size_t source = 0; source < fSources.size(); ++source) {
    Insert(source);
  }
}

/// Only the cells along the entity are filled: in slices about as long as a cell is wide.
void SourceLookup::Insert(std::size_t aSource) {
  const TravelledPiece& source = fSources[aSource];
  const double cells = Length(source) / Diagonal(fBox) * static_cast<double>(fSide);
  const double slices = std::clamp(std::ceil(cells), 1.0, static_cast<double>(fSide * kSlicesPerSide));
  for (double i = 0; i < slices; ++i) {
    for (const std::size_t cell : CellsOf(Bounds(PartOf(source, i / slices, (i + 1) / slices)))) {
      std::vector<std::size_t>& sources = fCells[cell];
      if (sources.empty() || sources.back() != aSource) sources.push_back(aSource);
    }
  }
}

std::vector<std::size_t> SourceLookup::CellsOf(const Extents& aBox) const {
  const std::size_t left = Cell(aBox.minX, fBox.minX, fBox.maxX, fSide);
  const std::size_t right = Cell(aBox.maxX, fBox.minX, fBox.maxX, fSide);
  const std::size_t bottom = Cell(aBox.minY, fBox.minY, fBox.maxY, fSide);
  const std::size_t top = Cell(aBox.maxY, fBox.minY, fBox.maxY, fSide);
  std::vector<std::size_t> cells;
  for (std::size_t row = bottom; row <= top; ++row) {
    for (std::size_t column = left; column <= right; ++column) cells.push_back(row * fSide + column);
  }
  return cells;
}

std::size_t SourceLookup::Find(const TravelledPiece& aPiece, double aTolerance) const {
  const Point middle = MidPoint(aPiece);
  const double reach = kReachInTolerances * aTolerance;
  std::pair best(reach, kNone);
  for (const std::size_t cell : CellsOf({middle.x - reach, middle.y - reach, middle.x + reach, middle.y + reach})) {
    for (const std::size_t source : fCells[cell]) {
      if (fSources[source].isArc != aPiece.isArc) continue;
      best = std::min(best, std::pair(Distance(fSources[source], middle), source));
    }
  }
  return best.second;
}

}  // namespace xsec

#pragma once

// Which of many boxes lie within a given one, where few are near. Private; TBoxIndex finds them wherever they are.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TBoxIndex.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// Boxes 0, 1, 2, ..., by the cells of a grid in which their lower left corners lie; about as many cells as boxes.
/// REQUIRES: finite boxes.
class TBoxGrid {
 public:
  explicit TBoxGrid(std::span<const TBox> aBoxes) : fManyLeft(kManyPerBox * aBoxes.size()) {
    TBox corners;
    for (const TBox& box : aBoxes) corners.Include(box.fLeft, box.fBottom);
    const double count = static_cast<double>(aBoxes.size());
    const double width = corners.fRight - corners.fLeft;
    const double height = corners.fTop - corners.fBottom;
    fColumns = TSteps(corners.fLeft, width, std::sqrt(count * (width / height)), count);
    fRows = TSteps(corners.fBottom, height, count / fColumns.Count(), count);
    Fill(aBoxes);
  }

  /// Calls `aVisit(index)` for each box within this one; false, without a call, where it would look at many and has
  /// done so often: a few containers that hold much are no reason to arrange all boxes in another way.
  template <class TVisit>
  bool ForFewWithin(const TBox& aBox, const TVisit& aVisit) {
    if (!(aBox.fLeft <= aBox.fRight && aBox.fBottom <= aBox.fTop)) return true;  // within which nothing lies
    const TCells cells{fColumns.Of(aBox.fLeft), fColumns.Of(aBox.fRight), fRows.Of(aBox.fBottom), fRows.Of(aBox.fTop)};
    if (!MayLookAt(cells)) return false;
    for (std::size_t row = cells.fBottom; row <= cells.fTop; ++row) {
      for (const TItem& item : ItemsOf(cells, row)) {
        if (item.fBox.IsWithin(aBox)) aVisit(item.fIndex);
      }
    }
    return true;
  }

 private:
  static constexpr std::size_t kFew = 512;        // rows and items
  static constexpr std::size_t kManyPerBox = 16;  // looked at where they are more, all in all

  struct TItem {
    TBox fBox;
    TIndex fIndex;
  };
  /// Cells of a row or a column of the grid: equal steps along an extent, one where it has no length.
  class TSteps {
   public:
    TSteps() = default;
    TSteps(double aLeast, double aExtent, double aWanted, double aMost)
        : fLeast(aLeast),
          fCount(aWanted >= 1 ? std::floor(std::min(aWanted, std::max(aMost, 1.0))) : 1),
          fStepsPerUnit(aExtent > 0 ? fCount / aExtent : 0) {}

    double Count() const { return fCount; }
    /// Never less for a greater value; the first and the last one for values beyond.
    std::size_t Of(double aValue) const {
      const double step = (aValue - fLeast) * fStepsPerUnit;
      return step > 0 ? static_cast<std::size_t>(std::min(step, fCount - 1)) : 0;
    }

   private:
    double fLeast = 0;
    double fCount = 1;
    double fStepsPerUnit = 0;
  };
  struct TCells {
    std::size_t fLeft;
    std::size_t fRight;
    std::size_t fBottom;
    std::size_t fTop;
  };

  /// Sorts the boxes by cell, row after row, by counting.
  void Fill(std::span<const TBox> aBoxes) {
    fFirst.assign(CellAt(0, static_cast<std::size_t>(fRows.Count())) + 1, 0);
    for (const TBox& box : aBoxes) ++fFirst[CellOf(box) + 1];
    for (std::size_t cell = 1; cell < fFirst.size(); ++cell) fFirst[cell] += fFirst[cell - 1];
    std::vector<std::uint32_t> next = fFirst;
    fItems.resize(aBoxes.size());
    for (std::size_t i = 0; i < aBoxes.size(); ++i) fItems[next[CellOf(aBoxes[i])]++] = {aBoxes[i], ToIndex(i)};
  }

  std::size_t CellAt(std::size_t aColumn, std::size_t aRow) const {
    return aRow * static_cast<std::size_t>(fColumns.Count()) + aColumn;
  }
  std::size_t CellOf(const TBox& aBox) const { return CellAt(fColumns.Of(aBox.fLeft), fRows.Of(aBox.fBottom)); }

  std::span<const TItem> ItemsOf(const TCells& aCells, std::size_t aRow) const {
    const std::size_t first = fFirst[CellAt(aCells.fLeft, aRow)];
    return std::span(fItems).subspan(first, fFirst[CellAt(aCells.fRight, aRow) + 1] - first);
  }

  bool MayLookAt(const TCells& aCells) {
    std::size_t looks = aCells.fTop - aCells.fBottom;
    for (std::size_t row = aCells.fBottom; row <= aCells.fTop; ++row) looks += ItemsOf(aCells, row).size();
    if (looks <= kFew) return true;
    if (looks > fManyLeft) return false;
    fManyLeft -= looks;
    return true;
  }

  TSteps fColumns;
  TSteps fRows;
  std::vector<std::uint32_t> fFirst;  // item of each cell, and one more
  std::vector<TItem> fItems;
  std::size_t fManyLeft;
};

}  // namespace GeometryEngine::detail

#pragma once

// The squares of a pole search, measured by the library.

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "GeometryEngine/GeometryEngine.h"
#include "SvgPage.h"

namespace pictures {

using namespace GeometryEngine;

/// The squares with which a pole search begins: as wide as the region's box is in its shorter direction.
inline std::vector<TCell> GetFirstCells(TTreeNode_Geometry& aRegion) {
  const TPoleRegion view = aRegion.PoleRegion();
  const double size = std::min(aRegion.GetWidth(), aRegion.GetHeight());  // brings the box up to date as well
  const TEntityStorage& box = aRegion.Entities();
  std::vector<TCell> cells;
  for (double x = box.Min_X(); x < box.Max_X(); x += size) {
    for (double y = box.Min_Y(); y < box.Max_Y(); y += size)
      cells.emplace_back(x + size / 2, y + size / 2, size / 2, view);
  }
  std::ranges::stable_sort(cells, [](const TCell& left, const TCell& right) { return CellComparer(left, right) < 0; });
  return cells;
}

/// Each square with its centre's distance; prints them as well.
inline void DrawCells(TSvgPage& aPage, TTreeNode_Geometry& aRegion, const std::string& aColour) {
  for (const TCell& cell : GetFirstCells(aRegion)) {
    const double half = cell.fHalfWidth;
    const TEntityCoordinate low{cell.fCenter_X - half, cell.fCenter_Y - half};
    aPage.Line({low, {low.x + 2 * half, low.y}, {low.x + 2 * half, low.y + 2 * half}, {low.x, low.y + 2 * half}, low},
               TSvgPage::Stroke(aColour, 1.5) + " stroke-dasharray=\"3 4\"");
    aPage.Dot({cell.fCenter_X, cell.fCenter_Y}, 2.5, Fill(aColour, 1));
    aPage.Text({cell.fCenter_X, low.y + 1}, Fixed(cell.fDistance, 2), "font-size=\"13\" " + Fill(aColour, 1));
    std::printf("    cell at (%.1f, %.1f), half width %.1f: distance %s, at most %s\n", cell.fCenter_X, cell.fCenter_Y,
                half, Fixed(cell.fDistance, 3).c_str(), Fixed(cell.fMaxDistance, 3).c_str());
  }
}

}  // namespace pictures

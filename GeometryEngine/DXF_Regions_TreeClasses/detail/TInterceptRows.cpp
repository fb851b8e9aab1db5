#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TInterceptRows.h"

#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeBatch.h"

namespace GeometryEngine::detail {

TInterceptRows::TInterceptRows(std::size_t aMostRows, std::size_t aMostPoints, TIndex aTurns) : fTurns(aTurns) {
  fEntities.reserve(aMostRows);
  fStarts.reserve(aMostRows);
  fPoints.reserve(aMostPoints);
}

void TInterceptRows::AddRow(TIndex aEntity) {
  fEntities.push_back(aEntity);
  fStarts.push_back(fPoints.size());
}

std::span<const TInterceptRows::TPoint> TInterceptRows::PointsAt(std::size_t aRow) const {
  const std::size_t pastLast = aRow + 1 < Count() ? fStarts[aRow + 1] : fPoints.size();
  return std::span(fPoints).subspan(fStarts[aRow], pastLast - fStarts[aRow]);
}

std::vector<TInterceptRows::TPlace> TInterceptRows::GetPlacesByTurn() const {
  std::vector<TPlace> places(static_cast<std::size_t>(fTurns));
  for (std::size_t row = 0; row < Count(); ++row) {
    TIndex place = 0;
    for (const TPoint& point : PointsAt(row)) places[static_cast<std::size_t>(point.fTurn)] = {ToIndex(row), place++};
  }
  return places;
}

void TInterceptRows::AddNodes(TEntityTree& aTree) const {
  const std::vector<TPlace> places = GetPlacesByTurn();
  std::vector<TNodeBatch::TParent> parents;
  parents.reserve(Count());
  TNodeBatch nodes(aTree, Count(), fPoints.size());
  for (const TPlace& place : places) {
    if (place.fRow == kNotFound) continue;
    const std::size_t row = static_cast<std::size_t>(place.fRow);
    if (row == parents.size()) {
      parents.push_back(nodes.AddToRoot(ToIndex(PointsAt(row).size())));
      parents.back().fNode->EntityIndex(fEntities[row]);
    }
    const TPoint& point = fPoints[fStarts[row] + static_cast<std::size_t>(place.fPlace)];
    nodes.Add(parents[row], place.fPlace).Coordinates(point.fPoint);
  }
}

}  // namespace GeometryEngine::detail

#pragma once

// What an intercept tree holds, in rows instead of nodes. Private.

#include <cstddef>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TEntityCoordinate.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingNodes.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine::detail {

/// A row for each drawn entity that has points, in the order of the tree's first level, that is of their first points:
/// the points in order along the entity, each with the turn in which it came, by which its node has its place in the
/// tree's flat list.
/// A drawing's pieces are cut from the rows alone.
class TInterceptRows : public TPendingNodes {
 public:
  struct TPoint {
    TEntityCoordinate fPoint;
    TIndex fTurn = 0;
  };

  /// Rows for at most so many entities and points. REQUIRES: turns below `aTurns`.
  TInterceptRows(std::size_t aMostRows, std::size_t aMostPoints, TIndex aTurns);

  void AddRow(TIndex aEntity);
  /// To the last row.
  void AddPoint(const TPoint& aPoint) { fPoints.push_back(aPoint); }

  std::size_t Count() const { return fEntities.size(); }
  TIndex EntityAt(std::size_t aRow) const { return fEntities[aRow]; }
  std::span<const TPoint> PointsAt(std::size_t aRow) const;

  /// Each entity's node comes just before that of its first point.
  void AddNodes(TEntityTree& aTree) const override;

 private:
  struct TPlace {
    TIndex fRow = kNotFound;  ///< none in this turn
    TIndex fPlace = 0;        ///< in the row
  };
  std::vector<TPlace> GetPlacesByTurn() const;

  std::vector<TIndex> fEntities;     ///< by row
  std::vector<std::size_t> fStarts;  ///< of the rows, in the points
  std::vector<TPoint> fPoints;
  TIndex fTurns;
};

}  // namespace GeometryEngine::detail

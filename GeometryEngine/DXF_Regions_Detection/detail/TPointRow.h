#pragma once

// The order of all points of one entity at once. Private.

#include <cstddef>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/PointOrder.h"

namespace GeometryEngine::detail {

/// A point and the entity that it was recorded with.
struct TRowPoint {
  TEntityCoordinate fPoint;
  const TDXFEntity* fEntity = nullptr;
};

/// The row of points that comes of adding one after another, each at the place that the order along its entity gives
/// it, unless the row holds the same point already.
///
/// Few points are added just so. Many are sorted first and cut into runs wherever neighbours differ by more than the
/// tolerance. Points of different runs are never the same, and stand in the order of their runs; the points of a run
/// are added one after another as before.
///
/// REQUIRES: points that are numbers. No pair test accepts others, and an entity with an end that is none equals
/// nothing, so that each of its points has a row of its own.
///
/// COST: n log n, besides the square of the longest run.
class TPointRow {
 public:
  /// The positions of the points that stay, in order along the entity. The points are of equal entities, lines or arcs.
  /// Valid until the next call.
  std::span<const std::size_t> Arrange(std::span<const TRowPoint> aPoints);

 private:
  using TPositions = std::vector<std::size_t>;

  bool AreOfOneEntity() const;
  void ArrangeLine();
  void ArrangeArc();
  void AddRun_Line(std::span<std::size_t> aRun);
  void AddRun_Repeats(std::span<std::size_t> aRun);
  void AddOneByOne_Line(std::span<std::size_t> aRun);
  void AddOneByOne_Arcs();
  bool IsInRowFrom(std::size_t aFirst, const TEntityCoordinate& aPoint) const;
  const TEntityCoordinate& PointAt(std::size_t aPosition) const { return fPoints[aPosition].fPoint; }

  std::span<const TRowPoint> fPoints;
  double fTolerance = 0;
  TPositions fSorted;
  TPositions fRow;
  std::vector<double> fAngles;  ///< by position, for an arc
};

}  // namespace GeometryEngine::detail

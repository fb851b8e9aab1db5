#pragma once

// A traced region, prepared for the winding numbers of many points. Private; CalculateWindingNumber is the same number
// without preparation.

#include <cstdint>
#include <optional>
#include <vector>

#include "GeometryEngine/DXF_Regions_Detection/detail/TIntervalIndex.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"

namespace GeometryEngine::detail {

/// The edges of a region in the direction of travel, by the heights at which each may count: an edge adds something to
/// the winding number only of points that are below its upper end and not clearly below its lower one.
///
/// REQUIRES: tree, storage and settings stay as they are while the outline is used.
/// COST: for a point, a logarithm of the edges for each edge at its height.
class TRegionOutline {
 public:
  TRegionOutline(const TEntityTree& aTree, const TTreeNode& aRegion);

  /// As CalculateWindingNumber has it.
  std::int32_t GetWindingNumber(const TEntityCoordinate& aPoint) const;

 private:
  // A line, a chord, or a whole arc that would be too many chords.
  struct TEdge {
    TEntityCoordinate fFrom;
    TEntityCoordinate fTo;
    const TDXFEntity* fArc = nullptr;
  };

  void AddEntity(const TDXFEntity& aEntity, const TEntityCoordinate& aFrom, const TEntityCoordinate& aFarEnd);
  void AddArc(const TDXFEntity& aArc, const TEntityCoordinate& aFrom, const TEntityCoordinate& aFarEnd);
  void AddEdge(const TEdge& aEdge, double aLow, double aHigh);
  std::uint32_t GetWinding(const TEdge& aEdge, const TEntityCoordinate& aPoint) const;

  double fTolerance;
  std::vector<TEdge> fEdges;
  std::vector<TInterval> fHeights;          // of the edges, while they are few
  std::optional<TIntervalIndex> fByHeight;  // of the edges, where they are many
};

}  // namespace GeometryEngine::detail

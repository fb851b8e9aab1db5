#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TBlockTree.h"
#include "GeometryEngine/Pole_Inaccessibility/detail/SegmentGroups.h"

namespace GeometryEngine::detail {

/// The surface polylines of some chains, listed once for a search that asks for many distances.
class TPoleSegments {
 public:
  explicit TPoleSegments(std::span<const TEntityStorage* const> aChains);

  /// The least of the chains' `MinPointToEntitiesDistance`, to the bit.
  double GetDistance(const TEntityCoordinate& aPoint);
  /// No point of the box is farther than this from the chains, however the first one runs within its own box; it passes
  /// every column and every row of that. DEGENERATE: infinite when the first chain has no polyline.
  double GetGreatestDistance(const TPlaneBox& aBox) const;
  /// How far a vertex of the chains, the last one of the first polyline, is from the box. DEGENERATE: infinite without
  /// a polyline.
  double GetDistanceOfBox(const TPlaneBox& aBox) const;
  /// More than what rounding can change in the distance of a point of the box.
  double GetRounding(const TPlaneBox& aBox) const;

 private:
  bool AddChain(const TEntityStorage& aChain);
  void ReserveFirst(std::size_t aSegments);
  void FillLastGroup();
  void GroupBoxes();
  void AddSegment(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd);
  double GetRounding(double aLargest) const;

  std::vector<TSegmentGroup> fGroups;    ///< the last one is filled up with its last segment
  std::size_t fCount = 0;                ///< of segments
  std::vector<TPlaneBox> fGroupBoxes;    ///< until the last group is there
  std::vector<TBoxGroup> fBoxes;         ///< then, of eight groups at a time
  TBlockTree<TPlaneBox> fTree;           ///< over those
  std::optional<TPlaneBox> fFirstChain;  ///< box of the first chain; nothing when parts of it have been left out
  double fLargest = 0;                   ///< of all coordinates, by magnitude
  std::size_t fClosest = 0;              ///< the group that was closest to the last point
};

}  // namespace GeometryEngine::detail

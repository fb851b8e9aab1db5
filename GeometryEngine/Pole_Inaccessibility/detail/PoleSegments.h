#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/detail/SegmentDistance.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TBlockTree.h"

namespace GeometryEngine::detail {

/// A box of the plane, sides included.
struct TPlaneBox {
  double fMin_X;
  double fMax_X;
  double fMin_Y;
  double fMax_Y;

  static TPlaneBox Around(const TEntityCoordinate& aPoint_A, const TEntityCoordinate& aPoint_B);
  void Unite(const TPlaneBox& aOther);
};

/// The surface polylines of some chains, listed once for a search that asks for many distances.
class TPoleSegments {
 public:
  explicit TPoleSegments(std::span<const TEntityStorage* const> aChains);

  /// The least of the chains' `MinPointToEntitiesDistance`, to the bit.
  double GetDistance(const TEntityCoordinate& aPoint);
  /// No point of the box is farther than this from the chains, however the first one runs within its own box; it passes
  /// every column and every row of that. DEGENERATE: infinite when the first chain has no polyline.
  double GetGreatestDistance(const TPlaneBox& aBox) const;

 private:
  static constexpr std::size_t kGroupSize = 8;

  /// Segments in a row, number by number: a distance from all of them takes little more than one from one of them.
  struct TGroup {
    using TNumbers = std::array<double, kGroupSize>;

    TNumbers fStart_X;
    TNumbers fStart_Y;
    TNumbers fAlong_X;
    TNumbers fAlong_Y;
    TNumbers fSquaredLength;

    void Set(std::size_t aPlace, const TMeasuredSegment& aSegment);
    TMeasuredSegment Get(std::size_t aPlace) const;
    double GetSquaredDistance(const TEntityCoordinate& aPoint) const;
  };

  bool AddChain(const TEntityStorage& aChain);
  void FillLastGroup();
  void AddSegment(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd);
  double GetRounding(double aLargest) const;

  std::vector<TGroup> fGroups;  ///< the last one is filled up with its last segment
  std::size_t fCount = 0;       ///< of segments
  std::vector<TPlaneBox> fBoxes;
  TBlockTree<TPlaneBox> fTree;           ///< over the groups' boxes, which end there
  std::optional<TPlaneBox> fFirstChain;  ///< box of the first chain; nothing when parts of it have been left out
  double fLargest = 0;                   ///< of all coordinates, by magnitude
  std::size_t fClosest = 0;              ///< the group that was closest to the last point
};

}  // namespace GeometryEngine::detail

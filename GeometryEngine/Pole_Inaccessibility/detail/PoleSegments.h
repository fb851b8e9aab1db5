#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
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
  struct TSegment {
    TEntityCoordinate fStart;
    TEntityCoordinate fEnd;
  };

  bool AddChain(const TEntityStorage& aChain);
  std::vector<TPlaneBox> GetBoxes() const;
  double GetSquaredDistance(const TEntityCoordinate& aPoint, std::size_t aPlace) const;
  double GetRounding(double aLargest) const;

  std::vector<TSegment> fSegments;
  TBlockTree<TPlaneBox> fTree;
  std::optional<TPlaneBox> fFirstChain;  ///< box of the first chain; nothing when parts of it have been left out
  double fLargest = 0;                   ///< of all coordinates, by magnitude
  std::size_t fClosest = 0;              ///< place of the segment that was closest to the last point
};

}  // namespace GeometryEngine::detail

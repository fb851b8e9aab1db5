#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TBlockTree.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/THeightRange.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TWalkedEntity.h"

namespace GeometryEngine::detail {

/// The chains round a region, walked once for a search that asks of many points whether they lie inside.
class TPoleOutlines {
 public:
  /// The first chain is the outline, the others hold what is no part of the region. REQUIRES: chains and settings stay
  /// as they are.
  explicit TPoleOutlines(std::span<const TEntityStorage* const> aChains);

  /// True for a point within the outline, but neither within nor on a hole, as the chains' `PointInsideEntities` has
  /// it.
  bool Hold(const TEntityCoordinate& aPoint);

 private:
  struct TPart {
    TWalkedEntity fWalked;
    std::size_t fChain;
  };

  std::vector<TPart> GetParts(std::span<const TEntityStorage* const> aChains) const;
  std::vector<THeightRange> GetHeights() const;

  double fTolerance;
  std::vector<TPart> fParts;
  TBlockTree<THeightRange> fTree;
};

}  // namespace GeometryEngine::detail

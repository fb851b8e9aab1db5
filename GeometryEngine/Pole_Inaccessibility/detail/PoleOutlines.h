#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/Pole_Inaccessibility/detail/TBlockTree.h"

namespace GeometryEngine::detail {

/// A range of heights, its ends included.
struct THeightRange {
  double fLow;
  double fHigh;

  bool Holds(double aHeight) const { return !(aHeight < fLow || aHeight > fHigh); }
  void Unite(const THeightRange& aOther);
};

/// The chains round a region, walked once for a search that asks of many points whether they lie inside.
class TPoleOutlines {
 public:
  /// The first chain is the outline, the others hold what is no part of the region. REQUIRES: chains and settings stay
  /// as they are.
  explicit TPoleOutlines(std::span<const TEntityStorage* const> aChains);

  /// True for a point within the outline, but neither within nor on a hole, as the chains' `PointInsideEntities` has
  /// it.
  bool Hold(const TEntityCoordinate& aPoint) const;

 private:
  /// An entity as the walk along its chain passes it.
  struct TPassed {
    const TDXFEntity* fEntity;
    TEntityCoordinate fFrom;
    TEntityCoordinate fTo;
    std::size_t fChain;
  };

  static std::vector<TPassed> GetPassed(std::span<const TEntityStorage* const> aChains);
  static std::vector<THeightRange> GetHeights(std::span<const TPassed> aPassed);

  std::vector<TPassed> fPassed;
  TBlockTree<THeightRange> fTree;
};

}  // namespace GeometryEngine::detail

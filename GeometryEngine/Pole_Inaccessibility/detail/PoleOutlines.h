#pragma once

#include <cstddef>
#include <cstdint>
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
  /// A part of a chain: an entity with the ends between which the walk passes it, or one chord of an arc.
  struct TPart {
    const TDXFEntity* fEntity;  ///< whose points are on the chain; nil for a chord
    bool fTurnsRound;           ///< false for an arc whose chords follow: they do instead
    TEntityCoordinate fFrom;
    TEntityCoordinate fTo;
    std::size_t fChain;
  };

  static std::vector<TPart> GetParts(std::span<const TEntityStorage* const> aChains);
  static void AddChords(std::vector<TPart>& aParts, TPart aArc);
  static THeightRange GetHeightRange(const TPart& aPart, double aTolerance);
  static std::vector<THeightRange> GetHeights(std::span<const TPart> aParts);
  static std::int32_t GetWinding(const TPart& aPart, const TEntityCoordinate& aPoint);

  std::vector<TPart> fParts;
  TBlockTree<THeightRange> fTree;
};

}  // namespace GeometryEngine::detail

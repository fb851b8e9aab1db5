#pragma once

#include <span>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"

namespace GeometryEngine::detail {

/// What the measures of a closed chain follow from, summed up in one walk.
struct TChainSums {
  double fArea = 0;            ///< within the chain, positive when it runs anticlockwise
  TEntityCoordinate fMoments;  ///< 6 times the first moments of that area about the origin

  TEntityCoordinate Centroid() const;
};

/// Walks the chain from its start vertex; see `TVertexWalk`.
TChainSums GetChainSums(std::span<const TDXFEntity> aChain, const TEntityCoordinate& aStart);
/// The area alone, by the same sum; much cheaper in chains with arcs.
double GetChainArea(std::span<const TDXFEntity> aChain, const TEntityCoordinate& aStart);

}  // namespace GeometryEngine::detail

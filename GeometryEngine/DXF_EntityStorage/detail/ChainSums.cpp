#include "GeometryEngine/DXF_EntityStorage/detail/ChainSums.h"

#include "GeometryEngine/DXF_EntityStorage/detail/VertexWalk.h"
#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kCentroidDivisor = 6;  // the centroid sum of a closed chain is 6 times its area times its centroid

}  // namespace

TEntityCoordinate TChainSums::Centroid() const {
  return (1 / (kCentroidDivisor * fArea)) * fMoments;
}

TChainSums GetChainSums(std::span<const TDXFEntity> aChain, const TEntityCoordinate& aStart) {
  TChainSums sums;
  for (TVertexWalk walk(aChain, aStart); walk.Next();) {
    sums.fArea += GetSignedArea_Entity(walk.From(), walk.To(), walk.Entity());
    const TEntityCoordinate term = GetCentroidComponent_Entity(walk.From(), walk.To(), walk.Entity());
    sums.fMoments.x += term.x;
    sums.fMoments.y += term.y;
  }
  return sums;
}

double GetChainArea(std::span<const TDXFEntity> aChain, const TEntityCoordinate& aStart) {
  double area = 0;
  for (TVertexWalk walk(aChain, aStart); walk.Next();) {
    area += GetSignedArea_Entity(walk.From(), walk.To(), walk.Entity());
  }
  return area;
}

}  // namespace GeometryEngine::detail

// The measures of a storage's closed chain.

#include <algorithm>
#include <cstdint>
#include <limits>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_EntityStorage/detail/ChainSums.h"
#include "GeometryEngine/DXF_EntityStorage/detail/PointOnEntity.h"
#include "GeometryEngine/DXF_EntityStorage/detail/VertexWalk.h"
#include "GeometryEngine/GeometryEngine_Arrays/CoordinateArrays.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"

namespace GeometryEngine {

bool TEntityStorage::PointInsideEntities(const TEntityCoordinate& aCoord, bool aIncludePointOnEntity) const {
  if (PointOnEntities(aCoord)) return aIncludePointOnEntity;
  std::int64_t winding = 0;
  // KEPT: the walk begins at the stored start vertex and looks for none; the owner keeps it, and may ask about many
  // points without the chain's ends being searched each time.
  for (detail::TVertexWalk walk(fEntityArray, fStartCoordinate); walk.Next();) {
    winding += GetWindingNumber_Entity_Addition(walk.Entity(), walk.From(), walk.To(), aCoord);
  }
  // KEPT: one-sided, so that a point within a clockwise chain is reported as outside; whoever nests regions relies on
  // outlines alone, which run anticlockwise, to hold a point.
  return winding > 0;
}

bool TEntityStorage::PointOnEntities(const TEntityCoordinate& aCoordinate) const {
  return std::any_of(fEntityArray.begin(), fEntityArray.end(),
                     [&](const TDXFEntity& aEntity) { return detail::PointOnEntity(aEntity, aCoordinate); });
}

double TEntityStorage::GetClosedArea() const {
  return detail::GetChainArea(fEntityArray, GetStartCoordinate());
}

TEntityCoordinate TEntityStorage::GetCentroid() const {
  return detail::GetChainSums(fEntityArray, GetStartCoordinate()).Centroid();
}

double TEntityStorage::MinPointToEntitiesDistance(const TEntityCoordinate& aPoint) const {
  double distance = std::numeric_limits<double>::infinity();
  const TCoordinateArray vertices = GetVertices_Surf(false);
  if (vertices.size() < 2) return distance;
  for (TIndex i = 0; i < ToIndex(vertices.size()); ++i) {
    const TEntityCoordinate& vertex = vertices[static_cast<std::size_t>(i)];
    distance = std::min(distance, PointToSegmentDistance(aPoint, vertex, GetCoordinate_Next(vertices, i)));
  }
  return distance;
}

}  // namespace GeometryEngine

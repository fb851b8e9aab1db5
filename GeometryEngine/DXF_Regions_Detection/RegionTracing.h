#pragma once

#include <span>

#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/IntegerArrays.h"

namespace GeometryEngine {

/// What a walk through the vertex graph keeps.
struct TRegionWalk {
  TEntityCoordinate fStart;       ///< where the loop has to close
  TEntityCoordinate fCentroid;    ///< running centroid sum; the centroid once the loop has closed
  double fArea = 0;               ///< running signed area
  TIntegerArray fPath;            ///< absolute indexes of the half-edges walked, in order
  TIntegerArray fBlocked;         ///< absolute indexes of half-edges stepped back from
  bool fBacktracking = false;     ///< whether a dead end is stepped back from
};

GEOMETRYENGINE_API void FindNextRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, TTreeNode* aEntityEnd,
                                             TRegionWalk& aWalk);
GEOMETRYENGINE_API void StepBackRegionEntity(TEntityTree& aTree, TTreeNode* aVertex, const TEntityCoordinate& aFarEnd,
                                             const TDXFEntity& aEntity, TRegionWalk& aWalk);
GEOMETRYENGINE_API bool IsEntityInRegionPath(const TEntityTree& aTree, std::span<const std::int32_t> aPath,
                                             TIndex aEntityIndex);

}  // namespace GeometryEngine

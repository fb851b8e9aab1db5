#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TEntityTree.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/TInterceptionPoints.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TTreeNode* AddInterception(TEntityTree& aTree, const TDXFEntity& aEntity, TIndex aIndex,
                                              const TEntityCoordinate& aPoint);
GEOMETRYENGINE_API void AddInterceptions(TEntityTree& aTree, const TInterceptionPoints& aPoints,
                                         const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TIndex aIndex_A,
                                         TIndex aIndex_B);

}  // namespace GeometryEngine

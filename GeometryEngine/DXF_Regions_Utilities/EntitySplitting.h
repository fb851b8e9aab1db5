#pragma once

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"
#include "GeometryEngine/Export.h"

namespace GeometryEngine {

GEOMETRYENGINE_API TEntityArray SplitEntity_FromIntercepts(const TDXFEntity& aEntity, const TTreeNode* aNode);
GEOMETRYENGINE_API TDXFEntity CreateEntity_Arc_CoordinateTree(const TEntityCoordinate& aStart,
                                                              const TEntityCoordinate& aEnd, const TDXFEntity& aArc);

}  // namespace GeometryEngine

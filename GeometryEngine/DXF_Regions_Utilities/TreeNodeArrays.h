#pragma once

#include <vector>

#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"
#include "GeometryEngine/Export.h"
#include "GeometryEngine/host/TIndex.h"

namespace GeometryEngine {

/// References to detection nodes; owns none of them.
using TTreeNodeArray = std::vector<TTreeNode*>;

/// Appends the node and returns the position at which it stands.
GEOMETRYENGINE_API TIndex AddTreeNodeToArray(TTreeNodeArray& aArray, TTreeNode* aNode);

}  // namespace GeometryEngine

#include "GeometryEngine/DXF_Regions_Utilities/TreeNodeArrays.h"

namespace GeometryEngine {

TIndex AddTreeNodeToArray(TTreeNodeArray& aArray, TTreeNode* aNode) {
  aArray.push_back(aNode);
  return ToIndex(aArray.size()) - 1;
}

}  // namespace GeometryEngine

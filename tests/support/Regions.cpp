#include "tests/support/Regions.h"

#include <cstddef>

#include "tests/support/Chains.h"
#include "tests/support/Geometry.h"

namespace GeometryEngine::support {

namespace {

std::string PolygonText(const TCoordinateArray& aVertices) {
  TEntityArray lines;
  for (std::size_t i = 0; i < aVertices.size(); ++i) {
    lines.push_back(TDXFEntity::Line(aVertices[i], aVertices[(i + 1) % aVertices.size()]));
  }
  return ToText(lines);
}

}  // namespace

std::string PolygonText(std::string_view aVertices) {
  return PolygonText(ParseCoordinates(aVertices));
}

std::string RectangleText(double aMin_X, double aMin_Y, double aMax_X, double aMax_Y) {
  return PolygonText({{aMin_X, aMin_Y}, {aMax_X, aMin_Y}, {aMax_X, aMax_Y}, {aMin_X, aMax_Y}});
}

TTreeNode_CoreProperties& AddNode(TTree_CoreProperties& aTree, TTreeNode_Base* aParent) {
  auto node = aTree.CreateTreeNode();
  TTreeNode_Base* const entered = aTree.AddNewTreeNode(node);
  if (aParent != nullptr) aTree.MoveTreeNode_Recursive(entered, aParent);
  return dynamic_cast<TTreeNode_CoreProperties&>(*entered);
}

TTreeNode_Geometry& AddRegion(TTree_Geometry& aTree, std::string_view aOutline, TTreeNode_Base* aParent) {
  auto& region = dynamic_cast<TTreeNode_Geometry&>(AddNode(aTree, aParent));
  AddChain(region.Entities(), aOutline);
  return region;
}

}  // namespace GeometryEngine::support

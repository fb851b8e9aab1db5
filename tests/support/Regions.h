#pragma once

// Region trees for tests: nodes entered in one call, outlines from their vertices.

#include <string>
#include <string_view>

#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"

namespace GeometryEngine::support {

/// The lines of the closed polygon through these coordinates ("0,0 4,0 4,4"), as the text of entities.
std::string PolygonText(std::string_view aVertices);

/// The anticlockwise rectangle that starts at its lower left corner, as the text of entities.
std::string RectangleText(double aMin_X, double aMin_Y, double aMax_X, double aMax_Y);

/// A new node of the tree's own class, entered below `aParent`, or below the root when that is nil.
TTreeNode_CoreProperties& AddNode(TTree_CoreProperties& aTree, TTreeNode_Base* aParent = nullptr);

/// A new region with this outline and its start vertex, entered like AddNode. Its outputs aren't computed yet.
TTreeNode_Geometry& AddRegion(TTree_Geometry& aTree, std::string_view aOutline, TTreeNode_Base* aParent = nullptr);

}  // namespace GeometryEngine::support

// The typical detection request, from an unordered set of lines and arcs to named, nested regions with label points:
// a ring whose hole holds two conductors.

#include <cstdio>

#include "GeometryEngine/GeometryEngine.h"

using namespace GeometryEngine;

namespace {

// A circle is drawn as two half arcs: an arc record can't run all the way round.
void AddCircle(TEntityStorage& drawing, double x, double y, double radius) {
  drawing.AddEntity(CreateEntity_Arc(x, y, radius, 0, 180));
  drawing.AddEntity(CreateEntity_Arc(x, y, radius, 180, 360));
}

const char* NameFor(const TTreeNode_Geometry& region, const TTree_Geometry& tree) {
  if (region.GetParent() == tree.GetRootNode()) return "Ring";
  return region.Children().empty() ? "Conductor" : "Hole";
}

}  // namespace

int main() {
  TEntityStorage drawing;
  AddCircle(drawing, 60, 40, 30);
  AddCircle(drawing, 60, 40, 20);
  AddCircle(drawing, 53, 40, 4);
  AddCircle(drawing, 67, 40, 6);

  TEntityBaseClass driver;
  driver.DetermineInterceptions(&drawing);              // where entities meet, and the pieces in between
  driver.DetermineRegions(driver.CoordinateTree(), 1);  // the anticlockwise loops: one for each bounded face
  driver.IdentifySubRegions(driver.CoordinateTree());
  driver.RemoveDuplicatedSubRegions();

  TTree_Geometry tree;
  TTreeNodeArray_Geometry regions;
  const auto& loops = driver.RegionTree().RootNode()->Children();
  for (TIndex i = 0; i < ToIndex(loops.size()); ++i) {
    auto node = tree.CreateTreeNode();
    regions.push_back(TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node)));
    driver.AddRegionEntities(regions.back(), i);
  }
  // Children go below their parents before any outputs are computed: a label has to keep clear of the children.
  for (std::size_t i = 0; i < loops.size(); ++i) {
    for (const auto inner : loops[i]->SubRegions()) {
      tree.MoveTreeNode_Recursive(regions[static_cast<std::size_t>(inner)], regions[i]);
    }
  }
  for (TTreeNode_Geometry* region : regions) {
    region->UpdateGeometry_Outputs();
    region->SetRegionName(NameFor(*region, tree));
    const TEntityCoordinate centroid = region->Centroid();
    const TEntityCoordinate label = region->RegionCoordinate();
    std::printf("%-12s net area %9.3f  centroid (%.3f, %.3f)  label point (%.3f, %.3f)\n", region->UniqueName().c_str(),
                region->GetRegionArea(), centroid.x, centroid.y, label.x, label.y);
  }
}

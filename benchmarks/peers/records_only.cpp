// The second floor: the answer is known, and merely its records are written: the pieces of the drawing, and a node for
// every region with its outline, area, centroid and label point.

#include <memory>

#include "benchmarks/support/HostRun.h"
#include "benchmarks/support/Program.h"

namespace {

using namespace GeometryEngine;

struct TKnownRegion {
  TEntityArray outline;
  TIndex parent = kNotFound;
  double area = 0;
  TEntityCoordinate start;
  TEntityCoordinate centroid;
  TEntityCoordinate label;
};

class TRecords {
 public:
  explicit TRecords(const drawings::Drawing& aDrawing) {
    benchmarks::THostRun run(aDrawing);
    run.All();
    fKnownPieces = run.Driver().CoordinateTree().pEntityStorage()->EntityArray();
    for (TIndex i = 1; i < run.Tree().GetCount(); ++i) Remember(*run.Tree().GetNodeFromIndex(i));
  }

  std::size_t operator()() {
    fPieces.AddEntities(fKnownPieces);
    TTreeNodeArray_Geometry nodes;
    for (const TKnownRegion& region : fRegions) nodes.push_back(Write(region, nodes));
    return nodes.size();
  }

 private:
  void Remember(const TTreeNode_CoreProperties& aNode) {
    const TTreeNode_Geometry& node = *TTreeNode_Geometry::TypeCast(&aNode);
    fRegions.push_back({node.Entities().EntityArray(), node.GetParent()->GetTreeIndex() - 1, node.RegionArea_Base(),
                        node.Entities().StartCoordinate(), node.Centroid(), node.RegionCoordinate()});
  }

  TTreeNode_Geometry* Write(const TKnownRegion& aRegion, const TTreeNodeArray_Geometry& aNodes) {
    auto owned = fTree.CreateTreeNode();
    auto* node = TTreeNode_Geometry::TypeCast(fTree.AddNewTreeNode(owned));
    node->Entities().AddEntities(aRegion.outline);
    node->Entities().StartCoordinate(aRegion.start);
    node->RegionArea_Base(aRegion.area);
    node->Centroid(aRegion.centroid);
    node->RegionCoordinate(aRegion.label);
    if (aRegion.parent >= 0) fTree.MoveTreeNode_Recursive(node, aNodes[static_cast<std::size_t>(aRegion.parent)]);
    return node;
  }

  TEntityArray fKnownPieces;
  std::vector<TKnownRegion> fRegions;
  TEntityStorage fPieces;
  TTree_Geometry fTree;
};

}  // namespace

int main(int aCount, char** aArguments) {
  return benchmarks::RunProgram<TRecords>(aCount, aArguments);
}

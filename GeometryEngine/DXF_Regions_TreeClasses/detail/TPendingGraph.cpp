#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TPendingGraph.h"

#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeBatch.h"

namespace GeometryEngine::detail {

std::vector<TIndex> TPendingGraph::GetCounts() const {
  std::vector<TIndex> counts(fPoints.size());
  for (const TIndex vertex : fVertexOf) ++counts[static_cast<std::size_t>(vertex)];
  return counts;
}

void TPendingGraph::AddNodes(TEntityTree& aTree) const {
  struct TVertex {
    TNodeBatch::TParent fNode;
    TIndex fCount = 0;  ///< of half-edges that have their nodes
  };
  const std::vector<TIndex> counts = GetCounts();
  std::vector<TVertex> vertices;
  vertices.reserve(fPoints.size());
  TNodeBatch nodes(aTree, fPoints.size(), fVertexOf.size());
  for (std::size_t h = 0; h < fVertexOf.size(); ++h) {
    const std::size_t place = static_cast<std::size_t>(fVertexOf[h]);
    if (place == vertices.size()) {
      vertices.push_back({nodes.AddToRoot(counts[place])});
      vertices.back().fNode.fNode->Coordinates(fPoints[place]);
    }
    TVertex& vertex = vertices[place];
    TTreeNode& node = nodes.Add(vertex.fNode, vertex.fCount++);
    node.EntityIndex(ToIndex(h / 2));
    node.Travelled(fIsTravelled[h]);
  }
}

}  // namespace GeometryEngine::detail

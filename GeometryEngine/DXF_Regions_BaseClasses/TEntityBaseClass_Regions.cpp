#include <algorithm>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_Entity_Types/detail/TEntityIndex.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_BaseClasses/detail/TDriverPass.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TGraphWalk.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TLoopTracing.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TVertexGraph.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TNodeBatch.h"

namespace GeometryEngine {

namespace {

constexpr std::int32_t kRegionType_All = 0;
constexpr std::int32_t kRegionType_AntiClockwise = 1;
constexpr std::int32_t kRegionType_Clockwise = 2;

bool IsWanted(double aArea, std::int32_t aRegionType) {
  if (aArea < 0) return aRegionType == kRegionType_All || aRegionType == kRegionType_Clockwise;
  return aArea >= 0 && (aRegionType == kRegionType_All || aRegionType == kRegionType_AntiClockwise);
}

// The entity of a walked half-edge; none for an index that the tree doesn't hold.
TIndex GetWalkedEntityIndex(const TEntityTree& aCoordinateTree, std::int32_t aNodeIndex) {
  const TTreeNode* node = aCoordinateTree.GetNodeFromIndex(aNodeIndex);
  return node == nullptr ? kNotFound : node->EntityIndex();
}

// What a region node has of a loop or chain besides its entities.
void SetRegion(TTreeNode& aRegion, const TEntityCoordinate& aStart, const TEntityCoordinate& aCentroid, double aArea) {
  aRegion.Coordinates(aStart);
  aRegion.ResetRegionIdentifier();
  aRegion.GaussArea(aArea);
  aRegion.RegionCentroid(aCentroid);
  aRegion.TravelDirection(aArea >= 0 ? Travel_AntiClockwise : Travel_Clockwise);
}

const TEntityCoordinate& StartOf(const detail::TVertexGraph& aGraph, const detail::TGraphWalk& aWalk) {
  return aGraph.From(aGraph.HalfEdge(aWalk.Path().front()));
}

// The loops that are kept, until it is known how many nodes they take.
class TKeptLoops {
 public:
  explicit TKeptLoops(const detail::TVertexGraph& aGraph) : fGraph(aGraph) {}

  void Add(detail::TGraphWalk& aWalk, double aArea) {
    for (const TIndex h : aWalk.Path()) fEntities.fEntityIndexes.push_back(fGraph.HalfEdge(h).fEntityIndex);
    fEntities.fFirst.push_back(fEntities.fEntityIndexes.size());
    fLoops.push_back({StartOf(fGraph, aWalk), aWalk.GetCentroid(aArea), aArea});
  }

  void MoveToTree(TEntityTree& aRegionTree) {
    detail::TNodeBatch nodes(aRegionTree, fLoops.size(), 0);
    for (const auto& [start, centroid, area] : fLoops) SetRegion(*nodes.AddToRoot(0).fNode, start, centroid, area);
    nodes.AddPending(std::move(fEntities));
  }

 private:
  struct TLoop {
    TEntityCoordinate fStart;
    TEntityCoordinate fCentroid;
    double fArea;
  };

  const detail::TVertexGraph& fGraph;
  std::vector<TLoop> fLoops;
  detail::TPendingLeaves fEntities{{}, {0}};
};

// The open chains found so far, to recognise one that is walked from its other end.
class TKnownChains {
 public:
  TKnownChains(const TEntityTree& aRegionTree, const detail::TVertexGraph& aGraph)
      : fRegionTree(aRegionTree), fGraph(aGraph) {}

  bool HoldReverseOf(std::span<const TIndex> aPath) const {
    bool isKnown = false;
    fLastEntities.ForEachNear(EntityAt(aPath.front()), [&](TIndex region) {
      isKnown = isKnown || IsReverse(*fRegionTree.RootNode()->GetNode(region), aPath);
    });
    return isKnown;
  }

  /// Takes in the chain that becomes the region tree's next region.
  void Add(std::span<const TIndex> aPath) { fLastEntities.Add(EntityAt(aPath.back())); }

 private:
  const TDXFEntity& EntityAt(TIndex aHalfEdge) const { return fGraph.Entity(fGraph.HalfEdge(aHalfEdge)); }

  bool IsReverse(const TTreeNode& aRegion, std::span<const TIndex> aPath) const {
    const std::span<TTreeNode* const> children = aRegion.Children();
    return std::equal(children.rbegin(), children.rend(), aPath.begin(), aPath.end(),
                      [this](const TTreeNode* child, TIndex halfEdge) {
                        return fRegionTree.GetNodeEntity(*child) == EntityAt(halfEdge);
                      });
  }

  const TEntityTree& fRegionTree;
  const detail::TVertexGraph& fGraph;
  detail::TEntityIndex fLastEntities;  // of the regions, in their order
};

}  // namespace

void TEntityBaseClass::DetermineRegions(TEntityTree& aTree, std::int32_t aRegionType) {
  detail::TDriverPass pass(fRegionTree);
  fRegionTree.Clear();
  fRegionTree.pEntityStorage(aTree.pEntityStorage());
  detail::TVertexGraph graph(aTree);
  detail::TLoopTracing tracing(graph);
  TKeptLoops loops(graph);
  const bool wantsNegative = IsWanted(-1, aRegionType);
  for (TIndex place = 0; place < graph.HalfEdgeCount(); ++place) {
    const TIndex h = graph.HalfEdgeInOrder(place);
    // A dangling end starts no closed loop.
    if (tracing.Walk().IsTravelled(h) || graph.IsDangling(graph.HalfEdge(h).fVertex)) continue;
    if (!tracing.Trace(place, wantsNegative) || !IsWanted(tracing.Area(), aRegionType)) continue;
    loops.Add(tracing.Walk(), tracing.Area());
  }
  loops.MoveToTree(fRegionTree);
  tracing.Walk().WriteMarks();
  pass.Done();
}

void TEntityBaseClass::DetectOrphanEntities(TEntityTree& aTree) {
  detail::TDriverPass pass(fRegionTree);
  fRegionTree.Clear();
  fRegionTree.pEntityStorage(aTree.pEntityStorage());
  const detail::TVertexGraph graph(aTree);
  detail::TGraphWalk walk(graph);
  TKnownChains known(fRegionTree, graph);
  for (TIndex h = 0; h < graph.HalfEdgeCount(); ++h) {
    if (!graph.IsDangling(graph.HalfEdge(h).fVertex)) continue;
    walk.Walk(h, false);
    if (known.HoldReverseOf(walk.Path())) continue;
    known.Add(walk.Path());
    const double area = walk.GetArea();
    TTreeNode* region = fRegionTree.AddTreeNode_ToRoot();
    SetRegion(*region, StartOf(graph, walk), walk.GetCentroid(area), area);
    for (const TIndex i : walk.Path()) fRegionTree.AddTreeNode(region)->EntityIndex(graph.HalfEdge(i).fEntityIndex);
  }
  walk.WriteMarks();
  pass.Done();
}

void TEntityBaseClass::AddRegionCoordinates(const TEntityTree& aCoordinateTree,
                                            std::span<const std::int32_t> aNodeIndexes, const TEntityCoordinate& aStart,
                                            const TEntityCoordinate& aCentroid, double aArea) {
  if (aNodeIndexes.empty()) return;
  const TFloatEnvironment environment;
  TTreeNode* region = fRegionTree.AddTreeNode_ToRoot();
  SetRegion(*region, aStart, aCentroid, aArea);
  for (const std::int32_t index : aNodeIndexes) {
    fRegionTree.AddTreeNode(region)->EntityIndex(GetWalkedEntityIndex(aCoordinateTree, index));
  }
}

}  // namespace GeometryEngine

#pragma once

// One drawing through everything that a driver and a region tree do, by either engine; what it answers on the way is
// recorded. What is asked follows from the drawing's seed alone.

#include <algorithm>
#include <vector>

#include "tests/properties/TwinDrawings.h"
#include "tests/properties/TwinEngines.h"
#include "tests/properties/TwinRecord.h"

namespace GeometryEngine::properties {

template <class TEngine>
class TwinDetection {
 public:
  explicit TwinDetection(const TwinDrawing& aDrawing) : fDrawing(aDrawing), fRandom(~aDrawing.seed) {
    fStorage.AddEntities(aDrawing.entities);
  }

  /// The most regions that a pass found.
  TIndex Regions() const { return fRegions; }
  /// How often labels were left out that would have been asked for, because outlines had too many chords.
  unsigned long Unlabelled() const { return fUnlabelled; }

  TwinRecord Run() {
    Tree& graph = fDriver.CoordinateTree();
    Detect();
    ApplyForTracing(fDrawing.settings);
    if (fRandom.Chance(0.08)) Meddle(graph);
    if (fRandom.Chance(0.2)) Orphans(graph);
    Regions(graph, fRandom.Chance(0.6) ? 1 : Whole(0, 3));
    if (fRandom.Chance(0.1)) Orphans(graph);  // among the marks that the loops have left
    Detect();                                 // the storage is sorted by now, the trees hold nodes
    if (fRandom.Chance(0.1)) FillByHand();
    if (fRandom.Chance(0.5)) {
      Orphans(graph);
    } else {
      Regions(graph, Whole(0, 2));
    }
    return std::move(fRecord);
  }

 private:
  using Node = typename TEngine::Node;
  using Tree = typename TEngine::Tree;
  using Region = typename TEngine::Region;

  int Whole(int aLow, int aHigh) { return static_cast<int>(std::floor(fRandom.Between(aLow, aHigh + 1))); }
  static std::vector<Node*> ChildrenOf(const Node& aNode) {
    const auto& children = aNode.Children();
    return {children.begin(), children.end()};
  }
  std::vector<Node*> TracedRegions() { return ChildrenOf(*fDriver.RegionTree().RootNode()); }

  void Detect() {
    Apply(fDrawing.settings);
    fDriver.DetermineInterceptions(&fStorage);
    fRecord.Section("the sorted drawing");
    fRecord.Add("entity", fStorage.EntityArray());
    Record("intercept tree", fDriver.InterceptTree());
    Record("coordinate tree", fDriver.CoordinateTree());
    fRecord.Section("the pieces");
    fRecord.Add("entity", fDriver.CoordinateTree().pEntityStorage()->EntityArray());
  }

  /// What a host may do to a graph that it has been handed, before it is traced.
  void Meddle(Tree& aTree) {
    TEntityArray& pieces = aTree.pEntityStorage()->EntityArray();
    const std::vector<Node*> vertices = ChildrenOf(*aTree.RootNode());
    if (vertices.empty()) return;
    Node* vertex = vertices[static_cast<std::size_t>(Whole(0, static_cast<int>(vertices.size()) - 1))];
    TDXFEntity& piece = pieces[static_cast<std::size_t>(Whole(0, static_cast<int>(pieces.size()) - 1))];
    const double step = Whole(-2, 2) * 0.9 * fDrawing.settings.linearTolerance;
    switch (Whole(0, 6)) {
      case 0:
        vertex->Coordinates(vertex->Coordinates() + TEntityCoordinate{step, 0});
        break;
      case 1:
        piece.EndCoords = piece.EndCoords + TEntityCoordinate{0, step};
        break;
      case 2:
        piece.EndCoords = vertex->Coordinates();
        break;
      case 3:
        std::swap(piece, pieces.front());
        break;
      case 4:
        vertex->GetNode(0)->Travelled(true);
        break;
      case 5:
        aTree.AddTreeNode(vertex)->EntityIndex(Whole(-1, static_cast<int>(pieces.size())));
        break;
      default:
        fDriver.CoordinateTree().Clear();
        fDriver.CreateCoordinateTreeFromIntercepts();
    }
    fDriver.AddEntityToCoordinateTree(aTree, TDXFEntity::Line(AnyPoint(), AnyPoint()));
    Record("coordinate tree after a host's changes", aTree);
  }

  /// The second graph, filled by the host with pieces of the first and lines across them.
  void FillByHand() {
    Tree& tree = fDriver.CoordinateTree_Duplicated();
    typename TEngine::Storage storage;
    tree.pEntityStorage(&storage);
    const TEntityArray pieces = fDriver.CoordinateTree().pEntityStorage()->EntityArray();
    for (const TDXFEntity& piece : pieces) {
      if (fRandom.Chance(0.02)) ApplyForTracing(fDrawing.settings);
      fDriver.AddEntityToCoordinateTree(tree, piece);
      if (fRandom.Chance(0.1)) fDriver.AddEntityToCoordinateTree(tree, TDXFEntity::Line(piece.StartCoords, AnyPoint()));
    }
    Record("coordinate tree filled by hand", tree);
    Regions(tree, Whole(0, 2));
    tree.Clear();
    tree.pEntityStorage(nullptr);
    fDriver.RegionTree().Clear();
    fDriver.RegionTree().pEntityStorage(nullptr);
  }

  void Orphans(Tree& aTree) {
    fDriver.DetectOrphanEntities(aTree);
    Record("coordinate tree after open chains", aTree);
    Record("open chains", fDriver.RegionTree());
  }

  void Regions(Tree& aTree, int aType) {
    fDriver.DetermineRegions(aTree, aType);
    Record("coordinate tree after regions", aTree);
    Record("regions", fDriver.RegionTree());
    fRegions = std::max(fRegions, fDriver.RegionTree().RootNode()->Count());
    Nest(aTree);
    AskForPoints(aTree);
    SearchTrees();
    HandOver();
    if (fRandom.Chance(0.3)) MergeEntities();
  }

  void Nest(const Tree& aTree) {
    fDriver.IdentifySubRegions(aTree);
    RecordSubRegions("sub-regions");
    fDriver.RemoveDuplicatedSubRegions();
    RecordSubRegions("closest containers");
    for (TIndex i = -1; i <= ToIndex(TracedRegions().size()); ++i) {
      fRecord.Add("is sub-region", fDriver.GetIsRegionSubRegion(i));
    }
  }

  /// A point of the drawing, on a piece or beside one.
  TEntityCoordinate AnyPoint() {
    const TEntityArray& pieces = fDriver.CoordinateTree().pEntityStorage()->EntityArray();
    if (pieces.empty() || fRandom.Chance(0.4)) return {fRandom.Between(-20, 120), fRandom.Between(-20, 120)};
    const TDXFEntity& piece = pieces[static_cast<std::size_t>(Whole(0, static_cast<int>(pieces.size()) - 1))];
    const double share = 0.25 * Whole(0, 4);
    const TEntityCoordinate point = piece.StartCoords + share * (piece.EndCoords - piece.StartCoords);
    return fRandom.Chance(0.7) ? point : point + TEntityCoordinate{fRandom.Between(-1, 1), fRandom.Between(-1, 1)};
  }

  void AskForPoints(const Tree& aTree) {
    fRecord.Section("points");
    for (int i = 0; i < 4; ++i) {
      const TEntityCoordinate point = AnyPoint();
      for (const Node* region : TracedRegions()) {
        fRecord.Add("winding number", CalculateWindingNumber(aTree, region, point));
      }
      TIndex index = -7;
      const Node* region = IdentifyRegionFromCoordinate(fDriver.RegionTree(), aTree, point, index);
      fRecord.Add("found region", region == nullptr ? kNotFound : region->RelativeIndex());
      fRecord.Add("index of found region", index);
    }
    if (TracedRegions().empty()) return;
    const TIndex one = Whole(0, static_cast<int>(TracedRegions().size()) - 1);
    const TIndex other = Whole(0, static_cast<int>(TracedRegions().size()) - 1);
    const Node* region = fDriver.RegionTree().RootNode()->GetNode(one);
    const Node* tested = fDriver.RegionTree().RootNode()->GetNode(other);
    fRecord.Add("generated point", GenerateRegionPoint(aTree, region, tested, 0, 1e9, 0, 90));
    DetermineClockwiseSubRegions(fDriver.RegionTree(), aTree, region, one);
    RecordSubRegions("clockwise sub-regions");
  }

  static TIndex PlaceOf(const Node* aNode) { return aNode == nullptr ? kNotFound : aNode->AbsoluteIndex(); }

  void SearchTrees() {
    fRecord.Section("searches in trees");
    const Tree& graph = fDriver.CoordinateTree();
    const Tree& intercepts = fDriver.InterceptTree();
    for (std::size_t i = 0; i < std::min<std::size_t>(4, fDrawing.entities.size()); ++i) {
      const TEntityCoordinate point = AnyPoint();
      const Node* drawn = intercepts.Search_L1_Entities(fDrawing.entities[i]);
      fRecord.Add("vertex", PlaceOf(graph.Search_L1_Coords(point)));
      fRecord.Add("drawn entity", PlaceOf(drawn));
      if (drawn != nullptr) fRecord.Add("point of entity", PlaceOf(intercepts.Search_L2_Coordinates(point, drawn)));
    }
  }

  void HandOver() {
    typename TEngine::RegionTree tree;
    std::vector<Region*> nodes;
    for (TIndex i = 0; i < ToIndex(TracedRegions().size()); ++i) {
      nodes.push_back(TEngine::AddRegion(tree));
      fDriver.AddRegionEntities(nodes.back(), i);
      Record("handed over", i, *nodes.back());
    }
    AttachChildren(tree, nodes);
    const bool areLabelled = fRandom.Chance(0.15) && AreLabelsAffordable(nodes);
    for (std::size_t i = 0; i < nodes.size() && areLabelled; ++i) {
      nodes[i]->UpdateGeometry_Outputs();
      Record("with outputs", ToIndex(i), *nodes[i]);
    }
    fRecord.Section("entities without duplicates");
    if (fRandom.Chance(0.3)) fRecord.Add("entity", tree.GetEntities_NoDuplicates());
  }

  /// A plain pole search goes through all chords for each of thousands of cells: beside huge arcs it hardly ends.
  bool AreLabelsAffordable(const std::vector<Region*>& aNodes) {
    constexpr std::size_t kMostChords = 10'000;
    std::size_t chords = 0;
    for (Region* node : aNodes) chords += node->Entities().GetVertices_Surf(false).size();
    if (chords > kMostChords) ++fUnlabelled;
    return chords <= kMostChords;
  }

  /// Below each region those that it lists, unless one would come to lie below itself.
  void AttachChildren(typename TEngine::RegionTree& aTree, const std::vector<Region*>& aNodes) {
    std::vector<std::size_t> parents(aNodes.size(), aNodes.size());
    for (std::size_t i = 0; i < aNodes.size(); ++i) {
      for (const std::int32_t sub : TracedRegions()[i]->SubRegions()) {
        const auto child = static_cast<std::size_t>(sub);
        if (parents[child] != aNodes.size() || IsWithin(parents, i, child)) continue;
        parents[child] = i;
        TEngine::Attach(aTree, aNodes[child], aNodes[i]);
      }
    }
  }

  static bool IsWithin(const std::vector<std::size_t>& aParents, std::size_t aNode, std::size_t aTop) {
    while (aNode != aTop && aNode < aParents.size()) aNode = aParents[aNode];
    return aNode == aTop;
  }

  /// Feeds the pairs of one region to the merge, as a host does.
  void MergeEntities() {
    if (TracedRegions().empty()) return;
    Tree& tree = fDriver.RegionTree();
    Node* region = tree.RootNode()->GetNode(Whole(0, static_cast<int>(TracedRegions().size()) - 1));
    const std::vector<Node*> children = ChildrenOf(*region);
    typename TEngine::Merge merge;
    merge.fParent = region;
    merge.fNode_A = children[0];
    merge.fEntity = tree.GetNodeEntity(*children[0]);
    merge.fPoint_1 = region->Coordinates();
    merge.fPoint_2 = GetEntityEndCoordinate(merge.fPoint_1, merge.fEntity);
    for (std::size_t i = 1; i < children.size(); ++i) {
      const TDXFEntity second = tree.GetNodeEntity(*children[i]);
      const TEntityCoordinate end = GetEntityEndCoordinate(merge.fPoint_2, second);
      merge.fNode_B = children[i];
      if (!DetectMergeEntity(tree, merge, second, end, ToIndex(i) - 1)) {
        merge.fNode_A = children[i];
        merge.fEntity = second;
        merge.fPoint_2 = end;
      }
    }
    Record("merged regions", tree);
    fRecord.Section("merged entities");
    fRecord.Add("entity", tree.pEntityStorage()->EntityArray());
    fRecord.Add("merges", merge.fMergeCount);
    fRecord.Add("removals", merge.fRemovals.size());
    fRecord.Add("place of removal", merge.fRemovalPosition);
  }

  void RecordSubRegions(const char* aName) {
    fRecord.Section(aName);
    for (const Node* region : TracedRegions()) fRecord.Add("sub-region", region->SubRegions());
  }

  void Record(const char* aName, TIndex aIndex, Region& aRegion) {
    fRecord.Section(aName, aIndex);
    fRecord.Add("entity", aRegion.Entities().EntityArray());
    fRecord.Add("start", aRegion.Entities().StartCoordinate());
    fRecord.Add("area", aRegion.RegionArea_Base());
    fRecord.Add("net area", aRegion.RegionArea());
    fRecord.Add("centroid", aRegion.Centroid());
    fRecord.Add("label", aRegion.RegionCoordinates());
  }

  void Record(const char* aName, Tree& aTree) {
    fRecord.Section(aName);
    fRecord.Add("nodes", aTree.Count());
    RecordChildren(aTree.RootNode());
    for (TIndex i = 0; i < aTree.Count(); ++i) {
      const Node& node = *aTree.GetNodeFromIndex(i);
      fRecord.Section(aName, i);
      fRecord.Add("absolute index", node.AbsoluteIndex());
      fRecord.Add("relative index", node.RelativeIndex());
      fRecord.Add("level", node.Level());
      fRecord.Add("parent", node.Parent() == nullptr ? -1 : node.Parent()->AbsoluteIndex());
      fRecord.Add("level of parent", node.Parent() == nullptr ? -1 : node.Parent()->Level());
      RecordChildren(&node);
      fRecord.Add("entity index", node.EntityIndex());
      fRecord.Add("coordinates", node.Coordinates());
      fRecord.Add("region index", node.RegionIndex());
      fRecord.Add("travelled", node.Travelled());
      fRecord.Add("area", node.GaussArea());
      fRecord.Add("centroid", node.RegionCentroid());
      fRecord.Add("direction", static_cast<int>(node.TravelDirection()));
      fRecord.Add("sub-region", node.SubRegions());
    }
  }

  void RecordChildren(const Node* aNode) {
    fRecord.Add("children", aNode->Count());
    for (const Node* child : aNode->Children()) fRecord.Add("child", child->AbsoluteIndex());
  }

  const TwinDrawing& fDrawing;
  Random fRandom;
  typename TEngine::Storage fStorage;
  typename TEngine::Driver fDriver;
  TwinRecord fRecord;
  TIndex fRegions = 0;
  unsigned long fUnlabelled = 0;
};

}  // namespace GeometryEngine::properties

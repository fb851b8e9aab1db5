// Region nodes, their trees, names and label points; machine elements.

#include "tests/everything/Observations.h"

namespace everything {

using namespace GeometryEngine;
using enum TGuarantee;

namespace {

// A region with a hole and a child, and another one beside it.
struct TRegions {
  TTree_Geometry tree;
  TTreeNode_Geometry* outer = nullptr;
  TTreeNode_Geometry* inner = nullptr;
  TTreeNode_Geometry* beside = nullptr;
  TEntityArray answer;
  TTreeNodeArray_CoreProperties found;
  std::string name;
  TEntityCoordinate point;

  TTreeNode_Geometry* Add(const char* aName) {
    auto node = tree.CreateTreeNode();
    TTreeNode_Geometry* region = TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node));
    region->SetRegionName(aName);
    return region;
  }

  static void Fill(TEntityStorage& aChain, const TEntityArray& aEntities) {
    aChain.AddEntities(aEntities);
    aChain.StartCoordinate(aChain.GetStartCoordinate());
  }

  void Prepare() {
    tree.Clear();
    answer.clear();
    found.clear();
    name.clear();
    outer = Add("a region whose name takes memory of its own");
    inner = Add("A REGION whose name takes memory of its own");
    beside = Add("Magnet");
    tree.MoveTreeNode(inner, outer);
    Fill(outer->Entities(), RoundedChain(20, 1, 12));
    Fill(outer->Entities_Internal(), RoundedChain(22, 2, 2));
    Fill(inner->Entities(), RoundedChain(25, 5, 3));
    Fill(beside->Entities(), {CreateEntity_Line(10, 0, 12, 0), CreateEntity_Arc(0, 0, 12, 0, 45),
                              CreateEntity_Line(RT_To_XY_Coordinate(12, 45), RT_To_XY_Coordinate(10, 45)),
                              CreateEntity_Arc(0, 0, 10, 0, 45)});
    for (TTreeNode_Geometry* region : {inner, outer, beside}) region->UpdateGeometry_Outputs();
    beside->NumberDuplications(8);
  }

  void Observe(TFingerprint& aFingerprint) const {
    everything::Observe(tree, aFingerprint);
    everything::Observe(answer, aFingerprint);
    everything::Observe(point, aFingerprint);
    aFingerprint.Add(static_cast<std::int64_t>(found.size()));
    aFingerprint.Add(std::string_view(name));
  }

  static bool IsEmpty() { return false; }
};

std::vector<TScenario> TreeScenarios() {
  return {
      On<TRegions>("AddNewTreeNode", Unchanged,
                   [](TRegions& s) {
                     auto node = s.tree.CreateTreeNode();
                     s.tree.AddNewTreeNode(node);
                   }),
      On<TRegions>("AddNewTreeNode_AtIndex", Unchanged,
                   [](TRegions& s) {
                     auto node = s.tree.CreateTreeNode();
                     s.tree.AddNewTreeNode_AtIndex(node, 1);
                   }),
      On<TRegions>("RemoveFreeTreeNode", Unchanged, [](TRegions& s) { s.tree.RemoveFreeTreeNode(s.outer, true); }),
      On<TRegions>("RemoveFreeTreeNode_KeepChildren", Unchanged,
                   [](TRegions& s) { s.tree.RemoveFreeTreeNode(s.outer, false); }),
      On<TRegions>("MoveTreeNode", Unchanged, [](TRegions& s) { s.tree.MoveTreeNode(s.outer, s.beside); }),
      On<TRegions>("MoveTreeNode_Recursive", Unchanged,
                   [](TRegions& s) { s.tree.MoveTreeNode_Recursive(s.outer, s.beside); }),
      On<TRegions>("SetRootNode", Unchanged,
                   [](TRegions& s) {
                     auto node = s.tree.CreateTreeNode();
                     s.tree.SetRootNode(node);
                   }),
      On<TRegions>("ClearTree", Usable, [](TRegions& s) { s.tree.Clear(); }),
      On<TRegions>("GetRegionsFromTypeSet", Unchanged,
                   [](TRegions& s) { s.tree.GetRegionsFromTypeSet(TGeometryRegionTypesSet::All(), s.found); }),
      On<TRegions>("GetEntities_NoDuplicates", Unchanged,
                   [](TRegions& s) { s.answer = s.tree.GetEntities_NoDuplicates(TGeometryRegionTypesSet::All()); }),
      On<TRegions>("UpdateMinMaxValues", Unchanged,
                   [](TRegions& s) {
                     s.tree.UpdateMinMaxValues(TGeometryRegionTypesSet::All());
                     s.point = s.tree.GetCentre();
                   }),
  };
}

std::vector<TScenario> NameScenarios() {
  return {
      On<TRegions>("SetRegionName", Usable,
                   [](TRegions& s) { s.beside->SetRegionName("A region whose name takes memory of its own"); }),
      On<TRegions>("GenerateUniqueRegionName", Unchanged,
                   [](TRegions& s) { s.name = s.inner->GenerateUniqueRegionName(); }),
      On<TRegions>("CopyRegionParameters", Usable, [](TRegions& s) { s.beside->CopyRegionParameters(*s.inner, true); }),
  };
}

std::vector<TScenario> NodeScenarios() {
  return {
      On<TRegions>("CopyRegionParameters_Geometry", Usable,
                   [](TRegions& s) { s.beside->CopyRegionParameters_Geometry(*s.outer); }),
      On<TRegions>("UpdateGeometry_Outputs", Usable, [](TRegions& s) { s.outer->UpdateGeometry_Outputs(); }),
      On<TRegions>("GetPoleInaccessibility", Usable,
                   [](TRegions& s) { s.point = GetPoleInaccessibility(s.outer, 1.0, 0.001); }),
      On<TRegions>("PointInsideRegion", Unchanged,
                   [](TRegions& s) {
                     const bool point = s.outer->PointInsideRegion({21, 8}, TGeometryRegionTypesSet::All(), true);
                     const bool region = s.outer->RegionInsideRegion(*s.inner, true);
                     s.point = {point ? 1.0 : 0.0, region ? 1.0 : 0.0};
                   }),
      On<TRegions>("RegionRotate", Usable,
                   [](TRegions& s) {
                     s.outer->Rotate_AboutPoint(30, {1, 1});
                   }),
      On<TRegions>("RegionMirror", Usable, [](TRegions& s) { s.outer->Mirror(CreateEntity_Line(0, 0, 3, 1)); }),
      On<TRegions>("RegionOffset", Usable, [](TRegions& s) { s.outer->Offset(0.2); }),
      On<TRegions>("Duplicate", Usable, [](TRegions& s) { s.beside->Duplicate(); }),
      On<TRegions>("DuplicateAndUnite", Usable, [](TRegions& s) { s.beside->DuplicateAndUnite(3, gpRadial); }),
      On<TRegions>("DuplicateAndUnite_Ring", Usable, [](TRegions& s) { s.beside->DuplicateAndUnite(8, gpRadial); }),
      On<TRegions>("MirrorTree", Usable, [](TRegions& s) { s.tree.Mirror(CreateEntity_Line(0, 0, 3, 1)); }),
  };
}

struct TElements {
  TMachineElementList elements;
  TMachineElementList other;
  TEntityArray answer;
  TVirtualBoundaryArray boundaries;

  static void AddElement(TMachineElementList& aList) {
    auto element = std::make_unique<TMachineElement>();
    element->Add(Maindataenum::TInputFields{7}, Tagged(CreateEntity_Arc(0, 0, 4, 0, 90)), blInnerBoundary, {});
    element->Add(Maindataenum::TInputFields{8}, Tagged(CreateEntity_Line(0, 3, 4, 3)), blOuterBoundary, {});
    aList.Add(element);
  }

  void Prepare() {
    elements.Clear();
    other.Clear();
    AddElement(elements);
    for (int i = 0; i < 3; ++i) AddElement(other);
    answer.clear();
    boundaries.clear();
  }

  void Observe(TFingerprint& aFingerprint) const {
    everything::Observe(elements, aFingerprint);
    everything::Observe(other, aFingerprint);
    everything::Observe(answer, aFingerprint);
    aFingerprint.Add(static_cast<std::int64_t>(boundaries.size()));
  }

  static bool IsEmpty() { return false; }
};

std::vector<TScenario> ElementScenarios() {
  return {
      On<TElements>("AddElement", Unchanged, [](TElements& s) { TElements::AddElement(s.elements); }),
      On<TElements>("AssignElements", Unchanged, [](TElements& s) { s.elements.Assign(s.other); }),
      On<TElements>("AssignElement", Usable, [](TElements& s) { s.elements.Item(0)->Assign(*s.other.Item(0)); }),
      On<TElements>("RemoveElement", Unchanged, [](TElements& s) { s.other.Remove(1); }),
      On<TElements>("GetAllBoundaries", Unchanged, [](TElements& s) { s.boundaries = s.other.GetAllBoundaries(); }),
      On<TElements>("GetBoundaryEntities", Unchanged, [](TElements& s) { s.answer = s.other.GetBoundaryEntities(); }),
  };
}

}  // namespace

std::vector<TScenario> RegionScenarios() {
  std::vector<TScenario> all = TreeScenarios();
  for (const auto& list : {NameScenarios(), NodeScenarios(), ElementScenarios()}) {
    all.insert(all.end(), list.begin(), list.end());
  }
  return all;
}

}  // namespace everything

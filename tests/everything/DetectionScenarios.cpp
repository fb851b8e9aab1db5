// Detection trees and the passes of a driver.

#include "tests/everything/Observations.h"

namespace everything {

using namespace GeometryEngine;
using enum TGuarantee;

namespace {

// A vertex graph of two nodes and an intercept tree, filled by hand.
struct TTrees {
  TEntityStorage storage;
  std::unique_ptr<TEntityTree> tree;
  TEntityMerge merge;
  TEntityArray answer;

  void Prepare() {
    storage.FreeEntities();
    storage.AddEntities(RoundedChain(2, 1, 4));
    answer.clear();
    tree = std::make_unique<TEntityTree>("a tree whose name takes memory of its own");
    tree->pEntityStorage(&storage);
    for (TIndex i = 0; i < storage.Count(); ++i) {
      TTreeNode* node = tree->AddTreeNode_ToRoot();
      node->EntityIndex(i);
      tree->AddTreeNode(node)->Coordinates(storage.Entities(i).StartCoords);
      tree->AddTreeNode(node)->Coordinates(storage.Entities(i).EndCoords);
    }
    merge = {};
  }

  void Observe(TFingerprint& aFingerprint) const {
    everything::Observe(*tree, aFingerprint);
    everything::Observe(storage, aFingerprint);
    everything::Observe(answer, aFingerprint);
  }

  static bool IsEmpty() { return false; }
};

void MergeTwoLines(TTrees& s) {
  s.merge.fParent = s.tree->RootNode()->GetNode(0);
  s.merge.fNode_A = s.merge.fParent->GetNode(0);
  s.merge.fNode_B = s.merge.fParent->GetNode(1);
  s.merge.fEntity = CreateEntity_Line(0, 0, 1, 0);
  s.merge.fPoint_1 = {0, 0};
  s.merge.fPoint_2 = {1, 0};
  DetectMergeEntity(*s.tree, s.merge, CreateEntity_Line(1, 0, 3, 0), {3, 0}, 0);
}

std::vector<TScenario> TreeScenarios() {
  return {
      On<TTrees>("AddTreeNode_ToRoot", Unchanged, [](TTrees& s) { s.tree->AddTreeNode_ToRoot(); }),
      On<TTrees>("AddTreeNode_AtIndex", Unchanged,
                 [](TTrees& s) { s.tree->AddTreeNode_AtIndex(s.tree->RootNode()->GetNode(0), 0); }),
      On<TTrees>("RemoveTreeNode", Unchanged,
                 [](TTrees& s) { s.tree->RemoveTreeNode(s.tree->RootNode()->GetNode(1), true); }),
      On<TTrees>("RemoveTreeNode_KeepChildren", Unchanged,
                 [](TTrees& s) { s.tree->RemoveTreeNode(s.tree->RootNode()->GetNode(1), false); }),
      On<TTrees>("Clear", Usable,
                 [](TTrees& s) {
                   s.tree->Clear();
                   s.tree->AddTreeNode_ToRoot();
                   s.tree->Clear();
                 }),
      On<TTrees>("AddInterception", Usable,
                 [](TTrees& s) {
                   AddInterception(*s.tree, s.storage.Entities(0), 0, {3, 1});
                   AddInterception(*s.tree, CreateEntity_Line(0, 0, 9, 9), 0, {3, 3});
                 }),
      On<TTrees>("SplitEntity_FromIntercepts", Unchanged,
                 [](TTrees& s) {
                   s.answer = SplitEntity_FromIntercepts(s.storage.Entities(2), s.tree->RootNode()->GetNode(2));
                 }),
      On<TTrees>("DetectMergeEntity", Usable, MergeTwoLines),
      On<TTrees>("GenerateBlankRegion", Usable, [](TTrees& s) { GenerateBlankRegion(*s.tree, 10, 20, 5, 50); }),
  };
}

struct TDriver {
  TEntityStorage drawing;
  std::unique_ptr<TEntityBaseClass> driver;
  TTree_Geometry regions;
  bool isEmpty = false;

  void Prepare() {
    drawing.FreeEntities();
    drawing.AddEntities(MixedDrawing());
    driver = std::make_unique<TEntityBaseClass>();
    regions.Clear();
  }
  void Intercept() { driver->DetermineInterceptions(&drawing); }
  void Trace() { driver->DetermineRegions(driver->CoordinateTree(), 0); }

  void Observe(TFingerprint& aFingerprint) const {
    everything::Observe(driver->InterceptTree(), aFingerprint);
    everything::Observe(driver->CoordinateTree(), aFingerprint);
    everything::Observe(driver->RegionTree(), aFingerprint);
    everything::Observe(regions, aFingerprint);
  }
};

// Each of these states has done what comes before its pass, and knows which trees the pass fills.
struct TBeforeSweep : TDriver {
  bool IsEmpty() const {
    return driver->InterceptTree().RootNode()->Count() == 0 && driver->CoordinateTree().RootNode()->Count() == 0;
  }
};
struct TToleranceChain : TBeforeSweep {
  void Prepare() {
    TBeforeSweep::Prepare();
    drawing.FreeEntities();
    drawing.AddEntities(ToleranceChain());
  }
};
struct TBeforeTracing : TDriver {
  void Prepare() {
    TDriver::Prepare();
    Intercept();
  }
  bool IsEmpty() const { return driver->RegionTree().RootNode()->Count() == 0; }
};
struct TBeforeNesting : TBeforeTracing {
  void Prepare() {
    TBeforeTracing::Prepare();
    Trace();
  }
};
struct TBeforeHandOver : TBeforeNesting {
  void Prepare() {
    TBeforeNesting::Prepare();
    driver->IdentifySubRegions(driver->CoordinateTree());
    auto node = regions.CreateTreeNode();
    regions.AddNewTreeNode(node);
  }
};

template <typename TState>
void DetectWhole(TState& aState) {
  aState.Intercept();
  aState.Trace();
  aState.driver->IdentifySubRegions(aState.driver->CoordinateTree());
  aState.driver->RemoveDuplicatedSubRegions();
}

std::vector<TScenario> DriverScenarios() {
  return {
      On<TBeforeSweep>("DetermineInterceptions", Empty, [](TBeforeSweep& s) { s.Intercept(); }),
      On<TBeforeTracing>("DetermineInterceptions_Again", Usable, [](TBeforeTracing& s) { s.Intercept(); }),
      On<TBeforeTracing>("DetermineRegions", Empty, [](TBeforeTracing& s) { s.Trace(); }),
      On<TBeforeTracing>("DetectOrphanEntities", Empty,
                         [](TBeforeTracing& s) { s.driver->DetectOrphanEntities(s.driver->CoordinateTree()); }),
      On<TBeforeTracing>("AddEntityToCoordinateTree", Usable,
                         [](TBeforeTracing& s) {
                           s.driver->AddEntityToCoordinateTree(s.driver->CoordinateTree(),
                                                               Tagged(CreateEntity_Line(1, 1, 50, 1)));
                         }),
      On<TBeforeNesting>("FirstLookAtTheTrees", Unchanged,
                         [](TBeforeNesting& s) {
                           s.driver->CoordinateTree().RootNode()->Count();
                           s.driver->InterceptTree().RootNode()->Count();
                           s.driver->RegionTree().RootNode()->GetNode(0)->Count();
                         }),
      On<TBeforeNesting>("IdentifySubRegions", Unchanged,
                         [](TBeforeNesting& s) { s.driver->IdentifySubRegions(s.driver->CoordinateTree()); }),
      On<TBeforeHandOver>("RemoveDuplicatedSubRegions", Unchanged,
                          [](TBeforeHandOver& s) { s.driver->RemoveDuplicatedSubRegions(); }),
      On<TBeforeHandOver>("AddRegionEntities", Unchanged,
                          [](TBeforeHandOver& s) { s.driver->AddRegionEntities(s.regions.GetNodeFromIndex(1), 0); }),
      On<TBeforeHandOver>("AddRegionCoordinates", Usable,
                          [](TBeforeHandOver& s) {
                            const TIntegerArray path = {1, 2, 3, 4, 5};
                            s.driver->AddRegionCoordinates(s.driver->CoordinateTree(), path, {1, 2}, {3, 4}, 5);
                          }),
      On<TBeforeSweep>("WholeDetection", Usable, DetectWhole<TBeforeSweep>),
      On<TToleranceChain>("WholeDetection_ToleranceChain", Usable, DetectWhole<TToleranceChain>),
      On<TBeforeNesting>(
          "IdentifyRegionFromCoordinate", Unchanged,
          [](TBeforeNesting& s) {
            TIndex index = 0;
            IdentifyRegionFromCoordinate(s.driver->RegionTree(), s.driver->CoordinateTree(), {7, 8}, index);
          }),
  };
}

}  // namespace

std::vector<TScenario> DetectionScenarios() {
  std::vector<TScenario> all = TreeScenarios();
  for (const TScenario& scenario : DriverScenarios()) all.push_back(scenario);
  return all;
}

}  // namespace everything

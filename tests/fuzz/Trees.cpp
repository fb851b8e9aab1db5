// Trees of regions and their names, and detection trees, under any sequence of calls.

#include <algorithm>
#include <cctype>

#include "GeometryEngine/GeometryEngine.h"
#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/FuzzSettings.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace GeometryEngine;
using fuzz::Bytes;
using fuzz::Require;

namespace {

constexpr TIndex kMostNodes = 40;

std::string Folded(std::string aText) {
  std::ranges::transform(aText, aText.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; });
  return aText;
}

// The name that a region gets, by the letter: the first candidate that no other region of the tree answers to.
std::string PlainUniqueName(const TTree_CoreProperties& aTree, const TTreeNode_CoreProperties& aRegion) {
  const auto isTaken = [&](const std::string& name) {
    for (TIndex i = 1; i < aTree.GetCount(); ++i) {
      const TTreeNode_CoreProperties* other = aTree.GetNodeFromIndex(i);
      if (other != &aRegion && Folded(other->GetRegionName_Unique()) == Folded(name)) return true;
    }
    return false;
  };
  std::string name = aRegion.GetRegionName_Unique();
  for (int suffix = 1; isTaken(name); ++suffix) name = aRegion.RegionName() + "_" + std::to_string(suffix);
  return name;
}

void CheckTree(const TTree_CoreProperties& aTree) {
  for (TIndex i = 0; i < aTree.GetCount(); ++i) {
    const TTreeNode_Base* node = aTree.GetNodeFromIndex(i);
    Require(node != nullptr && node->GetTreeIndex() == i, "a node knows its place in the flat index");
    const TTreeNode_Base* parent = node->GetParent();
    Require((parent == nullptr) == (i == 0), "only the root has no parent");
    if (parent == nullptr) continue;
    Require(std::ranges::count(parent->GetChildren(), node) == 1, "a parent lists its child once");
    TIndex steps = 0;
    for (; parent->GetParent() != nullptr && steps <= aTree.GetCount(); ++steps) parent = parent->GetParent();
    Require(parent == aTree.GetRootNode(), "every node hangs below the root");
  }
}

// One entry of the tree, the root or nothing.
TTreeNode_Geometry* Pick(const TTree_Geometry& aTree, Bytes& aBytes) {
  return aTree.GetNodeFromIndex(static_cast<TIndex>(aBytes.Below(kMostNodes)) - 1);
}

void ChangeTree(TTree_Geometry& aTree, TTree_Geometry& aOther, Bytes& aBytes) {
  const TIndex before = aTree.GetCount();
  const std::uint32_t choice = aBytes.Below(8);
  TTreeNode_Geometry* const node = Pick(choice == 6 ? aOther : aTree, aBytes);
  switch (choice) {
    case 0: {
      auto created = aTree.CreateTreeNode();
      if (before < kMostNodes) aTree.AddNewTreeNode_AtIndex(created, aBytes.Index());
      break;
    }
    case 1: {
      auto stranger = aOther.CreateTreeNode();
      Require(aTree.AddNewTreeNode(stranger) == nullptr && stranger != nullptr, "a stranger is refused");
      break;
    }
    case 2:
      aTree.RemoveFreeTreeNode(node, aBytes.Flag());
      break;
    case 3:
      aTree.MoveTreeNode(node, Pick(aTree, aBytes));
      Require(aTree.GetCount() == before, "a move keeps every node");
      break;
    case 4:
      aTree.MoveTreeNode_Recursive(node, Pick(aTree, aBytes));
      Require(aTree.GetCount() == before, "a move keeps every node");
      break;
    case 5: {
      auto root = aTree.CreateTreeNode();
      aTree.SetRootNode(root);
      Require(aTree.GetCount() == before, "a new root takes the old one's place");
      break;
    }
    case 6:
      aTree.MoveTreeNode(node, Pick(aTree, aBytes));
      Require(aTree.GetCount() == before, "a node of another tree is refused");
      break;
    default:
      if (aBytes.Byte() == 255) aTree.Clear();
  }
}

void NameRegion(TTree_Geometry& aTree, Bytes& aBytes) {
  constexpr const char* kNames[] = {"Magnet", "MAGNET", "magnet_1", "Bar", "", "Magnet_2", "bar_1"};
  TTreeNode_Geometry* region = Pick(aTree, aBytes);
  if (region == nullptr) return;
  switch (aBytes.Below(6)) {
    case 0:
      region->RegionType(static_cast<TGeometryRegionType>(aBytes.Byte()));
      region->RegionType_Mapped(static_cast<TGeometryRegionType>(aBytes.Byte()));
      break;
    case 1:
      if (const TTreeNode_Geometry* source = Pick(aTree, aBytes)) region->CopyRegionParameters(*source, aBytes.Flag());
      break;
    case 2:
      region->SetRegionName(region->RegionName());
      break;
    case 3:
      region->SetRegionName_Unique();
      break;
    case 4:
      region->SetRegionName(aBytes.Text(6));
      break;
    default:
      region->SetRegionName(kNames[aBytes.Below(std::size(kNames))]);
  }
  Require(region->GenerateUniqueRegionName() == PlainUniqueName(aTree, *region), "a unique name is the first free one");
  region->GetRegionName_FEA();
  region->GetComponentName_3D();
  region->IsOfType_WithinSet(TGeometryRegionTypesSet::All());
}

/// Children of one node and then itself, without a look at the tree in between.
void RemoveDetectionNodes(TEntityTree& aTree, TTreeNode* aNode, Bytes& aBytes) {
  if (aNode != nullptr) {
    TTreeNode* const first = aNode->GetNode(aBytes.Index());
    TTreeNode* const second = aNode->GetNode(aBytes.Index());
    const TIndex count = aNode->Count() - (first != nullptr ? 1 : 0) - (second != nullptr && second != first ? 1 : 0);
    aTree.RemoveTreeNode(first, true);
    if (second != first) aTree.RemoveTreeNode(second, true);
    Require(aNode->Count() == count, "a node that is removed is counted off");
  }
  aTree.RemoveTreeNode(aNode, aBytes.Flag());
}

void ChangeDetectionTree(TEntityTree& aTree, TEntityStorage& aStorage, Bytes& aBytes) {
  TTreeNode* node = aTree.GetNodeFromIndex(aBytes.Index());
  const TIndex count = aTree.GetCount();
  switch (aBytes.Below(8)) {
    case 0:
      if (count < kMostNodes) aTree.AddTreeNode_ToRoot()->Coordinates(aBytes.Coordinate());
      break;
    case 1:
      if (count < kMostNodes) aTree.AddTreeNode_AtIndex(node, aBytes.Index());
      break;
    case 2:
      RemoveDetectionNodes(aTree, node, aBytes);
      break;
    case 3:
      aTree.Clear();
      Require(aTree.RootNode()->Count() == 0, "a cleared tree has its root alone");
      break;
    case 4:
      if (node != nullptr) node->EntityIndex(aBytes.Index());
      aStorage.AddEntity(aBytes.Entity());
      break;
    case 5: {
      TTreeNode* found = aTree.Search_L1_Coords(aBytes.Coordinate());
      Require(found == nullptr || found->Parent() == aTree.RootNode(), "a search finds a node of level 1");
      break;
    }
    case 6: {
      TTreeNode* found = aTree.Search_L1_Entities(aBytes.Entity());
      Require(found == nullptr || found->Parent() == aTree.RootNode(), "a search finds a node of level 1");
      break;
    }
    default:
      aTree.ResetTravelledFlag(aBytes.Index());
      aTree.Search_L2_Coordinates(aBytes.Coordinate(), node);
      if (node != nullptr) aTree.GetNodeEntity(*node);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aData, std::size_t aSize) {
  const fuzz::StartingSettings settings;
  Bytes bytes({aData, aSize});
  TTree_Geometry tree;
  TTree_Geometry other;
  TEntityStorage storage;
  TEntityTree detection("Fuzz");
  detection.pEntityStorage(&storage);
  while (!bytes.IsAtEnd()) {
    switch (bytes.Below(4)) {
      case 0:
        ChangeTree(tree, other, bytes);
        CheckTree(tree);
        break;
      case 1:
        NameRegion(tree, bytes);
        break;
      case 2:
        ChangeDetectionTree(detection, storage, bytes);
        break;
      default:
        ChangeTree(other, tree, bytes);
        if (bytes.Byte() > 250) fuzz::ChangeSetting(bytes);
    }
  }
  return 0;
}

// Names of many regions, and names after many changes of a tree against the loop that tries one candidate after
// another.

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "GeometryEngine/GeometryEngine_Tree_MotorProperties/TTree_CoreProperties.h"
#include "tests/support/Regions.h"
#include "tests/support/Repetitions.h"
#include "tests/support/Settings.h"

namespace GeometryEngine {
namespace {

using Maindataenum::TInputFields;

bool SameFolded(std::string_view aLeft, std::string_view aRight) {
  const auto folded = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c + 0; };
  return std::equal(aLeft.begin(), aLeft.end(), aRight.begin(), aRight.end(),
                    [&](char a, char b) { return folded(a) == folded(b); });
}

bool IsTaken(const TTreeNode_CoreProperties& aNode, std::string_view aName) {
  const TTree_CoreProperties& tree = *aNode.GetTree();
  for (TIndex i = 1; i < tree.GetCount(); ++i) {
    if (i != aNode.GetTreeIndex() && SameFolded(tree.GetNodeFromIndex(i)->GetRegionName_Unique(), aName)) return true;
  }
  return false;
}

std::string PlainUniqueName(const TTreeNode_CoreProperties& aNode) {
  std::string name = aNode.GetRegionName_Unique();
  for (int number = 1; IsTaken(aNode, name); ++number) name = aNode.RegionName() + "_" + std::to_string(number);
  return name;
}

/// A tree under random changes of its nodes and names.
class ChangingTree {
 public:
  explicit ChangingTree(unsigned aSeed) : fRandom(aSeed) {}

  void Step() {
    fSettings.With(TInputFields::ifUniqueRegionNames, Below(10) == 0 ? 0 : 1);
    const std::size_t step = Below(16);
    if (step < 4) Add(step == 0 ? static_cast<TIndex>(Below(5)) : fTree.GetCount());
    if (step >= 4 && step < 9) Any().SetRegionName(AnyName());
    if (step == 9) Any().RegionType(Below(2) == 0 ? rtAirGap : rtMagnet);
    if (step == 10) Any().CopyRegionParameters(Any(), Below(2) == 0);
    if (step == 11) fTree.RemoveFreeTreeNode(&Any(), Below(2) == 0);
    if (step == 12) fTree.MoveTreeNode(&Any(), &Any());
    if (step == 13 && Below(4) == 0) ReplaceRoot();
    if (step == 14 && Below(10) == 0) fTree.Clear();
    if (step == 15) Any().SetRegionName_Unique();
  }

  void ExpectPlainNames() {
    for (TIndex i = 0; i < fTree.GetCount(); ++i) {
      const TTreeNode_CoreProperties& node = *fTree.GetNodeFromIndex(i);
      ASSERT_EQ(node.GenerateUniqueRegionName(), PlainUniqueName(node));
    }
    const auto outside = fTree.CreateTreeNode();
    auto& node = *TTreeNode_CoreProperties::TypeCast(outside.get());
    node.SetRegionName(AnyName());
    ASSERT_EQ(node.GenerateUniqueRegionName(), PlainUniqueName(node));
  }

 private:
  std::size_t Below(std::size_t aBound) { return fRandom() % aBound; }
  TTreeNode_CoreProperties& Any() {
    return *fTree.GetNodeFromIndex(static_cast<TIndex>(Below(static_cast<std::size_t>(fTree.GetCount()))));
  }
  std::string_view AnyName() {
    static constexpr std::string_view kNames[] = {"Magnet",    "magnet",    "MAGNET_1",   "Magnet_2",
                                                  "Magnet_02", "Magnet_-1", "Magnet_1_1", "magnet_",
                                                  "_1",        "_",         "",           "Magnet_10000000000"};
    return kNames[Below(std::size(kNames))];
  }
  void Add(TIndex aPlace) {
    auto node = fTree.CreateTreeNode();
    if (Below(3) == 0) TTreeNode_CoreProperties::TypeCast(node.get())->SetRegionName(AnyName());
    fTree.AddNewTreeNode_AtIndex(node, aPlace);
  }
  void ReplaceRoot() {
    auto node = fTree.CreateTreeNode();
    fTree.SetRootNode(node);
  }

  std::mt19937 fRandom;
  support::TSettingsGuard fSettings;
  TTree_CoreProperties fTree;
};

TEST(ManyNames, AreThoseOfTheLoopOverAllCandidatesAndNodes) {
  for (int seed = support::Repetitions(1000); seed > 0; --seed) {
    SCOPED_TRACE(seed);
    ChangingTree tree(static_cast<unsigned>(seed));
    for (int step = 0; step < 40; ++step) {
      tree.Step();
      if (step % 4 == 3) tree.ExpectPlainNames();
      if (::testing::Test::HasFatalFailure()) return;
    }
  }
}

// Compared one by one, with all nodes for each candidate, these would take more than an hour.
TEST(ManyNames, OfTwentyThousandMagnetsEachGetsItsNumber) {
  const support::TSettingsGuard settings;
  TTree_CoreProperties tree;
  for (int i = 0; i < 20000; ++i) support::AddNode(tree).SetRegionName("Magnet");
  for (TIndex i = 2; i < tree.GetCount(); ++i) {
    ASSERT_EQ(tree.GetNodeFromIndex(i)->UniqueName(), "Magnet_" + std::to_string(i - 1));
  }
}

TEST(ManyNames, RenamedOneByOneEachGetsTheLeastNumberFreeByThen) {
  const support::TSettingsGuard settings;
  TTree_CoreProperties tree;
  for (int i = 0; i < 5000; ++i) support::AddNode(tree).SetRegionName("Magnet");
  for (TIndex i = 1; i < tree.GetCount(); ++i) tree.GetNodeFromIndex(i)->SetRegionName("Pole");
  for (TIndex i = 1; i < tree.GetCount(); ++i) tree.GetNodeFromIndex(i)->SetRegionName("Magnet");
  EXPECT_EQ(tree.GetNodeFromIndex(1)->UniqueName(), "Magnet");
  EXPECT_EQ(tree.GetNodeFromIndex(5000)->UniqueName(), "Magnet_4999");
}

TEST(ManyNames, OfAMillionAndOneThatAreTakenTheLastCandidateIsTakenOnceMore) {
  const support::TSettingsGuard settings;
  TTree_CoreProperties tree;
  for (int i = 0; i <= 1000000; ++i) support::AddNode(tree).SetRegionName("Magnet");
  EXPECT_EQ(tree.GetNodeFromIndex(1000001)->UniqueName(), "Magnet_1000000");
  for (int i = 0; i < 2; ++i) {
    TTreeNode_CoreProperties& late = support::AddNode(tree);
    late.SetRegionName("Magnet");
    EXPECT_EQ(late.UniqueName(), "Magnet_1000001");
  }
}

}  // namespace
}  // namespace GeometryEngine

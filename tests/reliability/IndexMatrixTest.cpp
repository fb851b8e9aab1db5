// Every operation that takes an index, with indexes of every kind, on containers of 0, 1, 2 and 5: outside the
// container nothing changes, but for what an operation says of itself.

#include <climits>
#include <string>

#include <gtest/gtest.h>

#include "tests/everything/Observations.h"

using namespace GeometryEngine;

namespace {

constexpr TIndex kSizes[] = {0, 1, 2, 5};

std::vector<TIndex> IndexesFor(TIndex aSize) {
  return {INT_MIN, -2, -1, 0, aSize - 1, aSize, aSize + 1, INT_MAX};
}

TDXFEntity SomeLine(TIndex aNumber) {
  return everything::Tagged(CreateEntity_Line(aNumber, 1, aNumber + 1, 2));
}

enum class TOutside { ChangesNothing, AddsOne, DropsOneFromZeroOn };

template <typename TSubject>
struct TIndexed {
  const char* name;
  TOutside outside;
  void (*operate)(TSubject&, TIndex);
};

// All that the operations below work on, of one size.
struct TContainers {
  explicit TContainers(TIndex aSize) : tree("Tree") {
    tree.pEntityStorage(&storage);
    for (TIndex i = 0; i < aSize; ++i) {
      storage.AddEntity(SomeLine(i));
      entities.push_back(SomeLine(i));
      points.push_back({static_cast<double>(i), 2});
      tree.AddTreeNode_ToRoot()->EntityIndex(i);
      auto node = regions.CreateTreeNode();
      regions.AddNewTreeNode(node);
      auto element = std::make_unique<TMachineElement>();
      elements.Add(element);
    }
  }

  std::uint64_t Seen() const {
    everything::THash hash;
    everything::Observe(storage, hash);
    everything::Observe(entities, hash);
    everything::Observe(points, hash);
    everything::Observe(tree, hash);
    everything::Observe(regions, hash);
    everything::Observe(elements, hash);
    return hash.Value();
  }

  TIndex Size() const {
    return storage.Count() + ToIndex(entities.size() + points.size()) + tree.Count() + regions.GetCount() +
           elements.Count();
  }

  TEntityStorage storage;
  TEntityArray entities;
  TCoordinateArray points;
  TEntityTree tree;
  TTree_Geometry regions;
  TMachineElementList elements;
};

using enum TOutside;

constexpr TIndexed<TContainers> kOperations[] = {
    {"GetIsIndexValid", ChangesNothing, [](TContainers& c, TIndex i) { c.storage.GetIsIndexValid(i); }},
    {"GetEntityFromIndex", ChangesNothing, [](TContainers& c, TIndex i) { c.storage.GetEntityFromIndex(i); }},
    {"Entities", ChangesNothing, [](TContainers& c, TIndex i) { c.storage.Entities(i, SomeLine(9)); }},
    {"SetEntityFromIndex", ChangesNothing,
     [](TContainers& c, TIndex i) { c.storage.SetEntityFromIndex(i, SomeLine(9)); }},
    {"SetEntityColour", ChangesNothing, [](TContainers& c, TIndex i) { c.storage.SetEntityColour(i, "red"); }},
    {"SetEntitySourceDXF", ChangesNothing, [](TContainers& c, TIndex i) { c.storage.SetEntitySourceDXF(i, &c); }},
    {"AddEntity_AtIndex", AddsOne, [](TContainers& c, TIndex i) { c.storage.AddEntity_AtIndex(SomeLine(9), i); }},
    {"RemoveEntityFromArray", DropsOneFromZeroOn, [](TContainers& c, TIndex i) { c.storage.RemoveEntityFromArray(i); }},
    {"QuickSortArray_Low", ChangesNothing,
     [](TContainers& c, TIndex i) { c.storage.QuickSortArray(i, c.storage.Count() - 1); }},
    {"QuickSortArray_High", ChangesNothing, [](TContainers& c, TIndex i) { c.storage.QuickSortArray(0, i); }},
    {"InsertEntity", AddsOne,
     [](TContainers& c, TIndex i) { TEntityArray_Helper::InsertEntity(c.entities, SomeLine(9), i); }},
    {"RemoveEntity", ChangesNothing,
     [](TContainers& c, TIndex i) { TEntityArray_Helper::RemoveEntity(c.entities, i); }},
    {"GetEntity_Next", ChangesNothing,
     [](TContainers& c, TIndex i) { TEntityArray_Helper::GetEntity_Next(c.entities, i); }},
    {"GetEntity_Previous", ChangesNothing,
     [](TContainers& c, TIndex i) { TEntityArray_Helper::GetEntity_Previous(c.entities, i); }},
    {"GetCoordinateIndex_Next", ChangesNothing,
     [](TContainers& c, TIndex i) { TCoordinateArray_Helper::GetCoordinateIndex_Next(c.points, i); }},
    {"GetCoordinate_Next", ChangesNothing,
     [](TContainers& c, TIndex i) { TCoordinateArray_Helper::GetCoordinate_Next(c.points, i); }},
    {"RemoveCoordinateFromArray", ChangesNothing,
     [](TContainers& c, TIndex i) { RemoveCoordinateFromArray(c.points, i); }},
    {"ResetTravelledFlag", ChangesNothing, [](TContainers& c, TIndex i) { c.tree.ResetTravelledFlag(i); }},
    {"GetNodeFromIndex", ChangesNothing, [](TContainers& c, TIndex i) { c.tree.GetNodeFromIndex(i); }},
    {"GetNode", ChangesNothing, [](TContainers& c, TIndex i) { c.tree.RootNode()->GetNode(i); }},
    {"AddTreeNode_AtIndex", AddsOne,
     [](TContainers& c, TIndex i) { c.tree.AddTreeNode_AtIndex(c.tree.RootNode(), i); }},
    {"GetNodeEntity", ChangesNothing,
     [](TContainers& c, TIndex i) {
       TTreeNode free(nullptr);
       free.EntityIndex(i);
       c.tree.GetNodeEntity(free);
     }},
    {"RegionTree_GetNodeFromIndex", ChangesNothing, [](TContainers& c, TIndex i) { c.regions.GetNodeFromIndex(i); }},
    {"RegionTree_AddNewTreeNode_AtIndex", AddsOne,
     [](TContainers& c, TIndex i) {
       auto node = c.regions.CreateTreeNode();
       c.regions.AddNewTreeNode_AtIndex(node, i);
     }},
    {"RegionNode_GetNode", ChangesNothing, [](TContainers& c, TIndex i) { c.regions.GetRootNode()->GetNode(i); }},
    {"Elements_Item", ChangesNothing, [](TContainers& c, TIndex i) { c.elements.Item(i); }},
    {"Elements_Remove", ChangesNothing, [](TContainers& c, TIndex i) { c.elements.Remove(i); }},
};

class IndexMatrix : public testing::TestWithParam<TIndexed<TContainers>> {};

TIndex ExpectedGrowth(TOutside aOutside, TIndex aIndex, TIndex aSize) {
  if (aOutside == AddsOne) return 1;
  return aOutside == DropsOneFromZeroOn && aIndex >= 0 && aSize > 0 ? -1 : 0;
}

}  // namespace

TEST_P(IndexMatrix, OutsideTheContainerNothingChangesButWhatIsSaid) {
  for (const TIndex size : kSizes) {
    for (const TIndex index : IndexesFor(size)) {
      TContainers containers(size);
      const std::uint64_t before = containers.Seen();
      const TIndex count = containers.Size();
      GetParam().operate(containers, index);
      const bool outside = index < 0 || index > size;  // the root of a fresh tree takes the place behind the others
      if (!outside) continue;
      SCOPED_TRACE("size " + std::to_string(size) + ", index " + std::to_string(index));
      const TIndex growth = ExpectedGrowth(GetParam().outside, index, size);
      EXPECT_EQ(containers.Size(), count + growth);
      if (growth == 0) {
        EXPECT_EQ(containers.Seen(), before);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Every, IndexMatrix, testing::ValuesIn(kOperations),
                         [](const auto& aInfo) { return std::string(aInfo.param.name); });

// A driver's operations, after a detection.
TEST(IndexMatrix, OfADriversOperationsIsAbsorbed) {
  TEntityStorage drawing;
  drawing.AddEntities(everything::MixedDrawing());
  TEntityBaseClass driver;
  driver.DetermineInterceptions(&drawing);
  driver.DetermineRegions(driver.CoordinateTree(), 1);
  const TIndex regions = driver.RegionTree().RootNode()->Count();
  ASSERT_GT(regions, 2);
  TTree_Geometry tree;
  for (const TIndex index : IndexesFor(regions)) {
    const bool outside = index < 0 || index >= regions;
    EXPECT_FALSE(driver.GetIsRegionSubRegion(index));
    DetermineClockwiseSubRegions(driver.RegionTree(), driver.CoordinateTree(),
                                 driver.RegionTree().RootNode()->GetNode(index), index);
    auto node = tree.CreateTreeNode();
    auto* region = TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node));
    driver.AddRegionEntities(region, index);
    EXPECT_EQ(region->GetNumEntities() == 0, outside) << index;
    const std::int32_t path[] = {index, index};
    EXPECT_FALSE(IsEntityInRegionPath(driver.CoordinateTree(), path, -5));
    TRegionWalk walk;
    walk.fPath = {index, index};
    StepBackRegionEntity(driver.CoordinateTree(), driver.CoordinateTree().RootNode()->GetNode(0), {}, {}, walk);
  }
  for (const TIndex index : IndexesFor(regions)) {
    const std::int32_t path[] = {index, index};
    driver.AddRegionCoordinates(driver.CoordinateTree(), path, {}, {}, 1);
  }
  EXPECT_EQ(driver.RegionTree().RootNode()->Count(), regions + 8);
}

TEST(NilNodes, AreAbsorbedByEveryOperationThatTakesOne) {
  TEntityStorage drawing;
  drawing.AddEntities(everything::MixedDrawing());
  TEntityBaseClass driver;
  driver.DetermineInterceptions(&drawing);
  driver.DetermineRegions(driver.CoordinateTree(), 1);
  TEntityTree& coordinates = driver.CoordinateTree();
  TIndex index = 7;
  TRegionWalk walk;
  TEntityMerge merge;
  coordinates.RemoveTreeNode(nullptr, true);
  driver.AddRegionEntities(nullptr, 0);
  driver.DetermineInterceptions(nullptr);
  driver.DetermineInterceptions(&drawing);
  everything::THash before;
  everything::Observe(coordinates, before);
  FindNextRegionEntity(coordinates, nullptr, nullptr, walk);
  StepBackRegionEntity(coordinates, nullptr, {}, {}, walk);
  DetermineClockwiseSubRegions(driver.RegionTree(), coordinates, nullptr, 0);
  EXPECT_EQ(coordinates.AddTreeNode(nullptr), nullptr);
  EXPECT_EQ(coordinates.AddTreeNode_AtIndex(nullptr, 0), nullptr);
  EXPECT_EQ(coordinates.Search_L2_Coordinates({}, nullptr), nullptr);
  EXPECT_EQ(CalculateWindingNumber(coordinates, nullptr, {}), 0);
  EXPECT_FALSE(RegionContains_SubRegion(coordinates, nullptr, nullptr));
  EXPECT_FALSE(GenerateRegionPoint(coordinates, nullptr, nullptr, 0, 1, 0, 90));
  EXPECT_EQ(IdentifyRegionFromCoordinate(driver.RegionTree(), coordinates, {1e6, 0}, index), nullptr);
  EXPECT_EQ(index, 7);
  EXPECT_FALSE(coordinates.RootNode()->Equal(nullptr));
  EXPECT_FALSE(TTreeNode_CoreProperties::IsOfType(nullptr, rtMagnet));
  EXPECT_EQ(TTreeNode_Geometry::TypeCast(static_cast<TTreeNode_Base*>(nullptr)), nullptr);
  EXPECT_EQ(GetPoleInaccessibility(nullptr, 1, 0.001).x, 0);
  EXPECT_EQ(SplitEntity_FromIntercepts(drawing.Entities(0), nullptr).size(), 1U);
  EXPECT_FALSE(DetectMergeEntity(driver.RegionTree(), merge, {}, {}, 0));
  TTree_Geometry tree;
  tree.RemoveFreeTreeNode(nullptr, true);
  tree.MoveTreeNode(nullptr, nullptr);
  tree.MoveTreeNode_Recursive(nullptr, tree.GetRootNode());
  std::unique_ptr<TTreeNode_Base> none;
  EXPECT_EQ(tree.AddNewTreeNode(none), nullptr);
  tree.SetRootNode(none);
  std::unique_ptr<TPlane> plane;
  TTreeNode_Geometry(&tree).SetPlane(plane);
  TMachineElementList elements;
  std::unique_ptr<TMachineElement> element;
  EXPECT_EQ(elements.Add(element), kNotFound);
  EXPECT_EQ(tree.GetCount(), 1);
  everything::THash after;
  everything::Observe(coordinates, after);
  EXPECT_EQ(after.Value(), before.Value());
}

TEST(OwnArguments, LeaveEveryContainerAsTheOperationOnACopyWould) {
  const TEntityArray chain = everything::RoundedChain(1, 1, 4);
  TEntityStorage storage;
  storage.AddEntities(chain);
  everything::THash before;
  everything::Observe(storage, before);
  storage.CopyGeometry(storage);
  storage.CopyNewGeometry(storage);
  TMachineElementList elements;
  for (int i = 0; i < 3; ++i) {
    auto element = std::make_unique<TMachineElement>();
    elements.Add(element);
  }
  elements.Assign(elements);
  elements.Item(1)->Assign(*elements.Item(1));
  TCoordinateArray points = {{1, 2}, {3, 4}};
  TCoordinateArray_Helper::CopyArray(points, points);
  everything::THash after;
  everything::Observe(storage, after);
  EXPECT_EQ(after.Value(), before.Value());
  EXPECT_TRUE(storage.IsEqual(storage));
  EXPECT_EQ(elements.Count(), 3);
  EXPECT_EQ(points.size(), 2U);
  TEntityArray_Helper::AddEntities_CheckDuplicate(storage.EntityArray(), storage.EntityArray());
  EXPECT_EQ(storage.Count(), 4);
  storage.AddEntity(storage.EntityArray().front());
  storage.AddEntity_AtIndex(storage.EntityArray().back(), 0);
  EXPECT_EQ(storage.Count(), 6);
  storage.AddEntities(storage.EntityArray());
  EXPECT_EQ(storage.Count(), 12);
  storage.SetEntityFromIndex(0, *storage.Entities_P(0));
  storage.RemoveEntityFromArray(*storage.Entities_P(0));
  EXPECT_EQ(storage.Count(), 11);
  storage.RemoveEntities(storage.EntityArray());
  EXPECT_EQ(storage.Count(), 0);
}

TEST(CyclicMoves, AreRefused) {
  TTree_Geometry tree;
  std::vector<TTreeNode_Base*> nodes;
  for (int i = 0; i < 4; ++i) {
    auto node = tree.CreateTreeNode();
    nodes.push_back(tree.AddNewTreeNode(node));
    if (i > 0) tree.MoveTreeNode(nodes[static_cast<std::size_t>(i)], nodes[static_cast<std::size_t>(i) - 1]);
  }
  for (TTreeNode_Base* ancestor : nodes) {
    for (TTreeNode_Base* descendant : {nodes.back(), ancestor}) {
      tree.MoveTreeNode(ancestor, descendant);
      tree.MoveTreeNode_Recursive(ancestor, descendant);
    }
  }
  tree.MoveTreeNode(tree.GetRootNode(), nodes.back());
  tree.MoveTreeNode_Recursive(tree.GetRootNode(), nodes.back());
  EXPECT_EQ(nodes[0]->GetParent(), tree.GetRootNode());
  for (std::size_t i = 1; i < nodes.size(); ++i) EXPECT_EQ(nodes[i]->GetParent(), nodes[i - 1]);
}

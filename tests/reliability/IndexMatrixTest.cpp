// Every operation that takes an index, with indexes of every kind, on containers of 0, 1, 2 and 5: outside the
// container nothing changes, but for what an operation says of itself.

#include <climits>
#include <span>
#include <string>
#include <string_view>

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
    {"Entities_P", ChangesNothing,
     [](TContainers& c, TIndex i) { EXPECT_EQ(c.storage.Entities_P(i) != nullptr, c.storage.GetIsIndexValid(i)); }},
    {"GetEntityFromIndex_Pointer", ChangesNothing,
     [](TContainers& c, TIndex i) {
       EXPECT_EQ(c.storage.GetEntityFromIndex_Pointer(i) != nullptr, c.storage.GetIsIndexValid(i));
     }},
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
    {"GetPoint", ChangesNothing,
     [](TContainers& c, TIndex i) {
       TInterceptionPoints points;
       for (const TEntityCoordinate& point : c.points) points.AddUnique(point);
       points.GetPoint(i);
     }},
    {"ResetTravelledFlag", ChangesNothing, [](TContainers& c, TIndex i) { c.tree.ResetTravelledFlag(i); }},
    {"GetNodeFromIndex", ChangesNothing, [](TContainers& c, TIndex i) { c.tree.GetNodeFromIndex(i); }},
    {"Item", ChangesNothing, [](TContainers& c, TIndex i) { c.tree.Item(i); }},
    {"GetSubRegion", ChangesNothing,
     [](TContainers& c, TIndex i) {
       TTreeNode free(nullptr);
       for (TIndex k = 0; k < c.storage.Count(); ++k) free.AddSubRegion(k);
       EXPECT_EQ(free.GetSubRegion(i), c.storage.GetIsIndexValid(i) ? i : kNotFound);
       free.RemoveSubRegion(i);
       EXPECT_EQ(free.NumSubRegions(), c.storage.Count() - (c.storage.GetIsIndexValid(i) ? 1 : 0));
     }},
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
    {"RegionTree_Item", ChangesNothing, [](TContainers& c, TIndex i) { c.regions.Item(i); }},
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

// Half-edges and interceptions of entities that there are not, merges at places that there are not.
TEST(IndexMatrix, OfEntitiesInTreesIsAbsorbed) {
  for (const TIndex size : kSizes) {
    for (const TIndex index : IndexesFor(size)) {
      TContainers containers(size);
      AddInterception(containers.tree, SomeLine(9), index, {1, 1});
      TTreeNode* region = containers.tree.AddTreeNode_ToRoot();
      TEntityMerge merge;
      merge.fParent = region;
      merge.fEntity = CreateEntity_Line(0, 0, 1, 0);
      merge.fPoint_2 = {1, 0};
      EXPECT_TRUE(DetectMergeEntity(containers.tree, merge, CreateEntity_Line(1, 0, 2, 0), {2, 0}, index));
      EXPECT_EQ(region->Count(), 1);
      TEntityBaseClass driver;
      driver.AddCoordinateNode(containers.tree, {7, 7}, index);
      driver.DetermineRegions(containers.tree, index);
      driver.DetectOrphanEntities(containers.tree);
      EXPECT_EQ(containers.tree.Search_L1_Coords({7, 7})->GetNode(0)->EntityIndex(), index);
    }
  }
}

// Numbers of copies below those that there can be; those above take memory (see Counts).
TEST(IndexMatrix, OfNumbersOfCopiesIsAbsorbed) {
  for (const TIndex size : kSizes) {
    for (const TIndex number : {INT_MIN, -2, -1, 0}) {
      TContainers containers(size);
      containers.storage.DuplicateAlongAxis(number, 1);
      EXPECT_EQ(containers.storage.Count(), size);
      containers.storage.DuplicateAroundAxis(number, number, 1, true);
      EXPECT_EQ(containers.storage.Count(), 0);
      EXPECT_EQ(GetAxialBlocks(0, 100, number, 1).size(), 1U);
      if (size == 0) continue;
      TTreeNode_Geometry& region = *containers.regions.GetNodeFromIndex(1);
      region.Entities().AddEntities(containers.entities);
      region.NumberDuplications(number);
      region.Duplicate();
      region.DuplicateAndUnite(number, gpAxial);
      EXPECT_EQ(region.GetNumEntities(), size);
    }
  }
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

// An element of the container itself, or a view of a part of it, as the argument.
TEST(OwnArguments, MayBeElementsOfTheContainer) {
  TCoordinateArray points = {{1, 2}, {3, 4}, {5, 6}};
  for (int i = 0; i < 9; ++i) AddCoordinate(points, points.front());
  EXPECT_EQ(points.back().y, 2);
  Rotate_AboutPoint(points, GetRotationMatrix(180), points[1]);
  EXPECT_EQ(points[1].x, 3);
  EXPECT_NEAR(points[0].x, 5, 1e-12);
  CopyArray(points, std::span(points).subspan(1, 2));
  EXPECT_EQ(points.size(), 2U);
  TEntityArray entities = {SomeLine(1), SomeLine(2), SomeLine(3)};
  for (int i = 0; i < 9; ++i) AddEntity(entities, entities.front());
  InsertEntity(entities, entities.back(), 0);
  EXPECT_EQ(entities.size(), 13U);
  AddEntities_CheckDuplicate(entities, std::span(entities).subspan(1, 2));
  RemoveEntity(entities, entities.front());
  EXPECT_EQ(entities.size(), 12U);
  EXPECT_TRUE(GetEntity_Next(entities, entities.front()) == entities[1]);
  TEntityStorage storage;
  storage.AddEntities({CreateEntity_Line(0, 0, 4, 0), CreateEntity_Line(4, 0, 4, 4), CreateEntity_Line(4, 4, 0, 0)});
  storage.SetEntityColour(0, "a colour that takes memory of its own");
  storage.SetEntityColour(0, std::string_view(storage.Entities_P(0)->Colour).substr(2));
  EXPECT_EQ(storage.Entities(0).Colour, "colour that takes memory of its own");
  storage.RotateEntities_AroundPoint(GetRotationMatrix(90), storage.Entities_P(0)->EndCoords);
  EXPECT_EQ(storage.Entities(0).EndCoords.x, 4);
  storage.Mirror(*storage.Entities_P(0));
  storage.ReOrderEntities(storage.Entities_P(1)->StartCoords);
  storage.StartCoordinate(storage.StartCoordinate());
  EXPECT_EQ(storage.Count(), 3);
}

TEST(OwnArguments, MayBeTheObjectItself) {
  TPlane plane;
  plane.Vector_X({1, 0, 0});
  plane.Vector_Y({0, 1, 0});
  plane.CopyParameters(plane);
  EXPECT_TRUE(plane.Coincident(plane));
  TTree_Geometry tree;
  auto created = tree.CreateTreeNode();
  TTreeNode_Geometry& region = *TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(created));
  region.Entities().AddEntities(everything::RoundedChain(1, 1, 4));
  region.UpdateGeometry_Outputs();
  region.SetRegionName("a region whose name takes memory of its own");
  region.SetRegionName(std::string_view(region.RegionName()).substr(2));
  region.SetRegionName(region.UniqueName());
  EXPECT_EQ(region.RegionName(), "region whose name takes memory of its own");
  region.CopyRegionParameters(region, true);
  region.CopyRegionParameters(region, false);
  region.SetRegionCoordinate_Single(region.RegionCoordinates().front());
  EXPECT_FALSE(region.RegionInsideRegion(region, false));
  tree.MoveTreeNode(&region, &region);
  EXPECT_EQ(region.GetParent(), tree.GetRootNode());
  const TAxialBlockArray blocks = GetAxialBlocks(0, 100, 3, 2);
  EXPECT_TRUE(ElementsEqual(blocks, blocks));
  TInterceptionPoints meetings;
  CheckIntercepts(region.Entities().Entities(0), region.Entities().Entities(0), meetings);
  EXPECT_FALSE(CheckEntitiesForMerge(TDXFEntity{}, TDXFEntity{}, {}, {}, {}));
}

// A driver's own storage of pieces as the drawing, its region tree as the vertex graph.
TEST(OwnArguments, MayBeTheDriversOwn) {
  TEntityStorage drawing;
  drawing.AddEntities(everything::MixedDrawing());
  TEntityBaseClass driver;
  const auto trace = [&](TEntityTree& tree) {
    driver.DetermineRegions(tree, 1);
    driver.IdentifySubRegions(tree);
    driver.RemoveDuplicatedSubRegions();
    return driver.RegionTree().RootNode()->Count();
  };
  driver.DetermineInterceptions(&drawing);
  const TIndex regions = trace(driver.CoordinateTree());
  const TTreeNode* first = driver.RegionTree().RootNode()->GetNode(0);
  RegionContains_SubRegion(driver.CoordinateTree(), first, first);
  EXPECT_EQ(trace(driver.RegionTree()), 0) << "which is cleared first";
  driver.DetectOrphanEntities(driver.RegionTree());
  EXPECT_EQ(driver.RegionTree().RootNode()->Count(), 0);
  TEntityTree& graph = driver.CoordinateTree();
  const TIndex pieces = graph.pEntityStorage()->Count();
  driver.AddEntityToCoordinateTree(graph, *graph.pEntityStorage()->Entities_P(0));
  EXPECT_EQ(graph.pEntityStorage()->Count(), pieces);
  driver.DetermineInterceptions(graph.pEntityStorage());
  EXPECT_EQ(graph.pEntityStorage()->Count(), 0) << "which is emptied before it is filled";
  driver.DetermineInterceptions(&drawing);
  EXPECT_EQ(trace(graph), regions);
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

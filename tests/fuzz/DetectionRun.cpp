#include "tests/fuzz/DetectionRun.h"

#include <algorithm>
#include <cmath>

#include "GeometryEngine/GeometryEngine.h"
#include "tests/fuzz/FuzzTarget.h"

namespace fuzz {

namespace {

using namespace GeometryEngine;

constexpr double kLargestContainer = 1e12;
constexpr std::int32_t kAnticlockwise = 1;

void CheckRegion(const TEntityTree& aRegions, const TTreeNode& aRegion, std::int32_t aRegionType) {
  const TIndex pieces = aRegions.pEntityStorage()->Count();
  Require(aRegion.Count() > 0, "a region has entities");
  Require(aRegionType != kAnticlockwise || aRegion.GaussArea() >= 0, "only faces were asked for");
  std::vector<TIndex> indexes;
  for (const TTreeNode* child : aRegion.Children()) indexes.push_back(child->EntityIndex());
  Require(std::ranges::all_of(indexes, [pieces](TIndex index) { return index >= kNotFound && index < pieces; }),
          "a region's entities are pieces");
  std::ranges::sort(indexes);
  Require(std::ranges::adjacent_find(indexes) == indexes.end(), "a loop has no piece twice");
}

// Each piece of a loop goes on where the one before it ends.
void CheckIsConnected(const TEntityTree& aRegions, const TTreeNode& aRegion) {
  for (TIndex i = 0; i + 1 < aRegion.Count(); ++i) {
    const TDXFEntity& entity = aRegions.GetNodeEntity(*aRegion.GetNode(i));
    const TDXFEntity& next = aRegions.GetNodeEntity(*aRegion.GetNode(i + 1));
    Require(GetCommonCoordinate(entity, next).aIndex == 0, "consecutive entities of a loop share an end");
  }
}

void CheckSubRegions(std::span<TTreeNode* const> aRegions) {
  const TIndex count = ToIndex(aRegions.size());
  std::vector<int> listed(aRegions.size(), 0);
  for (TIndex i = 0; i < count; ++i) {
    for (const std::int32_t inner : aRegions[static_cast<std::size_t>(i)]->SubRegions()) {
      Require(inner >= 0 && inner < count && inner != i, "a sub-region is another region");
      ++listed[static_cast<std::size_t>(inner)];
    }
  }
  const bool areBounded = std::ranges::all_of(
      aRegions, [](const TTreeNode* region) { return std::abs(region->GaussArea()) < kLargestContainer; });
  Require(!areBounded || std::ranges::all_of(listed, [](int times) { return times <= 1; }),
          "a region lies in one closest container");
}

// The regions as numbers, to hold two runs against each other.
std::vector<double> Numbers(const TEntityBaseClass& aDriver) {
  std::vector<double> numbers;
  for (const TTreeNode* region : aDriver.RegionTree().RootNode()->Children()) {
    numbers.insert(numbers.end(), {region->GaussArea(), region->RegionCentroid().x, region->RegionCentroid().y});
    for (const TTreeNode* child : region->Children()) numbers.push_back(child->EntityIndex());
  }
  return numbers;
}

bool HasFiniteKeys(const TEntityArray& aDrawing) {
  return std::ranges::all_of(aDrawing,
                             [](const TDXFEntity& entity) { return !std::isnan(GetLeftMostCoordinate(entity).x); });
}

// A sorted drawing stays as it is, so that a second run finds the same.
void CheckIsRepeatable(TEntityStorage& aDrawing, TEntityBaseClass& aDriver, std::int32_t aRegionType) {
  const std::vector<double> first = Numbers(aDriver);
  const TEntityArray sorted = aDrawing.EntityArray();
  aDriver.DetermineInterceptions(&aDrawing);
  aDriver.DetermineRegions(aDriver.CoordinateTree(), aRegionType);
  if (!HasFiniteKeys(sorted)) return;
  Require(IsSameBits(sorted, aDrawing.EntityArray()), "a sorted drawing stays as it is");
  const std::vector<double> second = Numbers(aDriver);
  Require(std::equal(first.begin(), first.end(), second.begin(), second.end(),
                     [](double left, double right) { return IsSameBits(left, right); }),
          "a second detection finds the same bits");
}

void HandOver(TEntityBaseClass& aDriver, const std::function<void()>& aBetween) {
  TTree_Geometry tree;
  TTreeNodeArray_Geometry regions;
  const std::span<TTreeNode* const> found = aDriver.RegionTree().RootNode()->Children();
  for (TIndex i = 0; i < ToIndex(found.size()); ++i) {
    auto node = tree.CreateTreeNode();
    regions.push_back(TTreeNode_Geometry::TypeCast(tree.AddNewTreeNode(node)));
    aDriver.AddRegionEntities(regions.back(), i);
    aBetween();
  }
  for (std::size_t i = 0; i < found.size(); ++i) {
    for (const std::int32_t inner : found[i]->SubRegions()) {
      tree.MoveTreeNode_Recursive(regions[static_cast<std::size_t>(inner)], regions[i]);
    }
  }
  for (TTreeNode_Geometry* region : regions) {
    region->UpdateGeometry_Outputs();
    aBetween();
    region->SetRegionName("Region");
    Require(!(region->RegionArea_Base() < 0) || region->GetNumEntities_Internal() > 0,
            "an outline's area is not negative");
    region->GetRegionArea();
  }
  tree.UpdateMinMaxValues(TGeometryRegionTypesSet::All());
  tree.GetEntities_NoDuplicates();
}

}  // namespace

void RunDetection(const TEntityArray& aDrawing, std::int32_t aRegionType, bool aSteady,
                  const std::function<void()>& aBetween) {
  TEntityStorage drawing;
  drawing.AddEntities(aDrawing);
  TEntityBaseClass driver;
  driver.DetermineInterceptions(&drawing);
  aBetween();
  driver.DetectOrphanEntities(driver.CoordinateTree());
  aBetween();
  driver.DetermineInterceptions(&drawing);
  aBetween();
  driver.DetermineRegions(driver.CoordinateTree(), aRegionType);
  for (const TTreeNode* region : driver.RegionTree().RootNode()->Children()) {
    CheckRegion(driver.RegionTree(), *region, aRegionType);
    if (aSteady) CheckIsConnected(driver.RegionTree(), *region);
  }
  if (aSteady) CheckIsRepeatable(drawing, driver, aRegionType);
  aBetween();
  driver.IdentifySubRegions(driver.CoordinateTree());
  aBetween();
  driver.RemoveDuplicatedSubRegions();
  CheckSubRegions(driver.RegionTree().RootNode()->Children());
  aBetween();
  HandOver(driver, aBetween);
}

}  // namespace fuzz

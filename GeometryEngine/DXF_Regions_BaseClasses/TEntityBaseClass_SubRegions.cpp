#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/RegionNesting.h"
#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"

namespace GeometryEngine {

namespace {

// KEPT: a container of this signed area or more is never the closest one; drawings in millimetres stay far below it.
constexpr double kLargestContainer = 1e12;  // drawing units squared

// The container that a region stays in, as far as the containers have been looked through.
struct TClosestContainer {
  double fArea = kLargestContainer;
  TIndex fClosest = kNotFound;
  TIndex fFirst = kNotFound;     // the first container of all,
  bool fFirstIsClosest = false;  // and whether it was the closest one then
  TIndex fLast = kNotFound;      // the last one looked at

  // KEPT: the signed area is compared, so that a clockwise container counts as smaller than every anticlockwise one.
  void LookAt(TIndex aContainer, double aArea) {
    const bool isCloser = fArea > aArea;
    if (fFirst == kNotFound) {
      fFirst = aContainer;
      fFirstIsClosest = isCloser;
    }
    fLast = aContainer;
    if (!isCloser) return;
    fArea = aArea;
    fClosest = aContainer;
  }
  /// A first container that is too large to be the closest one is never left behind either: only a closest one is, and
  /// those that come after a first.
  bool StaysIn(TIndex aContainer) const { return aContainer == fClosest || (aContainer == fFirst && !fFirstIsClosest); }
};

// For each region its closest container among the regions that list it.
std::vector<TClosestContainer> FindClosestContainers(std::span<TTreeNode* const> aRegions) {
  std::vector<TClosestContainer> closest(aRegions.size());
  for (std::size_t j = 0; j < aRegions.size(); ++j) {
    for (const std::int32_t region : aRegions[j]->SubRegions()) {
      if (!IsIndexWithin(region, closest.size())) continue;
      TClosestContainer& container = closest[static_cast<std::size_t>(region)];
      if (container.fLast != ToIndex(j)) container.LookAt(ToIndex(j), aRegions[j]->GaussArea());
    }
  }
  return closest;
}

struct TNewList {
  TTreeNode* fRegion;
  TIntegerArray fSubRegions;
};

// All lists are made before the first is set, so that memory that runs out leaves the regions as they were.
void SetSubRegions(std::vector<TNewList>& aLists) {
  for (TNewList& list : aLists) list.fRegion->SubRegions(std::move(list.fSubRegions));
}

}  // namespace

void TEntityBaseClass::IdentifySubRegions(const TEntityTree& aTree) {
  const TFloatEnvironment environment;
  const std::span<TTreeNode* const> regions = fRegionTree.RootNode()->Children();
  std::vector<TIntegerArray> nested = detail::FindNestedRegions(fRegionTree, aTree);
  std::vector<TNewList> lists;
  for (std::size_t j = 0; j < regions.size(); ++j) {
    if (nested[j].empty()) continue;
    const TIntegerArray& known = regions[j]->SubRegions();
    nested[j].insert(nested[j].begin(), known.begin(), known.end());
    lists.push_back({regions[j], std::move(nested[j])});
  }
  SetSubRegions(lists);
}

void TEntityBaseClass::RemoveDuplicatedSubRegions() {
  const TFloatEnvironment environment;
  const std::span<TTreeNode* const> regions = fRegionTree.RootNode()->Children();
  std::vector<TClosestContainer> closest = FindClosestContainers(regions);
  for (TClosestContainer& container : closest) container.fLast = kNotFound;
  std::vector<TNewList> lists;
  for (std::size_t j = 0; j < regions.size(); ++j) {
    const TIntegerArray& listed = regions[j]->SubRegions();
    if (listed.empty()) continue;
    TIntegerArray& kept = lists.emplace_back(TNewList{regions[j], {}}).fSubRegions;
    kept.reserve(listed.size());
    for (const std::int32_t region : listed) {
      // Of an index that is listed twice only the first entry goes.
      if (IsIndexWithin(region, closest.size()) &&
          std::exchange(closest[static_cast<std::size_t>(region)].fLast, ToIndex(j)) != ToIndex(j) &&
          !closest[static_cast<std::size_t>(region)].StaysIn(ToIndex(j))) {
        continue;
      }
      kept.push_back(region);
    }
  }
  SetSubRegions(lists);
}

bool TEntityBaseClass::GetIsRegionSubRegion(std::int32_t aRegionIndex) const {
  const std::vector<bool>& isListed = ListedRegions();
  if (IsIndexWithin(aRegionIndex, isListed.size())) return isListed[static_cast<std::size_t>(aRegionIndex)];
  return std::ranges::any_of(fRegionTree.RootNode()->Children(), [aRegionIndex](const TTreeNode* region) {
    return region->CheckSubRegionIdentified(aRegionIndex);
  });
}

// Hosts ask region by region.
const std::vector<bool>& TEntityBaseClass::ListedRegions() const {
  auto& [nestingChanges, isListed] = fListedRegions;
  const std::span<TTreeNode* const> regions = fRegionTree.RootNode()->Children();
  if (nestingChanges == fRegionTree.NestingChanges() && isListed.size() == regions.size()) return isListed;
  isListed.assign(regions.size(), false);
  for (const TTreeNode* region : regions) {
    for (const std::int32_t index : region->SubRegions()) {
      if (IsIndexWithin(index, isListed.size())) isListed[static_cast<std::size_t>(index)] = true;
    }
  }
  nestingChanges = fRegionTree.NestingChanges();
  return isListed;
}

}  // namespace GeometryEngine

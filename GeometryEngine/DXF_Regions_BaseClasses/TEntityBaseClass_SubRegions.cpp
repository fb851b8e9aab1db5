#include <algorithm>
#include <utility>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_Detection/Containment.h"

namespace GeometryEngine {

namespace {

// KEPT: a container of this signed area or more is never the closest one; drawings in millimetres stay far below it.
constexpr double kLargestContainer = 1e12;  // drawing units squared

// KEPT: the signed area is compared, so that a clockwise container counts as smaller than every anticlockwise one.
void KeepClosestContainer(const std::vector<TTreeNode*>& aRegions, std::int32_t aRegionIndex) {
  double bestArea = kLargestContainer;
  TTreeNode* best = nullptr;
  bool listedBefore = false;
  for (TTreeNode* region : aRegions) {
    if (!region->CheckSubRegionIdentified(aRegionIndex)) continue;
    TTreeNode* farther = region;
    if (bestArea > region->GaussArea()) {
      bestArea = region->GaussArea();
      farther = std::exchange(best, region);
    }
    if (listedBefore && farther != nullptr) farther->RemoveSubRegion(aRegionIndex);
    listedBefore = true;
  }
}

}  // namespace

void TEntityBaseClass::IdentifySubRegions(const TEntityTree& aTree) {
  const std::vector<TTreeNode*>& regions = fRegionTree.RootNode()->Children();
  for (std::size_t i = 0; i < regions.size(); ++i) {
    for (std::size_t j = 0; j < regions.size(); ++j) {
      if (i != j && RegionContains_SubRegion(aTree, regions[i], regions[j])) regions[j]->AddSubRegion(ToIndex(i));
    }
  }
}

void TEntityBaseClass::RemoveDuplicatedSubRegions() {
  const std::vector<TTreeNode*>& regions = fRegionTree.RootNode()->Children();
  for (std::size_t r = 0; r < regions.size(); ++r) KeepClosestContainer(regions, ToIndex(r));
}

bool TEntityBaseClass::GetIsRegionSubRegion(std::int32_t aRegionIndex) const {
  return std::ranges::any_of(fRegionTree.RootNode()->Children(), [aRegionIndex](const TTreeNode* region) {
    return region->CheckSubRegionIdentified(aRegionIndex);
  });
}

}  // namespace GeometryEngine

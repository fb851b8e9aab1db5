#include "GeometryEngine/DXF_Regions_Detection/detail/RegionNesting.h"

#include <algorithm>
#include <optional>
#include <span>

#include "GeometryEngine/DXF_Regions_Detection/detail/RegionReach.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TBoxGrid.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TBoxIndex.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/THeightIndex.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TRegionOutline.h"
#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TRegionEntities.h"

namespace GeometryEngine::detail {

namespace {

// Finds what may lie inside each region, and leaves it to the winding numbers whether it does.
class TNesting {
 public:
  TNesting(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree)
      : fCoordinateTree(aCoordinateTree),
        fRegions(aRegionTree.RootNode()->Children()),
        fReaches(GetRegionReaches(aRegionTree, aCoordinateTree)),
        fStartPoints(fReaches.fStartPoints) {}

  std::vector<TIntegerArray> Find() {
    std::vector<TIntegerArray> nested = FindCandidates();
    for (std::size_t i = 0; i < nested.size(); ++i) {
      FetchAhead(i + kRegionsAhead, nested);
      KeepNested(ToIndex(i), nested[i]);
    }
    return nested;
  }

 private:
  void FetchAhead(std::size_t aContainer, std::span<const TIntegerArray> aCandidates) const {
    if (aContainer >= aCandidates.size() || aCandidates[aContainer].empty()) return;
    TRegionEntities(fCoordinateTree, *fRegions[aContainer]).FetchAhead();
  }

  // REQUIRES: candidates in ascending order, each once.
  void KeepNested(TIndex aContainer, TIntegerArray& aCandidates) const {
    if (aCandidates.empty()) return;
    TRegionOutline outline(fCoordinateTree, *fRegions[static_cast<std::size_t>(aContainer)]);
    std::erase_if(aCandidates, [&](TIndex region) { return region == aContainer || !LiesInside(region, outline); });
  }

  bool LiesInside(TIndex aRegion, TRegionOutline& aOutline) const {
    return std::ranges::all_of(fReaches.PointsOf(aRegion),
                               [&](const TEntityCoordinate& point) { return aOutline.GetWindingNumber(point) >= 1; });
  }

  std::vector<TIntegerArray> FindCandidates() {
    std::vector<TIntegerArray> candidates(fRegions.size());
    AddByBoxes(candidates);
    AddByHeights(fReaches.fOpenToTheLeft, &TStartPoints::fHeight_LeftMost, ReachesOutToTheLeft, candidates);
    AddByHeights(fReaches.fOpenToTheRight, &TStartPoints::fHeight_RightMost, ReachesOutToTheRight, candidates);
    for (TIntegerArray& regions : candidates) {
      std::ranges::sort(regions);
      regions.erase(std::unique(regions.begin(), regions.end()), regions.end());
    }
    return candidates;
  }

  void AddByBoxes(std::vector<TIntegerArray>& aCandidates) const {
    std::vector<TBox> boxes;
    TIntegerArray tame;
    TIntegerArray wild;
    for (std::size_t i = 0; i < fStartPoints.size(); ++i) {
      const TStartPoints& points = fStartPoints[i];
      if (points.fLieNowhere) continue;
      (points.fAreTame ? tame : wild).push_back(ToIndex(i));
      if (points.fAreTame) boxes.push_back(points.fBox);
    }
    TBoxGrid grid(boxes);
    std::optional<TBoxIndex> index;
    for (std::size_t i = 0; i < aCandidates.size(); ++i) {
      aCandidates[i] = wild;
      const auto add = [&](TIndex box) {
        const TIndex region = tame[static_cast<std::size_t>(box)];
        if (region != ToIndex(i)) aCandidates[i].push_back(region);
      };
      if (grid.ForFewWithin(fReaches.fBoxes[i], add)) continue;
      if (!index) index.emplace(boxes);
      index->ForEachWithin(fReaches.fBoxes[i], add);
    }
  }

  static bool ReachesOutToTheLeft(const TBox& aPoints, const TBox& aContainer) {
    return aPoints.fLeft < aContainer.fLeft;
  }
  static bool ReachesOutToTheRight(const TBox& aPoints, const TBox& aContainer) {
    return aPoints.fRight > aContainer.fRight;
  }
  static bool IsLevelWith(const TBox& aPoints, const TBox& aContainer) {
    return aPoints.fBottom >= aContainer.fBottom && aPoints.fTop <= aContainer.fTop;
  }

  template <class TReachesOut>
  void AddByHeights(const std::vector<TOpenHeights>& aOpen, double TStartPoints::*aHeight,
                    const TReachesOut& aReachesOut, std::vector<TIntegerArray>& aCandidates) const {
    if (aOpen.empty()) return;
    const THeightIndex index(GetHeights(aHeight));
    for (const TOpenHeights& open : aOpen) {
      const auto container = static_cast<std::size_t>(open.fRegion);
      const TBox& box = fReaches.fBoxes[container];
      index.ForEachWithin(open.fHeights, [&](TIndex region) {
        const TBox& points = fStartPoints[static_cast<std::size_t>(region)].fBox;
        if (aReachesOut(points, box) && IsLevelWith(points, box)) aCandidates[container].push_back(region);
      });
    }
  }

  std::vector<THeight> GetHeights(double TStartPoints::*aHeight) const {
    std::vector<THeight> heights;
    for (std::size_t i = 0; i < fStartPoints.size(); ++i) {
      const TStartPoints& points = fStartPoints[i];
      if (!points.fLieNowhere && points.fAreTame) heights.push_back({points.*aHeight, ToIndex(i)});
    }
    return heights;
  }

  const TEntityTree& fCoordinateTree;
  std::span<TTreeNode* const> fRegions;
  TRegionReaches fReaches;
  std::span<const TStartPoints> fStartPoints;
};

}  // namespace

std::vector<TIntegerArray> FindNestedRegions(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree) {
  return TNesting(aRegionTree, aCoordinateTree).Find();
}

}  // namespace GeometryEngine::detail

#include "GeometryEngine/DXF_Regions_Detection/detail/RegionNesting.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "GeometryEngine/DXF_Regions_Detection/detail/RegionReach.h"
#include "GeometryEngine/DXF_Regions_Detection/detail/TRegionOutline.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kLargest = 1e100;  // drawing length units; see RegionReach.cpp

// The start points of a region's entities, which decide what it lies in, by their extremes.
struct TStartPoints {
  TBox fBox;
  double fHeight_LeftMost = 0;
  double fHeight_RightMost = 0;
  bool fLieNowhere = false;  // there is none, or one that is not a number: the region lies in no other
  bool fAreTame = true;

  void Include(const TEntityCoordinate& aPoint) {
    fLieNowhere = fLieNowhere || std::isnan(aPoint.x) || std::isnan(aPoint.y);
    fAreTame = fAreTame && std::abs(aPoint.x) < kLargest && std::abs(aPoint.y) < kLargest;
    if (aPoint.x < fBox.fLeft) fHeight_LeftMost = aPoint.y;
    if (aPoint.x > fBox.fRight) fHeight_RightMost = aPoint.y;
    fBox.Include(aPoint.x, aPoint.y);
  }
};

TStartPoints GetStartPoints(const TEntityTree& aCoordinateTree, const TTreeNode& aRegion) {
  TStartPoints points;
  points.fLieNowhere = aRegion.Children().empty();
  for (const TTreeNode* child : aRegion.Children()) points.Include(aCoordinateTree.GetNodeEntity(*child).StartCoords);
  return points;
}

// Finds what may lie inside each region, and leaves it to the winding numbers whether it does.
class TNesting {
 public:
  TNesting(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree)
      : fCoordinateTree(aCoordinateTree),
        fRegions(aRegionTree.RootNode()->Children()),
        fReaches(GetRegionReaches(aRegionTree, aCoordinateTree)) {
    fStartPoints.reserve(fRegions.size());
    for (const TTreeNode* region : fRegions) fStartPoints.push_back(GetStartPoints(aCoordinateTree, *region));
  }

  std::vector<TIntegerArray> Find() {
    std::vector<TIntegerArray> nested = FindCandidates();
    for (std::size_t i = 0; i < nested.size(); ++i) KeepNested(ToIndex(i), nested[i]);
    return nested;
  }

 private:
  // REQUIRES: candidates in ascending order, each once.
  void KeepNested(TIndex aContainer, TIntegerArray& aCandidates) const {
    if (aCandidates.empty()) return;
    const TRegionOutline outline(fCoordinateTree, *fRegions[static_cast<std::size_t>(aContainer)]);
    std::erase_if(aCandidates, [&](TIndex region) { return region == aContainer || !LiesInside(region, outline); });
  }

  bool LiesInside(TIndex aRegion, const TRegionOutline& aOutline) const {
    return std::ranges::all_of(fRegions[static_cast<std::size_t>(aRegion)]->Children(), [&](const TTreeNode* child) {
      return aOutline.GetWindingNumber(fCoordinateTree.GetNodeEntity(*child).StartCoords) >= 1;
    });
  }

  std::vector<TIntegerArray> FindCandidates() {
    std::vector<TIntegerArray> candidates(fRegions.size());
    AddByBoxes(candidates);
    AddByHeights(fReaches.fOpenToTheLeft, &TStartPoints::fHeight_LeftMost, candidates);
    AddByHeights(fReaches.fOpenToTheRight, &TStartPoints::fHeight_RightMost, candidates);
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
    const TBoxIndex index(boxes);
    for (std::size_t i = 0; i < aCandidates.size(); ++i) {
      aCandidates[i] = wild;
      index.ForEachWithin(fReaches.fBoxes[i], [&](TIndex box) {
        const TIndex region = tame[static_cast<std::size_t>(box)];
        if (region != ToIndex(i)) aCandidates[i].push_back(region);
      });
    }
  }

  void AddByHeights(std::vector<TInterval>& aOpen, double TStartPoints::*aHeight,
                    std::vector<TIntegerArray>& aCandidates) const {
    if (aOpen.empty()) return;
    const TIntervalIndex open(std::move(aOpen));
    for (std::size_t i = 0; i < fStartPoints.size(); ++i) {
      const TStartPoints& points = fStartPoints[i];
      if (points.fLieNowhere || !points.fAreTame) continue;
      open.ForEachHolding(points.*aHeight, [&](TIndex container) {
        aCandidates[static_cast<std::size_t>(container)].push_back(ToIndex(i));
      });
    }
  }

  const TEntityTree& fCoordinateTree;
  std::span<TTreeNode* const> fRegions;
  TRegionReaches fReaches;
  std::vector<TStartPoints> fStartPoints;
};

}  // namespace

std::vector<TIntegerArray> FindNestedRegions(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree) {
  return TNesting(aRegionTree, aCoordinateTree).Find();
}

}  // namespace GeometryEngine::detail

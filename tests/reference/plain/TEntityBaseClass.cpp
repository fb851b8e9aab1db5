#include "tests/reference/plain/TEntityBaseClass.h"

#include <algorithm>
#include <cmath>

#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/Pairs.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

namespace {

TRegionWalk Trace(TEntityTree& aTree, TTreeNode* aVertex, TTreeNode* aEntityEnd, bool aBacktracking) {
  TRegionWalk walk;
  walk.fStart = aVertex->Coordinates();
  walk.fBacktracking = aBacktracking;
  Plain::FindNextRegionEntity(aTree, aVertex, aEntityEnd, walk);
  return walk;
}

bool IsWanted(double aArea, std::int32_t aRegionType) {
  return (aArea < 0 && (aRegionType == 0 || aRegionType == 2)) ||
         (aArea >= 0 && (aRegionType == 0 || aRegionType == 1));
}

TEntityArray Entities(const TEntityTree& aTree, const TTreeNode& aRegion) {
  TEntityArray entities;
  for (const TTreeNode* child : aRegion.Children()) entities.push_back(aTree.GetNodeEntity(*child));
  return entities;
}

bool AreSameReversed(const TEntityArray& aChain_A, const TEntityArray& aChain_B) {
  return std::equal(aChain_A.rbegin(), aChain_A.rend(), aChain_B.begin(), aChain_B.end(),
                    [](const TDXFEntity& A, const TDXFEntity& B) { return Same(A, B); });
}

}  // namespace

void TEntityBaseClass::DetermineInterceptions(TEntityStorage* apEntityStorage) {
  fCoordinateTree.Clear();
  fInterceptTree.Clear();
  fInterceptTree.pEntityStorage(apEntityStorage);
  apEntityStorage->QuickSortArray(0, apEntityStorage->Count() - 1);
  Sweep(apEntityStorage->fEntities);
  CreateCoordinateTreeFromIntercepts();
}

void TEntityBaseClass::Sweep(const TEntityArray& aEntities) {
  const auto record = [&](TIndex aIndex, const TEntityCoordinate& aPoint) {
    Plain::AddInterception(fInterceptTree, aEntities[static_cast<std::size_t>(aIndex)], aIndex, aPoint);
  };
  std::vector<TIndex> active;
  for (std::size_t i = 0; i < aEntities.size(); ++i) {
    const double left = Plain::GetLeftMostCoordinate(aEntities[i]).x;
    for (std::size_t j = active.size(); j-- > 0;) {
      const TDXFEntity& other = aEntities[static_cast<std::size_t>(active[j])];
      const double right = Plain::GetRightMostCoordinate(other).x;
      if (left > right && !ValuesSame_DXFTolerance(right, left)) {
        record(active[j], other.StartCoords);
        record(active[j], other.EndCoords);
        active.erase(active.begin() + static_cast<std::ptrdiff_t>(j));
        continue;
      }
      TCoordinateArray points;
      if (!Plain::CheckIntercepts(aEntities[i], other, points)) continue;
      for (const TEntityCoordinate& point : points) {
        record(ToIndex(i), point);
        record(active[j], point);
      }
    }
    active.push_back(ToIndex(i));
  }
}

void TEntityBaseClass::CreateCoordinateTreeFromIntercepts() {
  fEntityStorage_Regions.FreeEntities();
  fCoordinateTree.pEntityStorage(&fEntityStorage_Regions);
  for (const TTreeNode* node : fInterceptTree.RootNode()->Children()) {
    const TEntityArray pieces = Plain::SplitEntity_FromIntercepts(fInterceptTree.GetNodeEntity(*node), *node);
    for (const TDXFEntity& piece : pieces) AddEntityToCoordinateTree(fCoordinateTree, piece);
  }
}

void TEntityBaseClass::AddEntityToCoordinateTree(TEntityTree& aTree, const TDXFEntity& aEntity) {
  TEntityStorage* storage = aTree.pEntityStorage();
  if (storage->CheckEntityExists(aEntity)) return;
  if (aEntity.EntityType != DXFLine && aEntity.EntityType != DXFArc) return;
  TDXFEntity piece = aEntity;
  piece.StartCoords = AddCoordinateNode(aTree, aEntity.StartCoords, storage->Count());
  piece.EndCoords = AddCoordinateNode(aTree, aEntity.EndCoords, storage->Count());
  storage->AddEntity(piece);
}

TEntityCoordinate TEntityBaseClass::AddCoordinateNode(TEntityTree& aTree, const TEntityCoordinate& aCoordinate,
                                                      TIndex aEntityIndex) {
  TTreeNode* vertex = aTree.Search_L1_Coords(aCoordinate);
  if (vertex == nullptr) {
    vertex = aTree.AddTreeNode_ToRoot();
    vertex->fCoordinates = aCoordinate;
  }
  aTree.AddTreeNode(vertex)->fEntityIndex = aEntityIndex;
  return vertex->fCoordinates;
}

void TEntityBaseClass::DetermineRegions(TEntityTree& aTree, std::int32_t aRegionType) {
  fRegionTree.Clear();
  fRegionTree.pEntityStorage(aTree.pEntityStorage());
  for (TTreeNode* vertex : aTree.RootNode()->Children()) {
    for (TTreeNode* entityEnd : vertex->Children()) {
      if (vertex->Count() < 2 || entityEnd->Travelled()) continue;
      const TRegionWalk walk = Trace(aTree, vertex, entityEnd, true);
      if (IsWanted(walk.fArea, aRegionType)) AddRegionCoordinates(aTree, *vertex, walk);
    }
  }
}

void TEntityBaseClass::DetectOrphanEntities(TEntityTree& aTree) {
  fRegionTree.Clear();
  fRegionTree.pEntityStorage(aTree.pEntityStorage());
  for (TTreeNode* vertex : aTree.RootNode()->Children()) {
    if (vertex->Count() != 1) continue;
    const TRegionWalk walk = Trace(aTree, vertex, vertex->GetNode(0), false);
    TEntityArray chain;
    for (const std::int32_t index : walk.fPath) chain.push_back(aTree.GetNodeEntity(*aTree.GetNodeFromIndex(index)));
    if (!IsChainKnown(chain)) AddRegionCoordinates(aTree, *vertex, walk);
  }
}

bool TEntityBaseClass::IsChainKnown(const TEntityArray& aChain) const {
  return std::ranges::any_of(fRegionTree.RootNode()->Children(), [&](const TTreeNode* region) {
    return AreSameReversed(Entities(fRegionTree, *region), aChain);
  });
}

void TEntityBaseClass::AddRegionCoordinates(const TEntityTree& aTree, const TTreeNode& aVertex,
                                            const TRegionWalk& aWalk) {
  if (aWalk.fPath.empty()) return;
  TTreeNode* region = fRegionTree.AddTreeNode_ToRoot();
  region->fCoordinates = aVertex.fCoordinates;
  region->fRegionIndex = -1;
  region->fGaussArea = aWalk.fArea;
  region->fCentroid = aWalk.fCentroid;
  region->fTravelDirection = aWalk.fArea >= 0 ? Travel_AntiClockwise : Travel_Clockwise;
  for (const std::int32_t index : aWalk.fPath) {
    fRegionTree.AddTreeNode(region)->fEntityIndex = aTree.GetNodeFromIndex(index)->fEntityIndex;
  }
}

void TEntityBaseClass::IdentifySubRegions(const TEntityTree& aTree) {
  const std::vector<TTreeNode*>& regions = fRegionTree.RootNode()->Children();
  for (const TTreeNode* inner : regions) {
    for (TTreeNode* outer : regions) {
      if (inner != outer && Plain::RegionContains_SubRegion(aTree, inner, outer))
        outer->fSubRegions.push_back(inner->RelativeIndex());
    }
  }
}

void TEntityBaseClass::RemoveDuplicatedSubRegions() {
  const std::vector<TTreeNode*>& regions = fRegionTree.RootNode()->Children();
  for (const TTreeNode* region : regions) {
    const TIndex r = region->RelativeIndex();
    double bestArea = 1e12;
    TTreeNode* best = nullptr;
    int hits = 0;
    for (TTreeNode* node : regions) {
      if (!node->CheckSubRegionIdentified(r)) continue;
      ++hits;
      TTreeNode* farther = node;
      if (bestArea > node->fGaussArea) {
        farther = best;
        best = node;
        bestArea = node->fGaussArea;
      }
      if (hits > 1 && farther != nullptr) farther->RemoveSubRegion(r);
    }
  }
}

bool TEntityBaseClass::GetIsRegionSubRegion(std::int32_t aRegionIndex) {
  return std::ranges::any_of(fRegionTree.RootNode()->Children(),
                             [&](const TTreeNode* region) { return region->CheckSubRegionIdentified(aRegionIndex); });
}

void TEntityBaseClass::AddRegionEntities(TTreeNode_Geometry* aRegion, TIndex aRegionIndex) {
  const TTreeNode* region = fRegionTree.RootNode()->GetNode(aRegionIndex);
  aRegion->fEntities.StartCoordinate(region->fCoordinates);
  aRegion->fEntities.fEntities = Entities(fRegionTree, *region);
  if (region->fGaussArea < 0) aRegion->fEntities.ReverseEntities();
  aRegion->fCentroid = region->fCentroid;
  aRegion->fRegionArea_Base = std::abs(region->fGaussArea);
}

}  // namespace GeometryEngine::Plain

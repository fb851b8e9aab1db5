#include <algorithm>

#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"
#include "GeometryEngine/DXF_Regions_Detection/RegionTracing.h"

namespace GeometryEngine {

namespace {

constexpr std::int32_t kRegionType_All = 0;
constexpr std::int32_t kRegionType_AntiClockwise = 1;
constexpr std::int32_t kRegionType_Clockwise = 2;

TRegionWalk Trace(TEntityTree& aTree, TTreeNode* aVertex, TTreeNode* aEntityEnd, bool aBacktracking) {
  TRegionWalk walk;
  walk.fStart = aVertex->Coordinates();
  walk.fBacktracking = aBacktracking;
  FindNextRegionEntity(aTree, aVertex, aEntityEnd, walk);
  return walk;
}

bool IsWanted(double aArea, std::int32_t aRegionType) {
  if (aArea < 0) return aRegionType == kRegionType_All || aRegionType == kRegionType_Clockwise;
  return aArea >= 0 && (aRegionType == kRegionType_All || aRegionType == kRegionType_AntiClockwise);
}

// The entity of a walked half-edge; none for an index that the tree doesn't hold.
TIndex GetWalkedEntityIndex(const TEntityTree& aCoordinateTree, std::int32_t aNodeIndex) {
  const TTreeNode* node = aCoordinateTree.GetNodeFromIndex(aNodeIndex);
  return node == nullptr ? kNotFound : node->EntityIndex();
}

// True when the region is the same open chain, walked from its other end.
bool IsReverseOf(const TEntityTree& aRegionTree, const TTreeNode& aRegion, const TEntityArray& aChain) {
  const std::vector<TTreeNode*>& children = aRegion.Children();
  return std::equal(
      children.rbegin(), children.rend(), aChain.begin(), aChain.end(),
      [&](const TTreeNode* child, const TDXFEntity& entity) { return aRegionTree.GetNodeEntity(*child) == entity; });
}

bool IsChainKnown(const TEntityTree& aRegionTree, const TEntityTree& aCoordinateTree,
                  std::span<const std::int32_t> aNodeIndexes) {
  TEntityArray chain;
  for (const std::int32_t index : aNodeIndexes) {
    const TTreeNode* node = aCoordinateTree.GetNodeFromIndex(index);
    chain.push_back(node == nullptr ? TDXFEntity{} : aCoordinateTree.GetNodeEntity(*node));
  }
  return std::ranges::any_of(aRegionTree.RootNode()->Children(),
                             [&](const TTreeNode* region) { return IsReverseOf(aRegionTree, *region, chain); });
}

}  // namespace

void TEntityBaseClass::DetermineRegions(TEntityTree& aTree, std::int32_t aRegionType) {
  fRegionTree.Clear();
  fRegionTree.pEntityStorage(aTree.pEntityStorage());
  for (TTreeNode* vertex : aTree.RootNode()->Children()) {
    if (vertex->Count() < 2) continue;  // a dangling end starts no closed loop
    for (TTreeNode* entityEnd : vertex->Children()) {
      if (entityEnd->Travelled()) continue;
      const TRegionWalk walk = Trace(aTree, vertex, entityEnd, true);
      if (!IsWanted(walk.fArea, aRegionType)) continue;
      AddRegionCoordinates(aTree, walk.fPath, vertex->Coordinates(), walk.fCentroid, walk.fArea);
    }
  }
}

void TEntityBaseClass::DetectOrphanEntities(TEntityTree& aTree) {
  fRegionTree.Clear();
  fRegionTree.pEntityStorage(aTree.pEntityStorage());
  for (TTreeNode* vertex : aTree.RootNode()->Children()) {
    if (vertex->Count() != 1) continue;
    const TRegionWalk walk = Trace(aTree, vertex, vertex->GetNode(0), false);
    if (IsChainKnown(fRegionTree, aTree, walk.fPath)) continue;
    AddRegionCoordinates(aTree, walk.fPath, vertex->Coordinates(), walk.fCentroid, walk.fArea);
  }
}

void TEntityBaseClass::AddRegionCoordinates(const TEntityTree& aCoordinateTree,
                                            std::span<const std::int32_t> aNodeIndexes, const TEntityCoordinate& aStart,
                                            const TEntityCoordinate& aCentroid, double aArea) {
  if (aNodeIndexes.empty()) return;
  TTreeNode* region = fRegionTree.AddTreeNode_ToRoot();
  region->Coordinates(aStart);
  region->ResetRegionIdentifier();
  region->GaussArea(aArea);
  region->RegionCentroid(aCentroid);
  region->TravelDirection(aArea >= 0 ? Travel_AntiClockwise : Travel_Clockwise);
  for (const std::int32_t index : aNodeIndexes) {
    fRegionTree.AddTreeNode(region)->EntityIndex(GetWalkedEntityIndex(aCoordinateTree, index));
  }
}

}  // namespace GeometryEngine

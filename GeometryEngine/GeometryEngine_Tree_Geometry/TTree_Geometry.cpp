#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTree_Geometry.h"

#include <algorithm>
#include <limits>

#include "GeometryEngine/GeometryEngine_Arrays/detail/DistinctEntities.h"

namespace GeometryEngine {

namespace {

constexpr double kRadiusBeyondAll = 1e9;  // drawing length units
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr TIndex kFirstBelowRoot = 1;  // position in the flat index

std::unique_ptr<TTreeNode_Base> NewNode(TTree_Base& aTree) {
  return std::make_unique<TTreeNode_Geometry>(&aTree);
}

void AddChains(detail::TDistinctEntities& aEntities, const TTreeNode_Geometry& aRegion) {
  aEntities.Add(aRegion.Entities().EntityArray());
  aEntities.Add(aRegion.Entities_Internal().EntityArray());
}

// A selected region of this kind ends the walk at itself: nothing below it is looked at.
bool IsPassedOver(const TTreeNode_Geometry& aRegion) {
  const TPolyType polyType = aRegion.RegionPolyType();
  return polyType == ptPoint || (polyType == ptClosed && !aRegion.IsRegionValid_Closed());
}

// The last child first, so that a stack hands out the first one first.
void PushChildren(TTreeNodeArray_Geometry& aStack, const TTreeNode_Geometry& aRegion) {
  const TTreeNodeArray_Geometry children = aRegion.Children();
  aStack.insert(aStack.end(), children.rbegin(), children.rend());
}

}  // namespace

TTree_Geometry::TTree_Geometry() : TTree_CoreProperties(&NewNode) {}

TTree_Geometry::~TTree_Geometry() = default;

bool TTree_Geometry::GeometryFromScripting() const {
  return fGeometryFromScripting;
}

void TTree_Geometry::GeometryFromScripting(bool aFromScripting) {
  fGeometryFromScripting = aFromScripting;
}

TTreeNode_Geometry* TTree_Geometry::GetRootNode() const {
  return TTreeNode_Geometry::TypeCast(TTree_CoreProperties::GetRootNode());
}

TTreeNode_Geometry* TTree_Geometry::RootNode() const {
  return GetRootNode();
}

TTreeNode_Geometry* TTree_Geometry::GetNodeFromIndex(TIndex aIndex) const {
  return TTreeNode_Geometry::TypeCast(TTree_Base::GetNodeFromIndex(aIndex));
}

TTreeNode_Geometry* TTree_Geometry::Item(TIndex aIndex) const {
  return GetNodeFromIndex(aIndex);
}

TTreeNodeArray_Geometry TTree_Geometry::RegionsFrom(TIndex aFirst) const {
  TTreeNodeArray_Geometry regions;
  for (TIndex index = aFirst; index < GetCount(); ++index) {
    if (TTreeNode_Geometry* region = GetNodeFromIndex(index)) regions.push_back(region);
  }
  return regions;
}

double TTree_Geometry::GetRadius_Minimum(const TGeometryRegionTypesSet& aRegionTypes) const {
  double radius = kRadiusBeyondAll;
  // KEPT: the root counts here, unlike in the box, the mirror and the entity list; a root without entities whose type
  // is asked for therefore answers 0.
  for (const TTreeNode_Geometry* region : RegionsFrom(0)) {
    if (region->IsOfType_WithinSet(aRegionTypes)) radius = std::min(radius, region->Entities().GetRadius_Minimum());
  }
  return radius;
}

double TTree_Geometry::GetRadius_Maximum(const TGeometryRegionTypesSet& aRegionTypes) const {
  double radius = -kRadiusBeyondAll;
  // The root counts here too, as it does for the minimum.
  for (const TTreeNode_Geometry* region : RegionsFrom(0)) {
    if (region->IsOfType_WithinSet(aRegionTypes)) radius = std::max(radius, region->Entities().GetRadius_Maximum());
  }
  return radius;
}

void TTree_Geometry::UpdateMinMaxValues(const TGeometryRegionTypesSet& aRegionTypes) {
  fMin_X = fMin_Y = kInfinity;
  fMax_X = fMax_Y = -kInfinity;
  for (TTreeNode_Geometry* region : RegionsFrom(kFirstBelowRoot)) {
    if (!region->IsOfType_WithinSet(aRegionTypes)) continue;
    TEntityStorage& outline = region->Entities();
    outline.CalculateMinMaxValues();
    fMin_X = std::min(fMin_X, outline.Min_X());
    fMax_X = std::max(fMax_X, outline.Max_X());
    fMin_Y = std::min(fMin_Y, outline.Min_Y());
    fMax_Y = std::max(fMax_Y, outline.Max_Y());
  }
}

double TTree_Geometry::Min_X() const {
  return fMin_X;
}

double TTree_Geometry::Max_X() const {
  return fMax_X;
}

double TTree_Geometry::Min_Y() const {
  return fMin_Y;
}

double TTree_Geometry::Max_Y() const {
  return fMax_Y;
}

double TTree_Geometry::GetWidth() const {
  return fMax_X - fMin_X;
}

double TTree_Geometry::Width() const {
  return GetWidth();
}

double TTree_Geometry::GetHeight() const {
  return fMax_Y - fMin_Y;
}

double TTree_Geometry::Height() const {
  return GetHeight();
}

TEntityCoordinate TTree_Geometry::GetCentre() const {
  return {(fMin_X + fMax_X) / 2, (fMin_Y + fMax_Y) / 2};
}

TEntityCoordinate TTree_Geometry::Centre() const {
  return GetCentre();
}

void TTree_Geometry::Mirror(const TDXFEntity& aMirrorLine) {
  const TDXFEntity line = aMirrorLine;  // the caller may hand in an entity of a chain that is mirrored
  for (TTreeNode_Geometry* region : RegionsFrom(kFirstBelowRoot)) region->Mirror(line);
}

TEntityArray TTree_Geometry::GetEntities_NoDuplicates() const {
  TEntityArray entities;
  detail::TDistinctEntities distinct(entities);
  for (const TTreeNode_Geometry* region : RegionsFrom(kFirstBelowRoot)) AddChains(distinct, *region);
  return entities;
}

TEntityArray TTree_Geometry::GetEntities_NoDuplicates(const TGeometryRegionTypesSet& aRegionTypes) const {
  TEntityArray entities;
  detail::TDistinctEntities distinct(entities);
  TTreeNodeArray_Geometry pending;
  if (const TTreeNode_Geometry* root = GetRootNode()) PushChildren(pending, *root);
  while (!pending.empty()) {
    const TTreeNode_Geometry& region = *pending.back();
    pending.pop_back();
    if (region.IsOfType_WithinSet(aRegionTypes)) {
      if (IsPassedOver(region)) continue;
      AddChains(distinct, region);
    }
    PushChildren(pending, region);
  }
  return entities;
}

}  // namespace GeometryEngine

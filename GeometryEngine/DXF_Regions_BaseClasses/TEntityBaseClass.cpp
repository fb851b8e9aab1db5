#include "GeometryEngine/DXF_Regions_BaseClasses/TEntityBaseClass.h"

#include <cmath>
#include <utility>

#include "GeometryEngine/DXF_Regions_TreeClasses/detail/TRegionEntities.h"
#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"

namespace GeometryEngine {

namespace {

TEntityArray GetRegionEntities(const TEntityTree& aRegionTree, const TTreeNode& aRegion) {
  const detail::TRegionEntities walked(aRegionTree, aRegion);
  TEntityArray entities;
  entities.reserve(walked.size());
  for (std::size_t i = 0; i < walked.size(); ++i) entities.push_back(walked[i]);
  return entities;
}

}  // namespace

TEntityBaseClass::TEntityBaseClass()
    : fCoordinateTree(CreateCoordinateTree()),
      fCoordinateTree_Duplicated(CreateCoordinateTree_Duplicated()),
      fInterceptTree(CreateInterceptTree()),
      fRegionTree(CreateRegionTree()) {
  fCoordinateTree.pEntityStorage(&fEntityStorage_Regions);
}

TEntityBaseClass::~TEntityBaseClass() = default;

TEntityTree TEntityBaseClass::CreateCoordinateTree() {
  return TEntityTree("Coordinates_SlotPole");
}

TEntityTree TEntityBaseClass::CreateCoordinateTree_Duplicated() {
  return TEntityTree("Coordinates_Symmetry");
}

TEntityTree TEntityBaseClass::CreateInterceptTree() {
  return TEntityTree("Intercepts");
}

TEntityTree TEntityBaseClass::CreateRegionTree() {
  return TEntityTree("Regions");
}

TEntityTree& TEntityBaseClass::CoordinateTree() {
  return fCoordinateTree;
}

const TEntityTree& TEntityBaseClass::CoordinateTree() const {
  return fCoordinateTree;
}

TEntityTree& TEntityBaseClass::CoordinateTree_Duplicated() {
  return fCoordinateTree_Duplicated;
}

const TEntityTree& TEntityBaseClass::CoordinateTree_Duplicated() const {
  return fCoordinateTree_Duplicated;
}

TEntityTree& TEntityBaseClass::InterceptTree() {
  return fInterceptTree;
}

const TEntityTree& TEntityBaseClass::InterceptTree() const {
  return fInterceptTree;
}

TEntityTree& TEntityBaseClass::RegionTree() {
  return fRegionTree;
}

const TEntityTree& TEntityBaseClass::RegionTree() const {
  return fRegionTree;
}

void TEntityBaseClass::AddRegionEntities(TTreeNode_Geometry* aRegion, TIndex aRegionIndex) {
  const TTreeNode* region = fRegionTree.RootNode()->GetNode(aRegionIndex);
  if (aRegion == nullptr || region == nullptr) return;
  const TFloatEnvironment environment;
  if (const TTreeNode* next = fRegionTree.RootNode()->GetNode(aRegionIndex + 1)) {
    detail::TRegionEntities(fRegionTree, *next).FetchAhead();  // hosts take region after region
  }
  TEntityArray chain = GetRegionEntities(fRegionTree, *region);
  const bool closed = aRegion->RegionPolyType() == ptClosed;
  TEntityStorage& entities = aRegion->Entities();
  entities.StartCoordinate(region->Coordinates());
  if (closed) {
    aRegion->Centroid(region->RegionCentroid());
    aRegion->RegionArea_Base(std::abs(region->GaussArea()));
  }
  entities.EntityArray() = std::move(chain);
  if (closed && region->GaussArea() < 0) entities.ReverseEntities();
}

}  // namespace GeometryEngine

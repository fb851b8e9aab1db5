#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"

#include <cmath>
#include <utility>

#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

TTreeNode_Geometry::TTreeNode_Geometry(TTree_Base* aTree) : TTreeNode_CoreProperties(aTree), fRegionCoordinates(1) {}

TTreeNode_Geometry::~TTreeNode_Geometry() = default;

void TTreeNode_Geometry::CopyRegionParameters(const TTreeNode_Geometry& aRegion, bool aApplyUniqueName) {
  TTreeNode_CoreProperties::CopyRegionParameters(aRegion, aApplyUniqueName);
  const double angle = aRegion.fDuplicationAngle;  // read first: the region may be this one
  UpdateRegionDuplicationValues(aRegion.fNumDuplications);
  UpdateDuplicationValues_Angle(angle);
  fOnBoundary = aRegion.fOnBoundary;
  fSingularRegion = aRegion.fSingularRegion;
  fIncludeRegionIdentifier = aRegion.fIncludeRegionIdentifier;
  fFitToParent = aRegion.fFitToParent;
  fRegionPolyType = aRegion.fRegionPolyType;
  fCustomRegionApplied = aRegion.fCustomRegionApplied;
  if (aRegion.fPlane != nullptr) {
    GetPlane().CopyParameters(*aRegion.fPlane);
  } else if (fPlane != nullptr) {
    fPlane->CopyParameters(TPlane());
  }
}

void TTreeNode_Geometry::CopyRegionParameters_Geometry(const TTreeNode_Geometry& aRegion) {
  fEntities.AddEntities(aRegion.fEntities.EntityArray());
  fEntities.StartCoordinate(aRegion.fEntities.StartCoordinate());
  fEntities_Internal.AddEntities(aRegion.fEntities_Internal.EntityArray());
  fEntities_Internal.StartCoordinate(aRegion.fEntities_Internal.StartCoordinate());
  fRegionArea_Base = aRegion.fRegionArea_Base;
  fCentroid = aRegion.fCentroid;
  fRegionCoordinates = aRegion.fRegionCoordinates;
}

TTreeNode_Geometry* TTreeNode_Geometry::GetNode(TIndex aIndex) const {
  return TypeCast(TTreeNode_Base::GetNode(aIndex));
}

TTreeNodeArray_Geometry TTreeNode_Geometry::Children() const {
  TTreeNodeArray_Geometry children;
  for (TTreeNode_Base* child : TTreeNode_Base::GetChildren()) {
    if (TTreeNode_Geometry* region = TypeCast(child)) children.push_back(region);
  }
  return children;
}

TEntityStorage& TTreeNode_Geometry::Entities() {
  return fEntities;
}

const TEntityStorage& TTreeNode_Geometry::Entities() const {
  return fEntities;
}

TEntityStorage& TTreeNode_Geometry::Entities_Internal() {
  return fEntities_Internal;
}

const TEntityStorage& TTreeNode_Geometry::Entities_Internal() const {
  return fEntities_Internal;
}

TIndex TTreeNode_Geometry::GetNumEntities() const {
  return fEntities.GetCount();
}

TIndex TTreeNode_Geometry::NumberEntities() const {
  return GetNumEntities();
}

TIndex TTreeNode_Geometry::GetNumEntities_Internal() const {
  return fEntities_Internal.GetCount();
}

TIndex TTreeNode_Geometry::NumberEntities_Internal() const {
  return GetNumEntities_Internal();
}

TCoordinateArray& TTreeNode_Geometry::DetectionStartCoords() {
  return fDetectionStartCoords;
}

const TCoordinateArray& TTreeNode_Geometry::DetectionStartCoords() const {
  return fDetectionStartCoords;
}

std::int32_t TTreeNode_Geometry::NumberDuplications() const {
  return fNumDuplications;
}

void TTreeNode_Geometry::NumberDuplications(std::int32_t aNumDuplications) {
  UpdateRegionDuplicationValues(aNumDuplications);
}

double TTreeNode_Geometry::DuplicationAngle() const {
  return fDuplicationAngle;
}

void TTreeNode_Geometry::DuplicationAngle(double aAngle) {
  UpdateDuplicationValues_Angle(aAngle);
}

void TTreeNode_Geometry::UpdateRegionDuplicationValues(std::int32_t aNumDuplications) {
  fNumDuplications = aNumDuplications;
  fDuplicationAngle = aNumDuplications >= 1 ? kFullTurn / aNumDuplications : 0;
}

void TTreeNode_Geometry::UpdateDuplicationValues_Angle(double aAngle) {
  fNumDuplications = aAngle > 0 ? ToInteger_Saturated(std::floor(kFullTurn / aAngle)) : 0;
  fDuplicationAngle = aAngle;
}

bool TTreeNode_Geometry::HasFractionalChildDuplications() const {
  for (const TTreeNode_Geometry* child : Children()) {
    const double quotient = static_cast<double>(child->fNumDuplications) / fNumDuplications;
    if (quotient != std::trunc(quotient)) return true;  // an infinity is its own whole part, a not-a-number is not
  }
  return false;
}

TPlane& TTreeNode_Geometry::GetPlane() {
  if (fPlane == nullptr) fPlane = std::make_unique<TPlane>();
  return *fPlane;
}

TPlane& TTreeNode_Geometry::Plane() {
  return GetPlane();
}

void TTreeNode_Geometry::SetPlane(std::unique_ptr<TPlane>& aPlane) {
  if (aPlane != nullptr && aPlane != fPlane) fPlane = std::move(aPlane);
}

void TTreeNode_Geometry::Plane(std::unique_ptr<TPlane>& aPlane) {
  SetPlane(aPlane);
}

bool TTreeNode_Geometry::OnBoundary() const {
  return fOnBoundary;
}

void TTreeNode_Geometry::OnBoundary(bool aOnBoundary) {
  fOnBoundary = aOnBoundary;
}

bool TTreeNode_Geometry::Singular() const {
  return fSingularRegion;
}

void TTreeNode_Geometry::Singular(bool aSingular) {
  fSingularRegion = aSingular;
}

bool TTreeNode_Geometry::FitToParent() const {
  return fFitToParent;
}

void TTreeNode_Geometry::FitToParent(bool aFitToParent) {
  fFitToParent = aFitToParent;
}

bool TTreeNode_Geometry::IncludeRegionIdentifier() const {
  return fIncludeRegionIdentifier;
}

void TTreeNode_Geometry::IncludeRegionIdentifier(bool aInclude) {
  fIncludeRegionIdentifier = aInclude;
}

TPolyType TTreeNode_Geometry::RegionPolyType() const {
  return fRegionPolyType;
}

void TTreeNode_Geometry::RegionPolyType(TPolyType aPolyType) {
  fRegionPolyType = aPolyType;
}

bool TTreeNode_Geometry::CustomRegionApplied() const {
  return fCustomRegionApplied;
}

void TTreeNode_Geometry::CustomRegionApplied(bool aApplied) {
  fCustomRegionApplied = aApplied;
}

bool TTreeNode_Geometry::AdaptiveEntities() const {
  return fAdaptiveEntities;
}

void TTreeNode_Geometry::AdaptiveEntities(bool aAdaptive) {
  fAdaptiveEntities = aAdaptive;
}

TTreeNode_Geometry* TTreeNode_Geometry::TypeCast(TTreeNode_Base* aNode) {
  return dynamic_cast<TTreeNode_Geometry*>(aNode);
}

const TTreeNode_Geometry* TTreeNode_Geometry::TypeCast(const TTreeNode_Base* aNode) {
  return dynamic_cast<const TTreeNode_Geometry*>(aNode);
}

}  // namespace GeometryEngine

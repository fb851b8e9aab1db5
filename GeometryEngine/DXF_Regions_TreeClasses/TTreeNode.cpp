#include "GeometryEngine/DXF_Regions_TreeClasses/TTreeNode.h"

#include <utility>

namespace GeometryEngine {

namespace {

constexpr std::int32_t kRegionIndex_Unidentified = -1;

}  // namespace

const TTreeNode::TRegionFields& TTreeNode::NoRegionFields() {
  static const TRegionFields none;
  return none;
}

const TTreeNode::TRegionFields& TTreeNode::RegionFields() const {
  return fRegionFields == nullptr ? NoRegionFields() : *fRegionFields;
}

TEntityTree* TTreeNode::tree() const {
  return ftree;
}

TTreeNode* TTreeNode::Parent() const {
  return fParent;
}

TIndex TTreeNode::AbsoluteIndex() const {
  return findex;
}

TIndex TTreeNode::RelativeIndex() const {
  return frelindex;
}

std::int32_t TTreeNode::Level() const {
  return fLevel;
}

TIndex TTreeNode::GetCount() const {
  if (fIsPending) SettleChildren();
  return fNumChildNodes;
}

TIndex TTreeNode::Count() const {
  return GetCount();
}

std::span<TTreeNode* const> TTreeNode::Children() const {
  if (fIsPending || fHasGaps) SettleChildren();
  return {fChildren, static_cast<std::size_t>(fNumChildNodes)};
}

TTreeNode* TTreeNode::GetNode(TIndex aIndex) const {
  if (fIsPending || fHasGaps) SettleChildren();
  return aIndex >= 0 && aIndex < fNumChildNodes ? fChildren[aIndex] : nullptr;
}

TIndex TTreeNode::EntityIndex() const {
  return fEntityIndex;
}

void TTreeNode::EntityIndex(TIndex aEntityIndex) {
  fEntityIndex = aEntityIndex;
}

const TEntityCoordinate& TTreeNode::Coordinates() const {
  return fCoordinates;
}

void TTreeNode::Coordinates(const TEntityCoordinate& aCoordinates) {
  fCoordinates = aCoordinates;
}

double TTreeNode::coordinate_X() const {
  return fCoordinates.x;
}

void TTreeNode::coordinate_X(double aX) {
  fCoordinates.x = aX;
}

double TTreeNode::coordinate_Y() const {
  return fCoordinates.y;
}

void TTreeNode::coordinate_Y(double aY) {
  fCoordinates.y = aY;
}

std::int32_t TTreeNode::RegionIndex() const {
  return fRegionIndex;
}

void TTreeNode::RegionIndex(std::int32_t aRegionIndex) {
  fRegionIndex = aRegionIndex;
}

bool TTreeNode::Travelled() const {
  return fTravelled;
}

void TTreeNode::Travelled(bool aTravelled) {
  fTravelled = aTravelled;
}

double TTreeNode::GaussArea() const {
  return RegionFields().fGaussArea;
}

void TTreeNode::GaussArea(double aGaussArea) {
  RegionFields().fGaussArea = aGaussArea;
}

const TEntityCoordinate& TTreeNode::RegionCentroid() const {
  return RegionFields().fCentroid;
}

void TTreeNode::RegionCentroid(const TEntityCoordinate& aCentroid) {
  RegionFields().fCentroid = aCentroid;
}

TTravelDirection TTreeNode::TravelDirection() const {
  return RegionFields().fTravelDirection;
}

void TTreeNode::TravelDirection(TTravelDirection aTravelDirection) {
  RegionFields().fTravelDirection = aTravelDirection;
}

const TIntegerArray& TTreeNode::SubRegions() const {
  return RegionFields().fSubRegionsArray;
}

void TTreeNode::SubRegions(TIntegerArray aSubRegions) {
  NoteNestingChange();
  if (fRegionFields != nullptr || !aSubRegions.empty()) RegionFields().fSubRegionsArray = std::move(aSubRegions);
}

TIndex TTreeNode::NumberSubRegions() const {
  return NumSubRegions();
}

TIndex TTreeNode::NumSubRegions() const {
  return ToIndex(RegionFields().fSubRegionsArray.size());
}

std::int32_t TTreeNode::GetSubRegion(TIndex aIndex) const {
  return IsIndexWithin(aIndex, RegionFields().fSubRegionsArray.size())
             ? RegionFields().fSubRegionsArray[static_cast<std::size_t>(aIndex)]
             : kNotFound;
}

void TTreeNode::AddSubRegion(std::int32_t aRegionIndex) {
  NoteNestingChange();
  RegionFields().fSubRegionsArray.push_back(aRegionIndex);
}

void TTreeNode::RemoveSubRegion(std::int32_t aRegionIndex) {
  NoteNestingChange();
  if (fRegionFields != nullptr) RemoveElementFromArray_Integer(fRegionFields->fSubRegionsArray, aRegionIndex);
}

bool TTreeNode::CheckSubRegionIdentified(std::int32_t aRegionIndex) const {
  return GetIsElementInArray_Integer(RegionFields().fSubRegionsArray, aRegionIndex);
}

void TTreeNode::ResetRegionIdentifier() {
  fRegionIndex = kRegionIndex_Unidentified;
  NoteNestingChange();
  if (fRegionFields != nullptr) fRegionFields->fSubRegionsArray.clear();
}

}  // namespace GeometryEngine

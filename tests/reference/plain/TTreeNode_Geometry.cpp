#include "tests/reference/plain/TTreeNode_Geometry.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

using enum Maindataenum::TInputFields;

namespace {

std::string Folded(std::string_view aName) {
  std::string folded(aName);
  for (char& letter : folded) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return folded;
}

/// The pieces as closed loops, each begun with the first piece that is left and continued with the first that touches;
/// none at all when some piece is left over.
std::vector<TEntityArray> OrderIntoClosedLoops(TEntityArray aPieces) {
  std::vector<TEntityArray> loops;
  while (!aPieces.empty()) {
    TEntityArray loop{aPieces.front()};
    aPieces.erase(aPieces.begin());
    TEntityCoordinate vertex = loop.front().EndCoords;
    while (!Same(vertex, loop.front().StartCoords)) {
      const auto next =
          std::ranges::find_if(aPieces, [&](const TDXFEntity& aPiece) { return Plain::IsEntityEnd(aPiece, vertex); });
      if (next == aPieces.end()) return {};
      loop.push_back(*next);
      aPieces.erase(next);
      vertex = Plain::GetEntityEndCoordinate(vertex, loop.back());
    }
    loops.push_back(loop);
  }
  return loops;
}

void SetLoop(TEntityStorage& aChain, const TEntityArray& aLoop) {
  aChain.fEntities = aLoop;
  if (aChain.GetClosedArea() < 0) aChain.ReverseEntities();
  aChain.StartCoordinate(aChain.GetStartCoordinate());
}

bool IsInside(const TEntityArray& aInner, const TEntityArray& aOuter) {
  TEntityStorage outer;
  SetLoop(outer, aOuter);
  return outer.PointInsideEntities(aInner.front().StartCoords, false);
}

}  // namespace

// Measures -----------------------------------------------------------------------------------------------------------

bool TTreeNode_Geometry::IsRegionValid_Closed() const {
  return fEntities.Count() > 0 && !ValuesClose_Standard(fRegionArea_Base, 0);
}

double TTreeNode_Geometry::RegionArea() const {
  double area = fRegionArea_Base;
  if (!IsRegionValid_Closed()) return area;
  for (const TTreeNode_Geometry* child : fChildren) {
    area -= child->fRegionArea_Base * (static_cast<double>(child->fNumDuplications) / fNumDuplications);
  }
  return area;
}

bool TTreeNode_Geometry::PointInsideRegion(const TEntityCoordinate& aPoint, bool aIncludePointOnEntity) const {
  const auto isInsideChild = [&](const TTreeNode_Geometry* child) {
    return child->fEntities.PointInsideEntities(aPoint, true) &&
           !child->fEntities_Internal.PointInsideEntities(aPoint, true);
  };
  return IsRegionValid_Closed() && fEntities.PointInsideEntities(aPoint, aIncludePointOnEntity) &&
         !fEntities_Internal.PointInsideEntities(aPoint, aIncludePointOnEntity) &&
         std::ranges::none_of(fChildren, isInsideChild);
}

void TTreeNode_Geometry::UpdateGeometry_Outputs() {
  fEntities.StartCoordinate(fEntities.GetStartCoordinate());
  fRegionArea_Base = fEntities.GetClosedArea() - fEntities_Internal.GetClosedArea();
  if (fRegionArea_Base < 0) {
    fEntities.ReverseEntities();
    fRegionArea_Base = -fRegionArea_Base;
  }
  fCentroid = fEntities.GetCentroid();
  if (!(fRegionArea_Base > Kelvaralinks::dataStore.GetValue(ifMinimumLabelArea))) return;
  if (PointInsideRegion(fCentroid, false)) {
    fRegionCoordinates.front() = fCentroid;
  } else {
    UpdateRegionCoordinate();
  }
}

void TTreeNode_Geometry::UpdateRegionCoordinate() {
  fRegionCoordinates.front() = Plain::FindPoleInaccessibility(*this, IsRegionValid_Closed(), 1.0, 0.001);
}

// Copies -------------------------------------------------------------------------------------------------------------

void TTreeNode_Geometry::NumberDuplications(std::int32_t aNumDuplications) {
  fNumDuplications = aNumDuplications;
  fDuplicationAngle = aNumDuplications >= 1 ? 360.0 / aNumDuplications : 0;
}

void TTreeNode_Geometry::PlaceAroundAxis(std::int32_t aCopies, std::int32_t aCopies_Full) {
  fEntities.DuplicateAroundAxis(aCopies, aCopies_Full, fDuplicationAngle, fSingular);
  fEntities_Internal.DuplicateAroundAxis(aCopies, aCopies_Full, fDuplicationAngle, fSingular);
}

void TTreeNode_Geometry::SpreadOutputs(const TCoordinateArray& aCentroids, const TCoordinateArray& aLabels) {
  const std::int32_t copies = ToIndex(aCentroids.size());
  TEntityCoordinate sum;
  for (const TEntityCoordinate& centroid : aCentroids) sum = sum + centroid;
  fRegionArea_Base *= copies;
  fCentroid = sum / copies;
  fRegionCoordinates = aLabels;
  fEntities.StartCoordinate(fEntities.GetStartCoordinate());
  fEntities_Internal.StartCoordinate(fEntities_Internal.GetStartCoordinate());
}

void TTreeNode_Geometry::SpreadAroundAxis(std::int32_t aCopies) {
  TCoordinateArray centroids;
  TCoordinateArray labels;
  for (std::int32_t k = 0; k < aCopies; ++k) {
    centroids.push_back(RotateByAngle(k * fDuplicationAngle, fCentroid.x, fCentroid.y));
    labels.push_back(RotateByAngle(k * fDuplicationAngle, fRegionCoordinates[0].x, fRegionCoordinates[0].y));
  }
  SpreadOutputs(centroids, labels);
}

bool TTreeNode_Geometry::UniteOutline() {
  std::vector<TEntityArray> loops = OrderIntoClosedLoops(fEntities.fEntities);
  const bool areTwo = loops.size() == 2 && fEntities_Internal.Count() == 0;
  if (areTwo && !IsInside(loops[1], loops[0])) std::swap(loops[0], loops[1]);
  const bool isRing = areTwo && IsInside(loops[1], loops[0]);
  if (loops.size() != 1 && !isRing) return false;
  if (isRing) SetLoop(fEntities_Internal, loops[1]);
  SetLoop(fEntities, loops[0]);
  return true;
}

void TTreeNode_Geometry::Duplicate() {
  const std::int32_t copies = fNumDuplications;
  if (copies < 1) return;
  PlaceAroundAxis(copies, copies);
  SpreadAroundAxis(copies);
  NumberDuplications(1);
}

void TTreeNode_Geometry::DuplicateAndUnite(std::int32_t aNumberDuplications, TGeometryPlane aDirection) {
  const std::int32_t all = fNumDuplications;
  const bool isRadial = aDirection == gpRadial;
  if (aNumberDuplications < 2 || (isRadial && aNumberDuplications > all)) return;
  fEntities.CalculateMinMaxValues();
  const double width = std::fabs(fEntities.Max_X() - fEntities.Min_X());
  if (isRadial) {
    PlaceAroundAxis(aNumberDuplications, all);
  } else {
    fEntities.DuplicateAlongAxis(aNumberDuplications, width);
    fEntities_Internal.DuplicateAlongAxis(aNumberDuplications, width);
  }
  if (UniteOutline()) {
    UpdateGeometry_Outputs();
  } else if (isRadial) {
    SpreadAroundAxis(aNumberDuplications);
  } else {
    TCoordinateArray centroids;
    TCoordinateArray labels;
    for (std::int32_t k = 0; k < aNumberDuplications; ++k) {
      centroids.push_back(fCentroid + TEntityCoordinate{k * width, 0});
      labels.push_back(fRegionCoordinates[0] + TEntityCoordinate{k * width, 0});
    }
    SpreadOutputs(centroids, labels);
  }
  NumberDuplications(std::max(all / aNumberDuplications, 1));
}

// Names --------------------------------------------------------------------------------------------------------------

void TTreeNode_Geometry::SetRegionName(std::string_view aName) {
  fRegionName = aName;
  fUniqueName.clear();
  SetRegionName_Unique();
}

void TTreeNode_Geometry::SetRegionName_Unique() {
  std::string name = GetRegionName_Unique();
  const bool isWanted = Kelvaralinks::dataStore.GetValue(ifUniqueRegionNames) == 1 && !fRegionName.empty();
  for (int counter = 1; isWanted && NameClashes(name); ++counter) name = fRegionName + "_" + std::to_string(counter);
  fUniqueName = isWanted ? name : "";
}

bool TTreeNode_Geometry::NameClashes(std::string_view aName) const {
  return std::ranges::any_of(fTree->fRegions, [&](const auto& region) {
    return region.get() != this && Folded(region->GetRegionName_Unique()) == Folded(aName);
  });
}

TTreeNode_Geometry* TTree_Geometry::AddRegion() {
  return fRegions.emplace_back(std::make_unique<TTreeNode_Geometry>(this)).get();
}

void TTree_Geometry::RemoveRegion(const TTreeNode_Geometry* aRegion) {
  for (const auto& region : fRegions) std::erase(region->fChildren, aRegion);
  std::erase_if(fRegions, [&](const auto& region) { return region.get() == aRegion; });
}

TEntityArray TTree_Geometry::GetEntities_NoDuplicates() const {
  TEntityArray entities;
  for (const auto& region : fRegions) {
    Plain::AddEntities_CheckDuplicate(entities, region->fEntities.fEntities);
    Plain::AddEntities_CheckDuplicate(entities, region->fEntities_Internal.fEntities);
  }
  return entities;
}

}  // namespace GeometryEngine::Plain

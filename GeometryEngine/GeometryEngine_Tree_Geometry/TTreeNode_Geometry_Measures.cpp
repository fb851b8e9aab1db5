// What is measured on a region: areas, extents, containment, and its label points.

#include <algorithm>
#include <cmath>

#include "GeometryEngine/DXF_EntityStorage/detail/ChainSums.h"
#include "GeometryEngine/FloatingPoint/TFloatEnvironment.h"
#include "GeometryEngine/GeometryEngine_Tree_Geometry/TTreeNode_Geometry.h"
#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine {

namespace {

constexpr double kPolePrecision = 1.0;          // drawing length units
constexpr double kPoleMinimumDistance = 0.001;  // drawing length units

}  // namespace

double TTreeNode_Geometry::GetRegionArea() const {
  double area = fRegionArea_Base;
  // KEPT: this region's validity decides, not the child's: the children of an invalid region are never taken off, and
  // a child that is itself invalid is taken off with the base area it carries.
  if (!IsRegionValid_Closed()) return area;
  for (const TTreeNode_Geometry* child : Children()) {
    area -= child->fRegionArea_Base * (static_cast<double>(child->fNumDuplications) / fNumDuplications);
  }
  return area;
}

double TTreeNode_Geometry::RegionArea() const {
  return GetRegionArea();
}

double TTreeNode_Geometry::RegionArea_Base() const {
  return fRegionArea_Base;
}

void TTreeNode_Geometry::RegionArea_Base(double aArea) {
  fRegionArea_Base = aArea;
}

const TEntityCoordinate& TTreeNode_Geometry::Centroid() const {
  return fCentroid;
}

void TTreeNode_Geometry::Centroid(const TEntityCoordinate& aCentroid) {
  fCentroid = aCentroid;
}

double TTreeNode_Geometry::GetWidth() {
  fEntities.CalculateMinMaxValues();
  return std::fabs(fEntities.Max_X() - fEntities.Min_X());
}

double TTreeNode_Geometry::Width() {
  return GetWidth();
}

double TTreeNode_Geometry::GetHeight() {
  fEntities.CalculateMinMaxValues();
  return fEntities.Max_Y() - fEntities.Min_Y();
}

double TTreeNode_Geometry::Heigth() {
  return GetHeight();
}

bool TTreeNode_Geometry::IsRegionValid_Closed() const {
  if (fRegionPolyType != ptClosed) return false;
  if (RegionType() == rtCompositeEmpty) return true;
  return fEntities.GetCount() > 0 && !ValuesClose_Standard(fRegionArea_Base, 0);
}

bool TTreeNode_Geometry::HasInside() const {
  return IsRegionValid_Closed() && fRegionPolyType != ptPolyLine;
}

bool TTreeNode_Geometry::PointInsideRegion(const TEntityCoordinate& aPoint, const TGeometryRegionTypesSet& aRegionTypes,
                                           bool aIncludePointOnEntity) const {
  return HasInside() && fEntities.PointInsideEntities(aPoint, aIncludePointOnEntity) &&
         !fEntities_Internal.PointInsideEntities(aPoint, aIncludePointOnEntity) &&
         !PointInsideChild(aPoint, aRegionTypes);
}

bool TTreeNode_Geometry::PointInsideChild(const TEntityCoordinate& aPoint,
                                          const TGeometryRegionTypesSet& aRegionTypes) const {
  const TTreeNodeArray_Base& children = TTreeNode_Base::GetChildren();
  return std::any_of(children.begin(), children.end(), [&](const TTreeNode_Base* aNode) {
    const TTreeNode_Geometry* child = TypeCast(aNode);
    return child != nullptr && child->IsOfType_WithinSet(aRegionTypes) &&
           child->fEntities.PointInsideEntities(aPoint, true) &&
           !child->fEntities_Internal.PointInsideEntities(aPoint, true);
  });
}

bool TTreeNode_Geometry::RegionInsideRegion(const TTreeNode_Geometry& aRegion, bool aIncludePointOnEntity) const {
  const TCoordinateArray vertices = aRegion.fEntities.GetVertices_Surf(true);
  return std::all_of(vertices.begin(), vertices.end(), [&](const TEntityCoordinate& vertex) {
    return PointInsideRegion(vertex, {}, aIncludePointOnEntity);
  });
}

void TTreeNode_Geometry::UpdateRegionArea_Base() {
  fRegionArea_Base = fEntities.GetClosedArea() - fEntities_Internal.GetClosedArea();
}

/// The outline's start vertex, the base area and the centroid; the outline is walked once unless it has to be reversed.
void TTreeNode_Geometry::MeasureChains() {
  fEntities.StartCoordinate(fEntities.GetStartCoordinate());
  detail::TChainSums sums = detail::GetChainSums(fEntities.EntityArray(), fEntities.StartCoordinate());
  fRegionArea_Base = sums.fArea - fEntities_Internal.GetClosedArea();
  if (fRegionArea_Base < 0) {
    fEntities.ReverseEntities();
    fRegionArea_Base = -fRegionArea_Base;
    sums = detail::GetChainSums(fEntities.EntityArray(), fEntities.GetStartCoordinate());
  }
  fCentroid = sums.Centroid();
}

void TTreeNode_Geometry::UpdateGeometry_Outputs() {
  const TFloatEnvironment environment;
  MeasureChains();
  if (!(fRegionArea_Base > Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifMinimumLabelArea))) return;
  if (PointInsideRegion(fCentroid, TGeometryRegionTypesSet::All(), false)) {
    SetRegionCoordinate_Single(fCentroid);
  } else {
    UpdateRegionCoordinate();
  }
}

TCoordinateArray& TTreeNode_Geometry::RegionCoordinates() {
  return fRegionCoordinates;
}

const TCoordinateArray& TTreeNode_Geometry::RegionCoordinates() const {
  return fRegionCoordinates;
}

TEntityCoordinate TTreeNode_Geometry::GetRegionCoordinate_Single() const {
  return fRegionCoordinates.empty() ? TEntityCoordinate{} : fRegionCoordinates.front();
}

void TTreeNode_Geometry::SetRegionCoordinate_Single(const TEntityCoordinate& aCoordinate) {
  if (fRegionCoordinates.empty()) fRegionCoordinates.resize(1);
  fRegionCoordinates.front() = aCoordinate;
}

TEntityCoordinate TTreeNode_Geometry::RegionCoordinate() const {
  return GetRegionCoordinate_Single();
}

void TTreeNode_Geometry::RegionCoordinate(const TEntityCoordinate& aCoordinate) {
  SetRegionCoordinate_Single(aCoordinate);
}

void TTreeNode_Geometry::UpdateRegionCoordinate() {
  const TFloatEnvironment environment;
  SetRegionCoordinate_Single(FindPoleInaccessibility(PoleRegion(), kPolePrecision, kPoleMinimumDistance));
}

TPoleRegion TTreeNode_Geometry::PoleRegion() {
  TPoleRegion region{.fOutline = &fEntities,
                     .fInternal = &fEntities_Internal,
                     .fChildOutlines = {},
                     .fCentroid = fCentroid,
                     .fSearchable = HasInside()};
  for (const TTreeNode_Geometry* child : Children()) region.fChildOutlines.push_back(&child->fEntities);
  return region;
}

}  // namespace GeometryEngine

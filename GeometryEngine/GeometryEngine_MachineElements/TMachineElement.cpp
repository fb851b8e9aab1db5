#include "GeometryEngine/GeometryEngine_MachineElements/TMachineElement.h"

#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"

namespace GeometryEngine {

namespace {

// KEPT: a line bounds at the height of its start alone, whatever its other end; hosts draw such boundaries level.
bool IsBeyondInner(const TEntityCoordinate& aPoint, const TDXFEntity& aBoundary) {
  if (aBoundary.EntityType == DXFArc) return !IsPointInside_Arc(aPoint, aBoundary);
  if (aBoundary.EntityType == DXFLine) return aPoint.y >= aBoundary.StartCoords.y;
  return true;
}

bool IsWithinOuter(const TEntityCoordinate& aPoint, const TDXFEntity& aBoundary) {
  if (aBoundary.EntityType == DXFArc) return IsPointInside_Arc(aPoint, aBoundary);
  if (aBoundary.EntityType == DXFLine) return aPoint.y <= aBoundary.StartCoords.y;
  return true;
}

}  // namespace

TMachineElement::TMachineElement() = default;
TMachineElement::~TMachineElement() = default;

Maindataenum::TInputFields TMachineElement::WeightField() const {
  return fWeightField;
}
void TMachineElement::WeightField(Maindataenum::TInputFields aWeightField) {
  fWeightField = aWeightField;
}

const TMaterialsWeightsComponent& TMachineElement::MaterialsWeightsComponent() const {
  return fMaterialsWeightsComponent;
}
void TMachineElement::MaterialsWeightsComponent(const TMaterialsWeightsComponent& aMaterialsWeightsComponent) {
  fMaterialsWeightsComponent = aMaterialsWeightsComponent;
}

double TMachineElement::ElementArea() const {
  return fElementArea;
}
void TMachineElement::ElementArea(double aElementArea) {
  fElementArea = aElementArea;
}

double TMachineElement::ElementVolume() const {
  return fElementVolume;
}
void TMachineElement::ElementVolume(double aElementVolume) {
  fElementVolume = aElementVolume;
}

double TMachineElement::ElementWeight() const {
  return fElementWeight;
}
void TMachineElement::ElementWeight(double aElementWeight) {
  fElementWeight = aElementWeight;
}

const TVirtualBoundary& TMachineElement::innerBoundary() const {
  return finnerBoundary;
}
void TMachineElement::innerBoundary(const TVirtualBoundary& aBoundary) {
  finnerBoundary = aBoundary;
}

const TVirtualBoundary& TMachineElement::outerBoundary() const {
  return fouterBoundary;
}
void TMachineElement::outerBoundary(const TVirtualBoundary& aBoundary) {
  fouterBoundary = aBoundary;
}

void TMachineElement::Assign(const TMachineElement& aSource) {
  fWeightField = aSource.fWeightField;
  fMaterialsWeightsComponent = aSource.fMaterialsWeightsComponent;
  fElementArea = aSource.fElementArea;
  fElementVolume = aSource.fElementVolume;
  fElementWeight = aSource.fElementWeight;
  finnerBoundary = aSource.finnerBoundary;
  fouterBoundary = aSource.fouterBoundary;
}

void TMachineElement::Add(Maindataenum::TInputFields aWeightField, const TDXFEntity& aBoundary,
                          TBoundaryLocation aLocation, const TMaterialsWeightsComponent& aMaterialsWeightsComponent) {
  fWeightField = aWeightField;
  fMaterialsWeightsComponent = aMaterialsWeightsComponent;
  TVirtualBoundary& boundary = aLocation == blOuterBoundary ? fouterBoundary : finnerBoundary;
  boundary = {true, aBoundary};
}

bool TMachineElement::WithinBoundaries(const TEntityCoordinate& aCoordinate) const {
  return (!finnerBoundary.Enabled || IsBeyondInner(aCoordinate, finnerBoundary.BoundaryEntity)) &&
         (!fouterBoundary.Enabled || IsWithinOuter(aCoordinate, fouterBoundary.BoundaryEntity));
}

}  // namespace GeometryEngine

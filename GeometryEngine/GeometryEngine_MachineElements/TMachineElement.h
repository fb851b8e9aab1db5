#pragma once

// One element of the machine in the host's account of weights and materials: what it weighs and between which
// boundaries it lies. For all elements of a machine see TMachineElementList.h.

#include "GeometryEngine/Export.h"
#include "GeometryEngine/GeometryEngine_MachineElements/TVirtualBoundary.h"
#include "GeometryEngine/host/TInputFields.h"
#include "GeometryEngine/host/TMaterialsWeightsComponent.h"

namespace GeometryEngine {

/// An element with up to two virtual boundaries. A line boundary is a level at the height of its start point: the inner
/// one bounds from below, the outer one from above. An arc boundary is read as its circle: the inner one keeps out what
/// lies inside it, the outer one what lies outside.
///
/// The area, volume and weight are the host's to fill in. Not copyable: `Assign` is the copy.
class GEOMETRYENGINE_API TMachineElement {
 public:
  /// Both boundaries disabled, everything else 0.
  TMachineElement();
  ~TMachineElement();
  TMachineElement(const TMachineElement&) = delete;
  TMachineElement& operator=(const TMachineElement&) = delete;

  /// The host's field that receives the element's weight.
  Maindataenum::TInputFields WeightField() const;
  void WeightField(Maindataenum::TInputFields aWeightField);
  const TMaterialsWeightsComponent& MaterialsWeightsComponent() const;
  void MaterialsWeightsComponent(const TMaterialsWeightsComponent& aMaterialsWeightsComponent);
  double ElementArea() const;
  void ElementArea(double aElementArea);
  double ElementVolume() const;
  void ElementVolume(double aElementVolume);
  double ElementWeight() const;
  void ElementWeight(double aElementWeight);
  const TVirtualBoundary& innerBoundary() const;
  void innerBoundary(const TVirtualBoundary& aBoundary);
  const TVirtualBoundary& outerBoundary() const;
  void outerBoundary(const TVirtualBoundary& aBoundary);

  /// Takes over every field of the other element.
  void Assign(const TMachineElement& aSource);
  /// Sets the weight field and the material data, and puts one boundary in use; the other one stays as it was.
  void Add(Maindataenum::TInputFields aWeightField, const TDXFEntity& aBoundary, TBoundaryLocation aLocation,
           const TMaterialsWeightsComponent& aMaterialsWeightsComponent);
  /// Whether a point belongs to the element as far as its enabled boundaries tell. DEGENERATE: true without boundaries;
  /// a boundary that is neither line nor arc bounds nothing.
  bool WithinBoundaries(const TEntityCoordinate& aCoordinate) const;

 private:
  Maindataenum::TInputFields fWeightField{};
  TMaterialsWeightsComponent fMaterialsWeightsComponent;
  double fElementArea = 0;
  double fElementVolume = 0;
  double fElementWeight = 0;
  TVirtualBoundary finnerBoundary;
  TVirtualBoundary fouterBoundary;
};

}  // namespace GeometryEngine

#pragma once

// Turning about the origin, and back.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/Regions.h"

namespace xsec {

class Turn {
 public:
  /// Anticlockwise. A turn by 0 changes no bit.
  explicit Turn(double aDegrees);

  Turn Back() const { return Turn(-fDegrees); }

  Point operator()(const Point& aPoint) const;
  GeometryEngine::TDXFEntity operator()(GeometryEngine::TDXFEntity aEntity) const;
  TravelledPiece operator()(TravelledPiece aPiece) const;
  /// The outline and the holes.
  void ApplyToLoops(Region& aRegion) const;
  /// The centroid and the label point.
  void ApplyToPoints(Region& aRegion) const;

 private:
  double fDegrees;
  double fCosine;
  double fSine;
};

}  // namespace xsec

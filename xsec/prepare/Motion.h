#pragma once

// From how a drawing was drawn to how the library has it, and back.

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "xsec/Regions.h"

namespace xsec {

/// Brings one point to the origin, then turns all about it.
class Motion {
 public:
  Motion() = default;
  /// Anticlockwise; quarter turns change coordinates for each other and nothing else. UNITS: degrees
  explicit Motion(const Point& aOrigin, double aDegrees = 0);

  /// The one that undoes it.
  Motion Back() const;

  Point operator()(const Point& aPoint) const;
  GeometryEngine::TDXFEntity operator()(GeometryEngine::TDXFEntity aEntity) const;
  TravelledPiece operator()(TravelledPiece aPiece) const;
  /// The outline and the holes.
  void ApplyToLoops(Region& aRegion) const;
  /// The centroid and the label point.
  void ApplyToPoints(Region& aRegion) const;
  /// Open pieces, lost sides, cures, and where labels were.
  void ApplyToDiagnostics(Diagnostics& aDiagnostics) const;

 private:
  Motion(const Point& aBefore, double aDegrees, const Point& aAfter);
  void MoveArc(Point& aCentre, double& aStartAngle, double& aEndAngle) const;

  Point fBefore;  ///< taken off before the turn
  Point fAfter;   ///< added after it
  double fDegrees = 0;
  double fCosine = 1;
  double fSine = 0;
};

}  // namespace xsec

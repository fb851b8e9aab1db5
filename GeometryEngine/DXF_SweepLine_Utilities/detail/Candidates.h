#pragma once

#include <cmath>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/TInterceptionPoints.h"

namespace GeometryEngine::detail {

/// One of the tests whether a point lies on an entity.
using TPointTest = bool (*)(const TDXFEntity&, const TEntityCoordinate&);

/// Appends the point when it was accepted, and says whether it was.
bool AddIfAccepted(bool aIsAccepted, const TEntityCoordinate& aPoint, TInterceptionPoints& aPoints);

/// Appends the ends of `aEntity_A` that are ends of `aEntity_B` too, the start first.
bool AddSharedEnds(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TInterceptionPoints& aPoints);

/// For two entities of one line or circle: appends the ends of either that lie on the other, those of B first.
bool AddOverlapEnds(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TPointTest aIsOn,
                    TInterceptionPoints& aPoints);

/// Roots of a x^2 + b x + q = 0, the one with the added square root first; not-a-number where there is none. A
/// discriminant of 0 within the tolerance gives the same root twice.
struct TQuadratic {
  TQuadratic(double aSquare, double aLinear, double aConstant)
      : a(aSquare), b(aLinear), D(aLinear * aLinear - 4 * aSquare * aConstant) {}
  bool HasDoubleRoot(double aTolerance) const { return std::abs(D) <= aTolerance; }
  double DoubleRoot() const { return -b / (2 * a); }
  double FirstRoot() const { return (-b + std::sqrt(D)) / (2 * a); }
  double SecondRoot() const { return (-b - std::sqrt(D)) / (2 * a); }

  double a;
  double b;
  double D;
};

}  // namespace GeometryEngine::detail

#include "GeometryEngine/DXF_SweepLine_Utilities/detail/Candidates.h"

#include <cmath>

#include "GeometryEngine/DXF_EntityStorage/detail/IsEntityEnd.h"

namespace GeometryEngine::detail {

namespace {

bool AddEndsOn(const TDXFEntity& aEnds, const TDXFEntity& aOther, TPointTest aIsOn, TInterceptionPoints& aPoints) {
  const bool isStartOn = AddIfAccepted(aIsOn(aOther, aEnds.StartCoords), aEnds.StartCoords, aPoints);
  const bool isEndOn = AddIfAccepted(aIsOn(aOther, aEnds.EndCoords), aEnds.EndCoords, aPoints);
  return isStartOn || isEndOn;
}

}  // namespace

bool AddIfAccepted(bool aIsAccepted, const TEntityCoordinate& aPoint, TInterceptionPoints& aPoints) {
  if (aIsAccepted) aPoints.AddUnique(aPoint);
  return aIsAccepted;
}

bool AddSharedEnds(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TInterceptionPoints& aPoints) {
  return AddEndsOn(aEntity_A, aEntity_B, IsEntityEnd, aPoints);
}

bool AddOverlapEnds(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B, TPointTest aIsOn,
                    TInterceptionPoints& aPoints) {
  const bool areEndsOfB = AddEndsOn(aEntity_B, aEntity_A, aIsOn, aPoints);
  const bool areEndsOfA = AddEndsOn(aEntity_A, aEntity_B, aIsOn, aPoints);
  return areEndsOfB || areEndsOfA;
}

TQuadratic::TQuadratic(double aSquare, double aLinear, double aConstant)
    : a(aSquare), b(aLinear), D(aLinear * aLinear - 4 * aSquare * aConstant) {}

bool TQuadratic::HasDoubleRoot(double aTolerance) const {
  return std::abs(D) <= aTolerance;
}
double TQuadratic::DoubleRoot() const {
  return -b / (2 * a);
}
double TQuadratic::FirstRoot() const {
  return (-b + std::sqrt(D)) / (2 * a);
}
double TQuadratic::SecondRoot() const {
  return (-b - std::sqrt(D)) / (2 * a);
}

}  // namespace GeometryEngine::detail

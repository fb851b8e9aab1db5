// The Cartesian and polar bounds of a storage's chain, and its radii about the origin.

#include <algorithm>
#include <cmath>
#include <limits>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kBelowEveryRadius = -1e9;  // where a search for the largest radius starts, drawing length units
constexpr double kAboveEveryRadius = 1e9;   // where a search for the smallest radius starts, drawing length units

double GetSquaredRadius(const TEntityCoordinate& aCoordinate) {
  return aCoordinate.x * aCoordinate.x + aCoordinate.y * aCoordinate.y;
}

double GetRadius(const TEntityCoordinate& aCoordinate) {
  return std::sqrt(GetSquaredRadius(aCoordinate));
}

}  // namespace

void TEntityStorage::CalculateMinMaxValues() {
  fMin_X = fMin_Y = kInfinity;
  fMax_X = fMax_Y = -kInfinity;
  for (const TDXFEntity& entity : fEntityArray) {
    fMax_X = std::max(fMax_X, GetRightMostCoordinate(entity).x);
    fMax_Y = std::max(fMax_Y, GetUpperMostCoordinate(entity).y);
    fMin_X = std::min(fMin_X, GetLeftMostCoordinate(entity).x);
    fMin_Y = std::min(fMin_Y, GetLowerMostCoordinate(entity).y);
  }
}

void TEntityStorage::CalculateMinMaxValues_RT() {
  const TCoordinateArray polyline = GetVertices_Surf(true);
  fMin_R = fMin_T = kInfinity;
  fMax_R = fMax_T = -kInfinity;
  for (const TEntityCoordinate& vertex : polyline) {
    const auto [r, angle] = XY_To_RT(vertex.x, vertex.y);
    fMax_R = std::max(fMax_R, r);
    fMax_T = std::max(fMax_T, angle);
    fMin_R = std::min(fMin_R, r);
    fMin_T = std::min(fMin_T, angle);
  }
}

// KEPT: only the ends of entities count, not the bulge of an arc between them; callers that compare the vertices of two
// outlines rely on it, and those who want the outline itself have GetRadius_MaximumSurf.
double TEntityStorage::GetRadius_Maximum() const {
  if (fEntityArray.empty()) return 0;
  double radius = kBelowEveryRadius;
  for (const TDXFEntity& entity : fEntityArray) {
    radius = std::max(radius, GetRadius(entity.StartCoords));
    radius = std::max(radius, GetRadius(entity.EndCoords));
  }
  return radius;
}

double TEntityStorage::GetRadius_Minimum() const {
  if (fEntityArray.empty()) return 0;
  double radius = kAboveEveryRadius;
  for (const TDXFEntity& entity : fEntityArray) {
    radius = std::min(radius, GetRadius(entity.StartCoords));
    radius = std::min(radius, GetRadius(entity.EndCoords));
  }
  return radius;
}

double TEntityStorage::GetRadius_MaximumSurf() const {
  if (fEntityArray.empty()) return 0;
  double squared = kBelowEveryRadius;
  for (const TEntityCoordinate& vertex : GetVertices_Surf(false)) squared = std::max(squared, GetSquaredRadius(vertex));
  return std::sqrt(squared);
}

}  // namespace GeometryEngine

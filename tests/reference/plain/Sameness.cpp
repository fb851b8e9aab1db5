#include "tests/reference/plain/Sameness.h"

#include <cmath>

#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine::Plain {

using enum Maindataenum::TInputFields;

namespace {

bool SameDirection(double a, double b) {
  return ValuesSame_DXFTolerance(GetAngleInRange(a, 0, 360), GetAngleInRange(b, 0, 360));
}

bool SameLine(const TDXFEntity& A, const TDXFEntity& B) {
  return (Same(A.StartCoords, B.StartCoords) && Same(A.EndCoords, B.EndCoords)) ||
         (Same(A.StartCoords, B.EndCoords) && Same(A.EndCoords, B.StartCoords));
}

bool SameArc(const TDXFEntity& A, const TDXFEntity& B) {
  return Same(A.StartCoords, B.StartCoords) && Same(A.EndCoords, B.EndCoords) && Same(A.CentreCoords, B.CentreCoords) &&
         ValuesSame_DXFTolerance(A.radius, B.radius) && SameDirection(A.startAngle, B.startAngle) &&
         SameDirection(A.endAngle, B.endAngle);
}

}  // namespace

double GetLinearTolerance() {
  return Kelvaralinks::dataStore.GetValue(ifLinearTolerance);
}

bool ValuesSame_DXFTolerance(double a, double b) {
  return std::abs(a - b) < GetLinearTolerance();
}

bool ValueLessThan_DXFTolerance(double a, double b) {
  return !ValuesSame_DXFTolerance(a, b) && a < b;
}

bool ValueMoreThan_DXFTolerance(double a, double b) {
  return !ValuesSame_DXFTolerance(a, b) && a > b;
}

bool ValuesSame_DXFAngle(double a, double b) {
  return std::abs(a - b) < Kelvaralinks::dataStore.GetValue(ifAngleTolerance);
}

bool Same(const TEntityCoordinate& aPoint_A, const TEntityCoordinate& aPoint_B) {
  return ValuesSame_DXFTolerance(aPoint_A.x, aPoint_B.x) && ValuesSame_DXFTolerance(aPoint_A.y, aPoint_B.y);
}

bool Same(const TDXFEntity& aEntity_A, const TDXFEntity& aEntity_B) {
  if (aEntity_A.EntityType != aEntity_B.EntityType) return false;
  if (aEntity_A.EntityType == DXFLine) return SameLine(aEntity_A, aEntity_B);
  return aEntity_A.EntityType == DXFArc && SameArc(aEntity_A, aEntity_B);
}

}  // namespace GeometryEngine::Plain

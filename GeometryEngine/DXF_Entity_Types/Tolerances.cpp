#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"

#include <cmath>

#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine {

using enum Maindataenum::TInputFields;

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

bool ValuesLessThanOrEqual_DXFAngle(double a, double b) {
  return ValuesSame_DXFAngle(a, b) || a < b;
}

bool ValuesMoreThanOrEqual_DXFAngle(double a, double b) {
  return ValuesSame_DXFAngle(a, b) || a > b;
}

}  // namespace GeometryEngine

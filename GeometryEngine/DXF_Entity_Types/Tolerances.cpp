#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"

#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"

namespace GeometryEngine {

using enum Maindataenum::TInputFields;

double GetLinearTolerance() {
  return detail::ReadLinearTolerance();
}

bool ValuesSame_DXFTolerance(double a, double b) {
  return detail::AreSame(a, b, detail::ReadLinearTolerance());
}

bool ValueLessThan_DXFTolerance(double a, double b) {
  return !ValuesSame_DXFTolerance(a, b) && a < b;
}

bool ValueMoreThan_DXFTolerance(double a, double b) {
  return !ValuesSame_DXFTolerance(a, b) && a > b;
}

bool ValuesSame_DXFAngle(double a, double b) {
  return detail::AreSame(a, b, Kelvaralinks::dataStore.GetValue(ifAngleTolerance));
}

bool ValuesLessThanOrEqual_DXFAngle(double a, double b) {
  return ValuesSame_DXFAngle(a, b) || a < b;
}

bool ValuesMoreThanOrEqual_DXFAngle(double a, double b) {
  return ValuesSame_DXFAngle(a, b) || a > b;
}

}  // namespace GeometryEngine

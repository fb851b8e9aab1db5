#include "GeometryEngine/GeometryCreation_Drawing/CoordinateCleaning.h"

#include <cmath>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine {

namespace {

constexpr double kModeSnapToTolerance = 1;  // value of the snapping mode, a plain number

bool IsSnappedToZero(double aValue) {
  if (Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifSnappingMode) != kModeSnapToTolerance)
    return false;
  const double tolerance = GetLinearTolerance();
  // KEPT: a value exactly as far from zero as the tolerance is snapped, although two such values are not the same;
  // drawings rely on a coordinate of one tolerance landing on the axis.
  return tolerance == 0 ? ValuesClose_Standard(aValue, 0) : std::abs(aValue) <= tolerance;
}

}  // namespace

double CheckCoordinateValue(double aValue) {
  if (!std::isfinite(aValue)) return 0;
  try {
    return IsSnappedToZero(aValue) ? 0 : aValue;
  } catch (...) {  // a host whose settings can't be read gets its value back
    return aValue;
  }
}

TEntityCoordinate CheckCoordinate(const TEntityCoordinate& aCoordinate) {
  return {CheckCoordinateValue(aCoordinate.x), CheckCoordinateValue(aCoordinate.y)};
}

}  // namespace GeometryEngine

#include "GeometryEngine/DXF_SweepLine_Utilities/VerticalLine.h"

#include <cmath>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

bool GetIfVerticalLine(const TDXFEntity& aEntity) {
  return std::abs(aEntity.StartCoords.x - aEntity.EndCoords.x) <= GetLinearTolerance();
}

bool GetIfVerticalLine(double a, double b) {
  return ValuesClose_Standard(a, b);
}

}  // namespace GeometryEngine

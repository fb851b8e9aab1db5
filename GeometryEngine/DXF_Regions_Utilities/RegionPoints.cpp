#include "GeometryEngine/DXF_Regions_Utilities/RegionPoints.h"

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/VerticalLine.h"
#include "GeometryEngine/GeometryEngine_Entity_Operations/PointTests.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

constexpr double kProbeDistance = 100;  // how far beside the edge a probe lies in x, in linear tolerances

}  // namespace

TEntityCoordinate GetRegionPoint(const TEntityCoordinate& aCoordinate_A, const TEntityCoordinate& aCoordinate_B,
                                 const TEntityCoordinate& aCoordinate_C) {
  const TEntityCoordinate middle = (aCoordinate_A + aCoordinate_B) / 2;
  const bool vertical = GetIfVerticalLine(middle.x, aCoordinate_C.x);
  const auto [aSlope, aIntercept] =
      vertical ? TLinearEquation{}
               : GetLinearEquation_DXFTolerance(middle.x, middle.y, aCoordinate_C.x, aCoordinate_C.y);
  const TDXFEntity inwards = TDXFEntity::Line(middle, aCoordinate_C);
  const double distance = kProbeDistance * GetLinearTolerance();
  for (const double x : {middle.x - distance, middle.x + distance}) {
    const TEntityCoordinate probe{x, vertical ? middle.y : aSlope * x + aIntercept};
    if (PointOnLine(inwards, probe)) return probe;
  }
  return aCoordinate_A;
}

}  // namespace GeometryEngine

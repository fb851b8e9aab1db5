#include "GeometryEngine/GeometryEngine_Entity_Operations/EntityTransforms.h"

#include <utility>

#include "GeometryEngine/DXF_SweepLine_Utilities/VerticalLine.h"
#include "GeometryEngine/GeometryFuncts/CoordinateAngles.h"
#include "GeometryEngine/GeometryFuncts/Rotation.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

double GetAngleAboutCentre(const TEntityCoordinate& aPoint, const TDXFEntity& aArc) {
  return GetAngleInRange(GetCoordinateAngle_AboutPoint(aPoint, aArc.CentreCoords), 0, kFullTurn);
}

/// Takes an arc's angles from its end points, in 0 to 360.
void RebuildArcAngles(TDXFEntity& aArc) {
  aArc.startAngle = GetAngleAboutCentre(aArc.StartCoords, aArc);
  aArc.endAngle = GetAngleAboutCentre(aArc.EndCoords, aArc);
}

/// A copy with both ends, and an arc's centre, put through `aMap`; the angles stay.
template <typename TMap>
TDXFEntity MapPoints(const TDXFEntity& aEntity, TMap aMap) {
  TDXFEntity result = aEntity;
  result.StartCoords = aMap(aEntity.StartCoords);
  result.EndCoords = aMap(aEntity.EndCoords);
  if (aEntity.EntityType == DXFArc) result.CentreCoords = aMap(aEntity.CentreCoords);
  return result;
}

template <typename TMap>
TDXFEntity RotateEntity(const TDXFEntity& aEntity, TMap aMap) {
  if (aEntity.EntityType == DXFRegion) return aEntity;
  TDXFEntity result = MapPoints(aEntity, aMap);
  if (result.EntityType == DXFArc) RebuildArcAngles(result);
  return result;
}

TEntityCoordinate MirrorPoint_AboutSlope(const TEntityCoordinate& aPoint, double m, double c) {
  const double d = (aPoint.x + (aPoint.y - c) * m) / (m * m + 1);
  return {2 * d - aPoint.x, 2 * d * m - aPoint.y + 2 * c};
}

}  // namespace

TEntityCoordinate MirrorPoint_AboutLine(const TEntityCoordinate& aPoint, const TDXFEntity& aLine) {
  if (aLine.EntityType != DXFLine) return aPoint;
  const TEntityCoordinate& start = aLine.StartCoords;
  const TEntityCoordinate& end = aLine.EndCoords;
  if (GetIfVerticalLine(aLine)) return {2 * start.x - aPoint.x, aPoint.y};
  const auto [slope, intercept] = GetLinearEquation_DXFTolerance(start.x, start.y, end.x, end.y);
  return MirrorPoint_AboutSlope(aPoint, slope, intercept);
}

TDXFEntity MirrorEntity_AboutLine(const TDXFEntity& aEntity, const TDXFEntity& aLine) {
  if (aEntity.EntityType == DXFRegion || aLine.EntityType != DXFLine) return aEntity;
  TDXFEntity result =
      MapPoints(aEntity, [&](const TEntityCoordinate& aPoint) { return MirrorPoint_AboutLine(aPoint, aLine); });
  if (result.EntityType != DXFArc) return result;
  std::swap(result.StartCoords, result.EndCoords);  // a mirrored arc would otherwise run clockwise
  RebuildArcAngles(result);
  return result;
}

TDXFEntity TranslateEntity(const TDXFEntity& aEntity, double dx, double dy) {
  return MapPoints(aEntity, [=](const TEntityCoordinate& aPoint) { return aPoint + TEntityCoordinate{dx, dy}; });
}

TDXFEntity RotateEntity_AroundAxis(const TDXFEntity& aEntity, const TRotationMatrix& aMatrix) {
  return RotateEntity(aEntity, [&](const TEntityCoordinate& aPoint) { return RotateByAngle_Matrix(aMatrix, aPoint); });
}

TDXFEntity RotateEntity_AroundPoint(const TDXFEntity& aEntity, const TRotationMatrix& aMatrix,
                                    const TEntityCoordinate& aPoint) {
  return RotateEntity(aEntity, [&](const TEntityCoordinate& aCoordinate) {
    return RotateByAngle_AboutPoint_Matrix(aMatrix, aPoint, aCoordinate);
  });
}

}  // namespace GeometryEngine

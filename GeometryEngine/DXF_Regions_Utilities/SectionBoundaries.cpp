#include "GeometryEngine/DXF_Regions_Utilities/SectionBoundaries.h"

#include "GeometryEngine/GeometryFuncts/CoordinateAngles.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

TDXFEntity ArcAboutOrigin(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd, double r, double a1,
                          double a2) {
  return TDXFEntity::Arc(aStart, aEnd, {}, r, a1, a2);
}

bool IsFullMachine(double a1, double a2) {
  return GetAngleInRange(a1, 0, kFullTurn) == 0 && GetAngleInRange(a2, 0, kFullTurn) == 0;
}

TEntityArray GetFullCircle(double r) {
  const TEntityCoordinate right = RT_To_XY_Coordinate(r, 0);
  const TEntityCoordinate left = RT_To_XY_Coordinate(r, kHalfTurn);
  return {ArcAboutOrigin(right, left, r, 0, kHalfTurn), ArcAboutOrigin(left, right, r, kHalfTurn, 0)};
}

}  // namespace

TEntityArray GetDXFDivisionBoundaries(double r1, double r2, double a1, double a2) {
  return {TDXFEntity::Line(RT_To_XY_Coordinate(r2, a1), RT_To_XY_Coordinate(r1, a1)),
          TDXFEntity::Line(RT_To_XY_Coordinate(r2, a2), RT_To_XY_Coordinate(r1, a2))};
}

TEntityArray GetBlankRegionEntities(double r1, double r2, double a1, double a2) {
  const TEntityCoordinate inner_start = RT_To_XY_Coordinate(r1, a1);
  const TEntityCoordinate outer_start = RT_To_XY_Coordinate(r2, a1);
  const TEntityCoordinate outer_end = RT_To_XY_Coordinate(r2, a2);
  const TEntityCoordinate inner_end = RT_To_XY_Coordinate(r1, a2);
  TEntityArray outline{TDXFEntity::Line(inner_start, outer_start), ArcAboutOrigin(outer_start, outer_end, r2, a1, a2),
                       TDXFEntity::Line(outer_end, inner_end)};
  if (r1 > 0) outline.push_back(ArcAboutOrigin(inner_start, inner_end, r1, a1, a2));
  return outline;
}

TEntityArray GenerateDXFClosureEntities(double r, double dr, double a1, double a2) {
  if (IsFullMachine(a1, a2)) return GetFullCircle(r + dr);
  const TEntityCoordinate inner_start = RT_To_XY_Coordinate(r, a1);
  const TEntityCoordinate inner_end = RT_To_XY_Coordinate(r, a2);
  // KEPT: the arc's radius is the outer one while its ends lie on the inner; whoever takes it reads the shape from
  // centre, radius and angles and the connection to its neighbours from the ends.
  return {ArcAboutOrigin(inner_start, inner_end, r + dr, a1, a2),
          TDXFEntity::Line(inner_start, RT_To_XY_Coordinate(r + dr, a1)),
          TDXFEntity::Line(inner_end, RT_To_XY_Coordinate(r + dr, a2))};
}

}  // namespace GeometryEngine

#include "GeometryEngine/GeometryCreation_Drawing/EntityConstruction.h"

#include <cmath>

#include "GeometryEngine/GeometryCreation_Drawing/CoordinateCleaning.h"
#include "GeometryEngine/GeometryFuncts/ArcEndPoints.h"
#include "GeometryEngine/GeometryFuncts/detail/CoordinateDistance.h"
#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine {

namespace {

constexpr double kModeSnapCentres = 0;         // value of the snapping mode, a plain number
constexpr double kCentreSnapThreshold = 1e-9;  // drawing length units, exclusive

double SnapCentreValue(double aValue) {
  const double mode = Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifSnappingMode);
  return mode == kModeSnapCentres && std::abs(aValue) < kCentreSnapThreshold ? 0 : aValue;
}

TEntityCoordinate SnapCentre(const TEntityCoordinate& aCentre) {
  return {SnapCentreValue(aCentre.x), SnapCentreValue(aCentre.y)};
}

double ZeroIfNaN(double aValue) {
  return std::isnan(aValue) ? 0 : aValue;
}

TDXFEntity CreateArc_StartEnd(const TEntityCoordinate& aCentre, const TEntityCoordinate& aStart,
                              const TEntityCoordinate& aEnd) {
  return CreateEntity_Arc_StartEnd(aCentre.x, aCentre.y, aStart.x, aStart.y, aEnd.x, aEnd.y);
}

}  // namespace

TDXFEntity CreateEntity_Line(double x1, double y1, double x2, double y2) {
  // KEPT: infinities stay and nothing near zero is snapped; a line keeps the very coordinates of the drawing.
  return TDXFEntity::Line({ZeroIfNaN(x1), ZeroIfNaN(y1)}, {ZeroIfNaN(x2), ZeroIfNaN(y2)});
}

TDXFEntity CreateEntity_Line(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd) {
  return CreateEntity_Line(aStart.x, aStart.y, aEnd.x, aEnd.y);
}

TDXFEntity CreateEntity_Arc(double centreX, double centreY, double radius, double startAngle, double endAngle) {
  const TEntityCoordinate centre = SnapCentre(CheckCoordinate({centreX, centreY}));
  TDXFEntity arc = TDXFEntity::Arc({}, {}, centre, radius, startAngle, endAngle);
  const TArcEndPoints ends = GetArc_EndPoints(arc, 0);
  arc.StartCoords = {ends.startX, ends.startY};
  arc.EndCoords = {ends.endX, ends.endY};
  return arc;
}

TDXFEntity CreateEntity_Arc_StartEnd(double centreX, double centreY, double startX, double startY, double endX,
                                     double endY) {
  const TEntityCoordinate start = CheckCoordinate({startX, startY});
  const TEntityCoordinate end = CheckCoordinate({endX, endY});
  const TEntityCoordinate centre = CheckCoordinate({centreX, centreY});
  const double radius = (detail::GetDistance(centre, start) + detail::GetDistance(centre, end)) / 2;
  const double startAngle = XY_To_RT(start.x - centre.x, start.y - centre.y).angle;
  const double endAngle = XY_To_RT(end.x - centre.x, end.y - centre.y).angle;
  return TDXFEntity::Arc(start, end, SnapCentre(centre), radius, startAngle, endAngle);
}

TDXFEntity CreateEntity_Arc_StartEnd_Radius(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                            double aRadius) {
  if (ValuesClose_Standard(detail::GetDistance(aStart, aEnd), 0)) return CreateEntity_Line(aStart, aEnd);
  if (aRadius > 0) return CreateArc_StartEnd(GetArcCentre(aStart, aEnd, aRadius), aStart, aEnd);
  if (aRadius < 0) return CreateArc_StartEnd(GetArcCentre(aStart, aEnd, aRadius), aEnd, aStart);
  return CreateEntity_Line(aStart, aEnd);
}

TEntityCoordinate GetArcCentre(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd, double aRadius) {
  const TEntityCoordinate middle = (aStart + aEnd) / 2;
  const double chord = detail::GetDistance(aStart, aEnd);
  // KEPT: the absolute value; a radius shorter than half the chord still has a centre off the chord, not an error.
  const double height = std::sqrt(std::abs(aRadius * aRadius - (chord / 2) * (chord / 2)));
  const TEntityCoordinate offset{height * (aStart.y - aEnd.y) / chord, height * (aEnd.x - aStart.x) / chord};
  return aRadius > 0 ? middle + offset : middle - offset;
}

}  // namespace GeometryEngine

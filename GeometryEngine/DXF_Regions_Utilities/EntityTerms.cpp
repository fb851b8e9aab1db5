#include "GeometryEngine/DXF_Regions_Utilities/EntityTerms.h"

#include <cmath>

#include "GeometryEngine/FloatingPoint/detail/ForEachSineCosine.h"
#include "GeometryEngine/GeometryFuncts/detail/CirclePoint.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ArcAngles.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordCount.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordPoint.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/LimitedSegments.h"
#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine {

namespace {

constexpr std::int32_t kAreaSegments = 5;                // segments of the polygon that stands for an arc's area
constexpr double kDegreesPerFactor = 10;                 // the resolution factor counts segments per this many degrees
constexpr double kFullTurn_Radians = 6.283185307179586;  // radians
constexpr std::int32_t kModeLeaving = 1;                 // vector in which the entity leaves the first coordinate
constexpr std::int32_t kModeBack = 0;                    // vector in which the entity leaves its far end

double GetCross(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  return aFrom.x * aTo.y - aFrom.y * aTo.x;
}

TEntityCoordinate GetCentroidTerm(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  const double c = aFrom.x * aTo.y - aTo.x * aFrom.y;
  return {(aFrom.x + aTo.x) * c, (aFrom.y + aTo.y) * c};
}

/// Sweep in degrees by way of the part that is left out when the arc passes 0 degrees.
double GetSweep_Segments(const TDXFEntity& aArc) {
  const auto [start, end] = detail::GetArcAngles(aArc);
  return start > end ? kFullTurn - (start - end) : end - start;
}

/// The radius on which the inner points of a fan of `n` triangles must lie for the fan to have the sector's area.
double GetRadius_EqualArea(double r, double aSweep, double aStep, std::int32_t n) {
  const double inner = n - 2.0;
  return (-2 * r + std::sqrt(4 * (r * r) + 4 * inner * aSweep * (r * r) / detail::GetSine(aStep))) / (2 * inner);
}

TEntityCoordinate GetCentroidComponent_Arc(const TEntityCoordinate& aFrom, const TDXFEntity& aArc) {
  const double factor = Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifArcResolution);
  const auto [count, step] = detail::GetLimitedSegments(GetArcSegmentPoints_Step(aArc, factor));
  const double startAngle = GetEntityStartAngle_Arc(aFrom, aArc);
  const TTravelDirection direction = GetArcTravelDirection(startAngle, aArc);
  TEntityCoordinate sum;
  detail::ForEachChord(aArc, detail::GetWalkedAngles(direction, startAngle, step), 0, std::int64_t{count} - 1,
                       [&](const TEntityCoordinate& aChordFrom, const TEntityCoordinate& aChordTo) {
                         const TEntityCoordinate term = GetCentroidTerm(aChordFrom, aChordTo);
                         sum.x += term.x;
                         sum.y += term.y;
                       });
  return sum;
}

TVector_Single GetEntityVector_Line(const TEntityCoordinate& aCoordinate_A, const TEntityCoordinate& aCoordinate_B,
                                    std::int32_t aMode) {
  if (aMode == kModeLeaving) return GetVectorFromCoordinates(aCoordinate_A, aCoordinate_B);
  if (aMode == kModeBack) return GetVectorFromCoordinates(aCoordinate_B, aCoordinate_A);
  return {};
}

TVector_Single GetEntityVector_Arc(const TEntityCoordinate& aCoordinate_A, const TDXFEntity& aArc, std::int32_t aMode) {
  const bool entersAtStart = aArc.StartCoords == aCoordinate_A;
  if (!entersAtStart && aArc.EndCoords != aCoordinate_A) return {};
  const TTravelDirection direction = entersAtStart ? Travel_AntiClockwise : Travel_Clockwise;
  const double startAngle = entersAtStart ? aArc.startAngle : aArc.endAngle;
  const auto segments = GetArcSegmentPoints_Surf(aArc, detail::kSurfChordTolerance);
  const auto point = [&](std::int32_t aIndex) {
    return GetArc_LineSegmentCoord(aArc, aIndex, direction, startAngle, segments.aStep);
  };
  if (aMode == kModeLeaving) return GetVectorFromCoordinates(point(0), point(1));
  if (aMode == kModeBack) return GetVectorFromCoordinates(point(segments.aCount), point(segments.aCount - 1));
  return {};
}

double GetDirection(const TVector_Single& aVector) {
  return ArcTan2(static_cast<double>(aVector.y), static_cast<double>(aVector.x));
}

}  // namespace

double GetSignedArea_Entity(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo, const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFLine) return GetCross(aFrom, aTo) / 2;
  if (aEntity.EntityType != DXFArc) return 0;
  const bool isClockwise = GetArcTravelDirection(GetEntityStartAngle_Arc(aFrom, aEntity), aEntity) == Travel_Clockwise;
  return GetArea_Arc(aFrom, aTo, aEntity, kAreaSegments, isClockwise ? 1 : 0) / 2;
}

double GetArea_Arc(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo, const TDXFEntity& aArc,
                   std::int32_t aSegments, std::int32_t aDirection) {
  if (aSegments < 2) return GetCross(aFrom, aTo);
  const double sweep = aArc.ArcSweep() * kRadiansPerDegree;
  const double step = sweep / aSegments;
  const double startAngle = GetEntityStartAngle_Arc(aFrom, aArc) * kRadiansPerDegree;
  const double radius = GetRadius_EqualArea(aArc.radius, sweep, step, aSegments);
  const double signedStep = aDirection == 0 ? step : -step;
  double sum = 0;
  TEntityCoordinate from = aFrom;
  detail::ForEachSineCosine({startAngle, signedStep}, 1, std::int64_t{aSegments} - 1,
                            [&](const detail::TSineCosine& aTurned) {
                              const TEntityCoordinate to = detail::GetCirclePoint(aArc.CentreCoords, radius, aTurned);
                              sum += GetCross(from, to);
                              from = to;
                            });
  return sum + GetCross(from, aTo);
}

TEntityCoordinate GetCentroidComponent_Entity(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                                              const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFLine) return GetCentroidTerm(aFrom, aTo);
  if (aEntity.EntityType == DXFArc) return GetCentroidComponent_Arc(aFrom, aEntity);
  return {};
}

double GetArcSegment_Step(const TDXFEntity& aArc, std::int32_t aSegments) {
  return GetSweep_Segments(aArc) / aSegments;
}

TArcSegments GetArcSegmentPoints_Step(const TDXFEntity& aArc, double aFactor) {
  const double sweep = GetSweep_Segments(aArc);
  const std::int32_t count = detail::GetChordCount(std::nearbyint(sweep / kDegreesPerFactor * aFactor));
  return {count, sweep / count};
}

TVector_Single GetEntityVector(const TEntityCoordinate& aCoordinate_A, const TEntityCoordinate& aCoordinate_B,
                               const TDXFEntity& aEntity, std::int32_t aMode) {
  return aEntity.EntityType == DXFArc ? GetEntityVector_Arc(aCoordinate_A, aEntity, aMode)
                                      : GetEntityVector_Line(aCoordinate_A, aCoordinate_B, aMode);
}

// No component is a negative zero, which would turn a direction along the negative x axis by a whole turn.
TVector_Single GetVectorFromCoordinates(const TEntityCoordinate& aCoordinate_A,
                                        const TEntityCoordinate& aCoordinate_B) {
  const TEntityCoordinate difference = aCoordinate_B - aCoordinate_A;
  return {static_cast<float>(difference.x + 0.0), static_cast<float>(difference.y + 0.0), 0};
}

double GetAngleBetweenVectors(const TVector_Single& aVector_1, const TVector_Single& aVector_2) {
  const double d = GetDirection(aVector_2) - GetDirection(aVector_1);
  const double turns = std::abs(std::trunc(d / kFullTurn_Radians));
  if (d < 0) return d + (turns + 1) * kFullTurn_Radians;
  // KEPT: beyond a full turn the difference is taken the wrong way round and comes out negative. Two arctangents are
  // never more than a full turn apart, so no caller meets it.
  if (d > kFullTurn_Radians) return turns * kFullTurn_Radians - d;
  return d;
}

}  // namespace GeometryEngine

// The chords of an arc, and the terms of one entity.

#include <algorithm>
#include <cmath>

#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"
#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"
#include "tests/reference/plain/OneEntity.h"
#include "tests/reference/plain/Sameness.h"

namespace GeometryEngine::Plain {

namespace {

constexpr double kChordTolerance = 0.01;
constexpr std::int32_t kLeastChords = 3;
constexpr std::int32_t kMostChords = 1'000'000;
constexpr double kLargestAngle = 1e6;  // degrees; from there on a winding number limits its chords
constexpr std::int32_t kAreaSegments = 5;
constexpr double kFullTurn = 6.283185307179586;  // radians

TArcWalk WalkArc(const TDXFEntity& aArc, const TEntityCoordinate& aFrom, double aSweep, double aWanted) {
  const double startAngle = Plain::GetEntityStartAngle_Arc(aFrom, aArc);
  const std::int32_t count = std::max(ToInteger_Saturated(aWanted), kLeastChords);
  return {aArc, startAngle, startAngle == aArc.startAngle ? Travel_AntiClockwise : Travel_Clockwise, count,
          aSweep / count};
}

double Cross(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  return aFrom.x * aTo.y - aFrom.y * aTo.x;
}

TEntityCoordinate CentroidTerm(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  const double c = aFrom.x * aTo.y - aTo.x * aFrom.y;
  return {(aFrom.x + aTo.x) * c, (aFrom.y + aTo.y) * c};
}

double RadiusOfEqualArea(double r, double aSweep, double aStep) {
  const double inner = kAreaSegments - 2.0;
  return (-2 * r + std::sqrt(4 * (r * r) + 4 * inner * aSweep * (r * r) / detail::GetSine(aStep))) / (2 * inner);
}

/// Twice the arc's share, by a fan of triangles.
double AreaOfArc(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo, const TDXFEntity& aArc) {
  const double enteredAt = Plain::GetEntityStartAngle_Arc(aFrom, aArc);
  const double sweep = aArc.ArcSweep() * kRadiansPerDegree;
  const double step = sweep / kAreaSegments;
  const double startAngle = enteredAt * kRadiansPerDegree;
  const double radius = RadiusOfEqualArea(aArc.radius, sweep, step);
  double sum = 0;
  TEntityCoordinate from = aFrom;
  for (std::int32_t k = 1; k < kAreaSegments; ++k) {
    const double angle = enteredAt == aArc.startAngle ? startAngle + k * step : startAngle - k * step;
    const auto [sine, cosine] = detail::GetSineCosine(angle);
    const TEntityCoordinate to{aArc.CentreCoords.x + radius * cosine, aArc.CentreCoords.y + radius * sine};
    sum += Cross(from, to);
    from = to;
  }
  return sum + Cross(from, aTo);
}

TVector_Single Vector(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
  const auto difference = [](double from, double to) {
    return static_cast<float>(from > to ? -std::abs(to - from) : std::abs(to - from));
  };
  return {difference(aFrom.x, aTo.x), difference(aFrom.y, aTo.y), 0};
}

double Direction(const TVector_Single& aVector) {
  return ArcTan2(static_cast<double>(aVector.y), static_cast<double>(aVector.x));
}

bool IsLevelOrBelow(double aHeight, double aPointHeight) {
  return aPointHeight > aHeight || ValuesSame_DXFTolerance(aHeight, aPointHeight);
}

bool IsAbove(double aHeight, double aPointHeight) {
  return aHeight > aPointHeight && !ValuesSame_DXFTolerance(aHeight, aPointHeight);
}

std::int32_t WindingOfSegment(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                              const TEntityCoordinate& aPoint) {
  if (IsLevelOrBelow(aStart.y, aPoint.y) && IsAbove(aEnd.y, aPoint.y))
    return Plain::IsPointLeft_Line(aPoint, aStart, aEnd) > 0 ? 1 : 0;
  if (IsAbove(aStart.y, aPoint.y) && IsLevelOrBelow(aEnd.y, aPoint.y))
    return Plain::IsPointLeft_Line(aPoint, aStart, aEnd) <= 0 ? -1 : 0;
  return 0;
}

}  // namespace

TEntityCoordinate TArcWalk::Point(std::int32_t aIndex) const {
  const double turned = aIndex * fStep;
  const double angle = fDirection == Travel_AntiClockwise ? fStartAngle + turned : fStartAngle - turned;
  const auto [sine, cosine] = detail::GetSineCosine(angle * kRadiansPerDegree);
  return {fArc.CentreCoords.x + fArc.radius * cosine, fArc.CentreCoords.y + fArc.radius * sine};
}

TArcWalk TArcWalk::Limited() const {
  if (fCount <= kMostChords) return *this;
  return {fArc, fStartAngle, fDirection, kMostChords, fStep * fCount / kMostChords};
}

double GetEntityStartAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aArc) {
  if (Same(aCoordinate, aArc.StartCoords)) return aArc.startAngle;
  return Same(aCoordinate, aArc.EndCoords) ? aArc.endAngle : 0;
}

double GetEntityEndAngle_Arc(const TEntityCoordinate& aCoordinate, const TDXFEntity& aArc) {
  if (Same(aCoordinate, aArc.StartCoords)) return aArc.endAngle;
  return Same(aCoordinate, aArc.EndCoords) ? aArc.startAngle : 0;
}

TArcWalk WalkArc_Surf(const TDXFEntity& aArc, const TEntityCoordinate& aFrom) {
  const double sweep = aArc.ArcSweep();
  const double chordAngle = std::acos(1 - kChordTolerance / aArc.radius) * kDegreesPerRadian;
  return WalkArc(aArc, aFrom, sweep, chordAngle == 0 ? 0 : sweep / chordAngle);
}

TArcWalk WalkArc_Step(const TDXFEntity& aArc, const TEntityCoordinate& aFrom) {
  const double start = GetAngleInRange(aArc.startAngle, 0, 360);
  const double end = GetAngleInRange(aArc.endAngle, 0, 360);
  const double sweep = start > end ? 360 - (start - end) : end - start;
  const double factor = Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifArcResolution);
  return WalkArc(aArc, aFrom, sweep, std::nearbyint(sweep / 10 * factor));
}

double GetSignedArea_Entity(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo, const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFLine) return Cross(aFrom, aTo) / 2;
  return aEntity.EntityType == DXFArc ? AreaOfArc(aFrom, aTo, aEntity) / 2 : 0;
}

TEntityCoordinate GetCentroidComponent_Entity(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                                              const TDXFEntity& aEntity) {
  if (aEntity.EntityType == DXFLine) return CentroidTerm(aFrom, aTo);
  TEntityCoordinate sum;
  if (aEntity.EntityType != DXFArc) return sum;
  const TArcWalk walk = Plain::WalkArc_Step(aEntity, aFrom).Limited();
  for (std::int32_t k = 0; k < walk.fCount; ++k) sum = sum + CentroidTerm(walk.Point(k), walk.Point(k + 1));
  return sum;
}

TVector_Single GetEntityVector(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo, const TDXFEntity& aEntity,
                               std::int32_t aMode) {
  if (aEntity.EntityType != DXFArc) return aMode == 1 ? Vector(aFrom, aTo) : Vector(aTo, aFrom);
  if (!Plain::IsEntityEnd(aEntity, aFrom)) return {};
  TArcWalk walk = Plain::WalkArc_Surf(aEntity, aFrom);
  walk.fDirection = Same(aEntity.StartCoords, aFrom) ? Travel_AntiClockwise : Travel_Clockwise;
  return aMode == 1 ? Vector(walk.Point(0), walk.Point(1))
                    : Vector(walk.Point(walk.fCount), walk.Point(walk.fCount - 1));
}

double GetAngleBetweenVectors(const TVector_Single& aVector_1, const TVector_Single& aVector_2) {
  const double d = Direction(aVector_2) - Direction(aVector_1);
  const double turns = std::abs(std::trunc(d / kFullTurn));
  if (d < 0) return d + (turns + 1) * kFullTurn;
  return d > kFullTurn ? turns * kFullTurn - d : d;
}

std::int32_t GetWindingNumber_Entity_Addition(const TDXFEntity& aEntity, const TEntityCoordinate& aStart,
                                              const TEntityCoordinate& aEnd, const TEntityCoordinate& aPoint) {
  if (aEntity.EntityType == DXFLine) return WindingOfSegment(aStart, aEnd, aPoint);
  if (aEntity.EntityType != DXFArc) return 0;
  const TArcWalk all = Plain::WalkArc_Surf(aEntity, aStart);
  const TArcWalk walk = std::abs(all.fStartAngle) <= kLargestAngle ? all : all.Limited();
  std::int32_t sum = 0;
  TEntityCoordinate from = walk.Point(0);
  for (std::int32_t i = 0; i < walk.fCount; ++i) {
    const TEntityCoordinate to = walk.Point(i + 1);
    sum += WindingOfSegment(from, to, aPoint);
    from = to;
  }
  return sum;
}

}  // namespace GeometryEngine::Plain

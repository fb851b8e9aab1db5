#include "GeometryEngine/DXF_SweepLine_Utilities/detail/TSweepHeights.h"

#include <algorithm>
#include <cmath>

#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ArcAngles.h"
#include "GeometryEngine/host/Numerics.h"
#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kFarthest = 1e70;               // drawing length; beyond, squares and products of squares overflow
constexpr double kSteepest = 1e20;               // slope; beyond, its products overflow
constexpr double kAngleRounding = 1e-9;          // degrees, well above the rounding of a direction
constexpr double kRounding = 1e-12;              // of the drawing's magnitude, well above the rounding of a point
constexpr double kTangentReach = 0.001 / 4;      // drawing length squared: what a tangent line's discriminant allows
constexpr double kDiscriminantRounding = 1e-13;  // of (magnitude times steepness) squared, see docs/numerics.md

bool IsOrdinary(double aValue) {
  return std::abs(aValue) <= kFarthest;
}

bool IsOrdinary(const TEntityCoordinate& aPoint) {
  return IsOrdinary(aPoint.x) && IsOrdinary(aPoint.y);
}

bool IsOrdinary(const TDXFEntity& aEntity) {
  if (!IsOrdinary(aEntity.StartCoords) || !IsOrdinary(aEntity.EndCoords)) return false;
  return aEntity.EntityType != DXFArc || (IsOrdinary(aEntity.CentreCoords) && IsOrdinary(aEntity.radius) &&
                                          std::isfinite(aEntity.startAngle) && std::isfinite(aEntity.endAngle));
}

double GetMagnitude(const TEntityCoordinate& aPoint) {
  return std::max(std::abs(aPoint.x), std::abs(aPoint.y));
}

double GetMagnitude(const TDXFEntity& aEntity) {
  const double ends = std::max(GetMagnitude(aEntity.StartCoords), GetMagnitude(aEntity.EndCoords));
  if (aEntity.EntityType != DXFArc) return ends;
  return std::max(ends, GetMagnitude(aEntity.CentreCoords) + std::abs(aEntity.radius));
}

THeights Widened(const THeights& aHeights, double aReach) {
  return {aHeights.fLow - aReach, aHeights.fHigh + aReach};
}

void Include(double y, THeights& aHeights) {
  aHeights.fLow = std::min(aHeights.fLow, y);
  aHeights.fHigh = std::max(aHeights.fHigh, y);
}

/// The range of the sine over the directions from `aStart`, at least -90 degrees, on for `aSweep` degrees.
THeights GetSines(double aStart, double aSweep) {
  const double end = aStart + aSweep;
  const double sine = GetSine(aStart * kRadiansPerDegree);
  THeights sines{sine, sine};
  Include(GetSine(end * kRadiansPerDegree), sines);
  for (int quarter = -1; quarter <= 9; quarter += 2) {
    const double axis = quarter * kQuarterTurn;
    if (aStart <= axis && axis <= end) Include(quarter % 4 == 1 ? 1 : -1, sines);
  }
  return sines;
}

}  // namespace

TSweepHeights::TSweepHeights(std::span<const TDXFEntity> aEntities) : fTolerance(GetLinearTolerance()) {
  const double angleTolerance = Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifAngleTolerance);
  fAngleMargin = kAngleRounding + (angleTolerance > 0 ? angleTolerance : 0);
  for (const TDXFEntity& entity : aEntities) {
    if (IsOrdinary(entity)) fMagnitude = std::max(fMagnitude, GetMagnitude(entity));
  }
}

std::optional<THeights> TSweepHeights::GetHeights(const TDXFEntity& aEntity) const {
  if (!IsOrdinary(fTolerance) || !IsOrdinary(aEntity)) return {};
  if (aEntity.EntityType == DXFLine) return GetHeights_Line(aEntity);
  return GetHeights_Arc(aEntity);
}

std::optional<THeights> TSweepHeights::GetHeights_Line(const TDXFEntity& aLine) const {
  const double dx = std::abs(aLine.EndCoords.x - aLine.StartCoords.x);
  const double dy = std::abs(aLine.EndCoords.y - aLine.StartCoords.y);
  const double steepness = 1 + (dx < fTolerance ? 0 : dy / dx);
  if (!(steepness <= kSteepest)) return {};
  const double scale = fMagnitude * steepness;
  const double tangentReach = std::sqrt(kTangentReach + kDiscriminantRounding * scale * scale);
  const auto [low, high] = std::minmax(aLine.StartCoords.y, aLine.EndCoords.y);
  return Widened({low, high}, 2.01 * fTolerance * steepness + tangentReach + kRounding * scale);
}

THeights TSweepHeights::GetHeights_Arc(const TDXFEntity& aArc) const {
  const auto [start, end] = GetArcAngles(aArc);
  const double sweep = (start > end ? end - start + kFullTurn : end - start) + 2 * fAngleMargin;
  THeights heights = GetHeights_Circle(aArc);
  if (sweep < kFullTurn) {
    const double radius = std::abs(aArc.radius);
    const THeights sines = GetSines(start - fAngleMargin, sweep);
    heights = Widened({aArc.CentreCoords.y + radius * sines.fLow, aArc.CentreCoords.y + radius * sines.fHigh},
                      2.01 * fTolerance + kRounding * fMagnitude);
  }
  const auto [low, high] = std::minmax(aArc.StartCoords.y, aArc.EndCoords.y);
  Include(low - 1.01 * fTolerance, heights);
  Include(high + 1.01 * fTolerance, heights);
  return heights;
}

THeights TSweepHeights::GetHeights_Circle(const TDXFEntity& aArc) const {
  const double y = aArc.CentreCoords.y;
  return Widened({y, y}, std::abs(aArc.radius) + 2.01 * fTolerance + kRounding * fMagnitude);
}

}  // namespace GeometryEngine::detail

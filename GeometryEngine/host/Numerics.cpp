#include "GeometryEngine/host/Numerics.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "GeometryEngine/host/TDataStore.h"

namespace GeometryEngine {

namespace {
constexpr double kStandardResolution = 1e-12;  // relative for large values, absolute for small ones
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();
}  // namespace

double GetAngleInRange(double aValue, double aLow, double aHigh) {
  const double turn = aHigh - aLow;
  if (!(turn > 0)) return kNotANumber;
  if (aValue >= aLow && aValue < aHigh) return aValue;
  const bool isTurnBelow = aLow == 0 && aHigh == kFullTurn && -kFullTurn < aValue && aValue < 0;
  if (isTurnBelow) return aValue + kFullTurn < kFullTurn ? aValue + kFullTurn : aLow;  // the most common; as below
  // The remainder is exact, and so are few whole turns, so that only the last sum is rounded.
  const double rest = std::fmod(aValue, turn);
  double moved = rest + std::ceil((aLow - rest) / turn) * turn;
  if (moved < aLow) moved += turn;
  return moved >= aHigh ? aLow : moved;
}

double ArcTan2(double y, double x) {
  return std::atan2(y, x);
}

TLinearEquation GetLinearEquation(double x1, double y1, double x2, double y2) {
  const double slope = (y2 - y1) / (x2 - x1);
  return {slope, y1 - slope * x1};
}

TLinearEquation GetLinearEquation_DXFTolerance(double x1, double y1, double x2, double y2) {
  const double tolerance = Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifLinearTolerance);
  if (std::abs(x2 - x1) <= tolerance) return {};
  return GetLinearEquation(x1, y1, x2, y2);
}

TCartesian GetLinesIntersection(double a, double b, double c, double d) {
  const double x = (d - b) / (a - c);
  return {x, a * x + b};
}

TCartesian RT_To_XY(double r, double t) {
  const double radians = t * kRadiansPerDegree;
  return {r * std::cos(radians), r * std::sin(radians)};
}

TPolar XY_To_RT(double x, double y) {
  const double angle = ArcTan2(y, x) * kDegreesPerRadian;
  return {GetDistanceBetweenCoords(0, 0, x, y), angle <= -kHalfTurn ? angle + kFullTurn : angle};
}

double GetDistanceBetweenCoords(double x1, double y1, double x2, double y2) {
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  return std::sqrt(dx * dx + dy * dy);
}

bool ValuesClose_Standard(double a, double b) {
  const double relative = std::min(std::abs(a), std::abs(b)) * kStandardResolution;
  return std::abs(a - b) <= std::max(relative, kStandardResolution);
}

std::int32_t ToInteger_Saturated(double aValue) {
  using TLimits = std::numeric_limits<std::int32_t>;
  if (std::isnan(aValue)) return 0;
  if (aValue <= TLimits::min()) return TLimits::min();
  if (aValue >= TLimits::max()) return TLimits::max();
  return static_cast<std::int32_t>(aValue);
}

}  // namespace GeometryEngine

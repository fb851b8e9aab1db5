#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/ArcHeights.h"

#include <cmath>

#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kLargestAngle = 1e4;  // degrees
constexpr double kAngleSlack = 1e-6;   // degrees; far above the rounding of such angles
constexpr double kRounding = 1e-10;    // no unit; above what that slack, squared, and rounding do to a height

// Whether a way from one direction up to another passes a third, in whichever turn, or all but does.
bool Passes(double aLow, double aHigh, double aDirection) {
  const double turn = GetAngleInRange(aDirection - aLow + kAngleSlack, 0, kFullTurn);
  return turn <= aHigh - aLow + 2 * kAngleSlack;
}

}  // namespace

THeightRange GetHeights(const TCirclePart& aPart) {
  const auto& [centre, radius, from, to] = aPart;
  const bool isTame = radius > 0 && std::abs(from) < kLargestAngle && std::abs(to) < kLargestAngle;
  if (!isTame) return THeightRange::All();
  THeightRange heights = THeightRange::Of(centre + radius * GetSine(from * kRadiansPerDegree),
                                          centre + radius * GetSine(to * kRadiansPerDegree));
  const auto [low, high] = std::minmax(from, to);
  if (Passes(low, high, 90)) heights.fHigh = centre + radius;
  if (Passes(low, high, 270)) heights.fLow = centre - radius;
  return heights.Widened(kRounding * (std::abs(centre) + radius));
}

}  // namespace GeometryEngine::detail

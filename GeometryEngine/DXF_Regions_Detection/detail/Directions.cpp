#include "GeometryEngine/DXF_Regions_Detection/detail/Directions.h"

#include <algorithm>

#include "GeometryEngine/FloatingPoint/detail/SineCosine.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordCount.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kLeastRadius = 0.02;   // drawing length units; chords of smaller arcs turn by more than 60 degrees
constexpr double kLargestRadius = 1e6;  // drawing length units; rounding of chord angles is not small beyond
constexpr double kLargestAngle = 1e4;   // degrees; nor is rounding of angles
constexpr double kLeastChord = 1e-8;    // half a chord, of the coordinates; the ends of shorter ones round too much

bool IsTame(const TDXFEntity& aArc) {
  return aArc.radius >= kLeastRadius && aArc.radius <= kLargestRadius && std::abs(aArc.startAngle) <= kLargestAngle &&
         std::abs(aArc.endAngle) <= kLargestAngle;
}

}  // namespace

// A chord that stays within t of the arc turns by c = acos(1 - t / r) at most, which lies between u = sqrt(2 t / r) and
// 1.05 u for r >= 2 t. The whole part of sweep / c chords, at least 3, turn by c at least and by 4/3 c at most, or by a
// third of the sweep. The first one deviates from the tangent by half of that.
std::optional<TRoughDirection> GetRoughDirection_Arc(const TDXFEntity& aArc, bool aFromItsStart) {
  if (!IsTame(aArc)) return std::nullopt;
  const double unit = std::sqrt(2 * kSurfChordTolerance / aArc.radius);
  const double most = aArc.ArcSweep() * kRadiansPerDegree / 6;
  const double low = std::min(0.5 * unit, most);
  const double high = std::min(0.7 * unit, most);
  const auto& [x, y] = aArc.CentreCoords;
  if (!(low * aArc.radius > kLeastChord * (std::abs(x) + std::abs(y) + aArc.radius))) return std::nullopt;
  const double turned = (low + high) / 2;
  const double slack = (high - low) / 2;
  if (aFromItsStart) {
    const auto [sine, cosine] = GetSineCosine(aArc.startAngle * kRadiansPerDegree + turned);
    return TRoughDirection{GetDirection(-sine, cosine), slack};
  }
  const auto [sine, cosine] = GetSineCosine(aArc.endAngle * kRadiansPerDegree - turned);
  return TRoughDirection{GetDirection(sine, -cosine), slack};
}

}  // namespace GeometryEngine::detail

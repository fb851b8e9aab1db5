#include "xsec/Affine.h"

#include <cmath>

#include "GeometryEngine/host/Numerics.h"

namespace xsec {

namespace {

using GeometryEngine::kFullTurn;

constexpr double kSameScale = 1e-9;  // relative difference of two scales, and cosine of their axes, taken as none

struct Direction {
  double cosine;
  double sine;
};

Direction DirectionAt(double degrees) {
  const double angle = GeometryEngine::GetAngleInRange(degrees, 0, kFullTurn);
  if (angle == 0) {
    return {1, 0};
  }
  if (angle == 90) {
    return {0, 1};
  }
  if (angle == 180) {
    return {-1, 0};
  }
  if (angle == 270) {
    return {0, -1};
  }
  return {std::cos(angle * GeometryEngine::kRadiansPerDegree), std::sin(angle * GeometryEngine::kRadiansPerDegree)};
}

}  // namespace

Affine Affine::Shift(double aX, double aY) {
  return {1, 0, 0, 1, aX, aY};
}

Affine Affine::Stretch(double aX, double aY) {
  return {aX, 0, 0, aY, 0, 0};
}

Affine Affine::Turn(double aDegrees) {
  const auto [cosine, sine] = DirectionAt(aDegrees);
  return {cosine, -sine, sine, cosine, 0, 0};
}

Point Affine::Apply(const Point& aPoint) const {
  const Point turned = ApplyToVector(aPoint);
  return {turned.x + x, turned.y + y};
}

Point Affine::ApplyToVector(const Point& aVector) const {
  return {xx * aVector.x + xy * aVector.y, yx * aVector.x + yy * aVector.y};
}

Affine operator*(const Affine& aOuter, const Affine& aInner) {
  const Point first = aOuter.ApplyToVector({aInner.xx, aInner.yx});
  const Point second = aOuter.ApplyToVector({aInner.xy, aInner.yy});
  const Point shift = aOuter.Apply({aInner.x, aInner.y});
  return {first.x, second.x, first.y, second.y, shift.x, shift.y};
}

double DirectionOf(const Point& aVector) {
  if (aVector.y == 0) {
    return aVector.x < 0 ? 180 : 0;
  }
  if (aVector.x == 0) {
    return aVector.y < 0 ? -90 : 90;
  }
  return std::atan2(aVector.y, aVector.x) * GeometryEngine::kDegreesPerRadian;
}

std::optional<Similarity> AsSimilarity(const Affine& aMap) {
  const double first = std::hypot(aMap.xx, aMap.yx);
  const double second = std::hypot(aMap.xy, aMap.yy);
  const double product = aMap.xx * aMap.xy + aMap.yx * aMap.yy;
  if (!(std::abs(first - second) <= kSameScale * first) || !(std::abs(product) <= kSameScale * first * second)) {
    return std::nullopt;
  }
  const double area = aMap.xx * aMap.yy - aMap.xy * aMap.yx;
  return Similarity{first, DirectionOf({aMap.xx, aMap.yx}), area < 0};
}

}  // namespace xsec

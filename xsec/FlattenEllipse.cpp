#include <algorithm>
#include <cmath>
#include <numbers>

#include "xsec/Flattening.h"

namespace xsec {

namespace {

constexpr double kMostChords = 100000;
constexpr double kLeastChordsPerTurn = 8;  // so that a coarse tolerance still shows a curve

Point At(const SourceEllipse& ellipse, double parameter) {
  const double cosine = std::cos(parameter);
  const double sine = std::sin(parameter);
  return {ellipse.centre.x + cosine * ellipse.major.x + sine * ellipse.minor.x,
          ellipse.centre.y + cosine * ellipse.major.y + sine * ellipse.minor.y};
}

// The map that makes an ellipse of the unit circle stretches nothing by more than this.
double LongestHalfAxis(const SourceEllipse& ellipse) {
  return std::hypot(std::hypot(ellipse.major.x, ellipse.major.y), std::hypot(ellipse.minor.x, ellipse.minor.y));
}

// The furthest that an arc of the unit circle lies from its chord is 1 - cos(step / 2); an ellipse stretches that by no
// more than its longest half axis.
double ChordCount(const SourceEllipse& ellipse, double tolerance) {
  const double share = std::clamp(tolerance / LongestHalfAxis(ellipse), 0.0, 1.0);
  const double step = 2 * std::acos(1 - share);
  const double least = std::ceil(kLeastChordsPerTurn * ellipse.sweep / (2 * std::numbers::pi));
  const double count = std::max(std::ceil(ellipse.sweep / step), least);
  return std::isfinite(count) ? std::min(count, kMostChords) : kMostChords;
}

}  // namespace

std::vector<Point> FlattenEllipse(const SourceEllipse& aEllipse, double aTolerance) {
  const auto count = static_cast<std::size_t>(std::max(ChordCount(aEllipse, aTolerance), 1.0));
  std::vector<Point> points;
  points.reserve(count + 1);
  for (std::size_t i = 0; i <= count; ++i) {
    points.push_back(
        At(aEllipse, aEllipse.start + aEllipse.sweep * static_cast<double>(i) / static_cast<double>(count)));
  }
  if (aEllipse.sweep >= 2 * std::numbers::pi) {
    points.back() = points.front();
  }
  return points;
}

}  // namespace xsec

#include <algorithm>
#include <cstddef>
#include <utility>

#include "xsec/Flattening.h"

namespace xsec {

namespace {

constexpr std::size_t kHighestDegree = 24;

// The polynomial piece of the span that begins at knot `span` takes the value of its polar form at the arguments; equal
// arguments give a point of the curve, arguments taken from both ends of the span the control points of that piece.
// SOURCE: L. Ramshaw, Blossoms are polar forms, 1989.
Weighted PolarForm(const SourceSpline& spline, std::size_t span, const std::vector<double>& arguments) {
  const std::size_t degree = spline.degree;
  const std::size_t first = span - degree;
  CurvePiece points;
  for (std::size_t k = 0; k <= degree; ++k) {
    const SourceControlPoint& control = spline.points[first + k];
    points.push_back(Lifted(control.point, control.weight));
  }
  for (std::size_t round = 1; round <= degree; ++round) {
    for (std::size_t k = degree; k >= round; --k) {
      const double low = spline.knots[first + k];
      const double high = spline.knots[first + k + degree - round + 1];
      points[k] = Mix(points[k - 1], points[k], (arguments[round - 1] - low) / (high - low));
    }
  }
  return points[degree];
}

CurvePiece PieceOfSpan(const SourceSpline& spline, std::size_t span) {
  CurvePiece piece;
  std::vector<double> arguments(spline.degree, spline.knots[span]);
  piece.push_back(PolarForm(spline, span, arguments));
  for (std::size_t k = spline.degree; k > 0; --k) {
    arguments[k - 1] = spline.knots[span + 1];
    piece.push_back(PolarForm(spline, span, arguments));
  }
  return piece;
}

bool AreInOrder(const std::vector<double>& knots) {
  return std::is_sorted(knots.begin(), knots.end());
}

}  // namespace

std::string WhySplineCannotBeFlattened(const SourceSpline& aSpline) {
  if (aSpline.points.empty()) {
    return "it has no control points";
  }
  if (aSpline.degree < 1 || aSpline.degree > kHighestDegree || aSpline.points.size() <= aSpline.degree) {
    return "its degree does not suit its control points";
  }
  if (aSpline.knots.size() != aSpline.points.size() + aSpline.degree + 1 || !AreInOrder(aSpline.knots) ||
      !(aSpline.knots[aSpline.degree] < aSpline.knots[aSpline.points.size()])) {
    return "its knots do not suit its control points";
  }
  const bool areWeightsPositive =
      std::all_of(aSpline.points.begin(), aSpline.points.end(), [](const auto& point) { return point.weight > 0; });
  return areWeightsPositive ? "" : "its weights are not all positive";
}

FlatCurve FlattenSpline(const SourceSpline& aSpline, double aTolerance) {
  std::vector<std::size_t> spans;
  for (std::size_t span = aSpline.degree; span < aSpline.points.size(); ++span) {
    if (aSpline.knots[span] < aSpline.knots[span + 1]) spans.push_back(span);
  }
  return FollowByArcs(
      spans.size(), [&](std::size_t i) { return PieceOfSpan(aSpline, spans[i]); }, aTolerance);
}

}  // namespace xsec

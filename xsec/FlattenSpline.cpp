#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "xsec/Flattening.h"

namespace xsec {

namespace {

constexpr std::size_t kHighestDegree = 24;
constexpr int kMostHalvings = 20;             // of one span between knots
constexpr std::size_t kMostPoints = 100'000;  // of a whole spline; what is left then gets a chord a piece

// A point in homogeneous coordinates: (x w, y w, w).
struct Weighted {
  double x = 0;
  double y = 0;
  double w = 0;
};

using Controls = std::vector<Weighted>;

Weighted Mix(const Weighted& a, const Weighted& b, double share) {
  return {(1 - share) * a.x + share * b.x, (1 - share) * a.y + share * b.y, (1 - share) * a.w + share * b.w};
}

Point Projected(const Weighted& p) {
  return {p.x / p.w, p.y / p.w};
}

Weighted Lifted(const SourceControlPoint& c) {
  return {c.point.x * c.weight, c.point.y * c.weight, c.weight};
}

double DistanceToChord(const Point& p, const Point& a, const Point& b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double square = dx * dx + dy * dy;
  const double along = square > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / square, 0.0, 1.0) : 0.0;
  return std::hypot(p.x - a.x - along * dx, p.y - a.y - along * dy);
}

// The polynomial piece of the span that begins at knot `span` takes the value of its polar form at the arguments; equal
// arguments give a point of the curve, arguments taken from both ends of the span the control points of that piece.
// SOURCE: L. Ramshaw, Blossoms are polar forms, 1989.
Weighted PolarForm(const SourceSpline& spline, std::size_t span, const std::vector<double>& arguments) {
  const std::size_t degree = spline.degree;
  const std::size_t first = span - degree;
  Controls points;
  for (std::size_t k = 0; k <= degree; ++k) {
    points.push_back(Lifted(spline.points[first + k]));
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

// The control points of the curve over one span, as a piece that begins and ends in its first and last.
Controls PieceOfSpan(const SourceSpline& spline, std::size_t span) {
  Controls piece;
  std::vector<double> arguments(spline.degree, spline.knots[span]);
  piece.push_back(PolarForm(spline, span, arguments));
  for (std::size_t k = spline.degree; k > 0; --k) {
    arguments[k - 1] = spline.knots[span + 1];
    piece.push_back(PolarForm(spline, span, arguments));
  }
  return piece;
}

// With positive weights the curve stays inside the hull of its control points.
bool IsFlat(const Controls& piece, double tolerance) {
  const Point start = Projected(piece.front());
  const Point end = Projected(piece.back());
  return std::all_of(piece.begin(), piece.end(),
                     [&](const Weighted& p) { return DistanceToChord(Projected(p), start, end) <= tolerance; });
}

std::array<Controls, 2> Halves(Controls piece) {
  Controls left;
  Controls right(piece.size());
  for (std::size_t last = piece.size(); last > 0; --last) {
    left.push_back(piece.front());
    right[last - 1] = piece[last - 1];
    for (std::size_t k = 0; k + 1 < last; ++k) {
      piece[k] = Mix(piece[k], piece[k + 1], 0.5);
    }
  }
  return {std::move(left), std::move(right)};
}

// Adds the ends of the chords of one piece but its very first point.
void AppendPiece(Controls piece, double tolerance, std::vector<Point>& points) {
  struct Part {
    Controls piece;
    int halvings;
  };
  std::vector<Part> open{{std::move(piece), 0}};
  while (!open.empty()) {
    Part part = std::move(open.back());
    open.pop_back();
    if (part.halvings >= kMostHalvings || points.size() >= kMostPoints || IsFlat(part.piece, tolerance)) {
      points.push_back(Projected(part.piece.back()));
      continue;
    }
    auto [left, right] = Halves(std::move(part.piece));
    open.push_back({std::move(right), part.halvings + 1});
    open.push_back({std::move(left), part.halvings + 1});
  }
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

std::vector<Point> FlattenSpline(const SourceSpline& aSpline, double aTolerance) {
  std::vector<Point> points;
  for (std::size_t span = aSpline.degree; span < aSpline.points.size(); ++span) {
    if (aSpline.knots[span] < aSpline.knots[span + 1]) {
      Controls piece = PieceOfSpan(aSpline, span);
      if (points.empty()) {
        points.push_back(Projected(piece.front()));
      }
      AppendPiece(std::move(piece), aTolerance, points);
    }
  }
  return points;
}

}  // namespace xsec

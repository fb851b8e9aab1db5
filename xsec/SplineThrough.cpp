#include <cmath>
#include <cstddef>
#include <vector>

#include "xsec/Flattening.h"

namespace xsec {

namespace {

// Each sweep over the equations at least halves what is missing, as the middle term of each weighs twice as much as the
// two others together.
constexpr int kSweeps = 60;

std::vector<Point> Distinct(const std::vector<Point>& points) {
  std::vector<Point> distinct;
  for (const Point& point : points) {
    if (distinct.empty() || !IsSameBits(distinct.back(), point)) distinct.push_back(point);
  }
  return distinct;
}

/// The way through the points and how fast the spline passes each of them, per length of the way.
class Interpolation {
 public:
  explicit Interpolation(const SourceFit& fit) : fPoints(Distinct(fit.points)) {
    if (fit.isClosed && fPoints.size() > 2 && !IsSameBits(fPoints.front(), fPoints.back())) {
      fPoints.push_back(fPoints.front());
    }
    if (fPoints.size() < 2) return;
    fIsClosed = fit.isClosed && fPoints.size() > 3;
    for (std::size_t i = 0; i + 1 < fPoints.size(); ++i) {
      fLengths.push_back(Distance(fPoints[i], fPoints[i + 1]));
      fSlopes.push_back((fPoints[i + 1] - fPoints[i]) / fLengths.back());
    }
    fSpeeds.resize(fPoints.size());
    for (int sweep = 0; sweep < kSweeps; ++sweep) Sweep(fit);
  }

  SourceSpline Spline() const {
    SourceSpline spline;
    if (fPoints.size() < 2) return spline;
    double knot = 0;
    spline.knots.assign(4, knot);
    spline.points.push_back({fPoints.front()});
    for (std::size_t i = 0; i < fLengths.size(); ++i) {
      const double third = fLengths[i] / 3;
      spline.points.push_back({fPoints[i] + third * fSpeeds[i]});
      spline.points.push_back({fPoints[i + 1] - third * fSpeeds[i + 1]});
      spline.points.push_back({fPoints[i + 1]});
      knot += fLengths[i];
      spline.knots.insert(spline.knots.end(), 3, knot);
    }
    spline.knots.push_back(knot);
    return spline;
  }

 private:
  void Sweep(const SourceFit& fit) {
    const std::size_t last = fPoints.size() - 1;
    if (fIsClosed) {
      fSpeeds.front() = InnerSpeed(last - 1, fSpeeds[last - 1], 0, fSpeeds[1]);
    } else {
      fSpeeds.front() = EndSpeed(fit.startTangent, fSlopes.front(), fSpeeds[1]);
    }
    for (std::size_t i = 1; i < last; ++i) fSpeeds[i] = InnerSpeed(i - 1, fSpeeds[i - 1], i, fSpeeds[i + 1]);
    fSpeeds.back() = fIsClosed ? fSpeeds.front() : EndSpeed(fit.endTangent, fSlopes.back(), fSpeeds[last - 1]);
  }

  /// Between two spans: the curvature is the same on both sides.
  Point InnerSpeed(std::size_t before, const Point& speedBefore, std::size_t after, const Point& speedAfter) const {
    const double left = fLengths[before];
    const double right = fLengths[after];
    const Point wanted = 3 * (right * fSlopes[before] + left * fSlopes[after]);
    return (wanted - right * speedBefore - left * speedAfter) / (2 * (left + right));
  }

  /// At an end: along the tangent, and straight on where there is none.
  static Point EndSpeed(const Point& tangent, const Point& slope, const Point& next) {
    const double length = std::hypot(tangent.x, tangent.y);
    return length > 0 ? tangent / length : (3 * slope - next) / 2;
  }

  std::vector<Point> fPoints;  ///< the first again at the end of a closed one
  bool fIsClosed = false;
  std::vector<double> fLengths;  ///< from each point to the next
  std::vector<Point> fSlopes;
  std::vector<Point> fSpeeds;
};

}  // namespace

SourceSpline SplineThrough(const SourceFit& aFit) {
  return Interpolation(aFit).Spline();
}

}  // namespace xsec

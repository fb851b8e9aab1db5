#include "xsec/CurvePiece.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "xsec/Bulge.h"

namespace xsec {

namespace {

constexpr int kMostHalvings = 20;                // of one piece
constexpr int kMostTries = 12;                   // from a thousand-millionth of a curve's size to beyond it
constexpr double kCoarser = 8;                   // times the tolerance: half as many arcs
constexpr double kLittle = 0.01;                 // of the tolerance: what bends less is a line
constexpr double kMostBulge = 0.41421356237309;  // of an arc over a right angle
constexpr double kLeastBulge = 2.5e-4;           // of an arc with a radius of a thousand chords
constexpr double kMostRadiusShare = 0.25;        // of an arc's radius: the ring round the arc is no wider

// Along and across the chord from the start of a piece to its end. DEGENERATE: not a number when they are one point.
struct ChordFrame {
  Point start;
  Point direction;
  double length;

  ChordFrame(const Point& from, const Point& to)
      : start(from), direction{to.x - from.x, to.y - from.y}, length(std::hypot(direction.x, direction.y)) {
    direction = {direction.x / length, direction.y / length};
  }
  double Along(const Point& p) const { return (p.x - start.x) * direction.x + (p.y - start.y) * direction.y; }
  double Across(const Point& p) const { return (p.y - start.y) * direction.x - (p.x - start.x) * direction.y; }
};

template <typename Test>
bool DoAll(const CurvePiece& piece, Test&& test) {
  return std::all_of(piece.begin(), piece.end(), [&](const Weighted& point) { return test(Projected(point)); });
}

// Neither end is passed on the way: then what is close to the chord's line, or to a circle through the ends, is close
// to the part of it between the ends.
bool StaysBetweenItsEnds(const CurvePiece& piece, const ChordFrame& chord, double slack) {
  return DoAll(piece, [&](const Point& p) {
    const double along = chord.Along(p);
    return -slack <= along && along <= chord.length + slack;
  });
}

bool IsStraight(const CurvePiece& piece, const ChordFrame& chord, double tolerance) {
  return DoAll(piece, [&](const Point& p) { return std::abs(chord.Across(p)) <= tolerance; });
}

// DEGENERATE: a piece whose control points are one point has no chord to be judged by.
bool IsWithin(const CurvePiece& piece, const Point& centre, double reach) {
  return DoAll(piece, [&](const Point& p) { return Distance(p, centre) <= reach; });
}

std::vector<double> Binomials(std::size_t n) {
  std::vector<double> row{1};
  for (std::size_t k = 0; k < n; ++k)
    row.push_back(row.back() * static_cast<double>(n - k) / static_cast<double>(k + 1));
  return row;
}

// The power of the curve's points to a circle through its start, times the square of their weight, is a polynomial
// along the piece. This is the largest of its control values, which the power exceeds nowhere. SOURCE: R. T. Farouki,
// V. T. Rajan, Algorithms for polynomials in Bernstein form, 1988.
double MostPower(const CurvePiece& piece, const Point& centre) {
  const std::size_t degree = piece.size() - 1;
  const Point start = Projected(piece.front());
  const Point arm{centre.x - start.x, centre.y - start.y};
  const std::vector<double> each = Binomials(degree);
  const std::vector<double> both = Binomials(2 * degree);
  std::vector<double> values(both.size());
  for (std::size_t i = 0; i <= degree; ++i) {
    const double x = piece[i].x - start.x * piece[i].w;
    const double y = piece[i].y - start.y * piece[i].w;
    for (std::size_t j = 0; j <= degree; ++j) {
      const Weighted& q = piece[j];
      const double product = x * (q.x - start.x * q.w - 2 * arm.x * q.w) + y * (q.y - start.y * q.w - 2 * arm.y * q.w);
      values[i + j] += each[i] * each[j] / both[i + j] * product;
    }
  }
  double most = 0;
  for (const double value : values) most = std::max(most, std::abs(value));
  return most;
}

// Distances d of a point from the centre are within t of the radius r when |d^2 - r^2| is at most 2 r t - t^2.
bool FitsCircle(const CurvePiece& piece, const Point& centre, double tolerance) {
  const Point start = Projected(piece.front());
  const double radius = Distance(centre, start);
  const double reach = std::min(tolerance, kMostRadiusShare * radius);
  const double least =
      std::min_element(piece.begin(), piece.end(), [](const auto& a, const auto& b) { return a.w < b.w; })->w;
  return MostPower(piece, centre) <= least * least * reach * (2 * radius - reach);
}

std::array<CurvePiece, 2> Halves(CurvePiece piece) {
  CurvePiece left;
  CurvePiece right(piece.size());
  for (std::size_t last = piece.size(); last > 0; --last) {
    left.push_back(piece.front());
    right[last - 1] = piece[last - 1];
    for (std::size_t k = 0; k + 1 < last; ++k) {
      piece[k] = Mix(piece[k], piece[k + 1], 0.5);
    }
  }
  return {std::move(left), std::move(right)};
}

// A line or arc from the start of a piece to its end, and whether it does for all that is between.
struct Fit {
  bool isClose = false;
  double bulge = 0;
};

// Judged by the halves, whose control points are closer to the curve than those of the whole.
Fit FitSegment(const std::array<CurvePiece, 2>& halves, double tolerance) {
  const CurvePiece& left = halves.front();
  const CurvePiece& right = halves.back();
  const Point start = Projected(left.front());
  const Point end = Projected(right.back());
  const ChordFrame chord(start, end);
  const double little = kLittle * tolerance;
  const auto both = [&](auto&& test) { return test(left) && test(right); };
  if (both([&](const CurvePiece& half) { return IsWithin(half, start, little); })) return {true, 0};
  if (!both([&](const CurvePiece& half) { return StaysBetweenItsEnds(half, chord, little); })) return {};
  if (both([&](const CurvePiece& half) { return IsStraight(half, chord, little); })) return {true, 0};
  const double bulge = BulgeThrough(start, Projected(right.front()), end);
  if (!(std::abs(bulge) <= kMostBulge)) return {};
  // What an arc of a far larger radius adds to an area is lost in rounding.
  if (std::abs(bulge) < kLeastBulge) {
    return {both([&](const CurvePiece& half) { return IsStraight(half, chord, tolerance); }), 0};
  }
  const Point centre = CentreOf(start, end, bulge);
  return {both([&](const CurvePiece& half) { return FitsCircle(half, centre, tolerance); }), bulge};
}

// Goes on along a piece from where the path ends. False as soon as the path has more than the most vertices.
bool Follow(CurvePiece whole, double tolerance, std::size_t most, ArcPath& path) {
  struct Part {
    CurvePiece piece;
    int halvings;
  };
  std::vector<Part> open{{std::move(whole), 0}};
  while (!open.empty() && path.size() <= most) {
    Part part = std::move(open.back());
    open.pop_back();
    const Point end = Projected(part.piece.back());
    std::array<CurvePiece, 2> halves = Halves(std::move(part.piece));
    const Fit fit = FitSegment(halves, tolerance);
    if (fit.isClose || part.halvings >= kMostHalvings) {
      path.back().bulge = fit.isClose ? fit.bulge : 0;
      path.push_back({end, 0});
      continue;
    }
    open.push_back({std::move(halves[1]), part.halvings + 1});
    open.push_back({std::move(halves[0]), part.halvings + 1});
  }
  return path.size() <= most;
}

ArcPath ChordsOf(std::size_t pieces, const std::function<CurvePiece(std::size_t)>& pieceAt) {
  ArcPath path{{Projected(pieceAt(0).front()), 0}};
  for (std::size_t i = 0; i < pieces; ++i) path.push_back({Projected(pieceAt(i).back()), 0});
  return path;
}

}  // namespace

Weighted Lifted(const Point& aPoint, double aWeight) {
  return {aPoint.x * aWeight, aPoint.y * aWeight, aWeight};
}

Point Projected(const Weighted& aPoint) {
  return {aPoint.x / aPoint.w, aPoint.y / aPoint.w};
}

Weighted Mix(const Weighted& aFirst, const Weighted& aSecond, double aShare) {
  return {(1 - aShare) * aFirst.x + aShare * aSecond.x, (1 - aShare) * aFirst.y + aShare * aSecond.y,
          (1 - aShare) * aFirst.w + aShare * aSecond.w};
}

FlatCurve FollowByArcs(std::size_t aPieces, const std::function<CurvePiece(std::size_t)>& aPieceAt, double aTolerance) {
  const std::size_t most = std::max(aPieces, kMostArcsOfCurve) + 1;
  double tolerance = aTolerance;
  for (int i = 0; i < kMostTries; ++i, tolerance *= kCoarser) {
    ArcPath path{{Projected(aPieceAt(0).front()), 0}};
    bool isWhole = true;
    for (std::size_t k = 0; k < aPieces && isWhole; ++k) isWhole = Follow(aPieceAt(k), tolerance, most, path);
    if (isWhole) return {std::move(path), tolerance};
  }
  return {ChordsOf(aPieces, aPieceAt), std::numeric_limits<double>::infinity()};
}

}  // namespace xsec

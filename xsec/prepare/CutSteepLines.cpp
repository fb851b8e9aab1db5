#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/prepare/Curves.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

using GeometryEngine::kHalfTurn;
using GeometryEngine::TDXFEntity;

/// The line's ends and meetings in order along it.
std::vector<Point> PointsInOrder(const Part& part) {
  std::vector<Point> points = part.meetings;
  points.push_back(part.geometry.StartCoords);
  points.push_back(part.geometry.EndCoords);
  SortAlong(part.geometry, points);
  return points;
}

/// Neighbours that differ, but not in x: their order along the line and their order in x may not be the same.
bool HasNeighboursOfOneX(const std::vector<Point>& points, double tolerance) {
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (points[i] != points[i - 1] && std::abs(points[i].x - points[i - 1].x) <= tolerance) return true;
  }
  return false;
}

/// But for rounding.
bool IsUpright(const TDXFEntity& line, double tolerance) {
  return std::abs(line.StartCoords.x - line.EndCoords.x) <= kToldMove * tolerance;
}

/// From point to point along the line; infinite when all are one.
double LeastGap(const std::vector<Point>& points) {
  double least = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (points[i] != points[i - 1]) least = std::min(least, Distance(points[i - 1], points[i]));
  }
  return least;
}

/// For some turns, evenly over half a turn, how many lines are too steep in each.
class SteepCounts {
 public:
  static constexpr std::size_t kTurns = 1800;

  explicit SteepCounts(const Preparation& work) {
    for (const Part& part : work.parts) {
      if (!IsArc(part.geometry)) Add(part.geometry, LeastGap(PointsInOrder(part)), work.tolerance);
    }
    for (std::size_t i = 1; i < kTurns; ++i) fChanges[i] += fChanges[i - 1];
  }

  std::ptrdiff_t Of(std::size_t turn) const { return fChanges[turn]; }
  /// Degrees. No turn is a round one, in which much of a drawing might run along an axis.
  static double Degrees(std::size_t turn) { return (static_cast<double>(turn) + kOffset) * kHalfTurn / kTurns; }

 private:
  static constexpr double kOffset = 0.37;  // of the way from turn to turn

  /// The line is upright in the middle of the turns in which neighbours on it are too close in x.
  void Add(const TDXFEntity& line, double gap, double tolerance) {
    if (!(gap > tolerance) || std::isinf(gap)) return;  // steep in all turns, or in none
    const Point run = line.EndCoords - line.StartCoords;
    const double upright = kHalfTurn / 2 - std::atan2(run.y, run.x) * GeometryEngine::kDegreesPerRadian;
    const double reach = std::asin(tolerance / gap) * GeometryEngine::kDegreesPerRadian;
    const auto place = [](double degrees) { return std::ceil(degrees * kTurns / kHalfTurn - kOffset); };
    const double first = place(upright - reach);
    const double count = place(upright + reach) - first;
    AddRun(static_cast<std::size_t>(first - kTurns * std::floor(first / kTurns)), static_cast<std::size_t>(count));
  }

  void AddRun(std::size_t first, std::size_t count) {
    const std::size_t end = first + count;
    ++fChanges[first];
    if (end < kTurns) return static_cast<void>(--fChanges[end]);
    ++fChanges[0];
    if (end > kTurns) --fChanges[end - kTurns];
  }

  std::array<std::ptrdiff_t, kTurns> fChanges{};
};

}  // namespace

std::vector<double> TurnsWithFewSteepLines(const Preparation& aWork, std::size_t aMost) {
  constexpr std::size_t kStride = 769;  // prime: takes turn after turn far from each other
  constexpr std::size_t kApart = 50;    // turns, 5 degrees
  const SteepCounts counts(aWork);
  std::vector<std::size_t> turns;
  for (std::size_t i = 0; i < SteepCounts::kTurns; ++i) turns.push_back(i * kStride % SteepCounts::kTurns);
  std::stable_sort(turns.begin(), turns.end(),
                   [&](std::size_t a, std::size_t b) { return counts.Of(a) < counts.Of(b); });
  std::vector<std::size_t> taken = {0};
  for (const std::size_t turn : turns) {
    if (taken.size() > aMost) break;
    const bool isClose = std::any_of(taken.begin(), taken.end(), [&](std::size_t other) {
      const std::size_t way = std::max(turn, other) - std::min(turn, other);
      return std::min(way, SteepCounts::kTurns - way) < kApart;
    });
    if (!isClose) taken.push_back(turn);
  }
  std::vector<double> degrees;
  for (std::size_t i = 1; i < taken.size(); ++i) degrees.push_back(SteepCounts::Degrees(taken[i]));
  return degrees;
}

void CutSteepLines(Preparation& aWork) {
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) {
    Part& part = aWork.parts[i];
    if (IsArc(part.geometry) || IsUpright(part.geometry, aWork.tolerance)) continue;
    if (!HasNeighboursOfOneX(PointsInOrder(part), aWork.tolerance)) continue;
    part.cuts = part.meetings;
    aWork.doubtful.push_back(i);
    aWork.Report(CureKind::SteepLine, part.geometry.StartCoords, i, kNone,
                 std::abs(part.geometry.EndCoords.x - part.geometry.StartCoords.x));
  }
}

}  // namespace xsec

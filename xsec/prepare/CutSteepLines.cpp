#include <cmath>

#include "xsec/prepare/Curves.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

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

}  // namespace

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

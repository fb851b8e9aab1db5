#include <algorithm>
#include <cmath>
#include <iterator>

#include "xsec/prepare/Curves.h"
#include "xsec/prepare/PairMeetings.h"
#include "xsec/prepare/PointCells.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

constexpr double kOneHeight =
    1e-3;  // rise of one centre over the other, as a share of their distance, that is "nearly"

constexpr double kOnCurve = 1e-2;  // tolerances that a point of a curve may be off it

constexpr std::size_t kFewPoints = 16;  // that comparing all with all is quicker for than cells

bool IsEndOf(const Point& point, const TDXFEntity& entity) {
  return point == entity.StartCoords || point == entity.EndCoords;
}

bool Holds(const std::vector<Point>& points, const Point& point) {
  return std::any_of(points.begin(), points.end(), [&](const Point& p) { return p == point; });
}

void AddUnlessHeld(const Point& point, std::vector<Point>& points) {
  if (!Holds(points, point)) points.push_back(point);
}

/// The ends of either that lie on the other, within the tolerance.
std::vector<Point> EndsOnEachOther(const TDXFEntity& a, const TDXFEntity& b, double tolerance) {
  std::vector<Point> points;
  for (const Point& end : {b.StartCoords, b.EndCoords}) {
    if (DistanceTo(a, end) < tolerance) AddUnlessHeld(end, points);
  }
  for (const Point& end : {a.StartCoords, a.EndCoords}) {
    if (DistanceTo(b, end) < tolerance) AddUnlessHeld(end, points);
  }
  return points;
}

bool IsSameCircle(const TDXFEntity& a, const TDXFEntity& b) {
  return a.CentreCoords.x == b.CentreCoords.x && a.CentreCoords.y == b.CentreCoords.y && a.radius == b.radius;
}

CureKind KindOf(const TDXFEntity& a, const TDXFEntity& b) {
  if (!IsArc(a) || !IsArc(b)) return CureKind::Direction;
  const double rise = std::abs(a.CentreCoords.y - b.CentreCoords.y);
  return rise <= kOneHeight * Distance(a.CentreCoords, b.CentreCoords) ? CureKind::OneHeight : CureKind::Direction;
}

bool AreSame(const std::vector<Point>& a, const std::vector<Point>& b) {
  return a.size() == b.size() && std::all_of(a.begin(), a.end(), [&](const Point& point) { return Holds(b, point); });
}

/// Whether the library finds more than the ends that the pieces of both share once they are cut at these points: where
/// a line is very steep, the crossings with arcs that it reckons may lie far along the line.
bool MeetElsewhereOnceCut(const std::vector<Point>& points, const TDXFEntity& a, const TDXFEntity& b) {
  const std::vector<TDXFEntity> others = PiecesAt(b, points);
  for (const TDXFEntity& piece : PiecesAt(a, points)) {
    for (const TDXFEntity& other : others) {
      const std::vector<Point> found = MeetingsAsDrawn(piece, other);
      if (!std::all_of(found.begin(), found.end(), [&](const Point& point) { return Holds(points, point); })) {
        return true;
      }
    }
  }
  return false;
}

class MeetingFinder {
 public:
  explicit MeetingFinder(Preparation& work) : fWork(work) {}

  void Take(const PartPair& pair) {
    fPair = pair;
    const TDXFEntity& a = First().geometry;
    const TDXFEntity& b = Second().geometry;
    if (IsArc(a) == IsArc(b) && (!IsArc(a) || IsSameCircle(a, b)) && TakeOverlap(a, b)) return;
    if (IsArc(a) && IsArc(b) && IsSameCircle(a, b)) return TakeEnds(a, b);
    TakeCrossings(a, b);
  }

 private:
  Part& First() { return fWork.parts[fPair.first]; }
  Part& Second() { return fWork.parts[fPair.second]; }

  void Meet(const Point& point) {
    First().meetings.push_back(point);
    Second().meetings.push_back(point);
  }

  void Cut(const Point& point) {
    for (Part* part : {&First(), &Second()}) {
      if (!IsEndOf(point, part->geometry)) part->cuts.push_back(point);
    }
  }

  /// Lines, or arcs of one circle, that share more than one point lie on each other between them.
  bool TakeOverlap(const TDXFEntity& a, const TDXFEntity& b) {
    return TakeIfTogether(a, b, EndsOnEachOther(a, b, fWork.tolerance));
  }

  /// What runs together between two of the points is there twice.
  bool TakeIfTogether(const TDXFEntity& a, const TDXFEntity& b, const std::vector<Point>& points) {
    if (points.size() < 2 || !RunTogether(a, b, points)) return false;
    double length = 0;
    for (const Point& point : points) {
      Meet(point);
      Cut(point);
      length = std::max(length, Distance(points.front(), point));
    }
    fWork.Report(CureKind::Overlap, points.front(), fPair.first, fPair.second, length);
    return true;
  }

  /// Two half circles share both ends and nothing between: the middle between two neighbouring points tells.
  bool RunTogether(const TDXFEntity& a, const TDXFEntity& b, std::vector<Point> points) const {
    SortAlong(a, points);
    for (std::size_t i = 1; i < points.size(); ++i) {
      const Point middle = MidPoint(Travel(PieceBetween(a, points[i - 1], points[i]), true));
      if (DistanceTo(a, middle) < fWork.tolerance && DistanceTo(b, middle) < fWork.tolerance) return true;
    }
    return false;
  }

  void TakeEnds(const TDXFEntity& a, const TDXFEntity& b) {
    for (const Point& end : EndsOnEachOther(a, b, fWork.tolerance)) Meet(end);
  }

  void TakeCrossings(const TDXFEntity& a, const TDXFEntity& b) {
    const std::vector<Point> points = MeetingsOf(a, b);
    if (points.empty()) return;
    if (TakeIfTogether(a, b, points)) return;
    for (const Point& point : points) Meet(point);
    if (AreSame(points, MeetingsAsDrawn(a, b)) && AreOnBoth(points, a, b)) return;
    if (MeetElsewhereOnceCut(points, a, b)) fWork.doubtful.push_back(fPair.first);
    for (const Point& point : points) Cut(point);
    fWork.Report(KindOf(a, b), points.front(), fPair.first, fPair.second, 0);
  }

  /// To far less than the tolerance, so that cutting there bends neither.
  bool AreOnBoth(const std::vector<Point>& points, const TDXFEntity& a, const TDXFEntity& b) const {
    const double most = kOnCurve * fWork.tolerance;
    return std::all_of(points.begin(), points.end(), [&](const Point& point) {
      return (IsEndOf(point, a) || DistanceTo(a, point) < most) && (IsEndOf(point, b) || DistanceTo(b, point) < most);
    });
  }

  Preparation& fWork;
  PartPair fPair;
};

/// A cut may bend a part by as much as the tolerance; where others cross it, it has to stay in place.
void CutWhereMet(Part& part) {
  std::copy_if(part.meetings.begin(), part.meetings.end(), std::back_inserter(part.cuts),
               [&](const Point& meeting) { return !IsEndOf(meeting, part.geometry); });
}

/// Without the points that are the same as one that stays before them.
std::vector<Point> Distinct(const std::vector<Point>& points, double tolerance) {
  std::vector<Point> distinct;
  if (points.size() <= kFewPoints) {
    for (const Point& point : points) AddUnlessHeld(point, distinct);
    return distinct;
  }
  PointCells cells(tolerance, points.size());
  for (const Point& point : points) {
    if (cells.Visit(point, [&](std::size_t i) { return distinct[i] == point; })) continue;
    cells.Add(point, distinct.size());
    distinct.push_back(point);
  }
  return distinct;
}

}  // namespace

void FindMeetings(Preparation& aWork) {
  MeetingFinder finder(aWork);
  for (const PartPair& pair : aWork.pairs) finder.Take(pair);
}

void SettleMeetings(Preparation& aWork) {
  for (Part& part : aWork.parts) {
    part.meetings = Distinct(part.meetings, aWork.tolerance);
    if (!part.cuts.empty()) CutWhereMet(part);
    part.cuts = Distinct(part.cuts, aWork.tolerance);
  }
}

}  // namespace xsec

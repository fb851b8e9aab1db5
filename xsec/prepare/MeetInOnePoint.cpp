#include <algorithm>
#include <iterator>

#include "xsec/prepare/Curves.h"
#include "xsec/prepare/PointGroups.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

/// Points of one part on their way to the middles of their groups.
class MovedPoints {
 public:
  explicit MovedPoints(const PointGroups& groups) : fGroups(groups) {}

  Point Move(const Point& point) {
    const Point middle = fGroups.MiddleFor(point);
    if (const double way = Distance(middle, point); way > fLongest) {
      fLongest = way;
      fPlace = middle;
    }
    return middle;
  }

  /// How far the point went that went furthest, and where to.
  double Longest() const { return fLongest; }
  const Point& Place() const { return fPlace; }

 private:
  const PointGroups& fGroups;
  double fLongest = 0;
  Point fPlace;
};

/// The part from where its start has gone to where its end has, through both.
TDXFEntity Moved(const TDXFEntity& whole, const Point& start, const Point& end) {
  const bool stays = IsSameBits(start, whole.StartCoords) && IsSameBits(end, whole.EndCoords);
  return stays && IsOnCurve(whole, start) && IsOnCurve(whole, end) ? whole : PieceBetween(whole, start, end);
}

/// Wherever it is met but at its ends.
void CutInside(Part& part) {
  const TDXFEntity& whole = part.geometry;
  part.cuts.clear();
  std::copy_if(part.meetings.begin(), part.meetings.end(), std::back_inserter(part.cuts), [&](const Point& meeting) {
    return !IsSameBits(meeting, whole.StartCoords) && !IsSameBits(meeting, whole.EndCoords);
  });
}

}  // namespace

void MeetInOnePoint(Preparation& aWork) {
  const PointGroups groups(aWork, aWork.tolerance);
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) {
    Part& part = aWork.parts[i];
    TDXFEntity& whole = part.geometry;
    MovedPoints points(groups);
    for (Point& meeting : part.meetings) meeting = points.Move(meeting);
    const Point start = points.Move(whole.StartCoords);
    const Point end = points.Move(whole.EndCoords);
    whole = Moved(whole, start, end);
    CutInside(part);
    if (points.Longest() <= kToldMove * aWork.tolerance) continue;
    aWork.Report(CureKind::OnePoint, points.Place(), i, kNone, points.Longest());
  }
}

}  // namespace xsec

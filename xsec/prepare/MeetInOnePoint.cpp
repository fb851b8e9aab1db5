#include <algorithm>
#include <iterator>

#include "xsec/prepare/Curves.h"
#include "xsec/prepare/PointGroups.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

using GeometryEngine::TDXFEntity;

/// The part from where its start has gone to where its end has, through both.
TDXFEntity Moved(const TDXFEntity& whole, const Point& start, const Point& end) {
  const bool stays = IsSameBits(start, whole.StartCoords) && IsSameBits(end, whole.EndCoords);
  return stays && IsOnCurve(whole, start) && IsOnCurve(whole, end) ? whole : PieceBetween(whole, start, end);
}

}  // namespace

void MeetInOnePoint(Preparation& aWork) {
  const PointGroups groups(aWork, aWork.tolerance);
  for (std::size_t i = 0; i < aWork.parts.size(); ++i) {
    Part& part = aWork.parts[i];
    TDXFEntity& whole = part.geometry;
    double moved = 0;
    Point place;
    const auto middleFor = [&](const Point& point) {
      const Point middle = groups.MiddleFor(point);
      if (Distance(middle, point) > moved) {
        place = middle;
        moved = Distance(middle, point);
      }
      return middle;
    };
    for (Point& meeting : part.meetings) meeting = middleFor(meeting);
    whole = Moved(whole, middleFor(whole.StartCoords), middleFor(whole.EndCoords));
    part.cuts.clear();
    std::copy_if(part.meetings.begin(), part.meetings.end(), std::back_inserter(part.cuts), [&](const Point& meeting) {
      return !IsSameBits(meeting, whole.StartCoords) && !IsSameBits(meeting, whole.EndCoords);
    });
    if (moved > kToldMove * aWork.tolerance) aWork.Report(CureKind::OnePoint, place, i, kNone, moved);
  }
}

}  // namespace xsec

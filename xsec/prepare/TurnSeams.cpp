#include <algorithm>
#include <cmath>

#include "GeometryEngine/host/Numerics.h"
#include "xsec/prepare/Curves.h"
#include "xsec/prepare/EntityGrid.h"
#include "xsec/prepare/PairMeetings.h"
#include "xsec/prepare/Preparation.h"

namespace xsec {

namespace {

using GeometryEngine::kHalfTurn;
using GeometryEngine::TDXFEntity;

constexpr double kCloseToSeam = 10;  // degrees between a meeting and a seam that hide the order of turns

/// For each part that is the first half of a circle where others meet the circle, as directions modulo a half turn.
class SeamTurner {
 public:
  explicit SeamTurner(Preparation& work) : fWork(work), fMeetings(work.parts.size()), fFirst(work.parts.size(), kNone) {
    for (std::size_t i = 0; i + 1 < work.parts.size(); ++i) {
      if (fFirst[i] == kNone && AreHalves(work.parts[i].geometry, work.parts[i + 1].geometry)) {
        fFirst[i] = fFirst[i + 1] = i;
      }
    }
  }

  /// Whether any seam was turned.
  bool Run() {
    for (const auto& [a, b] : fWork.pairs) {
      if (fFirst[a] == fFirst[b]) continue;
      for (const Point& point : CrossingsOf(fWork.parts[a].geometry, fWork.parts[b].geometry)) {
        Note(a, point);
        Note(b, point);
      }
    }
    for (std::size_t i = 0; i < fWork.parts.size(); ++i) {
      if (fFirst[i] == i && IsCloseToSeam(i)) Turn(i);
    }
    return fIsTurned;
  }

 private:
  double DirectionFrom(std::size_t circle, const Point& point) const {
    const Point arm = point - fWork.parts[circle].geometry.CentreCoords;
    return GeometryEngine::GetAngleInRange(std::atan2(arm.y, arm.x) * GeometryEngine::kDegreesPerRadian, 0, kHalfTurn);
  }

  void Note(std::size_t part, const Point& point) {
    if (fFirst[part] != kNone) fMeetings[fFirst[part]].push_back(DirectionFrom(fFirst[part], point));
  }

  /// A meeting at the very seam hides nothing.
  bool IsCloseToSeam(std::size_t circle) const {
    const TDXFEntity& half = fWork.parts[circle].geometry;
    const double atSeam = kToldMove * fWork.tolerance / half.radius * GeometryEngine::kDegreesPerRadian;
    const double seam = GeometryEngine::GetAngleInRange(half.startAngle, 0, kHalfTurn);
    return std::any_of(fMeetings[circle].begin(), fMeetings[circle].end(), [&](double meeting) {
      const double beyond = GeometryEngine::GetAngleInRange(meeting - seam, 0, kHalfTurn);
      const double away = std::min(beyond, kHalfTurn - beyond);
      return atSeam <= away && away < kCloseToSeam;
    });
  }

  /// The middle of the widest gap between neighbouring meetings.
  double BestSeam(std::vector<double> meetings) const {
    std::sort(meetings.begin(), meetings.end());
    meetings.push_back(meetings.front() + kHalfTurn);
    std::size_t widest = 1;
    for (std::size_t i = 2; i < meetings.size(); ++i) {
      if (meetings[i] - meetings[i - 1] > meetings[widest] - meetings[widest - 1]) widest = i;
    }
    return (meetings[widest - 1] + meetings[widest]) / 2;
  }

  void Turn(std::size_t circle) {
    const double seam = BestSeam(fMeetings[circle]) * GeometryEngine::kRadiansPerDegree;
    const TDXFEntity whole = fWork.parts[circle].geometry;
    const Point arm{whole.radius * std::cos(seam), whole.radius * std::sin(seam)};
    const Point one = whole.CentreCoords + arm;
    const Point other = whole.CentreCoords - arm;
    fWork.parts[circle].geometry = ArcBetween(one, other, whole.CentreCoords, whole.radius);
    fWork.parts[circle + 1].geometry = ArcBetween(other, one, whole.CentreCoords, whole.radius);
    fIsTurned = true;
    fWork.Report(CureKind::Seam, one, circle, kNone, 0);
  }

  Preparation& fWork;
  std::vector<std::vector<double>> fMeetings;
  std::vector<std::size_t> fFirst;  ///< the first half of the circle that a part is a half of
  bool fIsTurned = false;
};

}  // namespace

void TurnSeams(Preparation& aWork) {
  if (SeamTurner(aWork).Run()) aWork.pairs = NearPairs(aWork.parts, kReachInTolerances * aWork.tolerance);
}

}  // namespace xsec

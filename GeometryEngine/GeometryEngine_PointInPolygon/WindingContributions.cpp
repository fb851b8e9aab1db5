#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <span>

#include "GeometryEngine/DXF_Entity_Types/detail/Sameness.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/SegmentWinding.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordCount.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordPoint.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/LimitedSegments.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine {

namespace {

constexpr std::int32_t kFewChords = 16;  // no more than this many are looked at one by one
constexpr double kLargestAngle = 1e6;    // degrees; rounding of larger ones is not small beside a chord
constexpr double kAngleSlack = 1e-10;    // degrees; above the rounding of an arcsine, below a chord

// Chords from the first to the last, both counted in; the last one is less than the first where there are none.
struct TChordRange {
  std::int32_t fFirst = 0;
  std::int32_t fLast = -1;
};

// A walk along an arc in chords, and what it adds to the winding number of a point.
class TArcWalk {
 public:
  TArcWalk(const TDXFEntity& aArc, const TEntityCoordinate& aStart, const TEntityCoordinate& aPoint)
      : fArc(aArc),
        fPoint(aPoint),
        fTolerance(detail::ReadLinearTolerance()),
        fStartAngle(GetEntityStartAngle_Arc(aStart, aArc)),
        fDirection(GetArcTravelDirection(fStartAngle, aArc)),
        fSegments(GetArcSegmentPoints_Surf(aArc, detail::kSurfChordTolerance)) {
    if (IsTurnedTooFar()) fSegments = detail::GetLimitedSegments(fSegments);
  }

  std::int32_t GetWinding() const {
    const bool inFull = fSegments.aCount <= kFewChords || IsTurnedTooFar();
    return inFull ? SumUp({0, fSegments.aCount - 1}) : GetWinding_AtHeight();
  }

 private:
  // Then a height doesn't tell which chords pass it, and all of them are looked at.
  bool IsTurnedTooFar() const { return !(std::abs(fStartAngle) <= kLargestAngle); }

  std::int32_t SumUp(const TChordRange& aRange) const {
    std::int32_t sum = 0;
    detail::ForEachChord(fArc, detail::GetWalkedAngles(fDirection, fStartAngle, fSegments.aStep), aRange.fFirst,
                         aRange.fLast, [&](const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo) {
                           sum += detail::GetSegmentWinding(aFrom, aTo, fPoint, fTolerance);
                         });
    return sum;
  }

  // A chord counts only when it begins and ends on different sides of the point's height, where a height up to one
  // tolerance above it belongs to the lower side. The circle passes that height in two directions. All of it that is
  // not within rounding of the height lies in between, on one side; so only chords that touch the directions within
  // rounding of the two may count.
  std::int32_t GetWinding_AtHeight() const {
    const double height = fPoint.y + Lift() - fArc.CentreCoords.y;
    const double low = (height - Slack()) / fArc.radius;
    const double high = (height + Slack()) / fArc.radius;
    if (!(low <= 1) || !(high >= -1)) return 0;
    const double from = std::asin(std::max(low, -1.0)) * kDegreesPerRadian - kAngleSlack;
    const double to = std::asin(std::min(high, 1.0)) * kDegreesPerRadian + kAngleSlack;
    TRanges ranges;
    AddRanges(from, to, ranges);
    AddRanges(kHalfTurn - to, kHalfTurn - from, ranges);
    return SumUpOnce(ranges);
  }

  // More than the rounding of a chord's end, of the height and of their comparison together.
  double Slack() const {
    constexpr double kRounding = 16 * std::numeric_limits<double>::epsilon();
    const double turned = (std::abs(fStartAngle) + kFullTurn) * kRadiansPerDegree;
    return kRounding * (fArc.radius * (1 + turned) + std::abs(fArc.CentreCoords.y) + std::abs(fPoint.y) + Lift());
  }

  // How far above the point what belongs to the lower side may be.
  double Lift() const { return fTolerance > 0 ? fTolerance : 0; }

  struct TRanges {
    std::array<TChordRange, 8> fRanges;  // a walk of no more than a full turn meets a range of directions twice at most
    std::size_t fCount = 0;
  };

  // The chords that touch the directions from one to another, in degrees, in whichever turn.
  void AddRanges(double aFrom, double aTo, TRanges& aRanges) const {
    const bool anticlockwise = fDirection == Travel_AntiClockwise;
    const double first = (anticlockwise ? aFrom - fStartAngle : fStartAngle - aTo) / fSegments.aStep;
    const double last = (anticlockwise ? aTo - fStartAngle : fStartAngle - aFrom) / fSegments.aStep;
    const double turn = kFullTurn / fSegments.aStep;
    for (double k = std::floor((-2 - last) / turn); first + k * turn <= fSegments.aCount + 2.0; ++k) {
      const std::int32_t begin = ToInteger_Saturated(std::floor(first + k * turn) - 2);
      const std::int32_t end = ToInteger_Saturated(std::floor(last + k * turn) + 2);
      const TChordRange range{std::max(begin, 0), std::min(end, fSegments.aCount - 1)};
      if (range.fFirst <= range.fLast) aRanges.fRanges[aRanges.fCount++] = range;
    }
  }

  std::int32_t SumUpOnce(TRanges& aRanges) const {
    const auto ranges = std::span(aRanges.fRanges).first(aRanges.fCount);
    std::ranges::sort(ranges, {}, &TChordRange::fFirst);
    std::int32_t sum = 0;
    std::int32_t next = 0;
    for (const TChordRange& range : ranges) {
      sum += SumUp({std::max(range.fFirst, next), range.fLast});
      next = std::max(next, range.fLast + 1);
    }
    return sum;
  }

  const TDXFEntity& fArc;
  const TEntityCoordinate& fPoint;
  double fTolerance;
  double fStartAngle;
  TTravelDirection fDirection;
  TArcSegments fSegments;
};

// Every point of the walk lies between the lowest and the highest of the circle, rounded likewise.
bool PassesHeight(const TDXFEntity& aArc, double aHeight) {
  const detail::TLevels levels(detail::ReadLinearTolerance());
  const double reach = std::abs(aArc.radius);
  return levels.IsAbove(aArc.CentreCoords.y + reach - aHeight) && levels.IsBelow(aArc.CentreCoords.y - reach - aHeight);
}

}  // namespace

std::int32_t GetWindingNumber_Entity_Addition(const TDXFEntity& aEntity, const TEntityCoordinate& aStart,
                                              const TEntityCoordinate& aEnd, const TEntityCoordinate& aPoint) {
  if (aEntity.EntityType == DXFLine) return DetermineInterceptResult(aStart, aEnd, aPoint);
  if (aEntity.EntityType != DXFArc || !PassesHeight(aEntity, aPoint.y)) return 0;
  return TArcWalk(aEntity, aStart, aPoint).GetWinding();
}

std::int32_t DetermineInterceptResult(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd,
                                      const TEntityCoordinate& aPoint) {
  return detail::GetSegmentWinding(aStart, aEnd, aPoint, detail::ReadLinearTolerance());
}

}  // namespace GeometryEngine

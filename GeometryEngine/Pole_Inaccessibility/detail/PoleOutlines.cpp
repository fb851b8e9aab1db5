#include "GeometryEngine/Pole_Inaccessibility/detail/PoleOutlines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "GeometryEngine/DXF_EntityStorage/detail/PointOnEntity.h"
#include "GeometryEngine/DXF_EntityStorage/detail/VertexWalk.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLastPlaces = 64 * std::numeric_limits<double>::epsilon();  // more than rounding takes or adds
constexpr std::size_t kOutline = 0;                                          // number of the chain
constexpr double kWindingChordTolerance = 0.01;                              // drawing length units from chord to arc
constexpr std::int32_t kMostChordsListed = 10'000;                           // of one arc

/// From the lowest to the highest of four heights, and as far again beyond them as asked for; all heights when that is
/// no number.
THeightRange GetWidened(double aHeight_A, double aHeight_B, double aHeight_C, double aHeight_D, double aMargin) {
  const double low = std::min({aHeight_A, aHeight_B, aHeight_C, aHeight_D}) - aMargin;
  const double high = std::max({aHeight_A, aHeight_B, aHeight_C, aHeight_D}) + aMargin;
  const bool isKnown = std::isfinite(aHeight_A + aHeight_B + aHeight_C + aHeight_D) && low <= high;
  return isKnown ? THeightRange{low, high} : THeightRange{-kInfinity, kInfinity};
}

/// Heights of the points that a line can hold: on a sloping one the height follows from the slope, and its rounding
/// grows with it.
double GetRounding_Line(const TDXFEntity& aLine, double aTolerance) {
  const TEntityCoordinate& start = aLine.StartCoords;
  const TEntityCoordinate& end = aLine.EndCoords;
  if (AreSame(start.x, end.x, aTolerance)) return 0;
  const double slope = std::abs((end.y - start.y) / (end.x - start.x));
  const double reach = std::max(std::abs(start.x), std::abs(end.x));
  return kLastPlaces * (slope * reach + std::max(std::abs(start.y), std::abs(end.y)));
}

THeightRange GetHeightRange_Chord(const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo, double aTolerance) {
  return GetWidened(aFrom.y, aTo.y, aFrom.y, aTo.y, std::max(aTolerance, 0.0));
}

THeightRange GetHeightRange_Line(const TDXFEntity& aLine, const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                                 double aTolerance) {
  return GetWidened(aLine.StartCoords.y, aLine.EndCoords.y, aFrom.y, aTo.y,
                    std::max(aTolerance, 0.0) + GetRounding_Line(aLine, aTolerance));
}

THeightRange GetHeightRange_Arc(const TDXFEntity& aArc, double aTolerance) {
  const double centre = aArc.CentreCoords.y;
  const double radius = std::abs(aArc.radius);
  return GetWidened(centre - radius, centre + radius, centre - radius, centre + radius,
                    std::max(aTolerance, 0.0) + kLastPlaces * (std::abs(centre) + radius));
}

/// What a walk along one chain has learnt about a point.
struct TChainTest {
  bool fIsOn = false;
  std::int64_t fWinding = 0;

  bool IsInside(bool aIncludePointOnEntity) const { return fIsOn ? aIncludePointOnEntity : fWinding > 0; }
};

}  // namespace

void THeightRange::Unite(const THeightRange& aOther) {
  fLow = std::min(fLow, aOther.fLow);
  fHigh = std::max(fHigh, aOther.fHigh);
}

TPoleOutlines::TPoleOutlines(std::span<const TEntityStorage* const> aChains)
    : fParts(GetParts(aChains)), fTree(GetHeights(fParts)) {}

std::vector<TPoleOutlines::TPart> TPoleOutlines::GetParts(std::span<const TEntityStorage* const> aChains) {
  std::vector<TPart> parts;
  for (std::size_t number = 0; number < aChains.size(); ++number) {
    const TEntityStorage& chain = *aChains[number];
    for (TVertexWalk walk(chain.EntityArray(), chain.StartCoordinate()); walk.Next();) {
      const TPart part{&walk.Entity(), true, walk.From(), walk.To(), number};
      if (walk.Entity().EntityType == DXFLine) parts.push_back(part);
      if (walk.Entity().EntityType == DXFArc) AddChords(parts, part);
    }
  }
  return parts;
}

/// The arc, and behind it the chords by which it turns round points, unless there are very many.
void TPoleOutlines::AddChords(std::vector<TPart>& aParts, TPart aArc) {
  const TDXFEntity& arc = *aArc.fEntity;
  const auto [count, step] = GetArcSegmentPoints_Surf(arc, kWindingChordTolerance);
  aArc.fTurnsRound = count > kMostChordsListed;
  aParts.push_back(aArc);
  if (aArc.fTurnsRound) return;
  const double startAngle = GetEntityStartAngle_Arc(aArc.fFrom, arc);
  const TTravelDirection direction = GetArcTravelDirection(startAngle, arc);
  TEntityCoordinate from = GetArc_LineSegmentCoord(arc, 0, direction, startAngle, step);
  for (std::int32_t k = 1; k <= count; ++k) {
    const TEntityCoordinate to = GetArc_LineSegmentCoord(arc, k, direction, startAngle, step);
    aParts.push_back({nullptr, true, from, to, aArc.fChain});
    from = to;
  }
}

/// Outside its heights a part holds no point and turns round none.
THeightRange TPoleOutlines::GetHeightRange(const TPart& aPart, double aTolerance) {
  if (aPart.fEntity == nullptr) return GetHeightRange_Chord(aPart.fFrom, aPart.fTo, aTolerance);
  if (aPart.fEntity->EntityType == DXFArc) return GetHeightRange_Arc(*aPart.fEntity, aTolerance);
  return GetHeightRange_Line(*aPart.fEntity, aPart.fFrom, aPart.fTo, aTolerance);
}

std::vector<THeightRange> TPoleOutlines::GetHeights(std::span<const TPart> aParts) {
  const double tolerance = ReadLinearTolerance();
  std::vector<THeightRange> heights;
  heights.reserve(aParts.size());
  for (const TPart& part : aParts) heights.push_back(GetHeightRange(part, tolerance));
  return heights;
}

std::int32_t TPoleOutlines::GetWinding(const TPart& aPart, const TEntityCoordinate& aPoint) {
  if (!aPart.fTurnsRound) return 0;
  if (aPart.fEntity == nullptr) return DetermineInterceptResult(aPart.fFrom, aPart.fTo, aPoint);
  return GetWindingNumber_Entity_Addition(*aPart.fEntity, aPart.fFrom, aPart.fTo, aPoint);
}

bool TPoleOutlines::Hold(const TEntityCoordinate& aPoint) const {
  bool isWithinOutline = false;
  bool isWithinHole = false;
  std::size_t number = kOutline;
  TChainTest test;
  const auto finishChain = [&] {
    (number == kOutline ? isWithinOutline : isWithinHole) |= test.IsInside(number != kOutline);
  };
  const auto isLevelWith = [&](const THeightRange& aHeights) { return aHeights.Holds(aPoint.y); };
  fTree.ForEach(isLevelWith, [&](std::size_t aPlace) {
    const TPart& part = fParts[aPlace];
    if (part.fChain != number) {
      finishChain();
      test = {};
      number = part.fChain;
    }
    test.fIsOn = test.fIsOn || (part.fEntity != nullptr && PointOnEntity(*part.fEntity, aPoint));
    if (!test.fIsOn) test.fWinding += GetWinding(part, aPoint);
  });
  finishChain();
  return isWithinOutline && !isWithinHole;
}

}  // namespace GeometryEngine::detail

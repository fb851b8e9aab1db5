#include "GeometryEngine/Pole_Inaccessibility/detail/PoleOutlines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "GeometryEngine/DXF_EntityStorage/detail/PointOnEntity.h"
#include "GeometryEngine/DXF_EntityStorage/detail/VertexWalk.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLastPlaces = 64 * std::numeric_limits<double>::epsilon();  // more than rounding takes or adds
constexpr std::size_t kOutline = 0;                                          // number of the chain

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

/// Outside these heights the entity holds no point and turns round none.
THeightRange GetHeightRange(const TDXFEntity& aEntity, const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                            double aTolerance) {
  const double margin = std::max(aTolerance, 0.0);
  if (aEntity.EntityType == DXFLine)
    return GetWidened(aEntity.StartCoords.y, aEntity.EndCoords.y, aFrom.y, aTo.y,
                      margin + GetRounding_Line(aEntity, aTolerance));
  const double low = aEntity.CentreCoords.y - std::abs(aEntity.radius);
  const double high = aEntity.CentreCoords.y + std::abs(aEntity.radius);
  return GetWidened(low, high, low, high,
                    margin + kLastPlaces * (std::abs(aEntity.CentreCoords.y) + std::abs(aEntity.radius)));
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
    : fPassed(GetPassed(aChains)), fTree(GetHeights(fPassed)) {}

std::vector<TPoleOutlines::TPassed> TPoleOutlines::GetPassed(std::span<const TEntityStorage* const> aChains) {
  std::vector<TPassed> passed;
  for (std::size_t number = 0; number < aChains.size(); ++number) {
    const TEntityStorage& chain = *aChains[number];
    for (TVertexWalk walk(chain.EntityArray(), chain.StartCoordinate()); walk.Next();) {
      passed.push_back({&walk.Entity(), walk.From(), walk.To(), number});
    }
  }
  return passed;
}

std::vector<THeightRange> TPoleOutlines::GetHeights(std::span<const TPassed> aPassed) {
  const double tolerance = ReadLinearTolerance();
  std::vector<THeightRange> heights;
  heights.reserve(aPassed.size());
  for (const TPassed& passed : aPassed) {
    heights.push_back(GetHeightRange(*passed.fEntity, passed.fFrom, passed.fTo, tolerance));
  }
  return heights;
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
    const TPassed& passed = fPassed[aPlace];
    if (passed.fChain != number) {
      finishChain();
      test = {};
      number = passed.fChain;
    }
    test.fIsOn = test.fIsOn || PointOnEntity(*passed.fEntity, aPoint);
    if (!test.fIsOn)
      test.fWinding += GetWindingNumber_Entity_Addition(*passed.fEntity, passed.fFrom, passed.fTo, aPoint);
  });
  finishChain();
  return isWithinOutline && !isWithinHole;
}

}  // namespace GeometryEngine::detail

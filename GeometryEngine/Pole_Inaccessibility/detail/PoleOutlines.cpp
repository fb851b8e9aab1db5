#include "GeometryEngine/Pole_Inaccessibility/detail/PoleOutlines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "GeometryEngine/DXF_EntityStorage/detail/PointOnEntity.h"
#include "GeometryEngine/DXF_EntityStorage/detail/VertexWalk.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/ArcHeights.h"
#include "GeometryEngine/host/Numerics.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kLastPlaces = 64 * std::numeric_limits<double>::epsilon();  // more than rounding takes or adds
constexpr std::size_t kOutline = 0;                                          // number of the chain

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

/// The heights of an arc, whose sweep may be exceeded by one tolerance of angles at both ends.
THeightRange GetHeights_Arc(const TDXFEntity& aArc) {
  const double excess = std::max(Kelvaralinks::dataStore.GetValue(Maindataenum::TInputFields::ifAngleTolerance), 0.0);
  const double from = aArc.startAngle - excess;
  return GetHeights({aArc.CentreCoords.y, aArc.radius, from, from + aArc.ArcSweep() + 2 * excess});
}

/// Outside of these heights no point is on the entity.
THeightRange GetHeights_On(const TDXFEntity& aEntity, double aTolerance) {
  const bool isLine = aEntity.EntityType == DXFLine;
  THeightRange heights = THeightRange::Of(aEntity.StartCoords.y, aEntity.EndCoords.y);
  if (!isLine) heights.Unite(GetHeights_Arc(aEntity));
  return heights.Widened(std::max(aTolerance, 0.0) + (isLine ? GetRounding_Line(aEntity, aTolerance) : 0));
}

/// What a walk along one chain has learnt about a point.
struct TChainTest {
  bool fIsOn = false;
  std::int64_t fWinding = 0;

  bool IsInside(bool aIncludePointOnEntity) const { return fIsOn ? aIncludePointOnEntity : fWinding > 0; }
};

}  // namespace

TPoleOutlines::TPoleOutlines(std::span<const TEntityStorage* const> aChains)
    : fTolerance(ReadLinearTolerance()), fParts(GetParts(aChains)), fTree(GetHeights()) {}

std::vector<TPoleOutlines::TPart> TPoleOutlines::GetParts(std::span<const TEntityStorage* const> aChains) const {
  std::vector<TPart> parts;
  std::size_t entities = 0;
  for (const TEntityStorage* chain : aChains) entities += chain->EntityArray().size();
  parts.reserve(entities);
  for (std::size_t number = 0; number < aChains.size(); ++number) {
    const TEntityStorage& chain = *aChains[number];
    for (TVertexWalk walk(chain.EntityArray(), chain.StartCoordinate()); walk.Next();) {
      const DXFEntityType type = walk.Entity().EntityType;
      if (type != DXFLine && type != DXFArc) continue;
      parts.push_back({TWalkedEntity(walk.Entity(), walk.From(), walk.To(), fTolerance), number});
    }
  }
  return parts;
}

/// Outside its heights a part holds no point and turns round none.
std::vector<THeightRange> TPoleOutlines::GetHeights() const {
  std::vector<THeightRange> heights;
  heights.reserve(TBlockTree<THeightRange>::GetRoom(fParts.size()));
  for (const TPart& part : fParts) {
    heights.push_back(part.fWalked.Heights());
    heights.back().Unite(GetHeights_On(part.fWalked.Entity(), fTolerance));
  }
  return heights;
}

bool TPoleOutlines::Hold(const TEntityCoordinate& aPoint) {
  bool isWithinOutline = false;
  bool isWithinHole = false;
  std::size_t number = kOutline;
  TChainTest test;
  const auto finishChain = [&] {
    (number == kOutline ? isWithinOutline : isWithinHole) |= test.IsInside(number != kOutline);
  };
  const auto isLevelWith = [&](const THeightRange& aHeights) { return aHeights.Holds(aPoint.y); };
  fTree.ForEach(isLevelWith, [&](std::size_t aPlace) {
    TPart& part = fParts[aPlace];
    if (part.fChain != number) {
      finishChain();
      test = {};
      number = part.fChain;
    }
    test.fIsOn = test.fIsOn || PointOnEntity(part.fWalked.Entity(), aPoint);
    if (!test.fIsOn) test.fWinding += part.fWalked.GetWinding(aPoint, fTolerance);
  });
  finishChain();
  return isWithinOutline && !isWithinHole;
}

}  // namespace GeometryEngine::detail

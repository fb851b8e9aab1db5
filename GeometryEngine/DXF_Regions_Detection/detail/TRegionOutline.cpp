#include "GeometryEngine/DXF_Regions_Detection/detail/TRegionOutline.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "GeometryEngine/DXF_EntityStorage/detail/OtherEnd.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/SegmentWinding.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kChordTolerance = 0.01;  // drawing length units between chord and arc
constexpr std::int32_t kMostChords = 32;  // of an arc that is kept as chords
constexpr std::size_t kFewEdges = 24;     // no more than this many are looked at one by one

}  // namespace

TRegionOutline::TRegionOutline(const TEntityTree& aTree, const TTreeNode& aRegion) : fTolerance(ReadLinearTolerance()) {
  TEntityCoordinate from = aRegion.Coordinates();
  for (const TTreeNode* child : aRegion.Children()) {
    const TDXFEntity& entity = aTree.GetNodeEntity(*child);
    const TEntityCoordinate farEnd = GetOtherEnd(from, entity, fTolerance);
    AddEntity(entity, from, farEnd);
    from = farEnd;
  }
  if (fEdges.size() > kFewEdges) fByHeight.emplace(std::exchange(fHeights, {}));
}

void TRegionOutline::AddEntity(const TDXFEntity& aEntity, const TEntityCoordinate& aFrom,
                               const TEntityCoordinate& aFarEnd) {
  if (aEntity.EntityType == DXFArc) AddArc(aEntity, aFrom, aFarEnd);
  if (aEntity.EntityType != DXFLine) return;
  const auto [low, high] = std::minmax(aFrom.y, aFarEnd.y);
  AddEdge({aFrom, aFarEnd}, low, high);
}

void TRegionOutline::AddArc(const TDXFEntity& aArc, const TEntityCoordinate& aFrom, const TEntityCoordinate& aFarEnd) {
  const auto [count, step] = GetArcSegmentPoints_Surf(aArc, kChordTolerance);
  if (count > kMostChords) {
    const double reach = std::abs(aArc.radius);
    AddEdge({aFrom, aFarEnd, &aArc}, aArc.CentreCoords.y - reach, aArc.CentreCoords.y + reach);
    return;
  }
  const double startAngle = GetEntityStartAngle_Arc(aFrom, aArc);
  const TTravelDirection direction = GetArcTravelDirection(startAngle, aArc);
  TEntityCoordinate from = GetArc_LineSegmentCoord(aArc, 0, direction, startAngle, step);
  for (std::int32_t i = 0; i < count; ++i) {
    const TEntityCoordinate to = GetArc_LineSegmentCoord(aArc, i + 1, direction, startAngle, step);
    const auto [low, high] = std::minmax(from.y, to.y);
    AddEdge({from, to}, low, high);
    from = to;
  }
}

// A height is not clearly above a point when it is not above it, or when their rounded difference is below the
// tolerance; the exact difference is then no greater than the tolerance, and the point no lower than the number below
// the rounded difference of the two. An end that is not a number is on neither side, so that its edge never counts.
void TRegionOutline::AddEdge(const TEdge& aEdge, double aLow, double aHigh) {
  const double reach = fTolerance > 0 ? fTolerance : 0;
  const double least = std::nextafter(aLow - reach, -std::numeric_limits<double>::infinity());
  if (std::isnan(least) || std::isnan(aHigh)) return;
  fHeights.push_back({least, aHigh, ToIndex(fEdges.size())});
  fEdges.push_back(aEdge);
}

std::int32_t TRegionOutline::GetWindingNumber(const TEntityCoordinate& aPoint) const {
  std::uint32_t total = 0;  // unsigned: wraps round instead of overflowing
  const auto add = [&](TIndex edge) { total += GetWinding(fEdges[static_cast<std::size_t>(edge)], aPoint); };
  if (fByHeight) fByHeight->ForEachHolding(aPoint.y, add);
  for (const TInterval& height : fHeights) {
    if (height.fLeast <= aPoint.y && aPoint.y <= height.fGreatest) add(height.fItem);
  }
  return static_cast<std::int32_t>(total);
}

std::uint32_t TRegionOutline::GetWinding(const TEdge& aEdge, const TEntityCoordinate& aPoint) const {
  const std::int32_t winding = aEdge.fArc == nullptr
                                   ? GetSegmentWinding(aEdge.fFrom, aEdge.fTo, aPoint, fTolerance)
                                   : GetWindingNumber_Entity_Addition(*aEdge.fArc, aEdge.fFrom, aEdge.fTo, aPoint);
  return static_cast<std::uint32_t>(winding);
}

}  // namespace GeometryEngine::detail

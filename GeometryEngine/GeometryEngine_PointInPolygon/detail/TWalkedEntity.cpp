#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TWalkedEntity.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/ArcHeights.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/SegmentWinding.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordPoint.h"

namespace GeometryEngine::detail {

namespace {

constexpr double kChordTolerance = 0.01;            // drawing length units from chord to arc
constexpr std::int32_t kMostChordsListed = 10'000;  // of one arc

}  // namespace

TWalkedEntity::TWalkedEntity(const TDXFEntity& aEntity, const TEntityCoordinate& aFrom, const TEntityCoordinate& aTo,
                             double aTolerance)
    : fEntity(&aEntity), fFrom(aFrom), fTo(aTo), fHeights(GetHeights().Widened(std::max(aTolerance, 0.0))) {}

THeightRange TWalkedEntity::GetHeights() const {
  if (fEntity->EntityType == DXFLine) return THeightRange::Of(fFrom.y, fTo.y);
  const double from = GetEntityStartAngle_Arc(fFrom, *fEntity);
  const bool isAnticlockwise = GetArcTravelDirection(from, *fEntity) == Travel_AntiClockwise;
  const double sweep = fEntity->ArcSweep();
  return detail::GetHeights(
      {fEntity->CentreCoords.y, fEntity->radius, from, isAnticlockwise ? from + sweep : from - sweep});
}

std::int32_t TWalkedEntity::GetWinding(const TEntityCoordinate& aPoint, double aTolerance) {
  if (!fHeights.Holds(aPoint.y)) return 0;
  if (fEntity->EntityType == DXFLine) return GetSegmentWinding(fFrom, fTo, aPoint, aTolerance);
  if (fChords == nullptr) ListChords(aTolerance);
  if (fChords == nullptr) return GetWindingNumber_Entity_Addition(*fEntity, fFrom, fTo, aPoint);
  std::int32_t winding = 0;
  fChords->fHeights.ForEach([&](const THeightRange& aHeights) { return aHeights.Holds(aPoint.y); },
                            [&](std::size_t aPlace) {
                              const TEntityCoordinate* chord = &fChords->fEnds[aPlace];
                              winding += GetSegmentWinding(chord[0], chord[1], aPoint, aTolerance);
                            });
  return winding;
}

void TWalkedEntity::ListChords(double aTolerance) {
  const auto [count, step] = GetArcSegmentPoints_Surf(*fEntity, kChordTolerance);
  if (count > kMostChordsListed) return;
  const double startAngle = GetEntityStartAngle_Arc(fFrom, *fEntity);
  const TTravelDirection direction = GetArcTravelDirection(startAngle, *fEntity);
  auto chords = std::make_unique<TChords>();
  chords->fEnds.reserve(static_cast<std::size_t>(count) + 1);
  ForEachChordPoint(*fEntity, {direction, startAngle, step}, 0, count,
                    [&](const TEntityCoordinate& aEnd) { chords->fEnds.push_back(aEnd); });
  std::vector<THeightRange> heights;
  heights.reserve(static_cast<std::size_t>(count));
  for (std::size_t k = 0; k + 1 < chords->fEnds.size(); ++k) {
    heights.push_back(THeightRange::Of(chords->fEnds[k].y, chords->fEnds[k + 1].y).Widened(std::max(aTolerance, 0.0)));
  }
  chords->fHeights = TBlockTree<THeightRange>(std::move(heights));
  fChords = std::move(chords);
}

}  // namespace GeometryEngine::detail

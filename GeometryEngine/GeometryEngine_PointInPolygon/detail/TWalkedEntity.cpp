#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/TWalkedEntity.h"

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "GeometryEngine/GeometryEngine_PointInPolygon/WindingContributions.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/ArcHeights.h"
#include "GeometryEngine/GeometryEngine_PointInPolygon/detail/SegmentWinding.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/ArcWalking.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordCount.h"
#include "GeometryEngine/GetFunctions_GeometryOperations/detail/ChordPoint.h"

namespace GeometryEngine::detail {

namespace {

constexpr std::int32_t kMostChordsListed = 10'000;  // of one arc
constexpr std::size_t kBlockChords = 8;             // looked at together
static_assert(kBlockChords < kMostVerticesAtOnce);

/// The heights of the chords between these ends, some in a row at once, and as far beyond as a chord still counts.
std::vector<THeightRange> GetHeightsOfBlocks(const TCoordinateArray& aEnds, double aMargin) {
  const std::size_t chords = aEnds.size() - 1;
  std::vector<THeightRange> heights;
  heights.reserve(TBlockTree<THeightRange>::GetRoom((chords + kBlockChords - 1) / kBlockChords));
  for (std::size_t first = 0; first < chords; first += kBlockChords) {
    THeightRange block = THeightRange::Of(aEnds[first].y, aEnds[first + 1].y);
    const std::size_t last = std::min(first + kBlockChords, chords);
    for (std::size_t k = first + 2; k <= last; ++k) block.Unite({aEnds[k].y, aEnds[k].y});
    heights.push_back(block.Widened(aMargin));
  }
  return heights;
}

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
  const std::span<const TEntityCoordinate> ends(fChords->fEnds);
  const auto isLevelWith = [&](const THeightRange& aHeights) { return aHeights.Holds(aPoint.y); };
  fChords->fBlocks.ForEach(isLevelWith, [&](std::size_t aBlock) {
    const std::size_t first = aBlock * kBlockChords;
    const std::size_t chords = std::min(kBlockChords, ends.size() - 1 - first);
    winding += GetPolylineWinding(ends.subspan(first, chords + 1), aPoint, aTolerance);
  });
  return winding;
}

void TWalkedEntity::ListChords(double aTolerance) {
  const auto [count, step] = GetArcSegmentPoints_Surf(*fEntity, kSurfChordTolerance);
  if (count > kMostChordsListed) return;
  const double startAngle = GetEntityStartAngle_Arc(fFrom, *fEntity);
  const TTravelDirection direction = GetArcTravelDirection(startAngle, *fEntity);
  auto chords = std::make_unique<TChords>();
  chords->fEnds.reserve(static_cast<std::size_t>(count) + 1);
  ForEachChordPoint(*fEntity, GetWalkedAngles(direction, startAngle, step), 0, count,
                    [&](const TEntityCoordinate& aEnd) { chords->fEnds.push_back(aEnd); });
  chords->fBlocks = TBlockTree<THeightRange>(GetHeightsOfBlocks(chords->fEnds, std::max(aTolerance, 0.0)));
  fChords = std::move(chords);
}

}  // namespace GeometryEngine::detail

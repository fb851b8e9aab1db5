// The sort of a storage by left-most x.

#include <cstddef>
#include <iterator>
#include <span>
#include <utility>
#include <vector>

#include "GeometryEngine/DXF_EntityStorage/TEntityStorage.h"
#include "GeometryEngine/DXF_EntityStorage/detail/LomutoSort.h"
#include "GeometryEngine/DXF_SweepLine_Utilities/ExtremeCoordinates.h"
#include "GeometryEngine/host/detail/FetchAhead.h"

namespace GeometryEngine {

namespace {

std::vector<detail::TSortItem> GetKeys(std::span<const TDXFEntity> aEntities) {
  std::vector<detail::TSortItem> keys;
  keys.reserve(aEntities.size());
  for (const TDXFEntity& entity : aEntities) keys.push_back({GetLeftMostCoordinate(entity).x, keys.size()});
  return keys;
}

/// Has memory fetch an entity.
[[gnu::always_inline]] inline void FetchAhead(const TDXFEntity& aEntity) {
  detail::FetchAhead(&aEntity.EntityType);
  detail::FetchAhead(&aEntity.endAngle);
  detail::FetchAhead(&aEntity.SourceDXF);
}

/// The places from which the entities are to come. Short numbers, since each step along a ring waits for the last one.
std::vector<TIndex> GetPlaces(std::span<const detail::TSortItem> aOrder) {
  std::vector<TIndex> places;
  places.reserve(aOrder.size());
  for (const detail::TSortItem& item : aOrder) places.push_back(ToIndex(item.fPlace));
  return places;
}

/// Moves every entity to its place, one ring of places after another; `aPlaces` is used up. Each entity is fetched some
/// steps before its turn, since it may lie anywhere.
class TRearrangement {
 public:
  TRearrangement(std::span<TDXFEntity> aEntities, std::vector<TIndex> aPlaces)
      : fEntities(aEntities), fPlaces(std::move(aPlaces)) {}

  void Run() {
    for (TIndex first = 0; first < ToIndex(fPlaces.size()); ++first) {
      if (PlaceOf(first) != first) MoveRing(first);
    }
  }

 private:
  static constexpr int kStepsAhead = 6;

  TIndex& PlaceOf(TIndex aIndex) { return fPlaces[static_cast<std::size_t>(aIndex)]; }
  TDXFEntity& EntityAt(TIndex aIndex) { return fEntities[static_cast<std::size_t>(aIndex)]; }

  void MoveRing(TIndex aFirst) {
    TDXFEntity held = std::move(EntityAt(aFirst));
    TIndex place = aFirst;
    TIndex ahead = GetPlaceAhead(aFirst);
    for (TIndex next = PlaceOf(place); next != aFirst; next = PlaceOf(place)) {
      FetchAhead(EntityAt(ahead));
      if (ahead != aFirst) ahead = PlaceOf(ahead);
      EntityAt(place) = std::move(EntityAt(next));
      PlaceOf(place) = place;
      place = next;
    }
    EntityAt(place) = std::move(held);
    PlaceOf(place) = place;
  }

  /// Some steps along the ring, but not beyond its beginning.
  TIndex GetPlaceAhead(TIndex aFirst) {
    TIndex place = PlaceOf(aFirst);
    for (int i = 1; i < kStepsAhead && place != aFirst; ++i) place = PlaceOf(place);
    return place;
  }

  std::span<TDXFEntity> fEntities;
  std::vector<TIndex> fPlaces;
};

}  // namespace

void TEntityStorage::QuickSortArray(TIndex aLow, TIndex aHigh) {
  if (!GetIsIndexValid(aLow) || !GetIsIndexValid(aHigh) || aLow >= aHigh) return;
  const std::span<TDXFEntity> slice(fEntityArray.begin() + aLow, fEntityArray.begin() + aHigh + 1);
  std::vector<detail::TSortItem> order = GetKeys(slice);
  detail::TLomutoSort(order).Sort();
  TRearrangement(slice, GetPlaces(order)).Run();
}

}  // namespace GeometryEngine

// The sort of a storage by left-most x.

#include <array>
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

/// Moves every entity to its place, along the rings of places; `aPlaces` is used up.
///
/// Each step along a ring waits for memory: the entity may lie anywhere, and where the one after it lies is known only
/// then. So several walks are under way, each a step further in turn. A walk takes an entity out, which leaves its
/// place vacant, fills that from another place, and so on, until the entity that the vacant place is to have is one
/// that was taken out. Walks may be on one ring; then each ends where another began.
class TRearrangement {
 public:
  TRearrangement(std::span<TDXFEntity> aEntities, std::vector<TIndex> aPlaces)
      : fEntities(aEntities), fPlaces(std::move(aPlaces)) {}

  void Run() {
    std::array<TWalk, kWalks> walks;
    std::size_t underWay = 0;
    while (underWay < kWalks && Begin(walks[underWay], ToIndex(underWay))) ++underWay;
    while (underWay > 0) {
      for (std::size_t i = 0; i < underWay; ++i) {
        if (!Step(walks[i])) walks[i] = walks[--underWay];
      }
    }
  }

 private:
  static constexpr std::size_t kWalks = 8;

  struct TWalk {
    TIndex fVacant;
    TIndex fNext;  ///< the place whose entity it is to have
  };

  TIndex& PlaceOf(TIndex aIndex) { return fPlaces[static_cast<std::size_t>(aIndex)]; }
  TDXFEntity& EntityAt(TIndex aIndex) { return fEntities[static_cast<std::size_t>(aIndex)]; }

  /// Takes out the first entity that is not where it belongs, to hold it in a slot that is free. False if there is
  /// none.
  bool Begin(TWalk& aWalk, TIndex aSlot) {
    while (fFirst < ToIndex(fPlaces.size()) && (PlaceOf(fFirst) < 0 || PlaceOf(fFirst) == fFirst)) ++fFirst;
    if (fFirst == ToIndex(fPlaces.size())) return false;
    fHeld[static_cast<std::size_t>(aSlot)] = std::move(EntityAt(fFirst));
    aWalk = {fFirst, PlaceOf(fFirst)};
    PlaceOf(fFirst) = ~aSlot;
    Fetch(aWalk.fNext);
    return true;
  }

  /// Fills the vacant place. False when the walk has ended and there is no other to begin.
  bool Step(TWalk& aWalk) {
    TIndex& next = PlaceOf(aWalk.fNext);
    if (next < 0) {
      const TIndex slot = ~next;
      next = aWalk.fNext;
      EntityAt(aWalk.fVacant) = std::move(fHeld[static_cast<std::size_t>(slot)]);
      return Begin(aWalk, slot);
    }
    EntityAt(aWalk.fVacant) = std::move(EntityAt(aWalk.fNext));
    aWalk = {aWalk.fNext, std::exchange(next, aWalk.fNext)};
    Fetch(aWalk.fNext);
    return true;
  }

  void Fetch(TIndex aPlace) {
    detail::FetchAhead(&PlaceOf(aPlace));
    FetchAhead(EntityAt(aPlace));
  }

  std::span<TDXFEntity> fEntities;
  std::vector<TIndex> fPlaces;  ///< by place, the one its entity comes from; ~slot where the entity was taken out
  std::array<TDXFEntity, kWalks> fHeld;
  TIndex fFirst = 0;
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

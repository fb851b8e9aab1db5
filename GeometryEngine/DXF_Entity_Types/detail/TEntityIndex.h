#pragma once

// Which of many entities may equal a given one under the linear tolerance. Private.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TCellChains.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TToleranceCells.h"

namespace GeometryEngine::detail {

/// The cells of the box round the two ends of an entity, hashed.
///
/// The sides of the boxes of equal entities are the same under the tolerance: the lesser and the greater of two numbers
/// move by less than t when both numbers do, and no rounding takes part. So the hash of an entity's cells is among
/// those around it of every entity that equals it.
class TBoxCells {
 public:
  TBoxCells() : fCells(GetLinearTolerance()) {}

  /// True as long as the tolerance is the one that the cells were made for.
  bool IsCurrent() const { return fCells.ServesTolerance(GetLinearTolerance()); }

  /// False for what equals nothing.
  bool CanMatch(const TDXFEntity& aEntity) const {
    return (aEntity.EntityType == DXFLine || aEntity.EntityType == DXFArc) && CanMatch(aEntity.StartCoords) &&
           CanMatch(aEntity.EndCoords);
  }

  /// REQUIRES: an entity that can match, as below.
  std::uint64_t GetHash(const TDXFEntity& aEntity) const {
    std::uint64_t hash = 0;
    for (const double side : GetBox(aEntity)) hash = MixCell(hash, fCells.GetCell(side));
    return hash;
  }

  /// Calls `aVisit(hash)` for all cells in which an entity that equals this one can lie, its own among them.
  template <class TVisit>
  void ForEachHashAround(const TDXFEntity& aEntity, const TVisit& aVisit) const {
    VisitAround(0, GetBox(aEntity), aVisit);
  }

 private:
  using TBox = std::array<double, 4>;

  static TBox GetBox(const TDXFEntity& aEntity) {
    const auto [left, right] = std::minmax({aEntity.StartCoords.x, aEntity.EndCoords.x});
    const auto [low, high] = std::minmax({aEntity.StartCoords.y, aEntity.EndCoords.y});
    return {left, right, low, high};
  }

  bool CanMatch(const TEntityCoordinate& aPoint) const {
    return fCells.CanMatch(aPoint.x) && fCells.CanMatch(aPoint.y);
  }

  /// `aSides` are those that the hash does not know yet.
  template <class TVisit>
  void VisitAround(std::uint64_t aHash, std::span<const double> aSides, const TVisit& aVisit) const {
    if (aSides.empty()) return aVisit(aHash);
    const TCellRange cells = fCells.GetCellsAround(aSides.front());
    for (std::int64_t cell = cells.fFirst; cell <= cells.fLast; ++cell) {
      VisitAround(MixCell(aHash, cell), aSides.subspan(1), aVisit);
    }
  }

  TToleranceCells fCells;
};

/// Entities 0, 1, 2, ... in the order in which they were added, by the cells of their boxes. The entities themselves
/// stay with the caller. Cells only propose; the entities' own == decides, under which a line equals its reverse.
///
/// REQUIRES: the tolerance as it was when the index was made; see `IsCurrent`.
/// COST: constant on average, as long as few different entities have ends in opposite corners of one box.
class TEntityIndex {
 public:
  /// False once the tolerance is another one; what a search then answers is wrong.
  bool IsCurrent() const { return fCells.IsCurrent(); }

  void Reserve(std::size_t aCount) { fChains.Reserve(aCount); }

  void Add(const TDXFEntity& aEntity) {
    if (!fCells.CanMatch(aEntity)) return fChains.AddHidden();
    fChains.Add(fCells.GetHash(aEntity));
  }

  TIndex Count() const { return fChains.Count(); }

  /// Calls `aVisit(index)` for every entity that may equal this one, in no order; for one more than once if hashes of
  /// different cells are equal.
  template <class TVisit>
  void ForEachNear(const TDXFEntity& aEntity, const TVisit& aVisit) const {
    if (!fCells.CanMatch(aEntity)) return;
    fCells.ForEachHashAround(aEntity, [&](std::uint64_t hash) {
      for (TIndex i = fChains.First(hash); i != kNotFound; i = fChains.Next(i)) {
        if (fChains.HasHash(i, hash)) aVisit(i);
      }
    });
  }

  /// The first entity that equals this one, given `aGetEntity(index)`; kNotFound when none does.
  template <class TGetEntity>
  TIndex FindFirst(const TDXFEntity& aEntity, const TGetEntity& aGetEntity) const {
    TIndex first = kNotFound;
    ForEachNear(aEntity, [&](TIndex i) {
      const bool earlier = first == kNotFound || i < first;
      if (earlier && aGetEntity(i) == aEntity) first = i;
    });
    return first;
  }

 private:
  TBoxCells fCells;
  TCellChains fChains;
};

}  // namespace GeometryEngine::detail

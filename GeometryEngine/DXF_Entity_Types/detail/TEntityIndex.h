#pragma once

// Which of many entities may equal a given one under the linear tolerance. Private.

#include <cstddef>
#include <cstdint>

#include "GeometryEngine/DXF_Entity_Types/TDXFEntity.h"
#include "GeometryEngine/DXF_Entity_Types/Tolerances.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TCellChains.h"
#include "GeometryEngine/DXF_Entity_Types/detail/TToleranceCells.h"

namespace GeometryEngine::detail {

/// Entities 0, 1, 2, ... in the order in which they were added, by the cells of both their ends. The entities
/// themselves stay with the caller. Cells only propose; the entities' own == decides, under which a line equals its
/// reverse.
///
/// REQUIRES: the tolerance as it was when the index was made; see `IsCurrent`.
/// COST: constant on average, as long as few different entities join the same two small areas.
class TEntityIndex {
 public:
  TEntityIndex() : fCells(GetLinearTolerance()) {}

  /// False once the tolerance is another one; what a search then answers is wrong.
  bool IsCurrent() const { return fCells.ServesTolerance(GetLinearTolerance()); }

  void Reserve(std::size_t aCount) { fChains.Reserve(aCount); }

  void Add(const TDXFEntity& aEntity) {
    if (!CanMatch(aEntity)) return fChains.AddHidden();
    const TEntityCoordinate& start = aEntity.StartCoords;
    const TEntityCoordinate& end = aEntity.EndCoords;
    fChains.Add(GetHash(GetHash(0, fCells.GetCell(start.x), fCells.GetCell(start.y)),  //
                        fCells.GetCell(end.x), fCells.GetCell(end.y)));
  }

  TIndex Count() const { return fChains.Count(); }

  /// Calls `aVisit(index)` for every entity that may equal this one, for some of them more than once, in no order.
  template <class TVisit>
  void ForEachNear(const TDXFEntity& aEntity, const TVisit& aVisit) const {
    if (!CanMatch(aEntity)) return;
    ForEachJoining(aEntity.StartCoords, aEntity.EndCoords, aVisit);
    if (aEntity.EntityType == DXFLine) ForEachJoining(aEntity.EndCoords, aEntity.StartCoords, aVisit);
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
  static std::uint64_t GetHash(std::uint64_t aHash, std::int64_t aColumn, std::int64_t aRow) {
    return MixCell(MixCell(aHash, aColumn), aRow);
  }

  bool CanMatch(const TDXFEntity& aEntity) const {
    return (aEntity.EntityType == DXFLine || aEntity.EntityType == DXFArc) && CanMatch(aEntity.StartCoords) &&
           CanMatch(aEntity.EndCoords);
  }

  bool CanMatch(const TEntityCoordinate& aPoint) const {
    return fCells.CanMatch(aPoint.x) && fCells.CanMatch(aPoint.y);
  }

  template <class TVisit>
  void ForEachCellAround(std::uint64_t aHash, const TEntityCoordinate& aPoint, const TVisit& aVisit) const {
    const TCellRange columns = fCells.GetCellsAround(aPoint.x);
    const TCellRange rows = fCells.GetCellsAround(aPoint.y);
    for (std::int64_t column = columns.fFirst; column <= columns.fLast; ++column) {
      for (std::int64_t row = rows.fFirst; row <= rows.fLast; ++row) aVisit(GetHash(aHash, column, row));
    }
  }

  template <class TVisit>
  void ForEachJoining(const TEntityCoordinate& aStart, const TEntityCoordinate& aEnd, const TVisit& aVisit) const {
    ForEachCellAround(0, aStart, [&](std::uint64_t startHash) {
      ForEachCellAround(startHash, aEnd, [&](std::uint64_t hash) {
        for (TIndex i = fChains.First(hash); i != kNotFound; i = fChains.Next(i)) {
          if (fChains.HasHash(i, hash)) aVisit(i);
        }
      });
    });
  }

  TToleranceCells fCells;
  TCellChains fChains;
};

}  // namespace GeometryEngine::detail
